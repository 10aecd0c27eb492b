#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGuess.hpp>

#include <algorithm>

namespace vellark {

std::optional<DocumentKind> DocumentKindGuess::kind(const std::set<DocumentKindGroup>& preferring) const {
    if (!decided) {
        const auto isPreferred = [&](DocumentKind kind) {
            const auto group = DocumentKinds::group(kind);
            return group && preferring.contains(*group);
        };
        const auto found = std::ranges::find_if(candidates, isPreferred);
        if (found != candidates.end()) return *found;
    }
    if (candidates.empty() || candidates.front() == DocumentKind::other) return std::nullopt;
    return candidates.front();
}

}  // namespace vellark
