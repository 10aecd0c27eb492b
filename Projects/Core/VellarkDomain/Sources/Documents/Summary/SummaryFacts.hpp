#pragma once

#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>

namespace vellark::SummaryFacts {

/// As `DocumentSummaryExtractor::facts`, for lines that are known to be prose.
[[nodiscard]] std::vector<std::string> factsOf(DocumentSummaryExtractor::Lines prose);

}  // namespace vellark::SummaryFacts
