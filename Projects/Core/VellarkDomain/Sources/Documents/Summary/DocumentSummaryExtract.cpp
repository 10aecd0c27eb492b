#include <VellarkDomain/Documents/Summary/DocumentSummaryExtract.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>

#include <algorithm>

namespace vellark {

namespace {

constexpr std::size_t maximumPointCount = 3;

struct Choice {
    std::string headline;
    std::vector<std::string> list;
};

// Headings tell more than the first list does; a document without them opens with its first list item.
Choice choose(const DocumentSummaryExtract& extract, std::span<const std::string> headings) {
    if (!headings.empty()) return {extract.summary, {headings.begin(), headings.end()}};
    if (extract.items.size() < 2) return {extract.summary, {}};
    return {DocumentSummaryExtractor::cut(extract.items.front(), DocumentSummaryExtractor::summaryLength),
            {extract.items.begin() + 1, extract.items.end()}};
}

bool holds(const std::vector<std::string>& list, const std::string& text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

}  // namespace

DocumentSummary DocumentSummaryExtract::fallback(std::span<const std::string> offeredHeadings) const {
    using namespace DocumentSummaryExtractor;
    auto [headline, list] = choose(*this, offeredHeadings);
    for (std::string& entry : list)
        entry = cut(entry, summaryLength);

    std::vector<std::string> kept;
    const std::string stated = headline + " " + conclusion.value_or("");
    std::copy_if(facts.begin(), facts.end(), std::back_inserter(kept),
                 [&](const std::string& fact) { return !isFact(fact, stated); });
    if (conclusion) {
        if (!isConclusion(*conclusion, headline)) kept.insert(kept.begin(), *conclusion);
        std::erase_if(list, [](const std::string& entry) { return isConclusionName(entry); });
    }
    if (headline.empty() && !kept.empty()) {
        headline = kept.front();
        kept.erase(kept.begin());
        std::erase(list, headline);
    }

    std::vector<std::string> points = kept;
    std::copy_if(list.begin(), list.end(), std::back_inserter(points),
                 [&](const std::string& entry) { return !holds(kept, entry); });
    if (points.size() > maximumPointCount) points.resize(maximumPointCount);
    return {.headline = std::move(headline), .points = std::move(points), .change = {}, .kind = {}};
}

}  // namespace vellark
