#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace vellark {
namespace {

using enum ArtifactCategory;
using Texts = std::vector<std::string>;
using Switches = CapturePreferences::Switches;
using Moments = CapturePreferences::Moments;

CapturePreferences read(const std::string& text) {
    const auto preferences = readRecord<CapturePreferences>(text);
    EXPECT_TRUE(preferences) << text;
    return preferences ? *preferences : CapturePreferences();
}

const Texts initial = {"gif", "heic", "heif", "htm", "html", "jpeg", "jpg", "markdown", "md", "png", "webp"};

TEST(CapturePreferencesMigration, readsAnEmptyRecordAsTheDefault) {
    EXPECT_EQ(read("{}"), CapturePreferences());
    EXPECT_EQ(read(R"({"types":null,"extensions":null,"enabled":null,"outputs":null,"unknown":7})"),
              CapturePreferences());
    const CapturePreferences off = read(R"({"enabled":false})");
    EXPECT_FALSE(off.enabled);
    EXPECT_EQ(off.extensions, initial);
    EXPECT_EQ(off.types, (Switches{{"documents", true},
                                   {"plans", true},
                                   {"images", true},
                                   {"videos", false},
                                   {"pdfs", false},
                                   {"code", false},
                                   {"other", false}}));
}

TEST(CapturePreferencesMigration, writesKeysInTheirOrder) {
    const std::string text =
        R"({"enabled":true,"types":{"code":false,"documents":true,"images":true,"other":false,"pdfs":false,)"
        R"("plans":true,"videos":true},"extensions":["md"],"includeExtensionless":true,)"
        R"("includeUnlistedExtensions":false,"includeAssistantResponses":true,"assistantResponsesResumeSince":"a",)"
        R"("includeSubagentResponses":true,"includeSubagentArtifacts":true,"subagentArtifactsResumeSince":"b",)"
        R"("documentChangesReviewSince":"c","captureTitleChanges":true,"captureLocationChanges":true,)"
        R"("showsAgentHomeFiles":true,"includesUserFiles":true,"includeTemporaryFolderDocuments":true,)"
        R"("excludedDocumentIDs":["x","y"],"resumeSince":"d","typeResumeSince":{"new":"e"},)"
        R"("extensionResumeSince":{"md":"f"},"extensionlessResumeSince":"g","unlistedResumeSince":"h",)"
        R"("readsSessionRecords":false,"agentStores":{"s":true},"outputs":{"o":false},)"
        R"("outputResumeSince":{"o":"i"},"collectionDefaultsVersion":0})";
    const auto written = writeRecord(read(text));
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, text);
}

TEST(CapturePreferencesMigration, namesTheKeyOfAWrongType) {
    const auto expectFailure = [](const std::string& text, const std::string& path, DecodingError::Reason reason) {
        const auto preferences = readRecord<CapturePreferences>(text);
        ASSERT_FALSE(preferences) << text;
        EXPECT_EQ(preferences.error().path, path);
        EXPECT_EQ(preferences.error().reason, reason) << text;
    };
    // No field takes all four, and what it takes is told by its kind.
    struct Row {
        const char* accepted;
        Texts keys;
    };
    const Row rows[] = {
        {"true",
         {"enabled", "includeExtensionless", "includeUnlistedExtensions", "includeAssistantResponses",
          "includeSubagentResponses", "includeSubagentArtifacts", "captureTitleChanges", "captureLocationChanges",
          "showsAgentHomeFiles", "includesUserFiles", "includeTemporaryFolderDocuments", "readsSessionRecords"}},
        {"\"1\"",
         {"assistantResponsesResumeSince", "subagentArtifactsResumeSince", "documentChangesReviewSince", "resumeSince",
          "extensionlessResumeSince", "unlistedResumeSince"}},
        {"1", {"collectionDefaultsVersion"}},
        {"[]", {"extensions", "excludedDocumentIDs"}},
        {"{}", {"types", "typeResumeSince", "extensionResumeSince", "agentStores", "outputs", "outputResumeSince"}},
    };
    for (const Row& row : rows) {
        for (const std::string& key : row.keys) {
            for (const std::string value : {"true", "\"1\"", "1", "[]", "{}"}) {
                const std::string text = "{\"" + key + "\":" + value + "}";
                if (value == row.accepted) {
                    EXPECT_TRUE(readRecord<CapturePreferences>(text)) << text;
                } else {
                    expectFailure(text, key, DecodingError::Reason::wrongType);
                }
            }
        }
    }
    expectFailure(R"({"types":{"code":1}})", "types.code", DecodingError::Reason::wrongType);
    expectFailure(R"({"extensions":["md",null]})", "extensions[1]", DecodingError::Reason::wrongType);
    expectFailure(R"({"collectionDefaultsVersion":1.5})", "collectionDefaultsVersion",
                  DecodingError::Reason::outOfRange);
    expectFailure("[]", "", DecodingError::Reason::wrongType);
    EXPECT_FALSE(read(R"({"enabled":7,"enabled":false})").enabled) << "of equal keys the last counts";
}

TEST(CapturePreferencesMigration, migratesMoments) {
    struct Row {
        const char* name;
        std::string text;
        Moments types;
        Moments extensions;
    };
    const std::string fromUnlisted =
        R"({"types":{"other":true},"includeUnlistedExtensions":true,"unlistedResumeSince":"2026")";
    const Moments allVideos = {{"avi", "2026"}, {"m4v", "2026"},  {"mkv", "2026"}, {"mov", "2026"},
                               {"mp4", "2026"}, {"mpeg", "2026"}, {"mpg", "2026"}, {"webm", "2026"}};
    Moments raised = allVideos;
    raised["mp4"] = "2027";
    Moments unlisted = allVideos;
    unlisted.erase("mkv");
    const Row rows[] = {
        {"videos from other", R"({"typeResumeSince":{"other":"2"}})", {{"other", "2"}, {"videos", "2"}}, {}},
        {"later videos stay",
         R"({"typeResumeSince":{"other":"2","videos":"3"}})",
         {{"other", "2"}, {"videos", "3"}},
         {}},
        {"new record", R"({"types":{"videos":false},"typeResumeSince":{"other":"2"}})", {{"other", "2"}}, {}},
        {"keys that fall together",
         R"({"extensionResumeSince":{".MD":"2","md":"1"," md ":"3","a b":"9","\u212At":"4"}})",
         {},
         {{"md", "3"}, {"kt", "4"}}},
        {"unlisted reaches the videos", fromUnlisted + "}", {}, allVideos},
        {"but for a later moment", fromUnlisted + R"(,"extensionResumeSince":{"MP4":"2027","avi":"1"}})", {}, raised},
        {"and a listed video", fromUnlisted + R"(,"extensions":[" .MKV"]})", {}, unlisted},
    };
    for (const Row& row : rows) {
        const CapturePreferences preferences = read(row.text);
        EXPECT_EQ(preferences.typeResumeSince, row.types) << row.name;
        EXPECT_EQ(preferences.extensionResumeSince, row.extensions) << row.name;
    }
    EXPECT_TRUE(read(fromUnlisted + "}").isExtensionEnabled("webm"));
    EXPECT_EQ(read(R"({"excludedDocumentIDs":["b","a","b"]})").excludedDocumentIDs, (Texts{"a", "b"}));
}

// The rules once more, written down plainly over one old record.
struct OldRecord {
    Switches types;
    std::optional<Texts> extensions;  // lower-case already
    std::optional<bool> extensionless;
    std::optional<bool> unlisted;

    [[nodiscard]] bool typeOr(const char* id, bool fallback) const {
        return types.contains(id) ? types.at(id) : fallback;
    }
    [[nodiscard]] bool lists(ArtifactCategory category) const {
        bool found = false;
        for (const std::string& one : extensions.value_or(Texts{})) {
            found |= ArtifactCategories::category(one) == category;
        }
        return found;
    }
    [[nodiscard]] CapturePreferences expected() const {
        CapturePreferences result;
        const bool old = !types.contains("videos");
        const bool otherOn = typeOr("other", lists(other) || (old && lists(videos)));
        bool takesVideos = false;
        if (old && otherOn) takesVideos = unlisted.value_or(!extensions && typeOr("other", false));
        for (const ArtifactCategory one : {pdfs, code}) {
            const std::string id(rawValue(one));
            result.types[id] = typeOr(id.c_str(), lists(one));
        }
        result.types["other"] = otherOn;
        result.types["videos"] = typeOr("videos", otherOn && (lists(videos) || takesVideos));

        const Texts listed = extensions.value_or(initial);
        std::set<std::string> all(listed.begin(), listed.end());
        for (const ArtifactCategory one : {videos, code}) {
            const bool wholly = !extensions && typeOr(std::string(rawValue(one)).c_str(), false);
            if (!wholly && !(one == videos && takesVideos)) continue;
            const auto own = ArtifactCategories::fileExtensions(one);
            all.insert(own.begin(), own.end());
        }
        result.extensions.assign(all.begin(), all.end());
        const bool assumed = !extensions;
        result.includeExtensionless =
            extensionless.value_or(assumed && (typeOr("other", false) || typeOr("code", false)));
        result.includeUnlistedExtensions = unlisted.value_or(assumed && typeOr("other", false));
        return result;
    }
    [[nodiscard]] std::string json() const {
        const auto name = [](bool value) { return std::string(value ? "true" : "false"); };
        std::string text = "{\"types\":{\"unknown\":true";
        for (const auto& [id, isOn] : types)
            text += ",\"" + id + "\":" + name(isOn);
        text += "}";
        if (extensions) {
            text += ",\"extensions\":[\"a b\"";
            for (const std::string& one : *extensions)
                text += ",\" ." + one + "\"";
            text += "]";
        }
        if (extensionless) text += ",\"includeExtensionless\":" + name(*extensionless);
        if (unlisted) text += ",\"includeUnlistedExtensions\":" + name(*unlisted);
        return text + "}";
    }
};

TEST(CapturePreferencesMigration, agreesWithThePlainRulesInEveryState) {
    const std::optional<bool> states[] = {std::nullopt, true, false};
    const std::optional<Texts> lists[] = {std::nullopt,  Texts{},     Texts{"md"},         Texts{"mp4"},
                                          Texts{"docx"}, Texts{"py"}, Texts{"pdf", "mkv"}, Texts{"zip", "avi", "md"}};
    for (int state = 0; state < 243; ++state) {
        const auto digit = [&](int divisor) { return states[state / divisor % 3]; };
        OldRecord record{.types = {}, .extensions = {}, .extensionless = digit(27), .unlisted = digit(81)};
        if (digit(1)) record.types["videos"] = *digit(1);
        if (digit(3)) record.types["other"] = *digit(3);
        if (digit(9)) record.types["code"] = *digit(9);
        for (const auto& list : lists) {
            record.extensions = list;
            const CapturePreferences migrated = read(record.json());
            EXPECT_EQ(migrated, record.expected()) << record.json();
            const auto written = writeRecord(migrated);
            ASSERT_TRUE(written);
            EXPECT_EQ(read(*written), migrated) << "a migrated record stays: " << *written;
        }
    }
}

}  // namespace
}  // namespace vellark
