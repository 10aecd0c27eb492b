#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Settings/DocumentIconDescriptor.hpp>
#include <VellarkDomain/Settings/DocumentIconPreferences.hpp>
#include <VellarkDomain/Settings/DocumentIconSlots.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {
namespace {

using Preset = DocumentIconPreset;
using Type = DocumentFileType;

TEST(DocumentFileTypeTests, namesComeBeforeExtensions) {
    const std::pair<std::string_view, std::optional<Type>> rows[] = {
        {"/a/Dockerfile.dev", Type::dockerfile},
        {"Containerfile", Type::dockerfile},
        {"/a/PACKAGE.JSON", Type::node},
        {"b/package.swift", Type::swift},
        {"compose.yaml", Type::compose},
        {".zshrc", Type::shell},
        {"a.svg", Type::svg},
        {"a.PNG", Type::image},
        {"README.MD", Type::markdown},
        {"a.xhtml", Type::html},
        {"a.h", Type::cHeader},
        {"a.tar.gz", Type::archive},
        {"a.xcodeproj/", Type::xcode},
        {"a", std::nullopt},
        {"", std::nullopt},
        {".md", std::nullopt},
        {"v1. md", std::nullopt},
    };
    for (const auto& [path, type] : rows)
        EXPECT_EQ(DocumentFileTypes::ofPath(path), type) << path;
    EXPECT_EQ(DocumentFileTypes::ofExtension("MM"), Type::objectiveCpp);
    EXPECT_EQ(rawValue(Type::objectiveCpp), "objective-cpp");
}

TEST(DocumentIconTests, extensionsHaveTheFirstIconOfTheirRows) {
    const std::pair<std::string_view, std::optional<Preset>> rows[] = {
        {"csv", Preset::spreadsheet}, {".LOG", Preset::text},  {"key", Preset::presentation}, {"svg", Preset::vector},
        {"svelte", Preset::code},     {"heic", Preset::image}, {"md", Preset::markdown},      {"zzz", Preset::file},
        {"plan", Preset::plan},       {"", std::nullopt},      {"a b", std::nullopt},
    };
    for (const auto& [extension, preset] : rows) {
        EXPECT_EQ(DocumentIconDescriptor::defaultPreset(extension), preset) << extension;
    }
    for (const std::string_view image : ArtifactCategories::fileExtensions(ArtifactCategory::images)) {
        EXPECT_EQ(DocumentIconDescriptor::defaultPreset(image), image == "svg" ? Preset::vector : Preset::image);
    }
}

TEST(DocumentIconTests, thePathIsTheSourceOrTheCopy) {
    DocumentRecord record{.id = "r", .sourcePath = " \n/a/b.md\t", .kind = "candidate"};
    EXPECT_EQ(DocumentIconDescriptor::filePath(record), "/a/b.md");
    record.sourcePath = " ";
    record.revisions = {{.snapshotPath = " "}, {.snapshotPath = " /s/Makefile"}};
    EXPECT_EQ(DocumentIconDescriptor::filePath(record), std::nullopt);
    record.kind = "text";
    EXPECT_EQ(DocumentIconDescriptor::filePath(record), " /s/Makefile");
    EXPECT_EQ(DocumentIconDescriptor::filePath(record, &record.revisions[0]), std::nullopt);
    EXPECT_EQ(DocumentIconDescriptor::defaultPreset(record), Preset::code);
    EXPECT_EQ(DocumentIconDescriptor::fileType(record), Type::makefile);
}

TEST(DocumentIconTests, theRevisionDecidesWhatAPlanIs) {
    DocumentRecord record{.id = "r", .sourcePath = "/a.py", .artifactCategory = "plans"};
    EXPECT_EQ(DocumentIconDescriptor::defaultPreset(record), Preset::plan);
    record.revisions = {{.originEvent = "plan-file:x"}, {.originEvent = "PostToolUse"}};
    EXPECT_EQ(DocumentIconDescriptor::defaultPreset(record), Preset::code);
    EXPECT_TRUE(DocumentIconDescriptor::isPlan(record, &record.revisions[0]));
    record.revisions.back().originEvent = "codex-proposed-plan";
    EXPECT_EQ(DocumentIconDescriptor::fileType(record), std::nullopt);
}

TEST(DocumentIconPreferencesTests, anIconAndAKindReplaceEachOther) {
    DocumentIconPreferences preferences;
    preferences.setDocument("", Preset::board);
    preferences.setExtension("a b", DocumentKind::plan);
    EXPECT_EQ(preferences, DocumentIconPreferences());

    const DocumentRecord record{.id = "r", .sourcePath = "/a.PY"};
    EXPECT_EQ(preferences.preset(record), Preset::code);
    EXPECT_EQ(preferences.automaticFileType(record), Type::python);
    EXPECT_FALSE(preferences.choosesPreset(record));

    preferences.setExtension(".Py", Preset::board);
    EXPECT_EQ(preferences.preset(record), Preset::board);
    EXPECT_EQ(preferences.automaticFileType(record), std::nullopt);
    EXPECT_TRUE(preferences.choosesPreset(record));

    preferences.setDocument("r", DocumentKind::memo);
    EXPECT_EQ(preferences.chosenKind(record), DocumentKind::memo);
    EXPECT_FALSE(preferences.choosesPreset(record));
    preferences.setDocument("r", Preset::focus);
    EXPECT_EQ(preferences.chosenKind(record), std::nullopt);
    EXPECT_EQ(preferences.preset(record), Preset::focus);
    EXPECT_EQ(preferences.automaticPreset(record), Preset::board);

    preferences.setExtension("py", DocumentKind::data);
    EXPECT_TRUE(preferences.extensions.empty());
    EXPECT_EQ(preferences.chosenKind(record), std::nullopt) << "the document's icon silences its extension's kind";
    preferences.setDocument("r", std::optional<Preset>());
    EXPECT_EQ(preferences.chosenKind(record), DocumentKind::data);
}

TEST(DocumentIconSlotsTests, aChosenContentLeavesItsOtherSlot) {
    using Content = DocumentIconSlotContent;
    DocumentIconSlots slots;
    slots.choose(Content::tool, DocumentIconSlot::main);
    EXPECT_EQ(slots, (DocumentIconSlots{Content::tool, Content::ai, Content::document}));
    slots.choose(Content::hidden, DocumentIconSlot::main);
    slots.choose(Content::hidden, DocumentIconSlot::leading);
    EXPECT_EQ(slots, (DocumentIconSlots{Content::hidden, Content::ai, Content::hidden}));
    slots.choose(Content::ai, DocumentIconSlot::trailing);
    EXPECT_EQ(slots.trailing, Content::ai);
}

}  // namespace
}  // namespace vellark
