#include <VellarkDomain/Capture/PythonPath.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(PythonPath, takesTextApart) {
    struct Row {
        const char* text;
        const char* string;
        const char* root;
        Pieces tail;
        const char* name;
        const char* parent;
        const char* suffix;
    };
    const Row rows[] = {
        {"", ".", "", {}, "", ".", ""},
        {".", ".", "", {}, "", ".", ""},
        {"a", "a", "", {"a"}, "a", ".", ""},
        {"a/./b//c/", "a/b/c", "", {"a", "b", "c"}, "c", "a/b", ""},
        {"/", "/", "/", {}, "", "/", ""},
        {"/a.md", "/a.md", "/", {"a.md"}, "a.md", "/", ".md"},
        {"//a/b", "//a/b", "//", {"a", "b"}, "b", "//a", ""},
        {"//", "//", "//", {}, "", "//", ""},
        {"///a", "/a", "/", {"a"}, "a", "/", ""},
        {"../x/..", "../x/..", "", {"..", "x", ".."}, "..", "../x", ""},
        {"a.tar.gz", "a.tar.gz", "", {"a.tar.gz"}, "a.tar.gz", ".", ".gz"},
        {".bashrc", ".bashrc", "", {".bashrc"}, ".bashrc", ".", ""},
        {"..a", "..a", "", {"..a"}, "..a", ".", ""},
        {"..a.b", "..a.b", "", {"..a.b"}, "..a.b", ".", ".b"},
        {"a.", "a.", "", {"a."}, "a.", ".", "."},
        {"...", "...", "", {"..."}, "...", ".", ""},
    };
    for (const Row& row : rows) {
        const PythonPath path(row.text);
        EXPECT_EQ(path.string(), row.string) << row.text;
        EXPECT_EQ(path.root(), row.root) << row.text;
        EXPECT_EQ(path.tail(), row.tail) << row.text;
        EXPECT_EQ(path.name(), row.name) << row.text;
        EXPECT_EQ(path.parent().string(), row.parent) << row.text;
        EXPECT_EQ(path.suffix(), row.suffix) << row.text;
    }
    EXPECT_EQ(PythonPath("/").parts(), Pieces{"/"});
    EXPECT_EQ(PythonPath("/a/b").parts(), (Pieces{"/", "a", "b"}));
    EXPECT_EQ(PythonPath("/a/b").parents(), (std::vector{PythonPath("/a"), PythonPath("/")}));
}

TEST(PythonPath, appends) {
    EXPECT_EQ(PythonPath("/a").appending("b/./c").string(), "/a/b/c");
    EXPECT_EQ(PythonPath("/a").appending("/b").string(), "/b");
    EXPECT_EQ(PythonPath("/").appending("b").string(), "/b");
    EXPECT_EQ(PythonPath("").appending("b").string(), "b");
    EXPECT_EQ(PythonPath("/a").appending("").string(), "/a");
}

TEST(PythonPath, knowsWhatLiesBelow) {
    struct Row {
        const char* base;
        const char* path;
        bool isParent;
        std::optional<Pieces> relative;
    };
    const Row rows[] = {
        {"/a", "/a/b/c", true, Pieces{"b", "c"}}, {"/a", "/a", false, Pieces{}},
        {"/a", "/ab", false, std::nullopt},       {"/", "/a", true, Pieces{"a"}},
        {"", "a/b", true, Pieces{"a", "b"}},      {"", "/a", false, std::nullopt},
        {"//a", "/a/b", false, std::nullopt},     {"/", "//a", false, std::nullopt},
        {"/a/b", "/a", false, std::nullopt},
    };
    for (const Row& row : rows) {
        const PythonPath base(row.base);
        const PythonPath path(row.path);
        EXPECT_EQ(base.isParent(path), row.isParent) << row.base << " " << row.path;
        EXPECT_EQ(path.relativeParts(base), row.relative) << row.base << " " << row.path;
        EXPECT_EQ(base.contains(path), row.relative.has_value()) << row.base << " " << row.path;
    }
}

}  // namespace
}  // namespace vellark
