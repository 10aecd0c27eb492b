#include "Support/WrongTypes.hpp"
#include <VellarkDomain/Settings/AppSettings.hpp>
#include <VellarkDomain/Settings/ConnectorStatus.hpp>
#include <VellarkFoundation/Records/RecordHash.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

AppSettings read(std::string_view text) {
    auto settings = readRecord<AppSettings>(text);
    EXPECT_TRUE(settings) << text << ": " << (settings ? "" : settings.error().path);
    return settings ? *settings : AppSettings();
}

TEST(AppSettingsTests, anEmptyRecordIsTheDefaults) {
    EXPECT_EQ(read("{}"), AppSettings());
    EXPECT_EQ(read(R"({"general":{},"sound":null,"disabledConnectors":["x"]})"), AppSettings());
    const AppSettings defaults;
    EXPECT_EQ(defaults.shelfEdge, "right");
    EXPECT_TRUE(defaults.showsMenuBarItem && defaults.language.empty() && !defaults.analyticsConsent);
}

// Settings with a value under every key.
AppSettings whole() {
    AppSettings settings;
    settings.watchRoots = {"/w"};
    settings.captureAllSince = "t";
    settings.excludedProjectRoots = {"/x"};
    settings.shelfVerticalPosition = ShelfVerticalPosition::bottom;
    settings.readerLayout = ReaderLayout::floatingPalette;
    settings.pinnedDisplayID = "d";
    settings.general.documentIcons.setExtension("MD", DocumentIconPreset::focus);
    settings.general.documentIcons.setDocument("id", DocumentKind::meetingNotes);
    settings.general.documentIconSlots.choose(DocumentIconSlotContent::tool, DocumentIconSlot::main);
    settings.general.documentPurposes = {DocumentKindGroup::design, DocumentKindGroup::personal};
    settings.notifications.documentChangesNotifySince = "t";
    settings.sound.sound = VellarkSound::calmGlass;
    settings.advanced.agentHomes = {{"codex", "/c"}};
    settings.advanced.hiddenSessionRoots = {"/h"};
    settings.advanced.projectParentOverrides = {{"/a/b", "/a"}};
    settings.advanced.dismissedWorktreeSuggestions = {"/a/b"};
    settings.capture.excludedDocumentIDs = {"id"};
    settings.capture.typeResumeSince = {{"documents", "t"}};
    settings.capture.readsSessionRecords = true;
    settings.analyticsConsent = false;
    return settings;
}

TEST(AppSettingsTests, everyFieldComesBack) {
    AppSettings settings = whole();
    const auto text = writeRecord(settings);
    ASSERT_TRUE(text);
    EXPECT_EQ(read(*text), settings);
    EXPECT_EQ(recordHash(read(*text)), recordHash(settings));
    settings.hoverDelay = std::numeric_limits<double>::infinity();
    EXPECT_EQ(writeRecord(settings).error().path, "hoverDelay");
}

TEST(AppSettingsTests, keysStandInTheirOrder) {
    const auto text = writeRecord(AppSettings());
    ASSERT_TRUE(text);
    std::size_t position = 0;
    for (const std::string_view key :
         {"shelfEdge", "shelfVerticalPosition", "watchRoots", "hoverDelay", "appearance", "language", "displayMode",
          "showsMenuBarItem", "readerLayout", "captureMode", "excludedProjectRoots", "general", "notifications",
          "sound", "advanced", "capture", "reviewCadence", "reviewResetMinutes"}) {
        const std::size_t found = text->find("\"" + std::string(key) + "\":", position);
        ASSERT_NE(found, std::string::npos) << key;
        position = found;
    }
    for (const std::string_view key : {"pinnedDisplayID", "captureAllSince", "analyticsConsent"}) {
        EXPECT_EQ(text->find(key), std::string::npos) << key;
    }
}

struct MigrationRow {
    std::string_view older;
    std::string_view newer;
};

TEST(AppSettingsTests, whatIsRetiredOrUnknownIsMigrated) {
    const MigrationRow rows[] = {
        {R"({"shelfVerticalPosition":"diagonal","readerLayout":"cube"})", "{}"},
        {R"({"reviewCadence":"daily"})", R"({"reviewCadence":"weekly"})"},
        {R"({"reviewResetMinutes":1440})", R"({"reviewResetMinutes":0})"},
        {R"({"analyticsConsent":"yes","language":"ko"})", R"({"language":"ko"})"},
        {R"({"sound":{"documentAdded":"tuba","attention":"calmSignal","sessionCompleted":"softComplete"}})",
         R"({"sound":{"sound":"softComplete"}})"},
        {R"({"sound":{"sound":"tuba","attention":"calmSignal"}})", R"({"sound":{}})"},
        {R"({"general":{"reviewBody":"poem","documentPurposes":["design","cooking"]}})",
         R"({"general":{"documentPurposes":["design"]}})"},
        {R"({"general":{"documentIconSlots":{"main":"moon","trailing":"hidden"}}})",
         R"({"general":{"documentIconSlots":{"trailing":"hidden"}}})"},
        {R"({"general":{"documentIcons":{"documents":{"a":"board","b":"x","c":1},"documentKinds":{"a":"plan","d":"spec"}}}})",
         R"({"general":{"documentIcons":{"documents":{"a":"board"},"documentKinds":{"d":"spec"}}}})"},
    };
    for (const MigrationRow& row : rows)
        EXPECT_EQ(read(row.older), read(row.newer)) << row.older;
    EXPECT_EQ(read(R"({"reviewResetMinutes":1439})").reviewResetMinutes, 1439);
    EXPECT_EQ(read(R"({"reviewResetMinutes":-5})").reviewResetMinutes, -5);
}

TEST(AppSettingsTests, wrongTypesFailUnderEveryKey) {
    const auto isTolerated = [](std::string_view path) {
        return path == "analyticsConsent" || path.starts_with("general.documentIcons.documentKinds.") ||
               path.starts_with("general.documentIcons.extensions.");
    };
    testing::expectWrongTypesToFail<AppSettings>(*writeRecord(whole()), isTolerated);
}

TEST(AppSettingsTests, valuesThatFailTellTheirPlace) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {R"({"appearance":"sepia"})", "appearance"},
        {R"({"displayMode":"all"})", "displayMode"},
        {R"({"captureMode":"none"})", "captureMode"},
        {R"({"reviewCadence":"hourly"})", "reviewCadence"},
        {R"({"reviewResetMinutes":1.5})", "reviewResetMinutes"},
        {R"({"watchRoots":["a",null]})", "watchRoots[1]"},
        {R"({"showsMenuBarItem":1})", "showsMenuBarItem"},
        {R"({"hoverDelay":1e999})", ""},  // no number of any JSON text
        {R"({"general":{"documentPurposes":["design",null]}})", "general.documentPurposes[1]"},
        {R"({"sound":{"attention":1}})", "sound.attention"},
        {R"({"advanced":{"agentHomes":{"a":null}}})", "advanced.agentHomes.a"},
        {"[]", ""},
    };
    for (const auto& [text, path] : rows) {
        const auto settings = readRecord<AppSettings>(text);
        ASSERT_FALSE(settings) << text;
        EXPECT_EQ(settings.error().path, path);
    }
}

TEST(ConnectorStatusTests, wrongTypesFailUnderEveryKey) {
    constexpr std::string_view whole =
        R"({"id":"a","title":"A","installed":true,"connected":false,"detail":"d","lastDocumentAt":"t",)"
        R"("lastActivityAt":"t","capabilities":{"automaticSetup":true,"nativeHooks":true,"fileWatch":true,)"
        R"("sessionState":true,"sessionRecovery":true,"preciseTerminalFocus":true,"universalIngress":true,)"
        R"("profileAttribution":true},"connectionMethod":"hook","cliInstalled":true,"appInstalled":false,)"
        R"("processDetected":true,"hookConnected":true,"documentationURL":"u","agentHome":"/h","sourceProfileID":"i",)"
        R"("sourceProfileLabel":"l","sourceKind":"cli","profileIdentityOrigin":"o","profileIdentityVerified":true})";
    testing::expectWrongTypesToFail<ConnectorStatus>(whole);
    EXPECT_EQ(writeRecord(*readRecord<ConnectorStatus>(whole)), std::string(whole));
    testing::expectWrongTypesToFail<OperationResult>(R"({"ok":true,"message":""})");
}

TEST(ConnectorStatusTests, aStatusNeedsItsSentence) {
    EXPECT_EQ(readRecord<ConnectorCapabilities>("{}"), ConnectorCapabilities());
    constexpr std::string_view start = R"({"id":"a","title":"A","installed":true,"connected":false)";
    EXPECT_EQ(readRecord<ConnectorStatus>(std::string(start) + "}").error().path, "detail");
    const auto status = readRecord<ConnectorStatus>(std::string(start) + R"(,"detail":""})");
    ASSERT_TRUE(status);
    EXPECT_FALSE(status->capabilities);
    EXPECT_EQ(readRecord<OperationResult>(R"({"ok":true})").error().path, "message");
}

}  // namespace
}  // namespace vellark
