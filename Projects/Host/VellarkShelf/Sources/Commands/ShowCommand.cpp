#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>

namespace vellark {

namespace {

// One document with everything that is told of it.
struct ShownDocument {
    ShelfLine line;
    std::vector<std::string> headings;
    std::vector<std::string> points;
    std::vector<std::string> facts;
    std::optional<std::string> conclusion;
    DocumentRecord record;
};

template <class Fields>
void describe(Fields& fields, ShownDocument& shown) {
    fields.required("line", shown.line);
    fields.required("headings", shown.headings);
    fields.required("points", shown.points);
    fields.required("facts", shown.facts);
    fields.optional("conclusion", shown.conclusion);
    fields.required("record", shown.record);
}

void writeList(TerminalOutput& output, const std::vector<std::string>& texts, std::string_view mark) {
    for (const std::string& text : texts) {
        output.line("  " + std::string(mark) + " " + DisplayWidth::harmless(text));
    }
}

void writeRevisions(TerminalOutput& output, const DocumentRecord& record) {
    for (const DocumentRevision& revision : record.revisions) {
        output.line("  " + output.dim(L10n::dateTime(revision.capturedAt) + "  " + revision.contentHash.substr(0, 12)) +
                    "  " + DisplayWidth::harmless(revision.snapshotPath));
    }
}

void writeShown(TerminalOutput& output, const ShownDocument& shown) {
    using DisplayWidth::harmless;
    const ShelfLine& line = shown.line;
    output.line(output.bold(harmless(line.title)));
    output.line(output.accent(line.kindTitle) + " · " + harmless(line.sourceTitle) + " · " + harmless(line.project) +
                " · " + output.dim(line.age));
    if (line.path) output.line(output.dim(harmless(*line.path)));
    if (!line.headline.empty()) output.line("\n" + harmless(line.headline));
    if (!shown.points.empty()) output.line();
    writeList(output, shown.points, "•");
    if (shown.conclusion) output.line("\n  → " + harmless(*shown.conclusion));
    if (!shown.facts.empty()) output.line();
    writeList(output, shown.facts, "#");
    output.line();
    writeRevisions(output, shown.record);
}

}  // namespace

int Commands::show(const Context& context, const std::string& id) {
    const auto library = readLibrary(context);
    if (!library) return failed;
    const DocumentRecord* document = findDocument(*library, id);
    if (document == nullptr) return failed;

    const auto content = readContent(*document, DocumentDigests::readingLimit);
    const DocumentDigest digest = DocumentDigests::make(*document, content);
    ShownDocument shown{
        .line = ShelfLines(now()).line(*document, digest), .points = digest.summary.points, .record = *document};
    if (content) {
        if (auto extract = DocumentDigests::extract(*document, *content, true)) {
            shown.headings = std::move(extract->headings);
            shown.facts = std::move(extract->facts);
            shown.conclusion = std::move(extract->conclusion);
        }
    }
    TerminalOutput output(context.environment);
    if (context.json) return writeJSON(output, shown);
    writeShown(output, shown);
    return finish(output);
}

}  // namespace vellark
