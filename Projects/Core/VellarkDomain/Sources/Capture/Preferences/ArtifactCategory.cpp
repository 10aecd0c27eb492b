#include <VellarkDomain/Capture/FixedTextMap.hpp>
#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <functional>

namespace vellark::ArtifactCategories {

namespace {

using Extensions = std::span<const std::string_view>;

constexpr auto markdownExtensions = std::to_array<std::string_view>(
    {"markdown", "md", "mdown", "mdtext", "mdtxt", "mdwn", "mkd", "mkdn", "qmd", "rmd"});
constexpr auto htmlExtensions = std::to_array<std::string_view>({"htm", "html", "xhtml"});

constexpr auto documentExtensions = [] {
    std::array<std::string_view, markdownExtensions.size() + htmlExtensions.size()> all;
    std::ranges::merge(markdownExtensions, htmlExtensions, all.begin());
    return all;
}();

constexpr auto imageExtensions = std::to_array<std::string_view>(
    {"avif", "bmp", "gif", "heic", "heif", "ico", "jpeg", "jpg", "png", "svg", "tif", "tiff", "webp"});
constexpr auto videoExtensions =
    std::to_array<std::string_view>({"avi", "m4v", "mkv", "mov", "mp4", "mpeg", "mpg", "webm"});
constexpr auto pdfExtensions = std::to_array<std::string_view>({"pdf"});
constexpr auto codeExtensions = std::to_array<std::string_view>(
    {"adoc",       "asm",   "bash", "bat",   "c",   "cc",     "cfg",   "cjs",  "clj",  "cljc", "cljs", "cmd",
     "conf",       "cpp",   "cs",   "css",   "csv", "cxx",    "dart",  "erl",  "ex",   "exs",  "f",    "f90",
     "f95",        "fish",  "fs",   "fsx",   "go",  "h",      "hpp",   "hrl",  "hs",   "ini",  "ino",  "java",
     "jl",         "js",    "json", "jsonc", "jsx", "kt",     "kts",   "lhs",  "lisp", "log",  "lua",  "m",
     "mdx",        "mjs",   "ml",   "mli",   "mm",  "nix",    "pas",   "pde",  "php",  "pl",   "pm",   "pp",
     "properties", "proto", "ps1",  "psm1",  "py",  "pyw",    "r",     "rb",   "rs",   "rst",  "s",    "sass",
     "sc",         "scm",   "scss", "sh",    "sql", "svelte", "swift", "tex",  "text", "tf",   "toml", "ts",
     "tsv",        "tsx",   "txt",  "vb",    "vbs", "vue",    "xml",   "yaml", "yml",  "zsh"});

static_assert(codeExtensions.size() == 94);
static_assert(std::ranges::is_sorted(codeExtensions) && std::ranges::is_sorted(imageExtensions) &&
              std::ranges::is_sorted(videoExtensions) && std::ranges::is_sorted(documentExtensions));

struct Facts {
    std::string_view titleKey;
    std::string_view symbol;
    bool isEnabledByDefault;
    Extensions fileExtensions;
};

// In the order of the cases.
constexpr std::array<Facts, caseTable<ArtifactCategory>.size()> facts = {{
    {"문서", "doc.text", true, documentExtensions},
    {"플랜", "list.bullet.clipboard", true, documentExtensions},
    {"이미지", "photo", true, imageExtensions},
    {"동영상", "video", false, videoExtensions},
    {"PDF", "doc.richtext", false, pdfExtensions},
    {"코드·텍스트", "chevron.left.forwardslash.chevron.right", false, codeExtensions},
    {"기타 파일", "doc", false, {}},
}};

// By extension, of those categories that an extension makes. Plans share the documents' extensions; none makes a plan.
constexpr FixedTextMap categories([] {
    using enum ArtifactCategory;
    std::array<FixedTextEntry<ArtifactCategory>, documentExtensions.size() + imageExtensions.size() +
                                                     videoExtensions.size() + pdfExtensions.size() +
                                                     codeExtensions.size()>
        all;
    auto entry = all.begin();
    for (const ArtifactCategory category : {documents, images, videos, pdfs, code}) {
        for (const std::string_view extension : facts[static_cast<std::size_t>(category)].fileExtensions)
            *entry++ = {extension, category};
    }
    return all;
}());

struct OfficeExtension {
    std::string_view extension;
    std::string_view title;
};
constexpr auto officeExtensions = std::to_array<OfficeExtension>({
    {"doc", "Word"},
    {"docx", "Word"},
    {"xls", "Excel"},
    {"xlsx", "Excel"},
    {"xlsm", "Excel"},
    {"ppt", "PowerPoint"},
    {"pptx", "PowerPoint"},
    {"pptm", "PowerPoint"},
    {"key", "Keynote"},
    {"numbers", "Numbers"},
    {"pages", "Pages"},
});

const Facts& factsOf(ArtifactCategory category) {
    return facts[static_cast<std::size_t>(category)];
}

bool isIn(Extensions extensions, std::string_view text) {
    return std::ranges::binary_search(extensions, text);
}

}  // namespace

std::string_view titleKey(ArtifactCategory category) {
    return factsOf(category).titleKey;
}

std::string_view symbol(ArtifactCategory category) {
    return factsOf(category).symbol;
}

bool isEnabledByDefault(ArtifactCategory category) {
    return factsOf(category).isEnabledByDefault;
}

std::span<const std::string_view> fileExtensions(ArtifactCategory category) {
    return factsOf(category).fileExtensions;
}

bool isMarkdownExtension(std::string_view text) {
    return isIn(markdownExtensions, text);
}

bool isHTMLExtension(std::string_view text) {
    return isIn(htmlExtensions, text);
}

ArtifactCategory category(std::string_view forExtension) {
    const ArtifactCategory* const found = categories.find(forExtension);
    return found == nullptr ? ArtifactCategory::other : *found;
}

std::optional<ArtifactCategory> safeTextCategory(std::string_view forExtension) {
    const std::string lowered = UnicodeCase::lower(forExtension);
    if (isIn(documentExtensions, lowered)) return ArtifactCategory::documents;
    if (isIn(codeExtensions, lowered)) return ArtifactCategory::code;
    return std::nullopt;
}

bool opensOriginal(std::string_view extension) {
    const std::string lowered = UnicodeCase::lower(extension);
    const ArtifactCategory found = category(lowered);
    if (found != ArtifactCategory::code && found != ArtifactCategory::other) return true;
    return quickLookTitle(lowered).has_value() || lowered == "txt" || lowered == "json";
}

std::optional<std::string_view> quickLookTitle(std::string_view forExtension) {
    const auto found = std::ranges::find(officeExtensions, forExtension, &OfficeExtension::extension);
    if (found == officeExtensions.end()) return std::nullopt;
    return found->title;
}

}  // namespace vellark::ArtifactCategories
