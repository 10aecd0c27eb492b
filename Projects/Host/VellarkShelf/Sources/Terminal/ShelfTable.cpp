#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkShelf/Terminal/ShelfTable.hpp>

#include <algorithm>

namespace vellark::ShelfTable {

namespace {

using DisplayWidth::harmless;
using DisplayWidth::padded;

constexpr std::size_t identifierColumns = 8;
constexpr std::size_t gap = 2;
constexpr std::size_t widestKind = 16;
constexpr std::size_t widestSource = 14;
constexpr std::size_t widestAge = 13;
constexpr std::size_t narrowestTitle = 20;

struct Columns {
    std::size_t kind = 0;
    std::size_t source = 0;
    std::size_t age = 0;
    std::size_t title = narrowestTitle;
};

Columns columnsFor(std::span<const ShelfLine> lines, std::size_t width) {
    Columns columns;
    for (const ShelfLine& line : lines) {
        columns.kind = std::max(columns.kind, std::min(DisplayWidth::columns(line.kindTitle), widestKind));
        columns.source = std::max(columns.source, std::min(DisplayWidth::columns(line.sourceTitle), widestSource));
        columns.age = std::max(columns.age, std::min(DisplayWidth::columns(line.age), widestAge));
    }
    const std::size_t taken = identifierColumns + columns.kind + columns.source + columns.age + 4 * gap;
    columns.title = std::max(narrowestTitle, width > taken ? width - taken : 0);
    return columns;
}

std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

void writeForTerminal(TerminalOutput& output, std::span<const ShelfLine> lines) {
    const Columns columns = columnsFor(lines, output.width());
    const std::size_t indent = identifierColumns + columns.kind + 2 * gap;
    for (const ShelfLine& line : lines) {
        output.line(output.dim(padded(std::string_view(line.id).substr(0, identifierColumns), identifierColumns)) +
                    blanks(gap) + output.accent(padded(line.kindTitle, columns.kind)) + blanks(gap) +
                    output.bold(padded(harmless(line.title), columns.title)) + blanks(gap) +
                    padded(harmless(line.sourceTitle), columns.source) + blanks(gap) +
                    output.dim(DisplayWidth::fitted(line.age, columns.age)));
        if (line.headline.empty() || output.width() <= indent + narrowestTitle) continue;
        const std::string headline = DisplayWidth::fitted(harmless(line.headline), output.width() - indent);
        output.line(blanks(indent) + output.dim(headline));
    }
}

// Without tabs and line ends, which divide fields and lines.
std::string field(std::string_view text) {
    std::string result(text);
    std::replace_if(
        result.begin(), result.end(), [](char byte) { return byte == '\t' || byte == '\n' || byte == '\r'; }, ' ');
    return result;
}

void writePlainly(TerminalOutput& output, std::span<const ShelfLine> lines) {
    for (const ShelfLine& line : lines) {
        output.line(line.id + "\t" + field(line.kindTitle) + "\t" + field(line.title) + "\t" + field(line.headline) +
                    "\t" + field(line.sourceTitle) + "\t" + line.age);
    }
}

}  // namespace

void write(TerminalOutput& output, std::span<const ShelfLine> lines) {
    output.isTerminal() ? writeForTerminal(output, lines) : writePlainly(output, lines);
}

}  // namespace vellark::ShelfTable
