#pragma once

#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindVocabulary.hpp>

#include <map>
#include <set>
#include <string>

namespace vellark {

/// The tables by which kinds are told, made once. Words that stand beside a text in matching are compared in normalised
/// form, as UTF-32; look-ups by a normalised text say so.
namespace DocumentKindRules {

using Words = DocumentKindVocabulary::Words;

// The base vocabulary, put together from the lists of its languages.

[[nodiscard]] const std::vector<DocumentKindVocabulary::KindRow>& table();     ///< all kinds but `other`
[[nodiscard]] const std::vector<DocumentKindVocabulary::SharedRow>& shared();  ///< words that mean several kinds
[[nodiscard]] const std::vector<DocumentKindVocabulary::WordRow>& weak();      ///< kinds that have such words
[[nodiscard]] const std::vector<DocumentKindVocabulary::WordRow>& markers();   ///< kinds that have such phrases
[[nodiscard]] const std::map<DocumentKind, std::string_view>& symbols();       ///< of the rows of `table`

/// The kinds that have words in a language beside the base vocabulary.
[[nodiscard]] const std::vector<DocumentKindVocabulary::LanguageRow>& words(DocumentKindLanguage language);

/// All tables that a lexicon is built from.
[[nodiscard]] const DocumentKindVocabulary& vocabulary();

// Words that end a phrase, hide a word or change what stands beside them.

[[nodiscard]] std::span<const std::string_view> blocked();
[[nodiscard]] std::span<const std::string_view> prepositions();
[[nodiscard]] std::span<const std::string_view> complements(DocumentKindLanguage language);
[[nodiscard]] std::span<const std::string_view> exclusions(DocumentKindLanguage language);

/// Words that may stand behind a head ("draft", "v"), without digits, which normalising drops; those of the base
/// vocabulary and those of Mongolian.
[[nodiscard]] std::span<const std::string_view> tailWords();
[[nodiscard]] std::span<const std::string_view> mongolianTailWords();
[[nodiscard]] bool isTail(std::u32string_view normalized);

/// Openings of a title that are heads whatever follows: "RFC 12: ...".
[[nodiscard]] std::span<const std::string_view> labelWords();
[[nodiscard]] bool isLabel(std::u32string_view normalized);

[[nodiscard]] bool isArticle(std::u32string_view normalized, DocumentKindLanguage language);

/// Foreign words that read as English words when they stand in a title.
[[nodiscard]] bool isEnglishHomograph(std::u32string_view normalized);

/// Whether a Korean noun may end a longer one, as "계획서" ends "사업계획서": three syllables or more, of which the
/// last makes a kind of document.
[[nodiscard]] bool isSuffixHead(std::u32string_view normalized);

/// The kinds that a topic word may select out of a generic word such as "notes".
[[nodiscard]] std::span<const DocumentKind> refinable();
[[nodiscard]] bool isRefinable(DocumentKind kind);

// Kinds by file names; the extensions are lower-case, without the point.

[[nodiscard]] std::optional<DocumentKind> kindOfStem(std::u32string_view normalized);
[[nodiscard]] std::optional<DocumentKind> kindOfExtension(std::string_view extension);

/// By the second extension, as in "login.spec.md".
[[nodiscard]] std::optional<DocumentKind> kindOfInnerExtension(std::string_view extension);

/// By the end of a path. Components of the pattern stand between slashes: "*" stands for one character or more and "#"
/// for one digit or more; the path's last components, as many as the pattern has, must match.
struct PathPattern {
    std::string_view pattern;
    DocumentKind kind{};
};

/// In the order of test.
[[nodiscard]] std::span<const PathPattern> pathPatterns();

}  // namespace DocumentKindRules

}  // namespace vellark
