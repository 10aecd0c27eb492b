#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkShelf/Collect/CaptureGate.hpp>
#include <VellarkShelf/Collect/CapturedDocument.hpp>
#include <VellarkShelf/Collect/ProjectRoot.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

#include <algorithm>
#include <filesystem>

namespace vellark {

namespace {

// What inspection finds out about one file.
struct InspectedFile {
    std::string path;
    CaptureVerdict verdict{};
    std::string explanation;
    std::string title;
    std::string format;
    std::optional<DocumentKind> kind;
    std::optional<DocumentKindGuess::Level> level;
    bool decided = false;
    std::vector<DocumentKind> candidates;
    DocumentSummary summary;
    std::vector<std::string> facts;
    std::optional<std::string> conclusion;
};

template <class Fields>
void describe(Fields& fields, InspectedFile& file) {
    fields.required("path", file.path);
    fields.required("verdict", file.verdict);
    fields.required("explanation", file.explanation);
    fields.required("title", file.title);
    fields.required("format", file.format);
    fields.optional("kind", file.kind);
    fields.optional("level", file.level);
    fields.required("decided", file.decided);
    fields.required("candidates", file.candidates);
    fields.required("summary", file.summary);
    fields.required("facts", file.facts);
    fields.optional("conclusion", file.conclusion);
}

std::string formatName(const DocumentRecord& document) {
    if (!document.supportsTextContent()) return document.kind;
    const auto format = DocumentContentFormat::resolve(document, document.latestRevision());
    if (format.isMarkdown()) return "markdown";
    if (format.isHTML()) return "html";
    return std::get<DocumentContentFormat::Code>(format.value).language.value_or("text");
}

class Inspector {
public:
    explicit Inspector(const Commands::Context& context)
        : settings_(ShelfSettings::read(context.directory).settings),
          gate_(settings_, context.directory, context.environment),
          home_(HomeDirectory::current(context.environment)) {}

    InspectedFile inspect(const std::string& path) const {
        InspectedFile result{.path = path};
        auto file = OpenedFile::open(path);
        result.verdict = file ? judge(path, *file, result) : verdictOf(file.error());
        result.explanation = explanation(result.verdict);
        return result;
    }

private:
    CaptureVerdict judge(const std::string& path, OpenedFile& file, InspectedFile& result) const {
        const std::string root = ProjectRoot::ofFile(path, {}, home_).root;
        const std::string actualRoot = SignalSpool::resolved(root);
        const CaptureVerdict verdict = gate_.byPath({.path = path,
                                                     .actualPath = file.actualPath(),
                                                     .directory = root,
                                                     .actualDirectory = actualRoot,
                                                     .modifiedAt = file.modifiedAt()});
        // What is kept from the shelf because it may hold a secret is not shown here either.
        if (verdict == CaptureVerdict::excludedPath || verdict == CaptureVerdict::linkOutside) return verdict;
        if (file.byteCount() > CapturedDocument::maximumSnapshotBytes) return verdict;
        const auto captured = CapturedDocument::fromFile(PendingSignal(), path, 0, file);
        if (!captured) return CaptureVerdict::unreadable;
        describeContent(*captured, result);
        if (verdict != CaptureVerdict::captured) return verdict;
        return CaptureGate::byContent(
            {.content = captured->content, .path = path, .source = {}, .kind = captured->kind});
    }

    static void describeContent(const CapturedDocument& captured, InspectedFile& result) {
        DocumentRecord document{.id = "inspected", .sourcePath = captured.path, .kind = captured.kind};
        captured.addTo(document, PendingSignal(), *captured.path);
        const std::string_view content = std::string_view(captured.content).substr(0, DocumentDigests::readingLimit);
        const DocumentDigest digest = DocumentDigests::make(document, content);
        const auto decision = DocumentDigests::decide(document, &digest);
        result.title = document.title;
        result.format = formatName(document);
        if (decision) result.kind = decision->kind;
        result.level = digest.level;
        result.decided = digest.decided;
        result.candidates = digest.candidates;
        result.summary = digest.summary;
        if (auto extract = DocumentDigests::extract(document, content, true)) {
            result.facts = std::move(extract->facts);
            result.conclusion = std::move(extract->conclusion);
        }
    }

    static CaptureVerdict verdictOf(OpenedFile::Failure failure) {
        if (failure == OpenedFile::Failure::missing) return CaptureVerdict::missing;
        if (failure == OpenedFile::Failure::notAFile) return CaptureVerdict::notAFile;
        return CaptureVerdict::unreadable;
    }

    AppSettings settings_;
    CaptureGate gate_;
    std::string home_;
};

// The files themselves, and those below the folders, in the order of their names. Links are not followed into folders,
// which may lead round in a circle.
std::vector<std::string> filesAt(const std::vector<std::string>& paths) {
    namespace fs = std::filesystem;
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        std::error_code error;
        const std::string whole = PythonText::normpath(fs::absolute(path, error).string());
        if (!fs::is_directory(whole, error)) {
            files.push_back(whole);
            continue;
        }
        std::vector<std::string> found;
        fs::recursive_directory_iterator entry(whole, fs::directory_options::skip_permission_denied, error);
        for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
            std::error_code ignored;
            if (entry->path().filename() == ".git") entry.disable_recursion_pending();
            if (!fs::is_directory(entry->symlink_status(ignored))) found.push_back(entry->path().string());
        }
        std::sort(found.begin(), found.end());
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

void writeInspected(TerminalOutput& output, const InspectedFile& file) {
    using DisplayWidth::harmless;
    output.line(output.bold(harmless(file.path)));
    const bool isTaken = file.verdict == CaptureVerdict::captured;
    output.line("  " + (isTaken ? output.accent("captured")
                                : "left out (" + std::string(rawValue(file.verdict)) + "): " + file.explanation));
    if (file.format.empty()) return;
    std::string kind = file.kind ? DocumentKinds::title(*file.kind) : "no kind";
    if (file.level) kind += " (" + std::string(rawValue(*file.level)) + (file.decided ? ")" : ", not sure)");
    output.line("  " + kind + " · " + file.format + " · " + harmless(file.title));
    if (!file.summary.headline.empty()) output.line("  " + harmless(file.summary.headline));
    for (const std::string& point : file.summary.points) {
        output.line("  • " + harmless(point));
    }
    if (file.conclusion) output.line("  → " + harmless(*file.conclusion));
    for (const std::string& fact : file.facts) {
        output.line("  # " + harmless(fact));
    }
}

}  // namespace

int Commands::inspect(const Context& context, const std::vector<std::string>& paths) {
    const Inspector inspector(context);
    const auto files = filesAt(paths);
    TerminalOutput output(context.environment);
    std::vector<InspectedFile> inspected;
    {
        ProgressBar bar("inspecting");
        for (const std::string& path : files) {
            bar.show(inspected.size(), files.size());
            inspected.push_back(inspector.inspect(path));
        }
    }
    if (context.json) return writeJSON(output, inspected);
    for (const InspectedFile& file : inspected) {
        writeInspected(output, file);
    }
    return finish(output);
}

}  // namespace vellark
