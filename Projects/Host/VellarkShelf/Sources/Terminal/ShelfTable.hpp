#pragma once

#include <VellarkShelf/Shelf/ShelfLine.hpp>
#include <VellarkShelf/Terminal/TerminalOutput.hpp>

#include <vector>

namespace vellark {

/// Lines of the shelf as text. A terminal gets columns that fit it, with the headline below the title; a pipe gets one
/// line for each document, its fields divided by tabs: identifier, kind, title, headline, source, age.
namespace ShelfTable {

using Lines = std::vector<const ShelfLine*>;

void write(TerminalOutput& output, const Lines& lines);

}  // namespace ShelfTable

}  // namespace vellark
