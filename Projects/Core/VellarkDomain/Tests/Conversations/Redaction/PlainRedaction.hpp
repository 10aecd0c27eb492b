#pragma once

#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretKeys.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretPatterns.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// Redaction in the plain way: the eighteen expressions and the key pass on the engine, one after the other.
class PlainRedaction {
public:
    PlainRedaction() {
        for (const SecretPattern& pattern : secretPatterns)
            expressions_.emplace_back(pattern.expression);
    }

    [[nodiscard]] std::string redact(std::string text) const {
        for (std::size_t pattern = 0; pattern < expressions_.size(); ++pattern) {
            const auto ranges = targets(text, pattern);
            for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
                blank(text, *range, secretPatterns[pattern].kept);
            }
        }
        const auto keys = matches(keyName_, text);
        for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
            if (!SecretKeys::isSecretKey(key->of(text))) continue;
            if (const auto range = value(text, key->end)) blank(text, *range, 0);
        }
        return text;
    }

    [[nodiscard]] std::vector<ByteRange> targets(const std::string& text, std::size_t pattern) const {
        return matches(expressions_[pattern], text);
    }

private:
    static std::vector<ByteRange> matches(const Regex& expression, const std::string& text) {
        const RegexText source(text);
        RegexMatcher matcher(expression, source);
        std::vector<ByteRange> ranges;
        while (matcher.find() == RegexOutcome::match)
            ranges.push_back(matcher.group(1).value_or(matcher.range()));
        return ranges;
    }

    [[nodiscard]] std::optional<ByteRange> value(const std::string& text, std::size_t keyEnd) const {
        const std::string rest = text.substr(keyEnd);
        const RegexText source(rest);
        for (const Regex* expression : {&assigned_, &labeled_}) {
            RegexMatcher matcher(*expression, source);
            if (matcher.lookingAt(0) != RegexOutcome::match) continue;
            for (const int group : {1, 2, 3}) {
                if (const auto range = matcher.group(group))
                    return ByteRange{range->start + keyEnd, range->end + keyEnd};
            }
        }
        return std::nullopt;
    }

    static void blank(std::string& text, const ByteRange& range, std::size_t kept) {
        if (range.of(text).ends_with(Redaction::mark)) return;
        text.replace(range.start + kept, range.size() - kept, Redaction::mark);
    }

    std::vector<Regex> expressions_;
    Regex keyName_{R"((?<![A-Za-z0-9_.\-])[A-Za-z][A-Za-z0-9_.\-]*(?=[\x22\x27]?[ \t]*[:=]))"};
    Regex assigned_{
        R"([\x22\x27]?[ \t]*=[ \t]*(?:\x27([^\x27\n]{1,256})\x27|\x22([^\x22\n]{1,256})\x22|([^\s\x22\x27,;&]{3,})))"};
    Regex labeled_{R"([\x22\x27]?[ \t]*:[ \t]*(?:\x27([^\x27\n]{1,256})\x27|\x22([^\x22\n]{1,256})\x22|)"
                   R"(((?=[^\s\x22\x27,;&]*[^A-Za-z\s\x22\x27,;&])[^\s\x22\x27,;&]{8,})))"};
};

}  // namespace vellark::testing
