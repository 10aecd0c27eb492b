#pragma once

#include <VellarkDomain/Text/KeywordText.hpp>
#include <VellarkDomain/Text/RangeCover.hpp>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vellark {

/// The words of one entry of a KeywordClassifier.
struct KeywordLists {
    std::vector<std::string> nouns = {};       ///< what such a thing is called
    std::vector<std::string> activity = {};    ///< what it does
    std::vector<std::string> domain = {};      ///< what it is about
    std::vector<std::string> exclusions = {};  ///< phrases in which the entry's words do not count
};

/// Says which of a list of entries a name or a text means, by the words of each entry.
///
///     const KeywordClassifier<int> roles({{1, "hammer", {.nouns = {"builder"}}},
///                                         {2, "eye", {.nouns = {"reviewer"}, .activity = {"review"}}}});
///     roles.classify("code-reviewer", std::nullopt)         2
///     roles.classify(std::nullopt, "Review the parser")     2
template <class Identifier>
class KeywordClassifier {
public:
    struct Entry {
        Identifier id;
        std::string symbol;
        KeywordLists words;
    };

    /// The words that are looked for; `keywords` are those of all three lists.
    enum class Words { nouns, activity, domain, keywords };

    explicit KeywordClassifier(std::vector<Entry> entries) : entries_(std::move(entries)) {
        for (const Entry& entry : entries_) {
            symbols_.emplace(entry.id, entry.symbol);
            prepared_.push_back(
                {.lists = {patterns(entry.words.nouns), patterns(entry.words.activity), patterns(entry.words.domain)},
                 .exclusions = patterns(entry.words.exclusions)});
        }
    }

    [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }
    [[nodiscard]] const std::map<Identifier, std::string>& symbols() const { return symbols_; }

    /// By a noun in the name; failing that by an activity, and then a domain, in name and text together.
    [[nodiscard]] std::optional<Identifier> classify(std::optional<std::string_view> name,
                                                     std::optional<std::string_view> text) const {
        if (name) {
            if (auto found = best(*name, Words::nouns)) return found;
        }
        std::string joined(name.value_or(""));
        if (name && text) joined += ' ';
        joined += text.value_or("");
        const KeywordText prepared(joined);
        if (auto found = best(prepared, Words::activity)) return found;
        return best(prepared, Words::domain);
    }

    /// The entry whose word stands first in a text of ASCII, and last in any other: an English phrase says first what
    /// it is about, a Korean one last. Of entries at the same place the first one.
    [[nodiscard]] std::optional<Identifier> best(std::string_view text, Words words) const {
        return best(KeywordText(text), words);
    }

private:
    using Patterns = std::vector<KeywordPattern>;

    struct Prepared {
        std::array<Patterns, 3> lists;  // nouns, activity, domain
        Patterns exclusions;
    };

    static Patterns patterns(const std::vector<std::string>& words) { return {words.begin(), words.end()}; }

    [[nodiscard]] std::optional<Identifier> best(const KeywordText& text, Words words) const {
        const Entry* result = nullptr;
        std::uint32_t resultPosition = 0;
        for (std::size_t index = 0; index < entries_.size(); ++index) {
            const auto found = position(prepared_[index], text, words);
            if (!found) continue;
            const bool isBetter = text.isASCII() ? *found < resultPosition : *found > resultPosition;
            if (result != nullptr && !isBetter) continue;
            result = &entries_[index];
            resultPosition = *found;
        }
        return result == nullptr ? std::nullopt : std::optional(result->id);
    }

    // Where the entry's word stands that decides.
    static std::optional<std::uint32_t> position(const Prepared& entry, const KeywordText& text, Words words) {
        std::vector<std::uint32_t> starts;
        const RangeCover excluded = excludedRanges(entry, text);
        for (std::size_t list = 0; list < entry.lists.size(); ++list) {
            if (words != Words::keywords && list != static_cast<std::size_t>(words)) continue;
            for (const KeywordPattern& pattern : entry.lists[list]) {
                for (const auto& match : text.matches(pattern, true)) {
                    if (!excluded.covers(match.start, match.end)) starts.push_back(match.start);
                }
            }
        }
        if (starts.empty()) return std::nullopt;
        return text.isASCII() ? std::ranges::min(starts) : std::ranges::max(starts);
    }

    static RangeCover excludedRanges(const Prepared& entry, const KeywordText& text) {
        std::vector<KeywordText::Range> ranges;
        for (const KeywordPattern& pattern : entry.exclusions) {
            const auto matches = text.matches(pattern, false);
            ranges.insert(ranges.end(), matches.begin(), matches.end());
        }
        std::ranges::sort(ranges, {}, &KeywordText::Range::end);
        RangeCover cover;
        for (const auto& range : ranges) {
            cover.add(range.start, range.end);
        }
        cover.finish();
        return cover;
    }

    std::vector<Entry> entries_;
    std::map<Identifier, std::string> symbols_;
    std::vector<Prepared> prepared_;
};

}  // namespace vellark
