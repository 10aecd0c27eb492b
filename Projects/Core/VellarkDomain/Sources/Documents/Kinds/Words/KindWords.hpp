#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>

#include <span>
#include <string_view>

namespace vellark::KindWords {

/// The words of one kind in one language of the base vocabulary. Each list is one text of words, parted by ", "; an
/// empty text is an empty list. The common word stands first. Case, accents' spelling and joined Korean, Japanese and
/// Chinese forms need no second entry: matching normalises text and drops blanks between such scripts by itself.
struct Base {
    DocumentKind kind;
    std::string_view names;    ///< words that name the document: "meeting minutes"
    std::string_view cues;     ///< topics that point at the kind without naming a document: "meeting"
    std::string_view weak;     ///< names only where a cue of the same kind stands beside them: "mail"
    std::string_view markers;  ///< phrases that stand inside such documents: "action items"
};

/// A word that means several kinds, in one language of the base vocabulary. `kinds` is in the order of likelihood.
struct Shared {
    std::span<const DocumentKind> kinds;
    std::string_view names;
    std::string_view generics;  ///< document nouns without a topic of their own, which a cue refines: "summary"
    std::string_view cues;
};

/// The words of one kind in a language that is layered over the base vocabulary. Singular and plural forms stand side
/// by side, since these languages' plurals are listed and never computed.
struct Layered {
    DocumentKind kind;
    std::string_view nouns;
    std::string_view weak;
};

std::span<const Base> korean();
std::span<const Base> english();
std::span<const Base> japanese();
std::span<const Base> chinese();

std::span<const Layered> french();
std::span<const Layered> spanish();
std::span<const Layered> german();
std::span<const Layered> russian();
std::span<const Layered> mongolian();
std::span<const Layered> vietnamese();
std::span<const Layered> thai();

/// Words of all four base languages that mean several kinds.
std::span<const Shared> shared();

}  // namespace vellark::KindWords
