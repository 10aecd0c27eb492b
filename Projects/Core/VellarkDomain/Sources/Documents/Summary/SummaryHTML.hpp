#pragma once

#include <VellarkDomain/Documents/Summary/DocumentSummaryExtract.hpp>

#include <string_view>

namespace vellark::SummaryHTML {

/// The digest of a page: its description or first paragraph, its second-level headings, its text, and the facts and the
/// conclusion of its lines, where a table row is a line with "|" between the cells. The page must be well-formed UTF-8.
[[nodiscard]] DocumentSummaryExtract extract(std::string_view page, bool isComplete);

}  // namespace vellark::SummaryHTML
