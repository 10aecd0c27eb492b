#include <VellarkShelf/Collect/Collector.hpp>
#include <VellarkShelf/Collect/DirectoryWatch.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>
#include <VellarkShelf/Terminal/ShelfTable.hpp>

#include <map>

namespace vellark {

namespace {

using Change = Collector::Outcome::Change;

struct LeftOut {
    std::string path;
    std::string source;
    CaptureVerdict verdict{};
};

template <class Fields>
void describe(Fields& fields, LeftOut& document) {
    fields.required("path", document.path);
    fields.required("source", document.source);
    fields.required("verdict", document.verdict);
}

struct Collected {
    std::int64_t signals = 0;
    std::int64_t unchanged = 0;
    std::vector<ShelfLine> documents;
    std::vector<LeftOut> leftOut;
};

template <class Fields>
void describe(Fields& fields, Collected& collected) {
    fields.required("signals", collected.signals);
    fields.required("unchanged", collected.unchanged);
    fields.required("documents", collected.documents);
    fields.required("leftOut", collected.leftOut);
}

Collected summed(const Collector& collector, const Collector::Report& report) {
    Collected collected{.signals = static_cast<std::int64_t>(report.signalCount)};
    ShelfLines lines(Commands::now());
    std::map<const DocumentRecord*, std::size_t> shown;
    for (const Collector::Outcome& outcome : report.outcomes) {
        const DocumentRecord* document = collector.document(outcome);
        if (outcome.change == Change::leftOut) {
            collected.leftOut.push_back({outcome.path, outcome.source, outcome.verdict});
        } else if (outcome.change == Change::unchanged || document == nullptr) {
            ++collected.unchanged;
        } else if (shown.emplace(document, collected.documents.size()).second) {
            const DocumentRevision* latest = document->latestRevision();
            collected.documents.push_back(lines.line(*document, collector.digests().find(latest->id)));
        }
    }
    return collected;
}

void writeLeftOut(TerminalOutput& output, const Collected& collected) {
    std::map<CaptureVerdict, std::size_t> counts;
    for (const LeftOut& document : collected.leftOut) {
        ++counts[document.verdict];
    }
    for (const auto& [verdict, count] : counts) {
        output.line(output.dim(std::to_string(count) + " left out: " + std::string(explanation(verdict))));
    }
}

int collectOnce(const Commands::Context& context, const Commands::CollectOptions& options, Collector& collector) {
    Collector::Report report;
    {
        ProgressBar bar("collecting");
        report = collector.collect([&bar](std::size_t done, std::size_t all) { bar.show(done, all); });
    }
    if (report.problem) Commands::problem(*report.problem);
    const int status = report.problem ? Commands::failed : Commands::success;
    if (options.quiet) return status;
    const Collected collected = summed(collector, report);
    TerminalOutput output(context.environment);
    if (context.json) {
        if (report.signalCount > 0 || !options.watch) (void)Commands::writeJSON(output, collected);
    } else {
        ShelfTable::Lines lines;
        for (const ShelfLine& line : collected.documents) {
            lines.push_back(&line);
        }
        ShelfTable::write(output, lines);
        if (output.isTerminal()) writeLeftOut(output, collected);
    }
    return output.flush() ? status : Commands::failed;
}

}  // namespace

int Commands::collect(const Context& context, const CollectOptions& options) {
    if (!context.directory.create()) return problem("the data directory cannot be made: " + context.directory.path);
    const auto lock = DataDirectoryLock::acquire(context.directory);
    if (!lock) {
        if (lock.error() == DataDirectoryLock::Failure::unusable) {
            return problem("the data directory cannot be used: " + context.directory.path);
        }
        // The other one will take the signals. To wait for it would only do its work again.
        if (!options.quiet) problem("another collector is at work");
        return options.watch ? failed : success;
    }
    Collector collector(context.directory, context.environment);
    if (!options.watch) return collectOnce(context, options, collector);

    auto watch = DirectoryWatch::start(context.directory.signals());
    if (!watch) return problem("the signals cannot be watched: " + context.directory.signals());
    do {
        (void)collectOnce(context, options, collector);
    } while (watch->wait());
    return success;
}

}  // namespace vellark
