#pragma once

#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Collect/CaptureGate.hpp>
#include <VellarkShelf/Collect/CaptureVerdict.hpp>
#include <VellarkShelf/Collect/CapturedDocument.hpp>
#include <VellarkShelf/Collect/PendingSignal.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>
#include <VellarkShelf/Data/SnapshotStore.hpp>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vellark {

/// Takes pending signals and brings the documents that they speak of into the library.
///
/// A signal's file goes only when the library that holds its documents is on the disk. A process that is killed before
/// that leaves the signal for the next one, and what that one finds in the library already it knows by the revision's
/// identifier, which comes from the signal's: so nothing is lost and nothing counts twice.
///
/// One collector at a time works on a data directory: callers hold its lock.
class Collector {
public:
    struct Outcome {
        enum class Change { newDocument, newRevision, unchanged, leftOut };

        Change change = Change::leftOut;
        CaptureVerdict verdict = CaptureVerdict::captured;  ///< the rule, of what was left out
        std::string source;
        std::string path;        ///< "" for an answer
        std::string documentID;  ///< "" for what was left out
    };

    struct Report {
        std::vector<Outcome> outcomes;
        std::size_t signalCount = 0;
        std::optional<std::string> problem;  ///< why something could not be stored; its signals are still there
    };

    /// Called before each signal with its number and the number of all.
    using Progress = std::function<void(std::size_t done, std::size_t all)>;

    Collector(DataDirectory directory, Environment environment);

    /// Takes all that is pending at this moment.
    [[nodiscard]] Report collect(const Progress& progress = {});

    /// The library after the last collection.
    [[nodiscard]] const CaptureLibrary& library() const { return library_; }
    [[nodiscard]] const DigestCache& digests() const { return digests_; }

    /// The record of an outcome; a null pointer for what was left out.
    [[nodiscard]] const DocumentRecord* document(const Outcome& outcome) const;

private:
    std::optional<std::string> readLibrary();
    std::optional<std::string> store();
    bool take(const PendingSignal& signal, const CaptureGate& gate, Report& report);
    Outcome takeFile(const PendingSignal& signal, const std::string& path, std::size_t place, const CaptureGate& gate);
    Outcome takeResponse(const PendingSignal& signal, std::string_view response, const CaptureGate& gate);
    Outcome record(const PendingSignal& signal, const CapturedDocument& captured, const CaptureGate& gate);

    DataDirectory directory_;
    Environment environment_;
    std::string home_;
    CaptureLibrary library_;
    std::optional<LibraryFile::Stamp> stamp_;
    std::unordered_map<std::string, std::size_t> placesByKey_;  // in the library
    std::unordered_map<std::string, std::size_t> placesByID_;
    std::unordered_set<std::string> revisions_;
    SnapshotStore snapshots_;
    DigestCache digests_;
    bool isChanged_ = false;
};

}  // namespace vellark
