#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark {

Environment makeEnvironment(const char* const* entries) {
    Environment environment;
    if (entries == nullptr) return environment;
    for (; *entries != nullptr; ++entries) {
        const std::string_view entry = *entries;
        const std::size_t equals = entry.find('=');
        if (equals == std::string_view::npos || !UTF8::isValid(entry)) continue;
        environment.emplace(entry.substr(0, equals), entry.substr(equals + 1));
    }
    return environment;
}

}  // namespace vellark
