#pragma once

#include <VellarkDomain/Documents/Summary/DocumentSummary.hpp>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vellark {

/// The raw digest of a text, from which the shown summary is made.
struct DocumentSummaryExtract {
    std::string summary;                    ///< the paragraph that stands for the document; may be empty
    std::vector<std::string> headings;      ///< the key headings, at most three
    std::string body;                       ///< the text that was read, without front matter
    std::vector<std::string> items;         ///< at most three; only when the document opens with a list
    std::vector<std::string> facts;         ///< at most two sums or due dates, in the writer's words
    std::optional<std::string> conclusion;  ///< what the document decides or advises, in one sentence

    /// The summary to show when nothing better than the text itself is at hand. `headings` are offered as points; the
    /// conclusion and the facts stand before them, unless the headline says the same already.
    [[nodiscard]] DocumentSummary fallback(std::span<const std::string> headings) const;

    bool operator==(const DocumentSummaryExtract&) const = default;
};

}  // namespace vellark
