#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <string_view>

namespace vellark {

/// What a file is by its name, down to the language.
enum class DocumentFileType {
    swift,
    objectiveC,
    objectiveCpp,
    python,
    javascript,
    typescript,
    jsx,
    tsx,
    json,
    yaml,
    toml,
    markdown,
    html,
    css,
    scss,
    sass,
    shell,
    batch,
    go,
    rust,
    java,
    kotlin,
    c,
    cHeader,
    cpp,
    cppHeader,
    csharp,
    ruby,
    php,
    sql,
    dart,
    lua,
    r,
    dockerfile,
    compose,
    makefile,
    xml,
    csv,
    tsv,
    spreadsheet,
    presentation,
    text,
    pdf,
    image,
    svg,
    video,
    audio,
    font,
    archive,
    notebook,
    xcode,
    node,
};

template <>
inline constexpr auto caseTable<DocumentFileType> = std::to_array<CaseName<DocumentFileType>>({
    {DocumentFileType::swift, "swift"},
    {DocumentFileType::objectiveC, "objective-c"},
    {DocumentFileType::objectiveCpp, "objective-cpp"},
    {DocumentFileType::python, "python"},
    {DocumentFileType::javascript, "javascript"},
    {DocumentFileType::typescript, "typescript"},
    {DocumentFileType::jsx, "jsx"},
    {DocumentFileType::tsx, "tsx"},
    {DocumentFileType::json, "json"},
    {DocumentFileType::yaml, "yaml"},
    {DocumentFileType::toml, "toml"},
    {DocumentFileType::markdown, "markdown"},
    {DocumentFileType::html, "html"},
    {DocumentFileType::css, "css"},
    {DocumentFileType::scss, "scss"},
    {DocumentFileType::sass, "sass"},
    {DocumentFileType::shell, "shell"},
    {DocumentFileType::batch, "batch"},
    {DocumentFileType::go, "go"},
    {DocumentFileType::rust, "rust"},
    {DocumentFileType::java, "java"},
    {DocumentFileType::kotlin, "kotlin"},
    {DocumentFileType::c, "c"},
    {DocumentFileType::cHeader, "c-header"},
    {DocumentFileType::cpp, "cpp"},
    {DocumentFileType::cppHeader, "cpp-header"},
    {DocumentFileType::csharp, "csharp"},
    {DocumentFileType::ruby, "ruby"},
    {DocumentFileType::php, "php"},
    {DocumentFileType::sql, "sql"},
    {DocumentFileType::dart, "dart"},
    {DocumentFileType::lua, "lua"},
    {DocumentFileType::r, "r"},
    {DocumentFileType::dockerfile, "dockerfile"},
    {DocumentFileType::compose, "compose"},
    {DocumentFileType::makefile, "makefile"},
    {DocumentFileType::xml, "xml"},
    {DocumentFileType::csv, "csv"},
    {DocumentFileType::tsv, "tsv"},
    {DocumentFileType::spreadsheet, "spreadsheet"},
    {DocumentFileType::presentation, "presentation"},
    {DocumentFileType::text, "text"},
    {DocumentFileType::pdf, "pdf"},
    {DocumentFileType::image, "image"},
    {DocumentFileType::svg, "svg"},
    {DocumentFileType::video, "video"},
    {DocumentFileType::audio, "audio"},
    {DocumentFileType::font, "font"},
    {DocumentFileType::archive, "archive"},
    {DocumentFileType::notebook, "notebook"},
    {DocumentFileType::xcode, "xcode"},
    {DocumentFileType::node, "node"},
});

namespace DocumentFileTypes {

/// The type of a file by its whole name, or else by its extension, both in any case; nothing for all other files.
///
///     ofPath("/a/PACKAGE.JSON")      node
///     ofPath("/a/Dockerfile.dev")    dockerfile
///     ofPath("/a/b.svg")             svg
[[nodiscard]] std::optional<DocumentFileType> ofPath(std::string_view path);

/// The type of an extension without its point, in any case.
[[nodiscard]] std::optional<DocumentFileType> ofExtension(std::string_view fileExtension);

}  // namespace DocumentFileTypes

}  // namespace vellark
