#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>

#include <algorithm>

namespace vellark {

bool DocumentContentFormat::isProse() const {
    const auto* code = std::get_if<Code>(&value);
    return code == nullptr || (code->language && isPlainTextLanguage(*code->language));
}

bool isPlainTextLanguage(std::string_view language) {
    return std::ranges::find(plainTextLanguages, language) != plainTextLanguages.end();
}

}  // namespace vellark
