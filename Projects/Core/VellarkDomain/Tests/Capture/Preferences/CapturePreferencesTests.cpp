#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Extensions = std::vector<std::string>;

CapturePreferences read(std::string_view text) {
    const auto preferences = readRecord<CapturePreferences>(text);
    EXPECT_TRUE(preferences.has_value()) << text;
    return preferences.value_or(CapturePreferences());
}

TEST(CapturePreferences, normalisesExtensions) {
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {".MD ", "md"},
        {"\u200B\u3000md\n", "md"},
        {"m\u212Av", "mkv"},
        {"..md", std::nullopt},
        {"-x", std::nullopt},
        {"a b", std::nullopt},
        {"", std::nullopt},
        {".", std::nullopt},
        {"x-_9", "x-_9"},
        {"é", std::nullopt},
        {"\x1C"
         "md",
         std::nullopt},
        {"abcdefghijklmnopqrst", "abcdefghijklmnopqrst"},
        {"abcdefghijklmnopqrstu", std::nullopt},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(CapturePreferences::normalizedExtension(text), expected) << text;
    }
    EXPECT_EQ(CapturePreferences::normalizedExtensions({".MD ", "md", "a b", "PNG"}), (Extensions{"md", "png"}));
}

TEST(CapturePreferences, emptyRecordIsTheDefault) {
    EXPECT_EQ(read("{}"), CapturePreferences());
    EXPECT_EQ(writeRecord(read(R"({"enabled": false, "types": null})")),
              std::string(R"({"enabled":false,"types":{"code":false,"documents":true,"images":true,"other":false,)"
                          R"("pdfs":false,"plans":true,"videos":false},"extensions":["gif","heic","heif","htm","html",)"
                          R"("jpeg","jpg","markdown","md","png","webp"],"includeExtensionless":false,)"
                          R"("includeUnlistedExtensions":false,"includeAssistantResponses":false,)"
                          R"("includeSubagentResponses":false,"includeSubagentArtifacts":false,)"
                          R"("captureTitleChanges":false,"captureLocationChanges":false,"showsAgentHomeFiles":false,)"
                          R"("includesUserFiles":false,"includeTemporaryFolderDocuments":false,)"
                          R"("excludedDocumentIDs":[],"typeResumeSince":{},"extensionResumeSince":{},)"
                          R"("agentStores":{},"outputs":{},"outputResumeSince":{}})"));
}

TEST(CapturePreferences, oldRecordsAreMigrated) {
    struct Row {
        const char* name;
        const char* text;
        const char* enabledTypes;
        bool extensionless;
        bool unlisted;
        std::optional<std::string> videoMoment;
    };
    const Row rows[] = {
        {"videos were unlisted",
         R"({"types": {"other": true}, "includeUnlistedExtensions": true, "unlistedResumeSince": "2026-01-01T00:00:00Z",
             "extensionResumeSince": {".MP4": "2027", "mov": "2020"}})",
         "documents plans images videos other ", true, true, "2027"},
        {"other without a list",
         R"({"types": {"other": true}})",
         "documents plans images videos other ",
         true,
         true,
         {}},
        {"code without a list",
         R"({"types": {"code": true, "documents": false}})",
         "plans images code ",
         true,
         false,
         {}},
        {"a listed video", R"({"extensions": ["mp4"]})", "documents plans images videos other ", false, false, {}},
        {"a listed video, other off",
         R"({"types": {"other": false}, "extensions": ["mp4"]})",
         "documents plans images ",
         false,
         false,
         {}},
        {"a listed PDF and an unknown one",
         R"({"extensions": ["pdf", "zzz"]})",
         "documents plans images pdfs other ",
         false,
         false,
         {}},
        {"nothing legacy",
         R"({"types": {"videos": false, "other": true}, "extensions": ["mp4"]})",
         "documents plans images other ",
         false,
         false,
         {}},
    };
    for (const Row& row : rows) {
        const CapturePreferences preferences = read(row.text);
        std::string enabled;
        for (const ArtifactCategory category : allCases<ArtifactCategory>()) {
            if (preferences.isEnabled(category)) enabled.append(rawValue(category)).append(" ");
        }
        EXPECT_EQ(enabled, row.enabledTypes) << row.name;
        EXPECT_EQ(preferences.types.size(), 7U) << row.name;
        EXPECT_EQ(preferences.includeExtensionless, row.extensionless) << row.name;
        EXPECT_EQ(preferences.includeUnlistedExtensions, row.unlisted) << row.name;
        const auto moment = preferences.extensionResumeSince.find("mp4");
        const bool hasMoment = moment != preferences.extensionResumeSince.end();
        EXPECT_EQ(hasMoment ? std::optional(moment->second) : std::nullopt, row.videoMoment) << row.name;
        EXPECT_EQ(readRecord<CapturePreferences>(*writeRecord(preferences)), preferences) << row.name;
    }
    const CapturePreferences moments = read(R"({"typeResumeSince": {"other": "2026", "videos": "2025", "x": "1"}})");
    EXPECT_EQ(moments.typeResumeSince,
              (CapturePreferences::Moments{{"other", "2026"}, {"videos", "2026"}, {"x", "1"}}));
    EXPECT_EQ(read(R"({"excludedDocumentIDs": ["b", "a", "b"]})").excludedDocumentIDs, (Extensions{"a", "b"}));
}

TEST(CapturePreferences, collectionDefaultsAreAppliedOnce) {
    CapturePreferences preferences = read(R"({"extensions": ["py", "md"], "types": {"code": false, "videos": false}})");
    preferences.includeExtensionless = true;
    preferences.applyCollectionDefaults("2026");
    EXPECT_EQ(preferences.extensions, (Extensions{"csv", "doc", "docx", "md", "pdf", "ppt", "pptx", "xls", "xlsx"}));
    EXPECT_TRUE(preferences.isEnabled(ArtifactCategory::code) && preferences.isEnabled(ArtifactCategory::other));
    EXPECT_FALSE(preferences.includeExtensionless);
    EXPECT_EQ(preferences.subagentArtifactsResumeSince, "2026");
    const CapturePreferences once = preferences;
    preferences.applyCollectionDefaults("2027");
    EXPECT_EQ(preferences, once);
    CapturePreferences zero = read(R"({"collectionDefaultsVersion": 0})");
    zero.applyCollectionDefaults("2027");
    EXPECT_FALSE(zero.includeSubagentArtifacts);
}

TEST(CapturePreferences, switchesExtensionsAndCategories) {
    CapturePreferences preferences;
    preferences.setCategory(ArtifactCategory::code, true);
    EXPECT_TRUE(preferences.isExtensionEnabled(".PY") && !preferences.isExtensionEnabled("go"));
    preferences.setExtension("mp4", true);
    EXPECT_TRUE(preferences.isEnabled(ArtifactCategory::videos) && preferences.isExtensionEnabled("mp4"));
    preferences.setExtension("mp4", false);
    EXPECT_TRUE(preferences.isEnabled(ArtifactCategory::videos) && !preferences.isExtensionEnabled("mp4"));
    preferences.setCategory(ArtifactCategory::documents, false);
    EXPECT_TRUE(preferences.isExtensionEnabled("md")) << "plans still want it";
    preferences.setCategory(ArtifactCategory::plans, false);
    EXPECT_FALSE(preferences.isExtensionEnabled("md"));
    preferences.setExtension("md", true);
    EXPECT_TRUE(preferences.isEnabled(ArtifactCategory::documents) && preferences.isEnabled(ArtifactCategory::plans));
}

TEST(CapturePreferences, wrongTypesFailUnderTheirKey) {
    // Of the values that each kind of field cannot be.
    const CapturePreferences preferences = read(R"({"resumeSince": "1", "readsSessionRecords": true,
        "assistantResponsesResumeSince": "1", "subagentArtifactsResumeSince": "1", "documentChangesReviewSince": "1",
        "extensionlessResumeSince": "1", "unlistedResumeSince": "1", "collectionDefaultsVersion": 1})");
    const std::string text = *writeRecord(preferences);
    const auto document = JSONDocument::parse(text);
    std::size_t count = 0;
    for (const auto& [key, value] : document->root().members()) {
        const auto broken = readRecord<CapturePreferences>("{\"" + std::string(key) + "\": [{\"a\": 1}, 5.5]}");
        ASSERT_FALSE(broken.has_value()) << key;
        EXPECT_TRUE(broken.error().path.starts_with(key)) << key << " " << broken.error().path;
        ++count;
    }
    EXPECT_EQ(count, 27U);
}

}  // namespace
}  // namespace vellark
