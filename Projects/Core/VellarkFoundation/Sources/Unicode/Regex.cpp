#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <unicode/regex.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <utility>

// ICU matches UTF-16. The texts here are UTF-8, so a table gives the byte offset of each unit; ASCII, where the two are
// the same, goes without.

namespace vellark {

namespace {

// ICU's matcher and the alias of a text's units that it reads, which must keep its address.
struct Engine {
    icu::UnicodeString units;
    std::unique_ptr<icu::RegexMatcher> matcher;
};

// Engines that wait for their next text, as making one costs more than most matches. Each is used by one matcher at a
// time.
class SpareEngines {
public:
    [[nodiscard]] std::unique_ptr<Engine> take() {
        const std::lock_guard lock(mutex_);
        if (engines_.empty()) return nullptr;
        auto engine = std::move(engines_.back());
        engines_.pop_back();
        return engine;
    }

    void keep(std::unique_ptr<Engine> engine) {
        constexpr std::size_t maximumCount = 8;
        const std::lock_guard lock(mutex_);
        if (engines_.size() < maximumCount) engines_.push_back(std::move(engine));
    }

private:
    std::mutex mutex_;
    std::vector<std::unique_ptr<Engine>> engines_;
};

}  // namespace

struct Regex::Compiled {
    std::unique_ptr<icu::RegexPattern> pattern;
    Options options;
    mutable SpareEngines spares;

    Compiled(std::unique_ptr<icu::RegexPattern> made, const Options& chosen)
        : pattern(std::move(made)), options(chosen) {}

    [[nodiscard]] std::unique_ptr<Engine> engineFor(const std::u16string& units) const {
        auto engine = spares.take();
        const bool isNew = engine == nullptr;
        if (isNew) engine = std::make_unique<Engine>();
        engine->units.setTo(false, units.data(), static_cast<std::int32_t>(units.size()));
        if (isNew) {
            UErrorCode status = U_ZERO_ERROR;
            engine->matcher.reset(pattern->matcher(engine->units, status));
            engine->matcher->setStackLimit(options.stackLimitBytes, status);
            engine->matcher->setTimeLimit(options.timeLimitSteps, status);
        } else {
            engine->matcher->reset(engine->units);
        }
        return engine;
    }
};

struct RegexMatcher::State {
    std::shared_ptr<const Regex::Compiled> compiled;
    const RegexText* text;
    std::unique_ptr<Engine> engine;
    icu::RegexMatcher* matcher;  // of the engine
    bool hasFailed = false;

    State(std::shared_ptr<const Regex::Compiled> expression, const RegexText& subject)
        : compiled(std::move(expression)),
          text(&subject),
          engine(compiled->engineFor(subject.units_)),
          matcher(engine->matcher.get()) {}

    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // A long text may have left a large stack for backtracking, which is better given back; and so is an engine that
    // met a limit.
    ~State() {
        constexpr std::size_t longestKept = 16'384;
        const bool isLong = static_cast<std::size_t>(engine->units.length()) > longestKept;
        if (!isLong && !hasFailed) compiled->spares.keep(std::move(engine));
    }

    [[nodiscard]] RegexOutcome outcome(bool matched, UErrorCode status) {
        if (U_FAILURE(status)) {
            hasFailed = true;
            return RegexOutcome::failed;
        }
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
    regex.compiled_ = std::make_shared<const Compiled>(std::move(compiled), options);
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

RegexMatcher::RegexMatcher(const Regex& regex, const RegexText& text)
    : state_(std::make_unique<State>(regex.compiled_, text)) {}

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
