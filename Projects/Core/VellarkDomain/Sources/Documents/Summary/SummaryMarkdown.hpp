#pragma once

#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>

#include <cstddef>

namespace vellark::SummaryMarkdown {

/// The first paragraph or the first list, whichever comes first; of a paragraph no more than so many lines.
[[nodiscard]] DocumentSummaryExtractor::Prose opening(DocumentSummaryExtractor::Lines lines,
                                                      std::size_t maximumLineCount);

}  // namespace vellark::SummaryMarkdown
