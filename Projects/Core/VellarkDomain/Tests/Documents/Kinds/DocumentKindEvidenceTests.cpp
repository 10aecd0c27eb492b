#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindEvidence.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindFileName.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindOutline.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Texts = std::vector<std::string>;

DocumentKindEvidence read(std::string_view text, bool html = false) {
    DocumentKindEvidence evidence;
    evidence.read(text, {.html = html});
    return evidence;
}

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (; count > 0; --count) {
        result += text;
    }
    return result;
}

TEST(DocumentKindEvidence, readsFrontMatter) {
    struct Row {
        const char* name;
        std::string text;
        Texts declared;
        Texts tags;
        std::string body;
    };
    const Row rows[] = {
        {"list on one line", "---\ntags: [retro, \"team\"]\n---\nx", {}, {"retro", "team"}, "x"},
        {"list of items", "---\ntags:\n- retro\n  - '#team'\n---\nx", {}, {"retro", "team"}, "x"},
        {"ends with points, CR LF", "\uFEFF---\r\nType: Spec\r\n...\r\nx", {"Spec"}, {}, "x"},
        {"other line breaks", "---\u2028kind: a\u0085---\vx", {"a"}, {}, "x"},
        {"decomposed key", "---\nloa\u0323i: a\n---\nx", {"a"}, {}, "x"},
        {"fifth value", "---\ntype: a, b, , c, d, e\n---\n", {"a", "b", "c", "d"}, {}, ""},
        {"items are lines of their own", "---\ntype:\n- a,b,c,d,e\n- f\n---\n", {"a", "b", "c", "d", "f"}, {}, ""},
        {"thirteenth tag",
         "---\ntag: a,b,c,d,e,f,g,h,i,j,k,l,m\n---\n",
         {},
         {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"},
         ""},
        {"a nested value ends the items", "---\ntags:\n  x: y\n- a\n---\n", {}, {}, ""},
        {"a blank line does not", "---\ntags:\n\n- a\n---\n", {}, {"a"}, ""},
        {"an item without a key may be one", "---\n- type: a\ntype: b\n---\n", {"b"}, {}, ""},
        {"unknown keys", "---\ntitle: plan\nauthor:\n- a\n---\nx", {}, {}, "x"},
        {"not closed", "---\ntype: a\nx", {"a"}, {}, "---\ntype: a\nx"},
        {"closed at line 80", "---\n" + repeated("\n", 78) + "---\nx", {}, {}, "x"},
        {"closed at line 81", "---\n" + repeated("\n", 79) + "---\nx", {}, {}, "---\n" + repeated("\n", 79) + "---\nx"},
        {"not at the top", " ---\ntype: a\n---\n", {}, {}, " ---\ntype: a\n---\n"},
        {"more than three dashes", "----\ntype: a\n----\n", {}, {}, "----\ntype: a\n----\n"},
    };
    for (const Row& row : rows) {
        const DocumentKindEvidence evidence = read(row.text);
        EXPECT_EQ(evidence.declared, row.declared) << row.name;
        EXPECT_EQ(evidence.tags, row.tags) << row.name;
        EXPECT_EQ(evidence.body, row.body) << row.name;
    }
    EXPECT_EQ(read("---\ntype: a\n---\nx", true).body, "---\ntype: a\n---\nx");
}

TEST(DocumentKindEvidence, readsTheOutline) {
    struct Row {
        const char* name;
        std::string_view text;
        Texts headings;
        std::int64_t checkboxes;
    };
    const Row rows[] = {
        {"the first heading of level one", "## a\n# b \t\n# c", {"b"}, 0},
        {"an empty one counts", "# \n# c", {""}, 0},
        {"indented or without a blank", " # a\n#b", {}, 0},
        {"task items", "- [ ] a\n *[x]\n+   [X]b\n-\t[ ] tab\n- [y]\n-[ ", {}, 3},
        {"fences", "```\n# a\n- [ ]\n~~~ \n# b", {"b"}, 0},
        {"an open fence", "~~~\n# a", {}, 0},
        {"line breaks", "a\r# b\u2029- [ ] c", {"b"}, 1},
    };
    for (const Row& row : rows) {
        const DocumentKindEvidence evidence = read(row.text);
        EXPECT_EQ(evidence.headings, row.headings) << row.name;
        EXPECT_EQ(evidence.checkboxes, row.checkboxes) << row.name;
    }
}

TEST(DocumentKindEvidence, readsNoMoreThanTheOpening) {
    EXPECT_EQ(read(std::string(4'095, 'a') + "é").body.size(), 4'095U);
    EXPECT_EQ(read(std::string(5'000, '\xFF')).body.size(), 4'095U);  // each bad byte counts as three
    const std::string frontMatter = "---\ntype: " + std::string(8'000, 'a') + "\n---\n";
    EXPECT_EQ(read(frontMatter + std::string(9'000, 'b')).body.size(), 8'192U - frontMatter.size());
    EXPECT_EQ(read(std::string(4'096, ' ') + "<h1>a</h1>", true).headings, Texts{});
}

// Both expressions as they are meant, beside the walks that take their place.
TEST(DocumentKindEvidence, readsPagesLikeTheExpressions) {
    const Regex heading(R"((?i)<h1[^>]*>([^<]{1,200})</h1>)");
    const Regex tag(R"(<(script|style)\b[^>]*>[^<]*</\1>|<[^>]*>)");
    const std::vector<std::string> pieces = {
        "<", ">",         "<h1",     "<H1>",     "</h1>",  "</H1>",  "a", " ", "<script", "script",
        "é", "</script>", "<style>", "</style>", "\u200D", "\u0301", "_", "/", "\n",      std::string(199, 'x')};
    for (const std::string& text : testing::randomTexts(3, 20'000, 12, pieces)) {
        const RegexText source(text);
        Texts headings;
        RegexMatcher found(heading, source);
        while (found.find() == RegexOutcome::match) {
            std::string content(found.groupString(1).value());
            content.erase(0, std::min(content.find_first_not_of(" \t"), content.size()));
            content.erase(content.find_last_not_of(" \t") + 1);
            headings.push_back(content);
        }
        std::string body;
        std::size_t copied = 0;
        RegexMatcher tags(tag, source);
        while (tags.find() == RegexOutcome::match) {
            body.append(text, copied, tags.range().start - copied).push_back(' ');
            copied = tags.range().end;
        }
        body.append(text, copied);
        ASSERT_EQ(DocumentKindOutline::htmlHeadings(text), headings) << text;
        ASSERT_EQ(DocumentKindOutline::htmlText(text), body) << text;
    }
}

TEST(DocumentKindFileName, tellsKinds) {
    struct Row {
        const char* path;
        std::optional<DocumentKind> kind;
        const char* stem;
        const char* directory;
    };
    using enum DocumentKind;
    const Row rows[] = {
        {"README.md", guide, "README", ""},
        {"/a/notes.SRT", script, "notes", "/a"},
        {"design.adr.md", designDoc, "design.adr", ""},
        {".adr.md", std::nullopt, ".adr", ""},
        {"a/.kiro/specs/login/tasks.md", checklist, "tasks", "a/.kiro/specs/login"},
        {".kiro/specs//tasks.md", std::nullopt, "tasks", ".kiro/specs/"},
        {"specs/x/contracts/api", apiDoc, "api", "specs/x/contracts"},
        {"specs/contracts/api", std::nullopt, "api", "specs/contracts"},
        {"docs/stories/1.2.login.md", userStories, "1.2.login", "docs/stories"},
        {"Docs/Stories/12.30.a.b.MD", userStories, "12.30.a.b", "Docs/Stories"},
        {"docs/stories/a.2.login.md", std::nullopt, "a.2.login", "docs/stories"},
        {"docs/stories/1.2.md", std::nullopt, "1.2", "docs/stories"},
        {"docs/plans/2026-01-02-todo.md", checklist, "2026-01-02-todo", "docs/plans"},
        {"docs/plans/2026.md", plan, "2026", "docs/plans"},
        {"docs/plans/.md", std::nullopt, ".md", "docs/plans"},
        {"CODE_OF_CONDUCT", guide, "CODE_OF_CONDUCT", ""},
        {"a/", std::nullopt, "", "a"},
        {"/x", std::nullopt, "x", ""},
    };
    for (const Row& row : rows) {
        const DocumentKindFileName name(row.path);
        EXPECT_EQ(name.kind, row.kind) << row.path;
        EXPECT_EQ(name.stem, row.stem) << row.path;
        EXPECT_EQ(name.directory, row.directory) << row.path;
    }
    EXPECT_EQ(DocumentKindFileName(std::nullopt).stem, std::nullopt);
    EXPECT_EQ(DocumentKindFileName("").stem, std::nullopt);
}

TEST(DocumentKindFileName, listsFolders) {
    using Folders = std::vector<std::string_view>;
    const auto folders = [](const char* path, std::optional<std::string> root) {
        static std::optional<DocumentKindFileName> name;
        name.emplace(path);
        return name->folders(root);
    };
    EXPECT_EQ(folders("/w/app/a//b/c/d/x.md", "/w/app/"), (Folders{"d", "c", "b"}));
    EXPECT_EQ(folders("/w/app/x.md", "w/app"), Folders{});
    EXPECT_EQ(folders("/w/apple/x.md", "/w/app"), (Folders{"apple", "w"}));
    EXPECT_EQ(folders("/w/x.md", "/"), Folders{"w"});
    EXPECT_EQ(folders("/w/x.md", std::nullopt), Folders{"w"});
    EXPECT_EQ(folders("x.md", "/w"), Folders{});
}

}  // namespace
}  // namespace vellark
