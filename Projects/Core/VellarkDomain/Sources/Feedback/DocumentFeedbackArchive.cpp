#include <VellarkDomain/Feedback/DocumentFeedbackArchive.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace vellark {

namespace {

using Requests = std::map<std::string, DocumentFeedbackRequest>;

std::vector<DocumentFeedbackNote> keptNotes(const std::vector<DocumentFeedbackNote>& notes) {
    std::vector<const DocumentFeedbackNote*> kept;
    std::unordered_set<std::string_view> identifiers;
    for (const DocumentFeedbackNote& note : notes) {
        if (note.isValid() && identifiers.insert(note.id).second) kept.push_back(&note);
    }
    const std::size_t surplus = kept.size() - std::min(kept.size(), DocumentFeedbackArchive::maximumNotes);
    std::vector<DocumentFeedbackNote> result;
    result.reserve(kept.size() - surplus);
    for (std::size_t index = surplus; index < kept.size(); ++index)
        result.push_back(*kept[index]);
    return result;
}

double moment(const DocumentFeedbackRequest& request) {
    const double seconds = request.sentAt.secondsSince1970;
    return std::isnan(seconds) ? -std::numeric_limits<double>::infinity() : seconds;
}

Requests keptRequests(const Requests& requests) {
    std::vector<Requests::const_pointer> kept;
    for (const auto& entry : requests) {
        if (entry.first == entry.second.documentID && !entry.second.revisionID.empty()) kept.push_back(&entry);
    }
    if (kept.size() > DocumentFeedbackArchive::maximumRequests) {
        const auto isNewer = [](Requests::const_pointer left, Requests::const_pointer right) {
            const double leftMoment = moment(left->second);
            const double rightMoment = moment(right->second);
            return leftMoment != rightMoment ? leftMoment > rightMoment : left->first < right->first;
        };
        const auto end = kept.begin() + DocumentFeedbackArchive::maximumRequests;
        std::nth_element(kept.begin(), end, kept.end(), isNewer);
        kept.erase(end, kept.end());
    }
    Requests result;
    for (const auto* entry : kept)
        result.insert(*entry);
    return result;
}

}  // namespace

DocumentFeedbackArchive DocumentFeedbackArchive::validated() const {
    return {.version = currentVersion, .notes = keptNotes(notes), .requests = keptRequests(requests)};
}

}  // namespace vellark
