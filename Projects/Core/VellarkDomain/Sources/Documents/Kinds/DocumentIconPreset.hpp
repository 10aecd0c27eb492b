#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>

namespace vellark {

/// The icons that a document, a place or an action can be shown by. A host chooses the picture of each.
enum class DocumentIconPreset {
    file,
    markdown,
    html,
    text,
    pdf,
    image,
    vector,
    code,
    data,
    spreadsheet,
    presentation,
    notebook,
    archive,
    audio,
    video,
    font,
    plan,
    folder,
    project,
    review,
    library,
    session,
    usage,
    settings,
    board,
    favorite,
    link,
    stack,
    move,
    focus,
};

template <>
inline constexpr auto caseTable<DocumentIconPreset> = std::to_array<CaseName<DocumentIconPreset>>({
    {DocumentIconPreset::file, "file"},
    {DocumentIconPreset::markdown, "markdown"},
    {DocumentIconPreset::html, "html"},
    {DocumentIconPreset::text, "text"},
    {DocumentIconPreset::pdf, "pdf"},
    {DocumentIconPreset::image, "image"},
    {DocumentIconPreset::vector, "vector"},
    {DocumentIconPreset::code, "code"},
    {DocumentIconPreset::data, "data"},
    {DocumentIconPreset::spreadsheet, "spreadsheet"},
    {DocumentIconPreset::presentation, "presentation"},
    {DocumentIconPreset::notebook, "notebook"},
    {DocumentIconPreset::archive, "archive"},
    {DocumentIconPreset::audio, "audio"},
    {DocumentIconPreset::video, "video"},
    {DocumentIconPreset::font, "font"},
    {DocumentIconPreset::plan, "plan"},
    {DocumentIconPreset::folder, "folder"},
    {DocumentIconPreset::project, "project"},
    {DocumentIconPreset::review, "review"},
    {DocumentIconPreset::library, "library"},
    {DocumentIconPreset::session, "session"},
    {DocumentIconPreset::usage, "usage"},
    {DocumentIconPreset::settings, "settings"},
    {DocumentIconPreset::board, "board"},
    {DocumentIconPreset::favorite, "favorite"},
    {DocumentIconPreset::link, "link"},
    {DocumentIconPreset::stack, "stack"},
    {DocumentIconPreset::move, "move"},
    {DocumentIconPreset::focus, "focus"},
});

}  // namespace vellark
