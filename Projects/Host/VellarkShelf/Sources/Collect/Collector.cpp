#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkShelf/Collect/Collector.hpp>
#include <VellarkShelf/Collect/SignalDocuments.hpp>
#include <VellarkShelf/Data/LibraryProblem.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>

#include <unistd.h>

namespace vellark {

namespace {

using Change = Collector::Outcome::Change;

constexpr std::uint64_t maximumDocumentBytes = 1ULL << 30;

constexpr const char* copyProblem = "the copies of the documents cannot be written";

CaptureVerdict verdictOf(OpenedFile::Failure failure) {
    switch (failure) {
        case OpenedFile::Failure::missing:
            return CaptureVerdict::missing;
        case OpenedFile::Failure::notAFile:
            return CaptureVerdict::notAFile;
        case OpenedFile::Failure::unreadable:
            break;
    }
    return CaptureVerdict::unreadable;
}

}  // namespace

Collector::Collector(DataDirectory directory, Environment environment)
    : directory_(std::move(directory)),
      environment_(std::move(environment)),
      home_(HomeDirectory::current(environment_)),
      snapshots_(directory_.snapshots()),
      digests_(DigestCache::read(directory_)) {}

Collector::Report Collector::collect(const Progress& progress) {
    Report report;
    const auto listing = PendingSignals::read(directory_.signals());
    PendingSignals::clearLeftovers(listing);
    const auto settings = ShelfSettings::read(directory_).settings;
    ShelfSettings::publishPolicy(settings, directory_);
    report.signalCount = listing.signals.size();
    if (listing.signals.empty()) return report;
    if ((report.problem = readLibrary())) return report;

    const CaptureGate gate(settings, directory_, environment_);
    std::vector<std::string> done;
    for (const PendingSignal& signal : listing.signals) {
        if (progress) progress(static_cast<std::size_t>(&signal - listing.signals.data()), listing.signals.size());
        if (take(signal, gate, report)) done.push_back(signal.path);
    }
    if (auto problem = store()) {
        report.problem = std::move(problem);
        return report;
    }
    for (const std::string& path : done) {
        ::unlink(path.c_str());
    }
    return report;
}

const DocumentRecord* Collector::document(const Outcome& outcome) const {
    const auto place = placesByID_.find(outcome.documentID);
    return place == placesByID_.end() ? nullptr : &library_.documents[place->second];
}

std::optional<std::string> Collector::readLibrary() {
    auto contents = LibraryFile::read(directory_.library());
    if (contents) {
        library_ = std::move(contents->library);
        stamp_ = contents->stamp;
    } else if (contents.error().reason == LibraryFileError::Reason::notFound) {
        library_ = {};
        stamp_.reset();
    } else {
        return libraryProblem(contents.error());
    }
    placesByKey_.clear();
    placesByID_.clear();
    revisions_.clear();
    for (std::size_t place = 0; place < library_.documents.size(); ++place) {
        placesByKey_.emplace(CapturedDocument::keyOf(library_.documents[place]), place);
        placesByID_.emplace(library_.documents[place].id, place);
        for (const DocumentRevision& revision : library_.documents[place].revisions) {
            revisions_.insert(revision.id);
        }
    }
    isChanged_ = false;
    return std::nullopt;
}

std::optional<std::string> Collector::store() {
    if (!isChanged_) return std::nullopt;
    if (!snapshots_.flush()) return copyProblem;
    const auto stamp = LibraryFile::write(library_, directory_.library(), stamp_);
    if (!stamp) return libraryProblem(stamp.error());
    stamp_ = *stamp;
    isChanged_ = false;
    (void)digests_.save();  // they can be made anew at any time
    return std::nullopt;
}

// False when something of the signal could not be stored, and the signal has to stay.
bool Collector::take(const PendingSignal& signal, const CaptureGate& gate, Report& report) {
    const std::size_t first = report.outcomes.size();
    const auto files = SignalDocuments::files(signal);
    for (std::size_t place = 0; place < files.size(); ++place) {
        report.outcomes.push_back(takeFile(signal, files[place], place, gate));
    }
    const std::string_view response = SignalDocuments::response(signal);
    if (!response.empty()) report.outcomes.push_back(takeResponse(signal, response, gate));
    for (std::size_t place = first; place < report.outcomes.size(); ++place) {
        if (report.outcomes[place].verdict != CaptureVerdict::notStored) continue;
        report.problem = copyProblem;
        return false;
    }
    return true;
}

Collector::Outcome Collector::takeFile(const PendingSignal& signal, const std::string& path, std::size_t place,
                                       const CaptureGate& gate) {
    Outcome outcome{.source = signal.source, .path = path, .documentID = {}};
    auto file = OpenedFile::open(path);
    if (!file) {
        outcome.verdict = verdictOf(file.error());
        return outcome;
    }
    const std::string_view directory = signal.text("cwd");
    const std::string actualDirectory = directory.starts_with('/') ? SignalSpool::resolved(directory) : "";
    outcome.verdict = gate.byPath({.path = path,
                                   .actualPath = file->actualPath(),
                                   .directory = directory,
                                   .actualDirectory = actualDirectory,
                                   .modifiedAt = file->modifiedAt(),
                                   .isSubagents = signal.isSubagents(),
                                   .observedAt = CaptureRules::eventSeconds(signal.text("timestamp"))});
    if (outcome.verdict != CaptureVerdict::captured) return outcome;
    outcome.verdict = CaptureVerdict::tooLarge;
    if (file->byteCount() > maximumDocumentBytes) return outcome;
    outcome.verdict = CaptureVerdict::unreadable;
    const auto captured = CapturedDocument::fromFile(signal, path, place, *file);
    if (!captured) return outcome;
    outcome.verdict = CaptureGate::byContent(
        {.content = captured->content, .path = path, .source = signal.source, .kind = captured->kind});
    if (outcome.verdict != CaptureVerdict::captured) return outcome;
    return record(signal, *captured, gate);
}

Collector::Outcome Collector::takeResponse(const PendingSignal& signal, std::string_view response,
                                           const CaptureGate& gate) {
    Outcome outcome{.source = signal.source, .path = {}, .documentID = {}};
    outcome.verdict = gate.byResponse({.event = signal.text("hook_event_name"),
                                       .isSubagents = signal.isSubagents(),
                                       .observedAt = CaptureRules::eventSeconds(signal.text("timestamp"))});
    if (outcome.verdict != CaptureVerdict::captured) return outcome;
    const auto captured = CapturedDocument::fromResponse(signal, response);
    outcome.verdict = CaptureGate::byContent(
        {.content = captured.content, .path = {}, .source = signal.source, .kind = captured.kind});
    if (outcome.verdict != CaptureVerdict::captured) return outcome;
    return record(signal, captured, gate);
}

Collector::Outcome Collector::record(const PendingSignal& signal, const CapturedDocument& captured,
                                     const CaptureGate& gate) {
    Outcome outcome{.source = signal.source, .path = captured.path.value_or(""), .documentID = {}};
    const auto known = placesByKey_.find(captured.key);
    if (known != placesByKey_.end()) {
        const DocumentRecord& document = library_.documents[known->second];
        if (gate.isRemoved(document.id)) {
            outcome.verdict = CaptureVerdict::removedByUser;
            return outcome;
        }
        outcome.documentID = document.id;
        outcome.change = Change::unchanged;
        if (document.lastCapturedHash == captured.digest) return outcome;
    }
    if (revisions_.contains(captured.revisionID)) {
        outcome.change = Change::unchanged;
        return outcome;
    }
    outcome.change = Change::leftOut;
    outcome.verdict = CaptureVerdict::notStored;
    std::optional<std::string> storedAt = captured.path;
    if (captured.storage == DocumentStorageKind::snapshot) {
        storedAt = snapshots_.put(captured.content, captured.digest, captured.snapshotExtension());
    }
    if (!storedAt) return outcome;
    std::size_t place = library_.documents.size();
    if (known != placesByKey_.end()) {
        place = known->second;
    } else {
        auto document = captured.newRecord(signal, home_);
        if (!document) return outcome;
        placesByKey_.emplace(captured.key, place);
        placesByID_.emplace(document->id, place);
        library_.documents.push_back(*std::move(document));
    }
    DocumentRecord& document = library_.documents[place];
    captured.addTo(document, signal, *storedAt);
    revisions_.insert(captured.revisionID);
    const bool isAtHand = captured.storage == DocumentStorageKind::snapshot;
    const auto opening = std::string_view(captured.content).substr(0, DocumentDigests::readingLimit);
    digests_.add(DocumentDigests::make(document, isAtHand ? std::optional(opening) : std::nullopt));
    isChanged_ = true;
    outcome.verdict = CaptureVerdict::captured;
    outcome.documentID = document.id;
    outcome.change = document.revisions.size() == 1 ? Change::newDocument : Change::newRevision;
    return outcome;
}

}  // namespace vellark
