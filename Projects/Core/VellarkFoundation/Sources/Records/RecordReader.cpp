#include <VellarkFoundation/Records/RecordReader.hpp>

#include <unordered_set>

namespace vellark {

bool RecordReader::dropRepeatedKeys() {
    std::unordered_set<std::string_view> seen;
    seen.reserve(size());
    Members kept;
    for (std::size_t index = context_.members_.size(); index > first_; --index) {
        const auto& member = context_.members_[index - 1];
        if (seen.insert(member.key).second) kept.push_back(member);
    }
    if (kept.size() == size()) return false;
    context_.members_.erase(begin(), context_.members_.end());
    context_.members_.insert(context_.members_.end(), kept.rbegin(), kept.rend());
    next_ = 0;
    foundCount_ = 0;
    return true;
}

}  // namespace vellark
