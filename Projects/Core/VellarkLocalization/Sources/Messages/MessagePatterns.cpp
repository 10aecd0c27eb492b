#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Messages/MessagePatterns.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>
#include <VellarkLocalization/Messages/TemplateMatcher.hpp>

#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>

// Lists show many texts that no pattern made. Nearly every template begins or ends with a literal, which a text of it
// must begin or end with too: an index over these literals leaves few patterns, mostly none, to be matched in full.

namespace vellark {

namespace {

using MessageTemplate::Parsed;

// Behind a placeholder in a Korean source text: the counters of things, of persons and of days.
constexpr std::array<std::string_view, 3> counters = {"개", "명", "일"};

std::optional<std::size_t> countArgumentOf(const std::string& key, const LocalizationCatalog& english) {
    const Parsed parsed = MessageTemplate::parse(key);
    for (std::size_t index = 0; index < parsed.arguments.size(); ++index) {
        const std::string_view behind = parsed.literals[index + 1];
        if (std::ranges::any_of(counters, [&](std::string_view counter) { return behind.starts_with(counter); })) {
            return parsed.arguments[index];
        }
    }
    if (english.plurals.contains(key)) return 0;
    return std::nullopt;
}

std::vector<std::string_view> templatesOf(const std::string& key, const LocalizationCatalog& catalog) {
    std::vector<std::string_view> templates;
    if (const auto message = catalog.messages.find(key); message != catalog.messages.end()) {
        templates.push_back(message->second);
    }
    if (const auto plurals = catalog.plurals.find(key); plurals != catalog.plurals.end()) {
        for (const auto& [category, form] : plurals->second) {
            templates.push_back(form);
        }
    }
    std::ranges::sort(templates);
    return templates;
}

bool isLetter(char32_t scalar) {
    return (U_GET_GC_MASK(static_cast<UChar32>(scalar)) & U_GC_L_MASK) != 0;
}

bool isSpecific(const Parsed& parsed) {
    if (parsed.arguments.empty()) return false;
    std::size_t letters = 0;
    for (const std::string& literal : parsed.literals) {
        for (const char32_t scalar : Scalars(literal)) {
            letters += isLetter(scalar) ? 1 : 0;
        }
    }
    return letters >= 2;
}

std::size_t characterCount(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UBreakIterator, decltype(&ubrk_close)> breaks(
        ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status), &ubrk_close);
    const std::unique_ptr<UText, decltype(&utext_close)> opened(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status), &utext_close);
    ubrk_setUText(breaks.get(), opened.get(), &status);
    if (U_FAILURE(status)) return UTF8::scalarCount(text);
    std::size_t count = 0;
    while (ubrk_next(breaks.get()) != UBRK_DONE) {
        ++count;
    }
    return count;
}

// Nothing when the match leaves the count argument without a whole quantity.
std::optional<MessagePatterns::Match> matchOf(const MessagePattern& pattern, std::string_view text) {
    const auto captures = TemplateMatcher::captures(pattern.literals, text);
    if (!captures) return std::nullopt;
    MessagePatterns::Match match{.key = pattern.key, .arguments = {}, .count = {}};
    match.arguments.resize(std::ranges::max(pattern.arguments) + 1);
    for (std::size_t index = 0; index < captures->size(); ++index) {
        match.arguments[pattern.arguments[index]] = (*captures)[index];
    }
    if (pattern.countArgument && *pattern.countArgument < match.arguments.size()) {
        match.count = MessageTemplate::integerQuantity(match.arguments[*pattern.countArgument]);
        if (!match.count) return std::nullopt;
    }
    return match;
}

}  // namespace

MessagePatterns::MessagePatterns(std::vector<MessagePattern> patterns) : patterns_(std::move(patterns)) {
    std::vector<LiteralIndex::Entry> prefixes;
    std::vector<LiteralIndex::Entry> suffixes;
    for (std::uint32_t number = 0; number < patterns_.size(); ++number) {
        const std::string& first = patterns_[number].literals.front();
        const std::string& last = patterns_[number].literals.back();
        if (!first.empty()) {
            prefixes.emplace_back(first, number);
        } else if (!last.empty()) {
            suffixes.emplace_back(std::string(last.rbegin(), last.rend()), number);
        } else {
            floating_.push_back(number);
        }
    }
    byPrefix_ = LiteralIndex(std::move(prefixes));
    bySuffix_ = LiteralIndex(std::move(suffixes));
}

MessagePatterns MessagePatterns::make(const LocalizationCatalog& english,
                                      std::span<const LocalizationCatalog* const> catalogs) {
    struct Ranked {
        std::size_t keyLength;
        MessagePattern pattern;
    };
    std::vector<Ranked> ranked;
    std::set<std::pair<std::string_view, std::string_view>> seen;
    for (const std::string& key : english.externalKeys) {
        const auto countArgument = countArgumentOf(key, english);
        const std::size_t keyLength = characterCount(key);
        for (const LocalizationCatalog* catalog : catalogs) {
            for (const std::string_view form : templatesOf(key, *catalog)) {
                if (!seen.emplace(key, form).second) continue;
                Parsed parsed = MessageTemplate::parse(form);
                if (!isSpecific(parsed)) continue;
                ranked.push_back({keyLength,
                                  {.key = key,
                                   .literals = std::move(parsed.literals),
                                   .arguments = std::move(parsed.arguments),
                                   .countArgument = countArgument}});
            }
        }
    }
    std::ranges::stable_sort(ranked, std::greater<>(), &Ranked::keyLength);
    std::vector<MessagePattern> patterns;
    for (Ranked& one : ranked) {
        patterns.push_back(std::move(one.pattern));
    }
    return MessagePatterns(std::move(patterns));
}

std::vector<std::uint32_t> MessagePatterns::candidates(std::string_view text) const {
    std::vector<std::uint32_t> numbers = floating_;
    const auto add = [&](std::uint32_t number) { numbers.push_back(number); };
    byPrefix_.collectPrefixes(
        text.size(), [&](std::size_t offset) { return text[offset]; }, add);
    const auto addSuffixes = [&](std::size_t end) {
        bySuffix_.collectPrefixes(
            end, [&](std::size_t offset) { return text[end - 1 - offset]; }, add);
    };
    const TemplateMatcher::Ends ends = TemplateMatcher::endsOf(text);
    addSuffixes(ends.end);
    if (ends.beforeLineEnd != ends.end) addSuffixes(ends.beforeLineEnd);
    std::ranges::sort(numbers);
    return numbers;
}

std::optional<MessagePatterns::Match> MessagePatterns::firstMatch(std::string_view text) const {
    for (const std::uint32_t number : candidates(text)) {
        if (auto match = matchOf(patterns_[number], text)) return match;
    }
    return std::nullopt;
}

}  // namespace vellark
