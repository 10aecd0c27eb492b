#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <cstdint>

namespace vellark {

/// A language whose words for kinds are layered over the base vocabulary of Korean, English, Japanese and Chinese.
enum class DocumentKindLanguage : std::uint8_t { fr, es, de, ru, mn, vi, th };

template <>
inline constexpr auto caseTable<DocumentKindLanguage> = std::to_array<CaseName<DocumentKindLanguage>>({
    {DocumentKindLanguage::fr, "fr"},
    {DocumentKindLanguage::es, "es"},
    {DocumentKindLanguage::de, "de"},
    {DocumentKindLanguage::ru, "ru"},
    {DocumentKindLanguage::mn, "mn"},
    {DocumentKindLanguage::vi, "vi"},
    {DocumentKindLanguage::th, "th"},
});

/// Whether a title of the language opens with its head noun, so that nothing but an article stands before it.
[[nodiscard]] constexpr bool headLeadsSegment(DocumentKindLanguage language) {
    switch (language) {
        case DocumentKindLanguage::fr:
        case DocumentKindLanguage::es:
        case DocumentKindLanguage::vi:
        case DocumentKindLanguage::th:
            return true;
        case DocumentKindLanguage::de:
        case DocumentKindLanguage::ru:
        case DocumentKindLanguage::mn:
            return false;
    }
    return false;
}

/// A set of languages.
class DocumentKindLanguageSet {
public:
    constexpr void insert(DocumentKindLanguage language) { bits_ |= bit(language); }
    [[nodiscard]] constexpr bool contains(DocumentKindLanguage language) const { return (bits_ & bit(language)) != 0; }
    [[nodiscard]] constexpr bool isEmpty() const { return bits_ == 0; }

    /// Whether the sets have a language in common.
    [[nodiscard]] constexpr bool intersects(DocumentKindLanguageSet other) const { return (bits_ & other.bits_) != 0; }

    [[nodiscard]] constexpr DocumentKindLanguageSet without(DocumentKindLanguage language) const {
        DocumentKindLanguageSet result = *this;
        result.bits_ &= static_cast<std::uint8_t>(~bit(language));
        return result;
    }

    bool operator==(const DocumentKindLanguageSet&) const = default;

private:
    static constexpr std::uint8_t bit(DocumentKindLanguage language) {
        return static_cast<std::uint8_t>(1U << static_cast<unsigned>(language));
    }

    std::uint8_t bits_ = 0;
};

}  // namespace vellark
