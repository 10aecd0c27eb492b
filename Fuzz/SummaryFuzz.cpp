#include "FuzzTarget.hpp"
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

using namespace vellark;

// The first byte picks the format; what follows is the document. Its digest keeps within all limits and is the same
// when it is made again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const DocumentContentFormat formats[] = {DocumentContentFormat::markdown(), DocumentContentFormat::html(),
                                             DocumentContentFormat::code("plaintext")};
    const auto& format = formats[data[0] % 3];
    const std::string_view text = fuzz::text(data + 1, size - 1);
    const auto digest = DocumentSummaryExtractor::extract(text, format, (data[0] & 4) == 0);
    // A cut keeps its limit and adds an ellipsis; it moves by at most a number's rest to keep that number whole.
    const auto fits = [](std::string_view part, std::size_t limit) {
        return !GraphemeBreak::exceeds(part, limit + 25);
    };
    fuzz::require(fits(digest.summary, DocumentSummaryExtractor::summaryLength), "the summary is short");
    fuzz::require(digest.headings.size() <= 3 && digest.items.size() <= 3, "few headings and items");
    fuzz::require(digest.facts.size() <= 2, "at most two facts");
    for (const std::string& fact : digest.facts)
        fuzz::require(fits(fact, 121), "a fact is short");
    fuzz::require(fits(digest.conclusion.value_or(""), 120), "the conclusion is one sentence");
    fuzz::require(digest == DocumentSummaryExtractor::extract(text, format, (data[0] & 4) == 0), "always the same");
    const auto shown = digest.fallback(digest.headings);
    fuzz::require(shown.points.size() <= 3, "at most three points");
    return 0;
}
