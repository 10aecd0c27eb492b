#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindPurposes.hpp>

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace vellark::DocumentKindPurposes {

namespace {

// Of all documents, what the leading group needs when no group has the full share.
constexpr double leadingShare = 0.2;

std::size_t rank(DocumentKind kind, const std::vector<DocumentKindGroup>& purposes) {
    const auto group = DocumentKinds::group(kind);
    if (!group) return purposes.size();
    return static_cast<std::size_t>(std::find(purposes.begin(), purposes.end(), *group) - purposes.begin());
}

}  // namespace

std::vector<DocumentKindGroup> inferred(const Counts& from) {
    std::map<DocumentKindGroup, std::int64_t> byGroup;
    std::int64_t total = 0;
    for (const auto& [kind, count] : from) {
        if (const auto group = DocumentKinds::group(kind)) {
            byGroup[*group] += count;
            total += count;
        }
    }
    if (total < minimumDocuments) return {};
    std::vector<DocumentKindGroup> groups;
    for (const auto& [group, count] : byGroup) {
        groups.push_back(group);
    }
    std::stable_sort(groups.begin(), groups.end(), [&byGroup](DocumentKindGroup left, DocumentKindGroup right) {
        return byGroup[left] > byGroup[right];
    });
    const auto holds = [&byGroup, total](DocumentKindGroup group, double part) {
        return static_cast<double>(byGroup[group]) >= static_cast<double>(total) * part;
    };
    const auto end =
        std::find_if_not(groups.begin(), groups.end(), [&](DocumentKindGroup group) { return holds(group, share); });
    if (end != groups.begin()) return {groups.begin(), end};
    if (holds(groups.front(), leadingShare)) return {groups.front()};
    return {};
}

std::vector<DocumentKind> filterOrder(const Counts& counts, const std::vector<DocumentKindGroup>& purposes) {
    std::vector<DocumentKind> kinds;
    for (const auto& [kind, count] : counts) {
        if (count >= 1 && kind != DocumentKind::other) kinds.push_back(kind);
    }
    const auto place = [&](DocumentKind kind) {
        return std::tuple(rank(kind, purposes), kind == DocumentKind::conversation, -counts.at(kind));
    };
    std::stable_sort(kinds.begin(), kinds.end(),
                     [&place](DocumentKind left, DocumentKind right) { return place(left) < place(right); });
    return kinds;
}

}  // namespace vellark::DocumentKindPurposes
