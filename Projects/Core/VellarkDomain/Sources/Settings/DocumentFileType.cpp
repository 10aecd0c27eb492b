#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Settings/DocumentFileType.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <span>
#include <string>

namespace vellark::DocumentFileTypes {

namespace {

struct Row {
    std::string_view text;
    DocumentFileType type;
};

// Whole names of files, in lower case.
constexpr Row names[] = {
    {"dockerfile", DocumentFileType::dockerfile},
    {"containerfile", DocumentFileType::dockerfile},
    {"docker-compose.yml", DocumentFileType::compose},
    {"docker-compose.yaml", DocumentFileType::compose},
    {"compose.yml", DocumentFileType::compose},
    {"compose.yaml", DocumentFileType::compose},
    {"makefile", DocumentFileType::makefile},
    {"gnumakefile", DocumentFileType::makefile},
    {"package.swift", DocumentFileType::swift},
    {"package.json", DocumentFileType::node},
    {"package-lock.json", DocumentFileType::node},
    {"gemfile", DocumentFileType::ruby},
    {"rakefile", DocumentFileType::ruby},
    {"podfile", DocumentFileType::ruby},
    {"brewfile", DocumentFileType::ruby},
    {".bashrc", DocumentFileType::shell},
    {".bash_profile", DocumentFileType::shell},
    {".zshrc", DocumentFileType::shell},
    {".zprofile", DocumentFileType::shell},
    {".profile", DocumentFileType::shell},
};

// Extensions, in lower case; those of Markdown and HTML are the capture categories'.
constexpr Row extensions[] = {
    {"swift", DocumentFileType::swift},
    {"playground", DocumentFileType::swift},
    {"m", DocumentFileType::objectiveC},
    {"mm", DocumentFileType::objectiveCpp},
    {"py", DocumentFileType::python},
    {"pyw", DocumentFileType::python},
    {"pyi", DocumentFileType::python},
    {"js", DocumentFileType::javascript},
    {"mjs", DocumentFileType::javascript},
    {"cjs", DocumentFileType::javascript},
    {"ts", DocumentFileType::typescript},
    {"mts", DocumentFileType::typescript},
    {"cts", DocumentFileType::typescript},
    {"jsx", DocumentFileType::jsx},
    {"tsx", DocumentFileType::tsx},
    {"json", DocumentFileType::json},
    {"jsonc", DocumentFileType::json},
    {"jsonl", DocumentFileType::json},
    {"ndjson", DocumentFileType::json},
    {"yaml", DocumentFileType::yaml},
    {"yml", DocumentFileType::yaml},
    {"toml", DocumentFileType::toml},
    {"css", DocumentFileType::css},
    {"scss", DocumentFileType::scss},
    {"sass", DocumentFileType::sass},
    {"sh", DocumentFileType::shell},
    {"bash", DocumentFileType::shell},
    {"zsh", DocumentFileType::shell},
    {"fish", DocumentFileType::shell},
    {"ksh", DocumentFileType::shell},
    {"command", DocumentFileType::shell},
    {"bat", DocumentFileType::batch},
    {"cmd", DocumentFileType::batch},
    {"go", DocumentFileType::go},
    {"rs", DocumentFileType::rust},
    {"java", DocumentFileType::java},
    {"kt", DocumentFileType::kotlin},
    {"kts", DocumentFileType::kotlin},
    {"c", DocumentFileType::c},
    {"h", DocumentFileType::cHeader},
    {"cpp", DocumentFileType::cpp},
    {"cc", DocumentFileType::cpp},
    {"cxx", DocumentFileType::cpp},
    {"hpp", DocumentFileType::cppHeader},
    {"hh", DocumentFileType::cppHeader},
    {"hxx", DocumentFileType::cppHeader},
    {"cs", DocumentFileType::csharp},
    {"rb", DocumentFileType::ruby},
    {"rake", DocumentFileType::ruby},
    {"gemspec", DocumentFileType::ruby},
    {"php", DocumentFileType::php},
    {"sql", DocumentFileType::sql},
    {"dart", DocumentFileType::dart},
    {"lua", DocumentFileType::lua},
    {"r", DocumentFileType::r},
    {"dockerfile", DocumentFileType::dockerfile},
    {"mk", DocumentFileType::makefile},
    {"mak", DocumentFileType::makefile},
    {"xml", DocumentFileType::xml},
    {"xsd", DocumentFileType::xml},
    {"xsl", DocumentFileType::xml},
    {"xslt", DocumentFileType::xml},
    {"plist", DocumentFileType::xml},
    {"storyboard", DocumentFileType::xml},
    {"xib", DocumentFileType::xml},
    {"entitlements", DocumentFileType::xml},
    {"csv", DocumentFileType::csv},
    {"tsv", DocumentFileType::tsv},
    {"xls", DocumentFileType::spreadsheet},
    {"xlsx", DocumentFileType::spreadsheet},
    {"xlsm", DocumentFileType::spreadsheet},
    {"ods", DocumentFileType::spreadsheet},
    {"numbers", DocumentFileType::spreadsheet},
    {"ppt", DocumentFileType::presentation},
    {"pptx", DocumentFileType::presentation},
    {"pptm", DocumentFileType::presentation},
    {"odp", DocumentFileType::presentation},
    {"txt", DocumentFileType::text},
    {"text", DocumentFileType::text},
    {"pdf", DocumentFileType::pdf},
    {"svg", DocumentFileType::svg},
    {"avif", DocumentFileType::image},
    {"bmp", DocumentFileType::image},
    {"gif", DocumentFileType::image},
    {"heic", DocumentFileType::image},
    {"heif", DocumentFileType::image},
    {"ico", DocumentFileType::image},
    {"jpeg", DocumentFileType::image},
    {"jpg", DocumentFileType::image},
    {"png", DocumentFileType::image},
    {"tif", DocumentFileType::image},
    {"tiff", DocumentFileType::image},
    {"webp", DocumentFileType::image},
    {"avi", DocumentFileType::video},
    {"m4v", DocumentFileType::video},
    {"mkv", DocumentFileType::video},
    {"mov", DocumentFileType::video},
    {"mp4", DocumentFileType::video},
    {"mpeg", DocumentFileType::video},
    {"mpg", DocumentFileType::video},
    {"webm", DocumentFileType::video},
    {"wav", DocumentFileType::audio},
    {"mp3", DocumentFileType::audio},
    {"m4a", DocumentFileType::audio},
    {"aac", DocumentFileType::audio},
    {"flac", DocumentFileType::audio},
    {"ogg", DocumentFileType::audio},
    {"aiff", DocumentFileType::audio},
    {"aif", DocumentFileType::audio},
    {"opus", DocumentFileType::audio},
    {"mid", DocumentFileType::audio},
    {"midi", DocumentFileType::audio},
    {"otf", DocumentFileType::font},
    {"ttf", DocumentFileType::font},
    {"woff", DocumentFileType::font},
    {"woff2", DocumentFileType::font},
    {"ttc", DocumentFileType::font},
    {"zip", DocumentFileType::archive},
    {"tar", DocumentFileType::archive},
    {"gz", DocumentFileType::archive},
    {"tgz", DocumentFileType::archive},
    {"bz2", DocumentFileType::archive},
    {"xz", DocumentFileType::archive},
    {"7z", DocumentFileType::archive},
    {"rar", DocumentFileType::archive},
    {"ipynb", DocumentFileType::notebook},
    {"xcodeproj", DocumentFileType::xcode},
    {"xcworkspace", DocumentFileType::xcode},
    {"pbxproj", DocumentFileType::xcode},
    {"xcconfig", DocumentFileType::xcode},
};

std::optional<DocumentFileType> find(std::span<const Row> rows, std::string_view text) {
    for (const Row& row : rows) {
        if (row.text == text) return row.type;
    }
    return std::nullopt;
}

std::optional<DocumentFileType> ofLoweredExtension(std::string_view text) {
    if (ArtifactCategories::isMarkdownExtension(text)) return DocumentFileType::markdown;
    if (ArtifactCategories::isHTMLExtension(text)) return DocumentFileType::html;
    return find(extensions, text);
}

}  // namespace

std::optional<DocumentFileType> ofPath(std::string_view path) {
    if (path.empty()) return std::nullopt;
    const std::string name = UnicodeCase::lower(FilePath::lastComponent(path));
    if (const auto type = find(names, name)) return type;
    if (name.starts_with("dockerfile.") || name.starts_with("containerfile.")) return DocumentFileType::dockerfile;
    return ofLoweredExtension(FilePath::pathExtension(name));
}

std::optional<DocumentFileType> ofExtension(std::string_view fileExtension) {
    return ofLoweredExtension(UnicodeCase::lower(fileExtension));
}

}  // namespace vellark::DocumentFileTypes
