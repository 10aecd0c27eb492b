#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// A part of a UTF-8 text, in bytes.
struct ByteRange {
    std::size_t start = 0;
    std::size_t end = 0;

    [[nodiscard]] std::size_t size() const { return end - start; }
    [[nodiscard]] std::string_view of(std::string_view text) const { return text.substr(start, end - start); }

    bool operator==(const ByteRange&) const = default;
};

/// A compiled regular expression in ICU's syntax. Immutable, so that one may serve all threads; a match is a
/// RegexMatcher of its own.
///
///     static const Regex word(R"((\w+)@)");
///     const RegexText text("ann@home");
///     RegexMatcher matcher(word, text);
///     matcher.find()         RegexOutcome::match
///     matcher.group(1)       bytes 0 to 3
class Regex {
public:
    struct Options {
        bool caseInsensitive = false;
        bool multiline = false;  ///< "^" and "$" stand at every line
        bool dotMatchesAll = false;

        /// Memory that backtracking may take, in bytes; 0 sets no limit. With a limit, a match that needs more ends as
        /// RegexOutcome::failed.
        std::int32_t stackLimitBytes = 0;

        /// Steps of ICU's match clock, about a millisecond each; 0 sets no limit.
        std::int32_t timeLimitSteps = 0;
    };

    /// The expression of a pattern that is known to be right; ends the process when it does not compile.
    explicit Regex(std::string_view pattern) : Regex(pattern, Options()) {}
    Regex(std::string_view pattern, const Options& options);

    /// Nothing when the pattern does not compile.
    [[nodiscard]] static std::optional<Regex> compile(std::string_view pattern, const Options& options);
    [[nodiscard]] static std::optional<Regex> compile(std::string_view pattern) { return compile(pattern, Options()); }

private:
    friend class RegexMatcher;
    struct Compiled;

    Regex() = default;

    std::shared_ptr<const Compiled> compiled_;
};

/// A UTF-8 text made ready for matching: converted to UTF-16 once, for any number of expressions. Ill-formed subparts
/// are matched as U+FFFD. The text must outlive it.
class RegexText {
public:
    explicit RegexText(std::string_view text);

    [[nodiscard]] std::string_view text() const { return text_; }

    /// Byte offset of a UTF-16 offset, and back. An offset inside a scalar is that of the scalar's start.
    [[nodiscard]] std::size_t byteOffset(std::size_t unitOffset) const;
    [[nodiscard]] std::size_t unitOffset(std::size_t byteOffset) const;

private:
    friend class RegexMatcher;

    std::string_view text_;
    std::u16string units_;
    std::vector<std::uint32_t> byteOffsets_;  // of each unit and of the end; empty for ASCII, where both agree
};

/// How a match ended. An expression that meets one of its limits has `failed`: whether the text holds a match is then
/// unknown, and the caller decides which way is safe.
enum class RegexOutcome { match, noMatch, failed };

/// One walk of an expression over a text, which must outlive it.
class RegexMatcher {
public:
    RegexMatcher(const Regex& regex, const RegexText& text);
    RegexMatcher(const Regex& regex, RegexText&& text) = delete;
    RegexMatcher(RegexMatcher&&) noexcept;
    RegexMatcher& operator=(RegexMatcher&&) noexcept;
    ~RegexMatcher();

    /// The next match behind the last one; from the start at first.
    RegexOutcome find();

    /// The first match at or behind the byte offset. What stands before it is seen by look-behind.
    RegexOutcome find(std::size_t fromByte);

    /// A match of the whole text.
    RegexOutcome matches();

    /// A match that begins exactly at the byte offset, which "^" and "\b" take for the start of the text. (ICU's
    /// look-behind sees past it all the same.)
    RegexOutcome lookingAt(std::size_t fromByte);

    // Of the last match; only after RegexOutcome::match.
    [[nodiscard]] ByteRange range() const;
    [[nodiscard]] std::string_view string() const;

    /// Nothing for a group that took no part in the match, or that the expression does not have.
    [[nodiscard]] std::optional<ByteRange> group(int number) const;
    [[nodiscard]] std::optional<std::string_view> groupString(int number) const;

private:
    struct State;

    std::unique_ptr<State> state_;
};

/// True when the expression finds a match anywhere. A failed match counts as none.
[[nodiscard]] bool containsMatch(const Regex& regex, std::string_view text);

/// True when the expression matches the whole text. A failed match counts as none.
[[nodiscard]] bool matchesWhole(const Regex& regex, std::string_view text);

}  // namespace vellark
