#pragma once

#include <VellarkFoundation/Unicode/Regex.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// An expression with a cheap test in front of it: it is tried only where a match may begin. The tests keep whole
/// documents off the engine, and hostile ones from making it start over at every place.
class SummaryExpression {
public:
    /// The first byte at or behind `from` where a match may begin, `npos` when there is none. Every place where one
    /// does begin must be among them. `hint` is what `Prepare` gave for the text.
    using Candidates = std::size_t (*)(std::string_view text, std::size_t from, std::size_t hint);

    /// Something that is found once for a text: the last place of a closing bracket, say.
    using Prepare = std::size_t (*)(std::string_view text);

    /// A pattern that does not compile matches nothing.
    SummaryExpression(std::string_view pattern, Candidates candidates, Prepare prepare = nullptr)
        : regex_(Regex::compile(pattern)), candidates_(candidates), prepare_(prepare) {}

    /// The expression without its test.
    [[nodiscard]] const std::optional<Regex>& regex() const { return regex_; }

private:
    friend class SummaryMatches;

    std::optional<Regex> regex_;
    Candidates candidates_;
    Prepare prepare_;
};

/// A text that several expressions may look at; it is made ready for the engine when the first one must. The text must
/// outlive it.
class SummarySubject {
public:
    explicit SummarySubject(std::string_view text) : text_(text) {}
    SummarySubject(const SummarySubject&) = delete;
    SummarySubject& operator=(const SummarySubject&) = delete;

    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] const RegexText& prepared() const {
        if (!prepared_) prepared_.emplace(text_);
        return *prepared_;
    }

private:
    std::string_view text_;
    mutable std::optional<RegexText> prepared_;
};

/// The matches of an expression in a text, one behind the other. Both must outlive it.
class SummaryMatches {
public:
    SummaryMatches(const SummaryExpression& expression, const SummarySubject& subject);

    /// The next match; nothing behind the last one, or when the engine fails.
    std::optional<ByteRange> next();

    /// A group of the last match.
    [[nodiscard]] std::string_view group(int number) const { return matcher_->groupString(number).value_or(""); }

private:
    const SummaryExpression& expression_;
    const SummarySubject& subject_;
    std::size_t hint_ = std::string_view::npos;
    std::size_t from_ = 0;
    std::optional<RegexMatcher> matcher_;
};

/// The first match in the text.
[[nodiscard]] std::optional<ByteRange> firstMatch(const SummaryExpression& expression, const SummarySubject& subject);

[[nodiscard]] inline bool matches(const SummaryExpression& expression, const SummarySubject& subject) {
    return firstMatch(expression, subject).has_value();
}
[[nodiscard]] bool matches(const SummaryExpression& expression, std::string_view text);

/// Puts the replacement in place of all matches; "$1" stands for the first group. False when there was none, and the
/// text is as it was.
bool replaceMatches(const SummaryExpression& expression, std::string& text, std::string_view replacement);

}  // namespace vellark
