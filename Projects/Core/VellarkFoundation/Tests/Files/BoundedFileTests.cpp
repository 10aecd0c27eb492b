#include "Support/TemporaryDirectory.hpp"
#include <VellarkFoundation/Files/BoundedFile.hpp>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vellark {
namespace {

TEST(BoundedFile, readsRegularFilesUpToTheLimit) {
    const testing::TemporaryDirectory directory;
    const std::string path = directory / "file";
    for (const std::size_t length : {1, 2, 4095, 4096, 4097, 100'000}) {
        const std::string content(length, 'x');
        testing::writeFile(path, content);
        EXPECT_EQ(BoundedFile::read(path, length), content);
        EXPECT_EQ(BoundedFile::read(path, 1'000'000), content);
        EXPECT_EQ(BoundedFile::read(path, length - 1), std::nullopt) << length;
    }
    testing::writeFile(path, "");
    EXPECT_EQ(BoundedFile::read(path, 0), "");
    std::filesystem::create_symlink(path, directory / "link");
    EXPECT_EQ(BoundedFile::read(directory / "link", 0), "");
}

TEST(BoundedFile, refusesEverythingElse) {
    const testing::TemporaryDirectory directory;
    const std::string fifo = directory / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::filesystem::create_symlink("nowhere", directory / "dangling");
    std::filesystem::create_symlink("loop", directory / "loop");
    const std::string paths[] = {
        fifo, directory.string(), directory / "missing", directory / "dangling", "/dev/null", directory / "loop",
        "",   fifo + "/below"};
    for (const std::string& path : paths) {
        EXPECT_EQ(BoundedFile::read(path, 100), std::nullopt) << path;
    }
}

// Files below /proc have no size, so reading one is like reading a file that grows meanwhile.
TEST(BoundedFile, readsAFileThatHasGrown) {
    const std::string version = testing::readFile("/proc/version");
    if (version.empty()) GTEST_SKIP() << "no /proc";
    EXPECT_EQ(BoundedFile::read("/proc/version", version.size()), version);
    EXPECT_EQ(BoundedFile::read("/proc/version", version.size() - 1), std::nullopt);
}

}  // namespace
}  // namespace vellark
