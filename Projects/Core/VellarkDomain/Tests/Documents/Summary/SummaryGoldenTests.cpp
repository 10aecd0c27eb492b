#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// The digests of all documents in Data/Summary, as the shelf would show them, stand in Data/SummaryDigests.txt for
// people to read. With VELLARK_WRITE_GOLDEN set, the test writes that file instead of comparing.

namespace vellark {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

DocumentContentFormat formatOf(const fs::path& path) {
    if (path.extension() == ".html") return DocumentContentFormat::html();
    if (path.extension() == ".txt") return DocumentContentFormat::code("plaintext");
    return DocumentContentFormat::markdown();
}

// One line for each part; a carriage return is shown, as it is one character with the line feed behind it.
std::string entry(const char* name, std::string text) {
    for (std::size_t place = text.find("\r\n"); place != text.npos; place = text.find("\r\n", place))
        text.replace(place, 2, "␍␊");
    return std::string(name) + text + "\n";
}

std::string shown(const fs::path& path) {
    const auto digest = DocumentSummaryExtractor::extract(contentOf(path), formatOf(path));
    std::string result = "=== " + path.filename().string() + "\n" + entry("summary:    ", digest.summary);
    for (const std::string& heading : digest.headings)
        result += entry("heading:    ", std::string(GraphemeBreak::prefix(heading, 200)));
    for (const std::string& item : digest.items)
        result += entry("item:       ", item);
    for (const std::string& fact : digest.facts)
        result += entry("fact:       ", fact);
    if (digest.conclusion) result += entry("conclusion: ", *digest.conclusion);
    result += entry("body:       ", std::to_string(GraphemeBreak::count(digest.body)) + " characters");
    const DocumentSummary summary = digest.fallback(digest.headings);
    for (const std::string& point : summary.points)
        result += entry("shown:      ", std::string(GraphemeBreak::prefix(point, 200)));
    return result + "\n";
}

TEST(SummaryGolden, digestsRealDocuments) {
    const fs::path data = VELLARK_TEST_DATA;
    std::vector<fs::path> paths;
    for (const auto& file : fs::directory_iterator(data / "Summary"))
        paths.push_back(file.path());
    std::sort(paths.begin(), paths.end());
    ASSERT_GE(paths.size(), 40U);

    std::vector<std::string> digests;
    std::string all;
    for (const fs::path& path : paths) {
        digests.push_back(shown(path));
        all += digests.back();
    }
    const fs::path golden = data / "SummaryDigests.txt";
    if (std::getenv("VELLARK_WRITE_GOLDEN") != nullptr) {
        std::ofstream(golden, std::ios::binary) << all;
        return;
    }
    const std::string expected = contentOf(golden);
    for (const std::string& digest : digests)
        EXPECT_NE(expected.find(digest), std::string::npos) << "changed:\n" << digest;
    EXPECT_EQ(all.size(), expected.size()) << "documents came or went";
}

// Every beginning of a document is a document; the digest of each keeps its limits.
TEST(SummaryGolden, keepsItsLimitsOnEveryBeginning) {
    for (const auto& file : fs::directory_iterator(fs::path(VELLARK_TEST_DATA) / "Summary")) {
        const std::string text = contentOf(file.path());
        for (std::size_t size = 0; size < text.size(); size += 397) {
            const auto digest = DocumentSummaryExtractor::extract(text.substr(0, size), formatOf(file.path()), false);
            EXPECT_LE(digest.facts.size(), 2U) << file.path() << " " << size;
            EXPECT_FALSE(GraphemeBreak::exceeds(digest.conclusion.value_or(""), 145)) << file.path() << " " << size;
        }
    }
}

}  // namespace
}  // namespace vellark
