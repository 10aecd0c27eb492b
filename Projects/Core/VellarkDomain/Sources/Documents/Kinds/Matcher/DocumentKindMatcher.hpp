#pragma once

#include <VellarkDomain/Documents/Kinds/Matcher/MatcherAlphabet.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/PrefixIndex.hpp>

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Finds many patterns in a text at once, by the word boundaries of each writing system:
///
///   * a word of a spaced script (Latin, Cyrillic) matches as a whole word. One that is `plural` may have an English
///     "s" or "es" behind it; one that is `compound` may end a longer word ("projektplan" holds "plan").
///   * a word that begins with a Korean syllable matches only where none stands before it, unless it is a `suffixHead`;
///     one that ends with a Korean syllable may be followed directly by a particle, but by no other syllable.
///   * Japanese, Chinese and Thai match anywhere.
///
/// Text and patterns are normalised scalars (see `normalize`), and positions count scalars. Immutable, for any thread.
///
///     const DocumentKindMatcher matcher({.patterns = patterns, .plural = plural});
///     matcher.hits(DocumentKindMatcher::normalize("Launch Plans, v2"))     {pattern of "plan", 7, 11}
class DocumentKindMatcher {
public:
    struct Hit {
        std::uint32_t pattern = 0;  ///< index of the pattern
        std::uint32_t start = 0;
        std::uint32_t end = 0;  ///< exclusive; an English ending does not belong to the match

        bool operator==(const Hit&) const = default;
    };

    /// A pattern without a flag (a list of flags may be shorter than that of the patterns) has the flag false. An empty
    /// pattern never matches, and keeps its index.
    struct Patterns {
        std::span<const std::u32string> patterns;
        std::vector<bool> suffixHead = {};
        std::vector<bool> plural = {};
        std::vector<bool> compound = {};
    };

    explicit DocumentKindMatcher(const Patterns& patterns);

    /// All matches by their end, then from the longest to the shortest, then by index. Texts are shorter than 2^32
    /// scalars. The cost is linear in the text, with the longest pattern as the worst factor.
    [[nodiscard]] std::vector<Hit> hits(std::u32string_view text) const;

    /// The same in place of what `hits` held, which keeps its memory.
    void hits(std::u32string_view text, std::vector<Hit>& hits) const;

    /// The form in which texts and patterns are compared: letters lower-case and in full width none, words parted by
    /// single blanks, digits, apostrophes and all punctuation gone ("Roadmap_v2.1" gives "roadmap v"). Ill-formed UTF-8
    /// parts words.
    [[nodiscard]] static std::u32string normalize(std::string_view text);

    /// The same in place of what `result` held, which keeps its memory.
    static void normalize(std::string_view text, std::u32string& result);

    /// Normalised scalars as UTF-8, without surrogates and values above U+10FFFF.
    [[nodiscard]] static std::string normalizedText(std::u32string_view scalars);

    /// Whether the Korean syllables from `position` on, up to the first scalar that is none, are a particle.
    [[nodiscard]] static bool isParticle(std::u32string_view scalars, std::size_t position);

private:
    class Scan;

    // One byte, so that those of all patterns stay in the nearest cache.
    struct Traits {
        bool spaced : 1 = false;
        bool plural : 1 = false;
        bool compound : 1 = false;
        bool hangulStart : 1 = false;
        bool hangulEnd : 1 = false;
        bool suffixHead : 1 = false;
        bool hasEqual : 1 = false;  // a later pattern is the same text
    };

    static constexpr std::uint32_t noPattern = PrefixIndex::noValue;

    enum Set : std::uint32_t { anchored, floating, reversed };

    [[nodiscard]] static std::vector<Traits> traits(const Patterns& patterns);
    [[nodiscard]] PrefixIndex index(std::span<const std::u32string> patterns);

    std::vector<Traits> traits_;
    std::map<std::uint32_t, std::uint32_t> nextEqual_;  // of patterns that have an equal
    MatcherAlphabet alphabet_;
    PrefixIndex index_;
};

}  // namespace vellark
