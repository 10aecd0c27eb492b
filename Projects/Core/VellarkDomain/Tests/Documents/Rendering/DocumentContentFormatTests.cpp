#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentLanguages.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentProse.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Format = DocumentContentFormat;

std::string shown(const Format& format) {
    if (format.isMarkdown()) return "markdown";
    if (format.isHTML()) return "html";
    return "code " + std::get<Format::Code>(format.value).language.value_or("-");
}

TEST(DocumentContentFormat, followsKindCategoryAndName) {
    struct Row {
        const char* kind;
        const char* category;  // "" for none
        const char* path;
        const char* format;
        bool isProse;
    };
    const Row rows[] = {
        {"html", "", "/p/a.md", "html", true},
        {"text", "", "/p/A.XHTML", "html", true},
        {"text", "", "/p/a.Rmd", "markdown", true},
        {"text", "", "/p/a.m\u212Ad", "markdown", true},
        {"text", "", "/p/CMakeLists.txt", "code cmake", false},
        {"markdown", "", "/p/CMakeLists.txt", "code cmake", false},
        {"markdown", "", "/p/notes.txt", "code plaintext", true},
        {"file", "other", "/p/NOTES.TEXT", "code plaintext", true},
        {"markdown", "", "/p/main.swift", "markdown", true},
        {"text", "", "/p/main.swift", "code swift", false},
        {"file", "code", "/p/main.PYW", "code python", false},
        {"file", "", "/p/main.py", "code python", false},
        {"file", "documents", "/p/main.py", "markdown", true},
        {"text", "", "/p/Dockerfile", "code dockerfile", false},
        {"text", "", "/p/Dockerfile.dev", "code dockerfile", false},
        {"text", "", "/p/dockerfiles", "code -", false},
        {"text", "", "/p/app.Dockerfile", "code dockerfile", false},
        {"text", "", "/p/GNUmakefile", "code makefile", false},
        {"text", "", "/p/BSDMakefile//", "code makefile", false},
        {"text", "", "/p/Makefile.am", "code am", false},
        {"text", "", "/p/LICENSE", "code -", false},
        {"text", "", "/p/.bashrc", "code -", false},
        {"text", "", "/p/v1. Notes", "code -", false},
        {"text", "", "", "code -", false},
        {"text", "", "/p/guide.rst", "code rst", true},
        {"text", "", "/p/guide.adoc", "code adoc", true},
        {"text", "", "/p/Cargo.toml", "code ini", false},
        {"candidate", "", "/p/answer", "markdown", true},
    };
    for (const Row& row : rows) {
        DocumentRecord document{.title = "title.md", .sourcePath = row.path, .kind = row.kind};
        if (*row.category != '\0') document.artifactCategory = row.category;
        const Format format = Format::resolve(document, nullptr);
        EXPECT_EQ(shown(format), row.format) << row.kind << " " << row.path;
        EXPECT_EQ(format.isProse(), row.isProse) << row.kind << " " << row.path;
    }
}

TEST(DocumentContentFormat, asksSourceThenSnapshotThenTitle) {
    DocumentRecord document{.title = "a.py", .sourcePath = "/p/a.c", .kind = "text"};
    const DocumentRevision revision{.snapshotPath = "/s/a.rs"};
    document.revisions = {DocumentRevision{.snapshotPath = "/s/a.go"}};
    EXPECT_EQ(shown(Format::resolve(document, &revision)), "code c");
    document.sourcePath.reset();
    EXPECT_EQ(shown(Format::resolve(document, &revision)), "code rust");
    EXPECT_EQ(shown(Format::resolve(document, nullptr)), "code python") << "the record's own revision is not asked";
    document.sourcePath = "";
    EXPECT_EQ(shown(Format::resolve(document, &revision)), "code -") << "an empty path is a path";
}

TEST(DocumentLanguages, namesLanguagesByExtension) {
    EXPECT_EQ(DocumentLanguages::language("asm"), "x86asm");
    EXPECT_EQ(DocumentLanguages::language("zsh"), "bash");
    EXPECT_EQ(DocumentLanguages::language("tf"), "hcl");
    EXPECT_EQ(DocumentLanguages::language("swift"), "swift");
    EXPECT_EQ(DocumentLanguages::language("PY"), "PY") << "given in lower case";
    EXPECT_EQ(DocumentLanguages::language(""), "");
}

TEST(DocumentProse, readsWhatPeopleRead) {
    struct Row {
        const char* name;
        const char* kind;
        const char* category;
        const char* path;
        bool reads;
    };
    const Row rows[] = {
        {"Markdown", "markdown", "", "/p/a.md", true},
        {"a PDF", "pdf", "", "/p/a.pdf", true},
        {"a file that is a PDF", "file", "pdfs", "/p/a", true},
        {"a candidate, whatever its name", "candidate", "", "/p/a.py", true},
        {"a video", "video", "", "/p/a.mov", false},
        {"a candidate that is a video", "candidate", "videos", "/p/a", false},
        {"an image", "image", "", "/p/a.md", false},
        {"a file of an older library", "file", "other", "/p/a.md", true},
        {"code of an older library", "file", "", "/p/a.py", false},
        {"a file with a category", "file", "documents", "/p/a.md", false},
        {"text without an extension", "text", "", "/p/README", false},
        {"plain text", "text", "", "/p/a.txt", true},
        {"source text", "text", "", "/p/a.swift", false},
    };
    for (const Row& row : rows) {
        DocumentRecord document{.sourcePath = row.path, .kind = row.kind};
        if (*row.category != '\0') document.artifactCategory = row.category;
        EXPECT_EQ(DocumentProse::reads(document, nullptr), row.reads) << row.name;
    }
}

}  // namespace
}  // namespace vellark
