#include <VellarkFoundation/Unicode/Regex.hpp>
#include <VellarkLocalization/Messages/MessagePatterns.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>
#include <VellarkLocalization/Messages/TemplateMatcher.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <random>

namespace vellark {
namespace {

// The expressions that the matcher stands in for.
Regex expressionOf(const std::vector<std::string>& literals) {
    std::string pattern = "^";
    for (std::size_t index = 0; index < literals.size(); ++index) {
        if (index > 0) pattern += "(.{0,2048}?)";
        for (const char byte : literals[index]) {
            const bool isPlain = (byte & 0x80) != 0 || std::isalnum(static_cast<unsigned char>(byte)) != 0;
            if (!isPlain) pattern += '\\';
            pattern += byte;
        }
    }
    return Regex(pattern + "$");
}

std::optional<std::vector<std::string_view>> icuCaptures(const Regex& expression, std::size_t count,
                                                         const RegexText& text) {
    RegexMatcher matcher(expression, text);
    if (matcher.find() != RegexOutcome::match) return std::nullopt;
    std::vector<std::string_view> captures;
    for (std::size_t group = 1; group <= count; ++group) {
        captures.push_back(matcher.groupString(static_cast<int>(group)).value());
    }
    return captures;
}

class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t bound) { return random_() % bound; }

    // Few pieces, so that literals occur in texts again and again, among all that ends a line.
    std::string text(std::size_t maximumPieces) {
        static const std::vector<std::string> pieces = {"a",  "a",  "b",    "ab",      "가",     "각",     "1",   "2",
                                                        " ",  ".",  "😀",    "e\u0301", "\u00E9", "5",      "1,2", "$",
                                                        "\n", "\r", "\r\n", "\u0085",  "\u2028", "\u2029", "\v",  "\f"};
        std::string result;
        for (std::size_t count = below(maximumPieces + 1); count > 0; --count) {
            result += pieces[below(below(4) == 0 ? pieces.size() : 16)];
        }
        return result;
    }

    MessagePattern pattern() {
        MessagePattern pattern{.key = text(3), .literals = {text(2)}, .arguments = {}, .countArgument = {}};
        for (std::size_t count = 1 + below(3); count > 0; --count) {
            pattern.literals.push_back(text(2));
            pattern.arguments.push_back(below(3));
        }
        if (below(3) == 0) pattern.countArgument = below(3);
        return pattern;
    }

    // A text of the pattern, perhaps with something before, behind or amiss.
    std::string sentence(const MessagePattern& pattern) {
        std::string result = pattern.literals.front();
        for (std::size_t index = 0; index < pattern.arguments.size(); ++index) {
            result += text(4) + pattern.literals[index + 1];
        }
        switch (below(6)) {
            case 0:
                return result + text(1);
            case 1:
                return text(1) + result;
            case 2:
                return result + (below(2) == 0 ? "\n" : "\r\n");
            default:
                return result;
        }
    }

private:
    std::mt19937 random_;
};

TEST(TemplateMatcher, capturesWhatTheExpressionCaptures) {
    Generator generator(11);
    int matchCount = 0;
    for (int round = 0; round < 2000; ++round) {
        const MessagePattern pattern = generator.pattern();
        const Regex expression = expressionOf(pattern.literals);
        for (int variant = 0; variant < 8; ++variant) {
            const std::string text = variant < 6 ? generator.sentence(pattern) : generator.text(6);
            const RegexText prepared(text);
            const auto expected = icuCaptures(expression, pattern.arguments.size(), prepared);
            matchCount += expected ? 1 : 0;
            ASSERT_EQ(TemplateMatcher::captures(pattern.literals, text), expected)
                << ::testing::PrintToString(pattern.literals) << " on " << ::testing::PrintToString(text);
        }
    }
    EXPECT_GT(matchCount, 4000);
}

TEST(TemplateMatcher, capturesAtMostItsLimitOfScalars) {
    const auto times = [](std::size_t count, std::string_view piece) {
        std::string text;
        while (count-- > 0)
            text += piece;
        return text;
    };
    const std::vector<std::vector<std::string>> templates = {
        {"<", ">"}, {"", "x"}, {"<", "-", ">"}, {"<", "", ">"}, {"<", "-", "-", ">"}};
    for (const auto& literals : templates) {
        const Regex expression = expressionOf(literals);
        for (const std::string_view piece : {"y", "가", "😀"}) {
            for (const std::size_t count : {2047U, 2048U, 2049U}) {
                for (const std::string& text :
                     {"<" + times(count, piece) + ">", "<" + times(count, piece) + "-" + times(3, piece) + ">",
                      "<a-" + times(count, piece) + "-" + times(count, piece) + ">", times(count, piece) + "x\n"}) {
                    if (literals.size() == 4 && piece != "y") continue;  // backtracking over the whole cube
                    const RegexText prepared(text);
                    EXPECT_EQ(TemplateMatcher::captures(literals, text),
                              icuCaptures(expression, literals.size() - 1, prepared));
                }
            }
        }
    }
}

// A backtracking engine would try some 10^13 ways.
TEST(TemplateMatcher, hostileTextEndsSoon) {
    const std::vector<std::string> literals = {"a", "a", "a", "a", "a", "b"};
    EXPECT_EQ(TemplateMatcher::captures(literals, std::string(8190, 'a') + "bc"), std::nullopt);

    const std::string text = std::string(8190, 'a') + "b";
    const auto captures = TemplateMatcher::captures(literals, text);
    ASSERT_TRUE(captures.has_value());
    std::vector<std::size_t> sizes;
    for (const std::string_view capture : *captures) {
        sizes.push_back(capture.size());
    }
    EXPECT_EQ(sizes, (std::vector<std::size_t>{0, 2041, 2048, 2048, 2048}));
}

TEST(MessagePatterns, findTheFirstThatTheLoopFinds) {
    Generator generator(12);
    int matchCount = 0;
    for (int round = 0; round < 40; ++round) {
        std::vector<MessagePattern> list;
        std::vector<Regex> expressions;
        for (int count = 0; count < 30; ++count) {
            list.push_back(generator.pattern());
            expressions.push_back(expressionOf(list.back().literals));
        }
        const MessagePatterns patterns(list);
        const auto expected = [&](const std::string& text) -> std::optional<MessagePatterns::Match> {
            const RegexText prepared(text);
            for (std::size_t number = 0; number < list.size(); ++number) {
                const auto captures = icuCaptures(expressions[number], list[number].arguments.size(), prepared);
                if (!captures) continue;
                MessagePatterns::Match match{.key = list[number].key, .arguments = {}, .count = {}};
                for (std::size_t index = 0; index < captures->size(); ++index) {
                    const std::size_t slot = list[number].arguments[index];
                    if (slot >= match.arguments.size()) match.arguments.resize(slot + 1);
                    match.arguments[slot] = (*captures)[index];
                }
                const auto count = list[number].countArgument;
                if (count && *count < match.arguments.size()) {
                    match.count = MessageTemplate::integerQuantity(match.arguments[*count]);
                    if (!match.count) continue;
                }
                return match;
            }
            return std::nullopt;
        };
        for (int variant = 0; variant < 100; ++variant) {
            const std::string text =
                variant % 4 == 0 ? generator.text(5) : generator.sentence(list[generator.below(list.size())]);
            const auto found = patterns.firstMatch(text);
            const auto wanted = expected(text);
            ASSERT_EQ(found.has_value(), wanted.has_value()) << ::testing::PrintToString(text);
            if (!wanted) continue;
            ++matchCount;
            EXPECT_EQ(found->key, wanted->key) << ::testing::PrintToString(text);
            EXPECT_EQ(found->arguments, wanted->arguments) << ::testing::PrintToString(text);
            EXPECT_EQ(found->count, wanted->count) << ::testing::PrintToString(text);
        }
    }
    EXPECT_GT(matchCount, 1000);
}

TEST(MessagePatterns, areMadeOfSpecificTemplatesLongestKeyFirst) {
    const LocalizationCatalog korean{
        .language = "ko",
        .messages = {{"명령 {0}개", "명령 {0}개"}, {"가 {0}", "가 {0}"}, {"같음 {0}", "같음 {0}"}},
        .plurals = {},
        .externalKeys = {}};
    const LocalizationCatalog english{.language = "en",
                                      .messages = {{"명령 {0}개", "{0} commands"},
                                                   {"가 {0}", "{0} a"},
                                                   {"같음 {0}", "Same"},
                                                   {"{1}·{0}일", "{0} d {1} x {5000}"}},
                                      .plurals = {{"명령 {0}개", {{"other", "{0} commands"}, {"one", "a {0} command"}}},
                                                  {"같음 {0}", {{"one", "같음 {0}"}}}},
                                      .externalKeys = {"가 {0}", "같음 {0}", "{1}·{0}일", "명령 {0}개", "없음"}};
    const LocalizationCatalog* catalogs[] = {&korean, &english};
    const std::vector<MessagePattern> expected = {
        {"{1}·{0}일", {"", " d ", " x {5000}"}, {0, 1}, 0},
        {"명령 {0}개", {"명령 ", "개"}, {0}, 0},
        {"명령 {0}개", {"a ", " command"}, {0}, 0},
        {"명령 {0}개", {"", " commands"}, {0}, 0},
        {"같음 {0}", {"같음 ", ""}, {0}, 0},
    };
    EXPECT_EQ(MessagePatterns::make(english, catalogs).list(), expected);
}

}  // namespace
}  // namespace vellark
