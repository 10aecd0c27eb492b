#include <VellarkDomain/Documents/Library/DocumentLink.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Documents/Library/LibraryMutationError.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <gtest/gtest.h>

#include <set>

namespace vellark {
namespace {

using enum ArtifactCategory;
using Text = std::optional<std::string>;

TEST(DocumentRecord, categoryFollowsItsSteps) {
    struct Row {
        const char* name;
        std::string kind;
        Text path;
        Text category;          // of the record
        Text revisionCategory;  // of the latest revision
        ArtifactCategory expected;
        std::optional<ArtifactCategory> legacy = std::nullopt;
        const char* event = "PostToolUse";
        const char* snapshot = "/s/copy";
    };
    const Row rows[] = {
        {"old text file", "file", "/a/b.MD", {}, {}, documents, documents},
        {"old text file of category other", "file", "/a/b.html", "other", {}, documents, documents},
        {"old code file", "file", "/a/b.swift", {}, "other", code, code},
        {"old plan", "file", "/a/b.md", {}, {}, plans, plans, "plan-file:x"},
        {"a plan's event makes no plan of code", "file", "/a/b.swift", {}, {}, code, code, "plan-file:x"},
        {"the event must begin so", "file", "/a/b.md", {}, {}, documents, documents, "a plan-file:"},
        {"the snapshot when there is no path", "file", {}, {}, {}, documents, documents, "e", "/s/copy.md"},
        {"an empty path is a path", "file", "", {}, {}, other, {}, "e", "/s/copy.md"},
        {"video stored as other", "file", "/a/b.MOV", "other", {}, videos},
        {"video without a category", "file", "/a/b.m\u212av", {}, {}, videos},
        {"binary", "file", "/a/b.bin", "other", {}, other},
        {"named category", "file", "/a/b.mov", "images", {}, images},
        {"unknown name", "file", "/a/b.md", "Other", {}, other},
        {"empty name", "file", "/a/b.mov", "", {}, other},
        {"unknown name hides the revision's", "markdown", "/a/b.md", "?", "plans", documents},
        {"the revision's when the record has none", "markdown", "/a/b.md", {}, "plans", plans},
        {"markdown, unknown name", "markdown", "/a/b.mov", "?", {}, documents},
        {"text", "text", "/a/b.md", {}, {}, code},
        {"image", "image", {}, {}, {}, images},
        {"video", "video", {}, {}, {}, videos},
        {"pdf", "pdf", {}, {}, {}, pdfs},
        {"file", "file", {}, {}, {}, other},
        {"another kind", "File", "/a/b.mov", {}, {}, documents},
    };
    for (const Row& row : rows) {
        DocumentRecord record{.sourcePath = row.path, .kind = row.kind, .artifactCategory = row.category};
        record.revisions = {
            {.originEvent = "plan-file:first"},
            {.snapshotPath = row.snapshot, .originEvent = row.event, .artifactCategory = row.revisionCategory}};
        EXPECT_EQ(record.category(), row.expected) << row.name;
        EXPECT_EQ(record.legacyTextCategory(), row.legacy) << row.name;
        const bool isText = std::set<std::string>{"markdown", "html", "candidate", "text"}.contains(row.kind);
        EXPECT_EQ(record.supportsTextContent(), isText || row.legacy) << row.name;
    }
}

TEST(DocumentRecord, withoutRevisions) {
    const DocumentRecord record{.source = "codex", .kind = "file", .sourceProfileID = "p"};
    EXPECT_EQ(record.latestRevision(), nullptr);
    EXPECT_TRUE(record.isNewDocument());
    EXPECT_FALSE(record.isUpdated());
    EXPECT_EQ(record.category(), other);
    EXPECT_EQ(record.sourceProfile(), (AgentSourceProfile{.source = "codex", .sourceProfileID = "p"}));
    EXPECT_EQ(record.sourceProfileGroupingKey(), "5:codex:profile:1:p");
}

TEST(DocumentRecord, isNewUntilItWasThereBeforeOrChanged) {
    const auto isNew = [](std::vector<DocumentRevision> revisions) {
        return DocumentRecord{.revisions = std::move(revisions)}.isNewDocument();
    };
    EXPECT_TRUE(isNew({{}}));
    EXPECT_TRUE(isNew({{.isPreexistingFile = false}}));
    EXPECT_FALSE(isNew({{.isPreexistingFile = true}}));
    EXPECT_FALSE(isNew({{}, {}}));
}

TEST(DocumentRecord, profileIsOfTheLatestRevisionAlone) {
    DocumentRecord record{
        .source = "codex", .sourceProfileID = "p", .sourceKind = "cli", .profileIdentityVerified = true};
    record.revisions = {{.source = "claude"}, {.sourceProfileLabel = "l"}};
    EXPECT_EQ(record.sourceProfile(), (AgentSourceProfile{.source = "unknown", .sourceProfileLabel = "l"}));
    record.revisions.pop_back();
    EXPECT_EQ(record.sourceProfile(), (AgentSourceProfile{.source = "claude"}));
    EXPECT_EQ(record.sourceProfileDisplayName(), record.sourceProfile().displayName());
}

TEST(DocumentRecord, titleAndSymbol) {
    struct Row {
        const char* kind;
        const char* path;
        std::string title;
        const char* symbol;
    };
    const Row rows[] = {
        {"file", "/a/A.DOCX", "Word", "doc"},
        {"markdown", "/a/b.md", L10n::text("문서"), "doc.text"},
        {"candidate", "/a/b.md", L10n::text("문서"), "text.bubble"},
        {"image", "/a/b.png", L10n::text("이미지"), "photo"},
        {"video", "/a/b", L10n::text("동영상"), "video"},
        {"pdf", "/a/b.pdf", "PDF", "doc.richtext"},
        {"text", "/a/b.c", L10n::text("코드·텍스트"), "chevron.left.forwardslash.chevron.right"},
    };
    for (const Row& row : rows) {
        const DocumentRecord record{.sourcePath = row.path, .kind = row.kind};
        EXPECT_EQ(record.categoryTitle(), row.title) << row.path;
        EXPECT_EQ(record.symbol(), row.symbol) << row.kind;
    }
    EXPECT_EQ((DocumentRecord{.kind = "markdown", .artifactCategory = "plans"}.symbol()), "list.bullet.clipboard");
}

TEST(DocumentLink, identityHoldsTheKind) {
    const std::string_view text =
        R"({"links":[{"sourceID":"a","targetID":"b","label":"l","kind":"wiki"},)"
        R"({"sourceID":"a","targetID":"b","label":"l","kind":"project"}],"projectSuggestionsIncluded":true})";
    const auto graph = readRecord<DocumentLinkGraph>(text);
    ASSERT_TRUE(graph.has_value());
    EXPECT_EQ(graph->links[0].id(), "a:wiki:b");
    EXPECT_EQ(graph->links[1].id(), "a:project:b");
    EXPECT_EQ(writeRecord(*graph), std::string(text));
    const std::string_view unknown = R"({"sourceID":"a","targetID":"b","label":"l","kind":"Wiki"})";
    EXPECT_EQ(readRecord<DocumentLink>(unknown).error(), (DecodingError{DecodingError::Reason::unknownText, "kind"}));
}

TEST(LibraryMutationError, everyCaseHasADescriptionOfItsOwn) {
    std::set<std::string> descriptions;
    for (const auto error : allCases<LibraryMutationError>()) {
        descriptions.insert(errorDescription(error));
    }
    EXPECT_EQ(descriptions.size(), 8U);
    EXPECT_EQ(errorDescription(LibraryMutationError::snapshotReleased),
              L10n::text("이 버전의 임시 사본은 정리되었습니다."));
}

}  // namespace
}  // namespace vellark
