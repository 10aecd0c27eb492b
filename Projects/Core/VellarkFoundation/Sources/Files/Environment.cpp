#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#ifdef __APPLE__
#include <crt_externs.h>
#else
#include <unistd.h>
#endif

namespace vellark {

namespace {

std::optional<std::string_view> find(const char* const* entries, std::string_view name) {
    for (; entries != nullptr && *entries != nullptr; ++entries) {
        const std::string_view entry = *entries;
        if (entry.size() > name.size() && entry[name.size()] == '=' && entry.starts_with(name)) {
            return entry.substr(name.size() + 1);
        }
    }
    return std::nullopt;
}

}  // namespace

Environment::Environment(std::initializer_list<std::pair<const std::string, std::string>> variables)
    : variables_(std::make_shared<const std::map<std::string, std::string, std::less<>>>(variables)) {}

Environment Environment::ofProcess() {
#ifdef __APPLE__
    return Environment(*_NSGetEnviron());
#else
    return Environment(environ);
#endif
}

std::optional<std::string_view> Environment::value(std::string_view name) const {
    std::optional<std::string_view> found;
    if (!variables_) {
        found = find(entries_, name);
    } else if (const auto variable = variables_->find(name); variable != variables_->end()) {
        found = variable->second;
    }
    if (found && !UTF8::isValid(*found)) return std::nullopt;
    return found;
}

}  // namespace vellark
