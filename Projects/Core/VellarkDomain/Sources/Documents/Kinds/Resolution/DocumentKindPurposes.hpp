#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>

#include <cstdint>
#include <map>
#include <vector>

namespace vellark {

/// What a library is mostly used for, learned from how many documents of each kind it holds.
namespace DocumentKindPurposes {

/// Fewer documents say nothing.
inline constexpr std::int64_t minimumDocuments = 12;

/// Of all documents, what a group needs to count as a purpose.
inline constexpr double share = 0.3;

using Counts = std::map<DocumentKind, std::int64_t>;

/// The groups with their share of the documents, the greatest first; the leading group alone when none has it but this
/// one a fifth. Conversations and documents without a kind do not count.
[[nodiscard]] std::vector<DocumentKindGroup> inferred(const Counts& from);

/// The kinds of which there are documents, in the order in which a filter lists them: those of the purposes first, and
/// the most frequent first among those of one rank, conversations after all others of it.
[[nodiscard]] std::vector<DocumentKind> filterOrder(const Counts& counts,
                                                    const std::vector<DocumentKindGroup>& purposes);

}  // namespace DocumentKindPurposes

}  // namespace vellark
