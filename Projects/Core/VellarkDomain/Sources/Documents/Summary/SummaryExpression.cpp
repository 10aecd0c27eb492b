#include <VellarkDomain/Documents/Summary/SummaryExpression.hpp>

#include <algorithm>

namespace vellark {

SummaryMatches::SummaryMatches(const SummaryExpression& expression, const SummarySubject& subject)
    : expression_(expression), subject_(subject) {
    if (expression.prepare_ != nullptr) hint_ = expression.prepare_(subject.text());
}

std::optional<ByteRange> SummaryMatches::next() {
    if (!expression_.regex_) return std::nullopt;
    const std::string_view text = subject_.text();
    while (true) {
        const std::size_t candidate = expression_.candidates_(text, from_, hint_);
        if (candidate == text.npos) return std::nullopt;
        if (!matcher_) matcher_.emplace(*expression_.regex_, subject_.prepared());
        const RegexOutcome outcome = matcher_->lookingAt(candidate);
        if (outcome == RegexOutcome::match) {
            const ByteRange found = matcher_->range();
            from_ = std::max(found.end, candidate + 1);
            return found;
        }
        if (outcome == RegexOutcome::failed) return std::nullopt;
        from_ = candidate + 1;
    }
}

std::optional<ByteRange> firstMatch(const SummaryExpression& expression, const SummarySubject& subject) {
    return SummaryMatches(expression, subject).next();
}

bool matches(const SummaryExpression& expression, std::string_view text) {
    return matches(expression, SummarySubject(text));
}

bool replaceMatches(const SummaryExpression& expression, std::string& text, std::string_view replacement) {
    const SummarySubject subject(text);
    SummaryMatches found(expression, subject);
    auto match = found.next();
    if (!match) return false;
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (; match; match = found.next()) {
        result.append(text, start, match->start - start);
        result += replacement == "$1" ? found.group(1) : replacement;
        start = match->end;
    }
    result.append(text, start);
    text = std::move(result);
    return true;
}

}  // namespace vellark
