#include <VellarkDomain/Documents/Summary/SummaryLinks.hpp>

#include <algorithm>

namespace vellark::SummaryLinks {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool stands(std::string_view text, std::size_t offset, char byte) {
    return offset < text.size() && text[offset] == byte;
}

}  // namespace

// Links in brackets. `single` opens "[label](target)" and `paired` opens "[[name]]"; either may be empty.
std::optional<Walk::Brackets> Walk::next(std::string_view single, std::string_view paired) {
    const std::string_view opener = single.empty() ? paired : single;
    for (std::size_t from = from_;;) {
        const std::size_t start = text_.find(opener, from);
        if (start == npos) return std::nullopt;
        const std::size_t close = text_.find(']', start + opener.size());
        if (close == npos) return std::nullopt;
        if (!single.empty() && stands(text_, close + 1, '(') && lastRound_ != npos && lastRound_ > close + 1) {
            return Brackets{start, close, text_.find(')', close + 2) + 1};
        }
        if (!paired.empty() && stands(text_, close + 1, ']')) {
            const std::size_t found = text_.substr(0, close).find(paired, start);
            if (found != npos) return Brackets{found, close, close + 2};
        }
        from = close + 1;
    }
}

std::optional<Markup> Walk::taken(ByteRange range, ByteRange label) {
    from_ = range.end;
    return Markup{range, label};
}

std::optional<Markup> Walk::nextEmbed() {
    const auto found = next("![", "![[");
    if (!found) return std::nullopt;
    return taken({found->start, found->end});
}

std::optional<Markup> Walk::nextWikiLink() {
    const auto found = next("", "[[");
    if (!found) return std::nullopt;
    const std::size_t name = found->start + 2;
    const std::size_t bar = text_.substr(0, found->close).find('|', name);
    return taken({found->start, found->end}, {bar == npos ? name : bar + 1, found->close});
}

std::optional<Markup> Walk::nextInlineLink() {
    const auto found = next("[", "");
    if (!found) return std::nullopt;
    return taken({found->start, found->end}, {found->start + 1, found->close});
}

std::optional<Markup> Walk::nextTag() {
    if (lastAngle_ == npos) return std::nullopt;
    for (std::size_t start = text_.find('<', from_); start < lastAngle_; start = text_.find('<', start + 1)) {
        const std::size_t name = start + (stands(text_, start + 1, '/') ? 2 : 1);
        if (name < lastAngle_ && isLetter(text_[name])) return taken({start, text_.find('>', name) + 1});
    }
    return std::nullopt;
}

std::optional<Markup> Walk::nextToken() {
    const std::size_t from = from_;
    const auto found = next("[", "[[");
    if (!found) return std::nullopt;
    const bool isEmbed = found->start > from && text_[found->start - 1] == '!';
    return taken({found->start - (isEmbed ? 1 : 0), found->end});
}

}  // namespace vellark::SummaryLinks
