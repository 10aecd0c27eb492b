#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/LatinASCII.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>

namespace vellark {

namespace {

std::string germanForm(std::string_view word) {
    std::string result;
    for (const char32_t scalar : Scalars(word)) {
        switch (scalar) {
            case U'ä':
                result += "ae";
                break;
            case U'ö':
                result += "oe";
                break;
            case U'ü':
                result += "ue";
                break;
            case U'ß':
                result += "ss";
                break;
            default:
                UTF8::append(result, scalar);
        }
    }
    return result;
}

std::optional<std::string> plainForm(std::string_view word, DocumentKindLanguage language) {
    switch (language) {
        case DocumentKindLanguage::de:
            return germanForm(word);
        case DocumentKindLanguage::fr:
        case DocumentKindLanguage::es:
        case DocumentKindLanguage::vi:
            return LatinASCII::transform(word);
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<std::string> asciiForm(std::string_view word, DocumentKindLanguage language) {
    if (UTF8::isASCII(word)) return std::nullopt;
    const std::string composed = Normalization::nfc(word);
    auto form = plainForm(composed, language);
    if (!form || form == composed || !UTF8::isASCII(*form)) return std::nullopt;
    if (DocumentKindRules::isEnglishHomograph(DocumentKindMatcher::normalize(*form))) return std::nullopt;
    return form;
}

}  // namespace vellark
