#pragma once

#include <VellarkFoundation/Unicode/Regex.hpp>

#include <cstddef>
#include <optional>
#include <string_view>

/// Markup in brackets, found by hand: a bracket expression ends at the first closing bracket behind its start, so all
/// starts before one closing bracket fare alike, and each walk over a text is linear.
namespace vellark::SummaryLinks {

/// A piece of markup and the part of it that a reader sees, in bytes.
struct Markup {
    ByteRange range;
    ByteRange label;
};

/// One walk over the markup of a text, which must outlive it.
class Walk {
public:
    explicit Walk(std::string_view text) : text_(text), lastRound_(text.rfind(')')), lastAngle_(text.rfind('>')) {}

    std::optional<Markup> nextEmbed();       ///< "![[name]]" and "![text](target)"
    std::optional<Markup> nextWikiLink();    ///< "[[name]]"; the label is what follows the first "|"
    std::optional<Markup> nextInlineLink();  ///< "[label](target)"
    std::optional<Markup> nextTag();         ///< "<b>" and "</b>"
    std::optional<Markup> nextToken();       ///< a link or an embed of either form

private:
    struct Brackets {
        std::size_t start;
        std::size_t close;  // the first "]"
        std::size_t end;    // behind the whole
    };

    std::optional<Brackets> next(std::string_view single, std::string_view paired);
    std::optional<Markup> taken(ByteRange range, ByteRange label = {});

    std::string_view text_;
    std::size_t from_ = 0;
    std::size_t lastRound_;  // the last ")", or npos
    std::size_t lastAngle_;  // the last ">", or npos
};

using Next = std::optional<Markup> (Walk::*)();

}  // namespace vellark::SummaryLinks
