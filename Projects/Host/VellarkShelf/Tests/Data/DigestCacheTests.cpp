#include "Support/TemporaryDirectory.hpp"
#include <VellarkShelf/Data/DigestCache.hpp>

#include <gtest/gtest.h>

#include <string>

namespace vellark {
namespace {

using testing::readFile;
using testing::TemporaryDirectory;
using testing::writeFile;

DocumentDigest digest(std::string revision, std::string headline) {
    return {.revision = std::move(revision),
            .candidates = {DocumentKind::plan},
            .level = DocumentKindGuess::Level::name,
            .decided = true,
            .summary = {.headline = std::move(headline)}};
}

TEST(DigestCache, keepsWhatWasAdded) {
    const TemporaryDirectory folder;
    const DataDirectory directory{folder.path().string()};
    DigestCache cache = DigestCache::read(directory);
    cache.add(digest("1", "One"));
    cache.add(digest("2", "Two"));
    cache.add(digest("1", "One anew"));
    EXPECT_EQ(cache.find("1"), digest("1", "One anew"));
    ASSERT_TRUE(cache.save());

    DigestCache again = DigestCache::read(directory);
    const DigestCache moved = std::move(again);  // its views point into its own text
    EXPECT_EQ(moved.find("1"), digest("1", "One anew"));
    EXPECT_EQ(moved.find("2"), digest("2", "Two"));
    EXPECT_EQ(moved.find("3"), std::nullopt);
}

// The file may have been cut by a full disk, or written by another hand; nothing of that hides a line that is whole.
TEST(DigestCache, passesOverWhatItCannotRead) {
    const TemporaryDirectory folder;
    const DataDirectory directory{folder.path().string()};
    const std::string end =
        R"("candidates":["plan"],"level":"name","decided":true,"summary":{"headline":"H","points":[]}})";
    const std::string broken = "{\"revision\":\"bytes\xFF\"," + end + "\n";
    writeFile(directory.digests(), "\n[]\n" + broken + R"({"revision":"cut","candi)" + "\n" + R"({"revision":"good",)" +
                                       end + "\n" + R"({"revision":"esc\u0061ped",)" + end + "\n" +
                                       R"({"decided":true,"revision":"turned","candidates":["plan"],"level":"name",)" +
                                       R"("summary":{"points":[],"headline":"H"}})");
    DigestCache cache = DigestCache::read(directory);
    EXPECT_EQ(cache.find("good"), digest("good", "H"));
    EXPECT_EQ(cache.find("escaped"), digest("escaped", "H"));
    EXPECT_EQ(cache.find("turned"), digest("turned", "H"));
    EXPECT_EQ(cache.find("cut"), std::nullopt);
    cache.add(digest("cut", "Whole"));
    ASSERT_TRUE(cache.save());
    EXPECT_EQ(DigestCache::read(directory).find("cut"), digest("cut", "Whole"));
    EXPECT_EQ(DigestCache::read(directory).find("turned"), digest("turned", "H"));
}

}  // namespace
}  // namespace vellark
