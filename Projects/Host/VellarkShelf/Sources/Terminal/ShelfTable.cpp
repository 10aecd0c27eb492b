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

Columns columnsFor(const Lines& lines, std::size_t width) {
    Columns columns;
    for (const ShelfLine* shown : lines) {
        const ShelfLine& line = *shown;
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

void writeForTerminal(TerminalOutput& output, const Lines& lines) {
    const Columns columns = columnsFor(lines, output.width());
    const std::size_t indent = identifierColumns + columns.kind + 2 * gap;
    for (const ShelfLine* shown : lines) {
        const ShelfLine& line = *shown;
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
void writeField(TerminalOutput& output, std::string_view text) {
    constexpr std::string_view dividers = "\t\n\r";
    for (std::size_t end = text.find_first_of(dividers); end != std::string_view::npos;
         end = text.find_first_of(dividers)) {
        output.write(text.substr(0, end));
        output.write(" ");
        text.remove_prefix(end + 1);
    }
    output.write(text);
}

void writePlainly(TerminalOutput& output, const Lines& lines) {
    for (const ShelfLine* shown : lines) {
        const ShelfLine& line = *shown;
        for (const std::string* text : {&line.id, &line.kindTitle, &line.title, &line.headline, &line.sourceTitle}) {
            writeField(output, *text);
            output.write("\t");
        }
        output.line(line.age);
    }
}

}  // namespace

void write(TerminalOutput& output, const Lines& lines) {
    output.isTerminal() ? writeForTerminal(output, lines) : writePlainly(output, lines);
}

}  // namespace vellark::ShelfTable
