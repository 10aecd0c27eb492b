#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Documents/Kinds/DocumentKindLanguage.hpp>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace vellark {

/// The tables of words that a lexicon is built from. Words are written as people write them; the lexicon normalises
/// them. The order of rows and of words decides which word wins where two say as much.
struct DocumentKindVocabulary {
    using Words = std::vector<std::string_view>;

    /// The words of one kind.
    struct KindRow {
        DocumentKind kind{};
        std::optional<std::string_view> symbol = std::nullopt;
        Words names = {};
        Words generics = {};
        Words cues = {};
        Words exclusions = {};
    };

    /// Words that mean several kinds, the likeliest first.
    struct SharedRow {
        std::vector<DocumentKind> kinds;
        Words names = {};
        Words generics = {};
        Words cues = {};
        Words exclusions = {};
    };

    struct WordRow {
        DocumentKind kind{};
        Words words;
    };

    /// The words of one kind in a language beside the base vocabulary.
    struct LanguageRow {
        DocumentKind kind{};
        Words nouns = {};
        Words weak = {};
    };

    struct Language {
        DocumentKindLanguage language{};
        std::span<const LanguageRow> words = {};             ///< in the order of the kinds
        std::span<const std::string_view> complements = {};  ///< words behind which a noun is no head: "de"
        std::span<const std::string_view> exclusions = {};
    };

    std::span<const SharedRow> shared = {};
    std::span<const KindRow> table = {};
    std::span<const WordRow> weak = {};
    std::span<const WordRow> markers = {};
    std::span<const std::string_view> blocked = {};
    std::span<const std::string_view> prepositions = {};
    std::vector<Language> languages = {};
};

}  // namespace vellark
