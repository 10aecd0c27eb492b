#pragma once

#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkShelf/Collect/FileContent.hpp>
#include <VellarkShelf/Collect/PendingSignal.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// One content that an agent produced, on its way into the library.
struct CapturedDocument {
    /// Larger files stay where they are, and the library points to them.
    static constexpr std::size_t maximumSnapshotBytes = std::size_t{64} << 20;

    std::string revisionID;  ///< made from the signal's identifier, so that a second look at the signal finds it
    std::string key;         ///< see `keyOf`
    std::optional<std::string> path;
    std::string kind;
    std::optional<std::string> category;
    std::string originEvent;
    std::string digest;
    std::string content;  ///< "" for a file that is only pointed to
    std::uint64_t byteCount = 0;
    std::optional<double> modifiedAt;
    std::string fallbackTitle;
    DocumentStorageKind storage = DocumentStorageKind::snapshot;

    /// The file as it is now; `place` is its number among the signal's files. Nothing when it cannot be read.
    [[nodiscard]] static std::optional<CapturedDocument> fromFile(const PendingSignal& signal, const std::string& path,
                                                                  std::size_t place, OpenedFile& file);

    [[nodiscard]] static CapturedDocument fromResponse(const PendingSignal& signal, std::string_view response);

    /// What a record of the library is found by: its file, or for an answer its session and content.
    [[nodiscard]] static std::string keyOf(const DocumentRecord& document);

    /// The extension of the copy, without its point; "" for none.
    [[nodiscard]] std::string snapshotExtension() const;

    /// A record of it, still without revisions. Nothing when the system has no randomness to give.
    [[nodiscard]] std::optional<DocumentRecord> newRecord(const PendingSignal& signal, std::string_view home) const;

    /// Adds it to its record as the latest revision, stored at `storedAt`.
    void addTo(DocumentRecord& record, const PendingSignal& signal, const std::string& storedAt) const;

private:
    [[nodiscard]] DocumentRevision revision(const PendingSignal& signal, const std::string& storedAt) const;
};

}  // namespace vellark
