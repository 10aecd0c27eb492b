#include "Documents/Library/LibraryTexts.hpp"
#include "Support/TemporaryDirectory.hpp"
#include <VellarkDomain/Documents/Library/LibraryFile.hpp>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>

namespace vellark {
namespace {

using namespace vellark::testing;
namespace fs = std::filesystem;
using Reason = LibraryFileError::Reason;

CaptureLibrary sample(std::size_t count) {
    CaptureLibrary library;
    for (std::size_t index = 0; index < count; ++index) {
        library.documents.push_back({.id = std::to_string(index), .title = "제목 \"x\"", .kind = "markdown"});
        library.documents.back().revisions.push_back({.id = "r", .contentHash = std::string(64, 'a')});
    }
    return library;
}

std::size_t filesIn(const TemporaryDirectory& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
}

TEST(LibraryFile, roundTripLeavesOneFile) {
    const TemporaryDirectory folder;
    const std::string path = folder / "library.json";
    const auto first = LibraryFile::write(sample(3), path);
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(path, static_cast<fs::perms>(0666));
    const auto second = LibraryFile::write(sample(5000), path);  // more than one piece
    ASSERT_TRUE(second.has_value());
    EXPECT_NE(*first, *second);
    EXPECT_EQ(fs::status(path).permissions(), static_cast<fs::perms>(0666));
    const auto read = LibraryFile::read(path);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->library, sample(5000));
    EXPECT_EQ(read->stamp, *second);
    EXPECT_EQ(filesIn(folder), 1U);
}

TEST(LibraryFile, aDamagedFileIsNamedAndKept) {
    const TemporaryDirectory folder;
    const std::string path = folder / "library.json";
    struct Row {
        const char* name;
        std::string text;
        DecodingError damage;
    };
    const Row rows[] = {
        {"empty", "", {DecodingError::Reason::notJSON}},
        {"cut", R"({"version":1,"documents":[)", {DecodingError::Reason::notJSON, "", 26}},
        {"storage kind",
         libraryText(recordText(objectText(revisionRows(), 30, "\"x\""))),
         {DecodingError::Reason::unknownText, "documents[0].revisions[0].storageKind"}},
    };
    for (const Row& row : rows) {
        writeFile(path, row.text);
        const LibraryFileError expected{.reason = Reason::damaged, .damage = row.damage};
        EXPECT_EQ(LibraryFile::read(path).error(), expected) << row.name;
        EXPECT_EQ(LibraryFile::write(sample(1), path).error(), expected) << row.name;
        EXPECT_EQ(LibraryFile::write(sample(1), path, LibraryFile::Stamp{}).error(), expected) << row.name;
        EXPECT_EQ(readFile(path), row.text) << row.name;
    }
    EXPECT_EQ(filesIn(folder), 1U);
}

TEST(LibraryFile, theSystemsRefusals) {
    const TemporaryDirectory folder;
    EXPECT_EQ(LibraryFile::read(folder / "none.json").error().reason, Reason::notFound);
    EXPECT_EQ(LibraryFile::read(folder.string()).error().reason, Reason::unreadable);
    EXPECT_EQ(LibraryFile::write(sample(1), folder / "no/library.json").error(),
              (LibraryFileError{.reason = Reason::unwritable, .systemError = ENOENT}));
    EXPECT_FALSE(LibraryFile::write(sample(1), folder.string()).has_value());
    EXPECT_EQ(filesIn(folder), 0U);
}

TEST(LibraryFile, aFullDiskLeavesTheOldFile) {
    const TemporaryDirectory folder;
    const std::string path = folder / "library.json";
    const auto stamp = LibraryFile::write(sample(2), path);
    ASSERT_TRUE(stamp.has_value());
    const std::string before = readFile(path);

    rlimit whole{};
    ::getrlimit(RLIMIT_FSIZE, &whole);
    const rlimit small{.rlim_cur = 100'000, .rlim_max = whole.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto written = LibraryFile::write(sample(20'000), path, *stamp);
    ::setrlimit(RLIMIT_FSIZE, &whole);
    std::signal(SIGXFSZ, handler);

    EXPECT_EQ(written.error(), (LibraryFileError{.reason = Reason::unwritable, .systemError = EFBIG}));
    EXPECT_EQ(readFile(path), before);
    EXPECT_EQ(filesIn(folder), 1U);
}

TEST(LibraryFile, aLinkStaysALink) {
    const TemporaryDirectory folder;
    writeFile(folder / "real/library.json", R"({"version":1,"documents":[]})");
    fs::create_symlink(folder / "real/library.json", folder / "library.json");
    ASSERT_TRUE(LibraryFile::write(sample(1), folder / "library.json").has_value());
    EXPECT_TRUE(fs::is_symlink(folder / "library.json"));
    EXPECT_EQ(LibraryFile::read(folder / "real/library.json")->library, sample(1));
}

// One at a time gives the same documents as all at once, for every file that the writer leaves; for all others it says
// that it does not know.
TEST(LibraryFileTests, documentsOneAtATime) {
    const testing::TemporaryDirectory directory;
    const std::string path = (directory / "library.json").string();
    CaptureLibrary library;
    for (int number = 0; number < 50; ++number) {
        DocumentRecord record{
            .id = std::to_string(number), .title = "T\n\"" + std::to_string(number), .kind = "markdown"};
        if (number % 3 == 0) record.revisions.push_back({.id = "r", .contentHash = "h"});
        if (number % 7 == 0) record.sourcePath = "/a/b.md";
        library.documents.push_back(std::move(record));
    }
    ASSERT_TRUE(LibraryFile::write(library, path));
    std::vector<DocumentRecord> visited;
    const auto visitor = [&visited](const DocumentRecord& document) { visited.push_back(document); };
    EXPECT_TRUE(LibraryFile::visit(path, visitor));
    EXPECT_EQ(visited, library.documents);
    const std::string text = testing::readFile(path);
    for (const std::string& other :
         {std::string(), std::string("[]"), text + "x", text.substr(0, text.size() / 2),
          std::string(R"({"documents":[],"version":1})"), std::string(R"({"version":1,"documents":[],"more":1})")}) {
        testing::writeFile(path, other);
        EXPECT_FALSE(LibraryFile::visit(path, visitor)) << other.substr(0, 40);
    }
    EXPECT_FALSE(LibraryFile::visit((directory / "none").string(), visitor));
}

// The file is read through a window of a megabyte. What it cuts, be it a scalar, a key or a document that is longer, is
// read as if it did not; and what is wrong at its edge is still wrong.
TEST(LibraryFileTests, documentsAcrossTheWindow) {
    const testing::TemporaryDirectory directory;
    const std::string path = (directory / "library.json").string();
    constexpr std::size_t window = 1 << 20;
    CaptureLibrary library;
    library.documents = {{.id = "first", .title = "FILL", .kind = "markdown"},
                         {.id = "second", .title = "한글 제목", .kind = "markdown"},
                         {.id = "last", .title = "T", .kind = "markdown"}};
    ASSERT_TRUE(LibraryFile::write(library, path));
    const std::string text = testing::readFile(path);
    const auto isVisitedWhole = [&](std::string_view part, std::string_view replacement, std::size_t fill) {
        std::string changed = text;
        changed.replace(changed.rfind(part), part.size(), replacement);
        library.documents[0].title = std::string(fill, 'x');
        changed.replace(changed.find("FILL"), 4, library.documents[0].title);
        testing::writeFile(path, changed);
        std::vector<DocumentRecord> visited;
        const auto visitor = [&visited](const DocumentRecord& document) { visited.push_back(document); };
        return LibraryFile::visit(path, visitor) && visited == library.documents;
    };
    // The edge falls on every byte of the second document in turn, and on the last bytes of the file.
    const std::size_t second = text.find(R"({"id":"second")") - 4;
    for (std::size_t shift = 0; shift < 140; ++shift) {
        const std::size_t fill = window - second - shift;
        EXPECT_TRUE(isVisitedWhole("제목", "제목", fill)) << shift;
        EXPECT_FALSE(isVisitedWhole("제목", "제\xEC\xAA", fill)) << shift;
        EXPECT_FALSE(isVisitedWhole(R"({"id":"last")", R"(,{"id":"last")", fill)) << shift;
    }
    const std::size_t rest = text.size() - 4;
    for (std::size_t shift = 0; shift < 6; ++shift) {
        EXPECT_TRUE(isVisitedWhole("]}", "]}", window - rest + shift)) << shift;
        EXPECT_FALSE(isVisitedWhole("]}", ",]}", window - rest + shift)) << shift;
    }
    EXPECT_TRUE(isVisitedWhole("]}", "]}", 5 * window));
}

}  // namespace
}  // namespace vellark
