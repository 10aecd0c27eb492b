#pragma once

#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>

namespace vellark::SummaryConclusion {

/// As `DocumentSummaryExtractor::conclusion`, for lines that are known to be prose.
[[nodiscard]] std::optional<std::string> conclusionOf(DocumentSummaryExtractor::Lines prose);

}  // namespace vellark::SummaryConclusion
