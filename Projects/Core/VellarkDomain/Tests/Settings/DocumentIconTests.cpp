#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Settings/DocumentIconDescriptor.hpp>
#include <VellarkDomain/Settings/DocumentIconPreferences.hpp>
#include <VellarkDomain/Settings/DocumentIconSlots.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
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

struct LookRow {
    std::string_view extensions;  // by blanks
    std::optional<Type> type;
    Preset preset;
};

TEST(DocumentIconTests, everyExtensionHasItsTypeAndIcon) {
    const LookRow rows[] = {
        {"markdown md mdown mdtext mdtxt mdwn mkd mkdn qmd rmd", Type::markdown, Preset::markdown},
        {"htm html xhtml", Type::html, Preset::html},
        {"swift", Type::swift, Preset::code},
        {"playground", Type::swift, Preset::file},
        {"m", Type::objectiveC, Preset::code},
        {"mm", Type::objectiveCpp, Preset::code},
        {"py pyw", Type::python, Preset::code},
        {"pyi", Type::python, Preset::file},
        {"js mjs cjs", Type::javascript, Preset::code},
        {"ts", Type::typescript, Preset::code},
        {"mts cts", Type::typescript, Preset::file},
        {"jsx", Type::jsx, Preset::code},
        {"tsx", Type::tsx, Preset::code},
        {"json jsonc jsonl ndjson", Type::json, Preset::data},
        {"yaml yml", Type::yaml, Preset::data},
        {"toml", Type::toml, Preset::data},
        {"css", Type::css, Preset::code},
        {"scss", Type::scss, Preset::code},
        {"sass", Type::sass, Preset::code},
        {"sh bash zsh fish", Type::shell, Preset::code},
        {"ksh command", Type::shell, Preset::file},
        {"bat cmd", Type::batch, Preset::code},
        {"go", Type::go, Preset::code},
        {"rs", Type::rust, Preset::code},
        {"java", Type::java, Preset::code},
        {"kt kts", Type::kotlin, Preset::code},
        {"c", Type::c, Preset::code},
        {"h", Type::cHeader, Preset::code},
        {"cpp cc cxx", Type::cpp, Preset::code},
        {"hpp", Type::cppHeader, Preset::code},
        {"hh hxx", Type::cppHeader, Preset::file},
        {"cs", Type::csharp, Preset::code},
        {"rb", Type::ruby, Preset::code},
        {"rake gemspec", Type::ruby, Preset::file},
        {"php", Type::php, Preset::code},
        {"sql", Type::sql, Preset::code},
        {"dart", Type::dart, Preset::code},
        {"lua", Type::lua, Preset::code},
        {"r", Type::r, Preset::code},
        {"dockerfile", Type::dockerfile, Preset::file},
        {"mk mak", Type::makefile, Preset::file},
        {"xml plist", Type::xml, Preset::data},
        {"xsd xsl xslt storyboard xib entitlements", Type::xml, Preset::file},
        {"csv", Type::csv, Preset::spreadsheet},
        {"tsv", Type::tsv, Preset::spreadsheet},
        {"xls xlsx xlsm ods numbers", Type::spreadsheet, Preset::spreadsheet},
        {"ppt pptx pptm odp", Type::presentation, Preset::presentation},
        {"key", std::nullopt, Preset::presentation},
        {"txt text", Type::text, Preset::text},
        {"log rst adoc", std::nullopt, Preset::text},
        {"pdf", Type::pdf, Preset::pdf},
        {"svg", Type::svg, Preset::vector},
        {"eps ai", std::nullopt, Preset::vector},
        {"avif bmp gif heic heif ico jpeg jpg png tif tiff webp", Type::image, Preset::image},
        {"avi m4v mkv mov mp4 mpeg mpg webm", Type::video, Preset::video},
        {"wav mp3 m4a aac flac ogg aiff aif opus mid midi", Type::audio, Preset::audio},
        {"otf ttf woff woff2 ttc", Type::font, Preset::font},
        {"zip tar gz tgz bz2 xz 7z rar", Type::archive, Preset::archive},
        {"ipynb", Type::notebook, Preset::notebook},
        {"xcodeproj xcworkspace pbxproj xcconfig", Type::xcode, Preset::file},
        {"plan", std::nullopt, Preset::plan},
        {"asm cfg clj cljc cljs conf erl ex exs f f90 f95 fs fsx hrl hs ini ino jl lhs lisp mdx ml mli nix pas pde pl "
         "pm pp properties proto ps1 psm1 s sc scm svelte tex tf vb vbs vue",
         std::nullopt, Preset::code},
        {"doc docx rtf exe compose node", std::nullopt, Preset::file},
    };
    for (const LookRow& row : rows) {
        std::istringstream extensions{std::string(row.extensions)};
        for (std::string extension; extensions >> extension;) {
            EXPECT_EQ(DocumentFileTypes::ofExtension(extension), row.type) << extension;
            EXPECT_EQ(DocumentIconDescriptor::defaultPreset(extension), row.preset) << extension;
        }
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
