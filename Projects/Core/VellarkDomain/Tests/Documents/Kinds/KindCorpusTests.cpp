#include "Documents/Kinds/KindCorpus.hpp"

#include <gtest/gtest.h>

namespace vellark {
namespace {

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

// Floors a little below what the word lists reach, so that a word that costs more than it brings shows. The lists were
// mended by most of these titles, and some were written by who wrote the lists: fresh ones score lower. Only those of
// titles-third.tsv were not mended by yet. Titles that end with something else than their
// kind ("Invoice 17 Brightline", common in English, Japanese and Chinese) are out of reach of words, and so are
// untitled documents in languages without phrases of the opening.
TEST(KindCorpus, isClassifiedAsPromised) {
    constexpr double mostDecidedWithoutKind = 3;
    constexpr double fewestDocumentsRight = 80;
    const std::map<std::string, double> lower = {{"de", 88}, {"en", 91}, {"fr", 88}, {"ko", 94},
                                                 {"mn", 84}, {"vi", 86}, {"zh", 91}};
    testing::KindCorpus corpus(std::string(VELLARK_TEST_DATA) + "/Kinds");
    if (!corpus.run()) GTEST_SKIP() << "no titles in Tests/Data/Kinds";
    for (const auto& [language, score] : corpus.languages) {
        const double fewest = lower.contains(language) ? lower.at(language) : 90;
        EXPECT_GE(score.percent(), fewest) << language << "\n" << joined(score.misses);
    }
    EXPECT_LE(100 - corpus.kindless.percent(), mostDecidedWithoutKind) << joined(corpus.kindless.misses);
    EXPECT_GE(corpus.documents.percent(), fewestDocumentsRight) << joined(corpus.documents.misses);
}

}  // namespace
}  // namespace vellark
