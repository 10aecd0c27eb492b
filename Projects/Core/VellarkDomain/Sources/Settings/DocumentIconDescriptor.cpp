#include <VellarkDomain/Capture/FixedTextMap.hpp>
#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Settings/DocumentIconDescriptor.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <iterator>

namespace vellark::DocumentIconDescriptor {

namespace {

// Asked before the images and the code, whose sets hold some of these too.
constexpr FixedTextMap extensionIcons(std::to_array<FixedTextEntry<DocumentIconPreset>>({
    {"pdf", DocumentIconPreset::pdf},
    {"svg", DocumentIconPreset::vector},
    {"eps", DocumentIconPreset::vector},
    {"ai", DocumentIconPreset::vector},
    {"csv", DocumentIconPreset::spreadsheet},
    {"tsv", DocumentIconPreset::spreadsheet},
    {"xls", DocumentIconPreset::spreadsheet},
    {"xlsx", DocumentIconPreset::spreadsheet},
    {"xlsm", DocumentIconPreset::spreadsheet},
    {"ods", DocumentIconPreset::spreadsheet},
    {"numbers", DocumentIconPreset::spreadsheet},
    {"ppt", DocumentIconPreset::presentation},
    {"pptx", DocumentIconPreset::presentation},
    {"pptm", DocumentIconPreset::presentation},
    {"odp", DocumentIconPreset::presentation},
    {"key", DocumentIconPreset::presentation},
    {"ipynb", DocumentIconPreset::notebook},
    {"zip", DocumentIconPreset::archive},
    {"tar", DocumentIconPreset::archive},
    {"gz", DocumentIconPreset::archive},
    {"tgz", DocumentIconPreset::archive},
    {"bz2", DocumentIconPreset::archive},
    {"xz", DocumentIconPreset::archive},
    {"7z", DocumentIconPreset::archive},
    {"rar", DocumentIconPreset::archive},
    {"wav", DocumentIconPreset::audio},
    {"mp3", DocumentIconPreset::audio},
    {"m4a", DocumentIconPreset::audio},
    {"aac", DocumentIconPreset::audio},
    {"flac", DocumentIconPreset::audio},
    {"ogg", DocumentIconPreset::audio},
    {"aiff", DocumentIconPreset::audio},
    {"aif", DocumentIconPreset::audio},
    {"opus", DocumentIconPreset::audio},
    {"mid", DocumentIconPreset::audio},
    {"midi", DocumentIconPreset::audio},
    {"mp4", DocumentIconPreset::video},
    {"mov", DocumentIconPreset::video},
    {"m4v", DocumentIconPreset::video},
    {"avi", DocumentIconPreset::video},
    {"mkv", DocumentIconPreset::video},
    {"webm", DocumentIconPreset::video},
    {"mpeg", DocumentIconPreset::video},
    {"mpg", DocumentIconPreset::video},
    {"otf", DocumentIconPreset::font},
    {"ttf", DocumentIconPreset::font},
    {"woff", DocumentIconPreset::font},
    {"woff2", DocumentIconPreset::font},
    {"ttc", DocumentIconPreset::font},
    {"json", DocumentIconPreset::data},
    {"jsonc", DocumentIconPreset::data},
    {"jsonl", DocumentIconPreset::data},
    {"ndjson", DocumentIconPreset::data},
    {"xml", DocumentIconPreset::data},
    {"yaml", DocumentIconPreset::data},
    {"yml", DocumentIconPreset::data},
    {"toml", DocumentIconPreset::data},
    {"plist", DocumentIconPreset::data},
    {"txt", DocumentIconPreset::text},
    {"text", DocumentIconPreset::text},
    {"log", DocumentIconPreset::text},
    {"rst", DocumentIconPreset::text},
    {"adoc", DocumentIconPreset::text},
    {"plan", DocumentIconPreset::plan},
}));

// Files of code whose names have no extension, in lower case.
constexpr std::string_view buildFiles[] = {"makefile", "dockerfile", "containerfile",
                                           "gemfile",  "rakefile",   "justfile"};

template <class List>
bool holds(const List& list, std::string_view text) {
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

const DocumentRevision* chosenOrLast(const DocumentRecord& record, const DocumentRevision* revision) {
    return revision != nullptr ? revision : record.latestRevision();
}

DocumentIconPreset presetOf(std::string_view extension) {
    if (ArtifactCategories::isMarkdownExtension(extension)) return DocumentIconPreset::markdown;
    if (ArtifactCategories::isHTMLExtension(extension)) return DocumentIconPreset::html;
    if (const DocumentIconPreset* preset = extensionIcons.find(extension)) return *preset;
    if (holds(ArtifactCategories::fileExtensions(ArtifactCategory::images), extension)) {
        return DocumentIconPreset::image;
    }
    if (holds(ArtifactCategories::fileExtensions(ArtifactCategory::code), extension)) return DocumentIconPreset::code;
    return DocumentIconPreset::file;
}

}  // namespace

bool isPlan(const DocumentRecord& record, const DocumentRevision* revision) {
    const DocumentRevision* decisive = chosenOrLast(record, revision);
    if (decisive == nullptr) return record.artifactCategory == "plans";
    return decisive->artifactCategory == "plans" ||
           decisive->originEvent.starts_with(DocumentRevision::planEventPrefix) ||
           decisive->originEvent == "codex-proposed-plan";
}

std::optional<std::string> filePath(const DocumentRecord& record, const DocumentRevision* revision) {
    if (record.sourcePath) {
        const std::string_view path = Whitespace::trimmedWithNewlines(*record.sourcePath);
        if (!path.empty()) return std::string(path);
    }
    if (record.kind == "candidate") return std::nullopt;
    const DocumentRevision* shown = chosenOrLast(record, revision);
    if (shown == nullptr || Whitespace::trimmedWithNewlines(shown->snapshotPath).empty()) return std::nullopt;
    return shown->snapshotPath;
}

std::optional<std::string> fileExtension(const DocumentRecord& record, const DocumentRevision* revision) {
    const auto path = filePath(record, revision);
    if (!path) return std::nullopt;
    return CapturePreferences::normalizedExtension(FilePath::pathExtension(*path));
}

std::optional<DocumentIconPreset> defaultPreset(std::string_view forExtension) {
    const auto extension = CapturePreferences::normalizedExtension(forExtension);
    if (!extension) return std::nullopt;
    return presetOf(*extension);
}

std::optional<DocumentIconPreset> defaultPreset(const DocumentRecord& record, const DocumentRevision* revision) {
    if (isPlan(record, revision)) return DocumentIconPreset::plan;
    const auto path = filePath(record, revision);
    if (!path) return std::nullopt;
    if (const auto preset = defaultPreset(FilePath::pathExtension(*path))) return preset;
    const bool isBuildFile = holds(buildFiles, UnicodeCase::lower(FilePath::lastComponent(*path)));
    return isBuildFile ? std::optional(DocumentIconPreset::code) : std::nullopt;
}

std::optional<DocumentFileType> fileType(const DocumentRecord& record, const DocumentRevision* revision) {
    if (isPlan(record, revision)) return std::nullopt;
    const auto path = filePath(record, revision);
    return path ? DocumentFileTypes::ofPath(*path) : std::nullopt;
}

}  // namespace vellark::DocumentIconDescriptor
