#include <VellarkFoundation/Text/FilePath.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(FilePath, parts) {
    struct Row {
        const char* path;
        const char* lastComponent;
        const char* pathExtension;
    };
    const Row rows[] = {
        {"", "", ""},
        {"/", "/", ""},
        {"///", "/", ""},
        {"a", "a", ""},
        {"/p/a.md", "a.md", "md"},
        {"/p.x/a", "a", ""},
        {"/p/a.md//", "a.md", "md"},
        {"a.tar.gz", "a.tar.gz", "gz"},
        {".bashrc", ".bashrc", ""},
        {".swift", ".swift", ""},
        {".a.b", ".a.b", "b"},
        {"..md", "..md", ""},
        {"..a.b", "..a.b", ""},
        {"..", "..", ""},
        {"a.", "a.", ""},
        {"a..b", "a..b", "b"},
        {"v1. Notes", "v1. Notes", ""},
        {"a.b c", "a.b c", ""},
        {"a.b\tc", "a.b\tc", "b\tc"},
        {"a.m\u200fd", "a.m\u200fd", ""},
        {"a.md?x#y", "a.md?x#y", "md?x#y"},
        {"보고서.한글", "보고서.한글", "한글"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FilePath::lastComponent(row.path), row.lastComponent) << row.path;
        EXPECT_EQ(FilePath::pathExtension(row.path), row.pathExtension) << row.path;
    }
}

}  // namespace
}  // namespace vellark
