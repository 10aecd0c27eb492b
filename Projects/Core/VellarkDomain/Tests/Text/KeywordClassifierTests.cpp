#include <VellarkDomain/Text/KeywordClassifier.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Classifier = KeywordClassifier<char>;
using Words = Classifier::Words;

// Roles of agents, as a host would list them.
const Classifier& roles() {
    static const Classifier classifier({
        {'r',
         "eye",
         {.nouns = {"reviewer", "검토자"},
          .activity = {"review", "검토"},
          .domain = {"style"},
          .exclusions = {"review board", "재검토"}}},
        {'t', "seal", {.nouns = {"tester"}, .activity = {"test", "시험"}}},
        {'d', "book", {.nouns = {"é"}, .activity = {"test"}, .domain = {"docs", "설명서 글"}}},
    });
    return classifier;
}

TEST(KeywordClassifier, classifies) {
    struct Row {
        const char* title;
        std::optional<std::string_view> name;
        std::optional<std::string_view> text;
        std::optional<char> expected;
    };
    const Row rows[] = {
        {"nothing", std::nullopt, std::nullopt, std::nullopt},
        {"a noun of the name wins", "Tester", "review this", 't'},
        {"nouns count in names only", std::nullopt, "the tester", std::nullopt},
        {"activity over domain", "docs", "test", 't'},
        {"domain at last", "docs", std::nullopt, 'd'},
        {"English says it first", std::nullopt, "review the test", 'r'},
        {"Korean says it last", std::nullopt, "검토 후 시험", 't'},
        {"one letter outside ASCII suffices", std::nullopt, "review the test…", 't'},
        {"the earlier entry on equal places", std::nullopt, "test", 't'},
        {"not inside a word", std::nullopt, "latest contest tests test2", std::nullopt},
        {"beside punctuation and Korean", std::nullopt, "가test, review 나", 'r'},
        {"a Korean pair is no tail of a word", std::nullopt, "모의시험", std::nullopt},
        {"but may begin one", std::nullopt, "시험장", 't'},
        {"an exclusion hides its words", std::nullopt, "review board", std::nullopt},
        {"and those only", std::nullopt, "review board, review", 'r'},
        {"exclusions are not bounded", std::nullopt, "preview boards: test", 't'},
        {"decomposed forms are equal", "E\u0301", std::nullopt, 'd'},
        {"a letter with a mark is another character", std::nullopt, "test\u0323", std::nullopt},
        {"a letter with a mark is no ASCII neighbour", std::nullopt, "x\u0323test", 't'},
        {"Kelvin sign lowers to ASCII", "DOCS \u212A", std::nullopt, 'd'},
        {"ill-formed bytes", std::nullopt, "\xFFtest\xC3", 't'},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(roles().classify(row.name, row.text), row.expected) << row.title;
    }
}

TEST(KeywordClassifier, takesTheBestOfChosenWords) {
    EXPECT_EQ(roles().best("style of the tester", Words::keywords), 'r');
    EXPECT_EQ(roles().best("style of the tester", Words::nouns), 't');
    EXPECT_EQ(roles().best("style", Words::activity), std::nullopt);
    EXPECT_EQ(roles().symbols().at('r'), "eye");
    EXPECT_EQ(Classifier({{'x', "", {.nouns = {"", "aaaa"}}}}).best("aaa", Words::nouns), std::nullopt);
}

TEST(KeywordText, findsOverlappingMatches) {
    using Ranges = std::vector<KeywordText::Range>;
    EXPECT_EQ(KeywordText("ababa").matches(KeywordPattern("aba"), false), (Ranges{{0, 3}, {2, 5}}));
    EXPECT_EQ(KeywordText("a\r\nb").matches(KeywordPattern("\n"), false), Ranges{});
    EXPECT_EQ(KeywordText("a\r\nb").matches(KeywordPattern("\r\n"), true), Ranges{});
    EXPECT_EQ(KeywordText("회의록").matches(KeywordPattern("회의록"), true), (Ranges{{0, 9}}));
}

}  // namespace
}  // namespace vellark
