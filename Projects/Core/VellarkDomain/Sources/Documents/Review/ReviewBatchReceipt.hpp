#pragma once

#include <VellarkDomain/Documents/Review/LaterSchedule.hpp>
#include <VellarkDomain/Documents/Review/ReviewState.hpp>

#include <map>
#include <optional>
#include <string>

namespace vellark {

/// Which file a batch change was made from, told apart from every later one.
struct ReviewSnapshotFingerprint {
    std::string sha256;   ///< digest of the content
    std::string mtimeNs;  ///< modification time in nanoseconds
    std::string inode;

    bool operator==(const ReviewSnapshotFingerprint&) const = default;
};

template <class Fields>
void describe(Fields& fields, ReviewSnapshotFingerprint& fingerprint) {
    fields.required("sha256", fingerprint.sha256);
    fields.required("mtimeNs", fingerprint.mtimeNs);
    fields.required("inode", fingerprint.inode);
}

/// One change of many documents at once, with what is needed to take it back.
struct ReviewBatchReceipt {
    ReviewState savedState = ReviewState::unread;                           ///< what the documents were set to
    std::map<std::string, std::optional<ReviewState>> previousStates;       ///< by document; null where there was none
    ReviewSnapshotFingerprint fingerprint;                                  ///< the file that the change was made from
    std::optional<std::map<std::string, LaterSchedule>> previousSchedules;  ///< by document

    bool operator==(const ReviewBatchReceipt&) const = default;
};

template <class Fields>
void describe(Fields& fields, ReviewBatchReceipt& receipt) {
    fields.required("savedState", receipt.savedState);
    fields.required("previousStates", receipt.previousStates);
    fields.required("fingerprint", receipt.fingerprint);
    fields.optional("previousSchedules", receipt.previousSchedules);
}

}  // namespace vellark
