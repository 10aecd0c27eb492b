#pragma once

#include <VellarkDomain/Documents/Summary/SummaryExpression.hpp>

#include <optional>

namespace vellark {

/// The expressions that recognise sums of money, totals and due dates in eleven languages. Compiled at the first use;
/// immutable.
struct FactPattern {
    SummaryExpression amount;          ///< a sum of money
    SummaryExpression totalValue;      ///< what may stand behind a total label: also bare numbers
    SummaryExpression statedValue;     ///< what a fact may state: a sum, or a grouped number that counts no things
    SummaryExpression totalLabel;      ///< a total label at the end of a text
    SummaryExpression totalStart;      ///< a total label with its colon at the start
    SummaryExpression deadlineLine;    ///< a due date with its label
    SummaryExpression deadlineCell;    ///< a deadline label at the end of a table cell
    SummaryExpression wikiAlias;       ///< a wiki link whose "|" is no column of a table
    SummaryExpression notValueText;    ///< code, links, struck text and mathematics
    SummaryExpression multiplication;  ///< a star that means "times"
    std::optional<Regex> number;
    std::optional<Regex> numberWithUnit;
    std::optional<Regex> scale;     ///< a Chinese, Japanese or Korean power of ten
    std::optional<Regex> labelEnd;  ///< what separates a label from what it labels
    std::optional<Regex> cutGuard;  ///< what a cut must not split
    std::optional<Regex> sentenceEnd;

    [[nodiscard]] static const FactPattern& shared();
};

}  // namespace vellark
