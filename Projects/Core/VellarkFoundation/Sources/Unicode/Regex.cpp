#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <unicode/regex.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

// ICU matches UTF-16. The texts here are UTF-8, so a table gives the byte offset of each unit; ASCII, where the two are
// the same, goes without.

namespace vellark {

struct Regex::Compiled {
    std::unique_ptr<icu::RegexPattern> pattern;
    Options options;
};

struct RegexMatcher::State {
    std::shared_ptr<const Regex::Compiled> compiled;
    const RegexText* text;
    std::unique_ptr<icu::UnicodeString> units;  // an alias of the text's units, at an address that stays
    std::unique_ptr<icu::RegexMatcher> matcher;

    [[nodiscard]] RegexOutcome outcome(bool matched, UErrorCode status) const {
        if (U_FAILURE(status)) return RegexOutcome::failed;
        return matched ? RegexOutcome::match : RegexOutcome::noMatch;
    }
};

namespace {

std::uint32_t flagsOf(const Regex::Options& options) {
    std::uint32_t flags = 0;
    if (options.caseInsensitive) flags |= UREGEX_CASE_INSENSITIVE;
    if (options.multiline) flags |= UREGEX_MULTILINE;
    if (options.dotMatchesAll) flags |= UREGEX_DOTALL;
    return flags;
}

}  // namespace

std::optional<Regex> Regex::compile(std::string_view pattern, const Options& options) {
    UErrorCode status = U_ZERO_ERROR;
    UParseError where{};
    const auto source =
        icu::UnicodeString::fromUTF8(icu::StringPiece(pattern.data(), static_cast<int>(pattern.size())));
    std::unique_ptr<icu::RegexPattern> compiled(icu::RegexPattern::compile(source, flagsOf(options), where, status));
    if (U_FAILURE(status) || !compiled) return std::nullopt;
    Regex regex;
    regex.compiled_ = std::make_shared<const Compiled>(Compiled{std::move(compiled), options});
    return regex;
}

Regex::Regex(std::string_view pattern, const Options& options) {
    auto regex = compile(pattern, options);
    if (!regex) {
        std::fprintf(stderr, "regular expression does not compile: %.*s\n", static_cast<int>(pattern.size()),
                     pattern.data());
        std::abort();
    }
    *this = std::move(*regex);
}

RegexText::RegexText(std::string_view text) : text_(text) {
    if (UTF8::isASCII(text)) {
        units_.assign(text.begin(), text.end());
        return;
    }
    units_.reserve(text.size());
    byteOffsets_.reserve(text.size() + 1);
    const auto add = [this](char32_t unit, std::size_t offset) {
        units_.push_back(static_cast<char16_t>(unit));
        byteOffsets_.push_back(static_cast<std::uint32_t>(offset));
    };
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        if (decoded.scalar < 0x10000) {
            add(decoded.scalar, offset);
        } else {
            add(0xD800 + ((decoded.scalar - 0x10000) >> 10), offset);
            add(0xDC00 + ((decoded.scalar - 0x10000) & 0x3FF), offset);
        }
        offset += decoded.byteCount;
    }
    byteOffsets_.push_back(static_cast<std::uint32_t>(text.size()));
}

std::size_t RegexText::byteOffset(std::size_t unitOffset) const {
    return byteOffsets_.empty() ? unitOffset : byteOffsets_[unitOffset];
}

std::size_t RegexText::unitOffset(std::size_t byteOffset) const {
    if (byteOffsets_.empty()) return byteOffset;
    const auto next = std::ranges::upper_bound(byteOffsets_, byteOffset);
    const auto found = std::ranges::lower_bound(byteOffsets_, *std::prev(next));
    return static_cast<std::size_t>(found - byteOffsets_.begin());
}

RegexMatcher::RegexMatcher(const Regex& regex, const RegexText& text) : state_(std::make_unique<State>()) {
    UErrorCode status = U_ZERO_ERROR;
    state_->compiled = regex.compiled_;
    state_->text = &text;
    state_->units =
        std::make_unique<icu::UnicodeString>(false, text.units_.data(), static_cast<std::int32_t>(text.units_.size()));
    state_->matcher.reset(regex.compiled_->pattern->matcher(*state_->units, status));
    state_->matcher->setStackLimit(regex.compiled_->options.stackLimitBytes, status);
    state_->matcher->setTimeLimit(regex.compiled_->options.timeLimitSteps, status);
}

RegexMatcher::RegexMatcher(RegexMatcher&&) noexcept = default;
RegexMatcher& RegexMatcher::operator=(RegexMatcher&&) noexcept = default;
RegexMatcher::~RegexMatcher() = default;

RegexOutcome RegexMatcher::find() {
    UErrorCode status = U_ZERO_ERROR;
    const bool matched = state_->matcher->find(status) != 0;
    return state_->outcome(matched, status);
}

RegexOutcome RegexMatcher::find(std::size_t fromByte) {
    UErrorCode status = U_ZERO_ERROR;
    state_->matcher->useAnchoringBounds(true).useTransparentBounds(false);
    const auto start = static_cast<std::int64_t>(state_->text->unitOffset(fromByte));
    const bool matched = state_->matcher->find(start, status) != 0;  // resets the region to the whole text
    return state_->outcome(matched, status);
}

RegexOutcome RegexMatcher::matches() {
    UErrorCode status = U_ZERO_ERROR;
    state_->matcher->reset();
    const bool matched = state_->matcher->matches(status) != 0;
    return state_->outcome(matched, status);
}

RegexOutcome RegexMatcher::lookingAt(std::size_t fromByte) {
    UErrorCode status = U_ZERO_ERROR;
    const auto start = static_cast<std::int64_t>(state_->text->unitOffset(fromByte));
    state_->matcher->region(start, static_cast<std::int64_t>(state_->text->units_.size()), status);
    const bool matched = U_SUCCESS(status) && state_->matcher->lookingAt(status) != 0;
    return state_->outcome(matched, status);
}

ByteRange RegexMatcher::range() const {
    return group(0).value_or(ByteRange());
}

std::string_view RegexMatcher::string() const {
    return range().of(state_->text->text());
}

std::optional<ByteRange> RegexMatcher::group(int number) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto start = state_->matcher->start64(number, status);
    const auto end = state_->matcher->end64(number, status);
    if (U_FAILURE(status) || start < 0) return std::nullopt;
    return ByteRange{state_->text->byteOffset(static_cast<std::size_t>(start)),
                     state_->text->byteOffset(static_cast<std::size_t>(end))};
}

std::optional<std::string_view> RegexMatcher::groupString(int number) const {
    const auto found = group(number);
    if (!found) return std::nullopt;
    return found->of(state_->text->text());
}

bool containsMatch(const Regex& regex, std::string_view text) {
    const RegexText prepared(text);
    return RegexMatcher(regex, prepared).find() == RegexOutcome::match;
}

bool matchesWhole(const Regex& regex, std::string_view text) {
    const RegexText prepared(text);
    return RegexMatcher(regex, prepared).matches() == RegexOutcome::match;
}

}  // namespace vellark
