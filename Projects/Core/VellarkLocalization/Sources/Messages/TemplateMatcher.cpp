#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Messages/TemplateMatcher.hpp>

#include <algorithm>
#include <cstdint>

// A lazy expression tries for its first capture the shortest text first, for each of these the shortest second one, and
// so on. Tried in that order by backtracking, three placeholders cost the cube of the text's length. But whether the
// rest of the template fits depends only on the place where it begins. So a table, filled from the last placeholder to
// the first and from the end of the text to its start, says for each placeholder and each place where it may begin how
// soon it can end; reading it forwards gives the lazy captures.

namespace vellark::TemplateMatcher {

namespace {

bool isLineEnd(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

// The necessary test in front of the table: the literals stand in the text in their order, the first at its start and
// the last at one of its ends.
bool holdsLiterals(std::span<const std::string> literals, std::string_view text, Ends ends) {
    const std::string& last = literals.back();
    if (!text.starts_with(literals.front())) return false;
    if (!text.ends_with(last) && !text.substr(0, ends.beforeLineEnd).ends_with(last)) return false;
    std::size_t offset = literals.front().size();
    for (const std::string& literal : literals.subspan(1)) {
        offset = text.find(literal, offset);
        if (offset == std::string_view::npos) return false;
        offset += literal.size();
    }
    return true;
}

class Table {
public:
    Table(std::span<const std::string> literals, std::string_view text, Ends ends)
        : literals_(literals.subspan(1)), text_(text), ends_(ends) {
        const std::size_t start = literals.front().size();
        for (Scalars::Iterator scalar(text, start), end(text, text.size()); scalar != end; ++scalar) {
            offsets_.push_back(static_cast<std::uint32_t>(scalar.offset()));
            lineEnds_.push_back(isLineEnd(*scalar));
        }
        offsets_.push_back(static_cast<std::uint32_t>(text.size()));
        findReaches();
        soonest_.resize(literals_.size() * offsets_.size(), never);
        for (std::size_t placeholder = literals_.size(); placeholder-- > 0;) {
            fillRow(placeholder);
        }
    }

    [[nodiscard]] std::optional<std::vector<std::string_view>> captures() const {
        if (!fits(0, 0)) return std::nullopt;
        std::vector<std::string_view> found;
        std::size_t place = 0;
        for (std::size_t placeholder = 0; placeholder < literals_.size(); ++placeholder) {
            const std::size_t stop = soonest(placeholder, place);
            found.push_back(text_.substr(offsets_[place], offsets_[stop] - offsets_[place]));
            place = placeBehind(placeholder, stop);
        }
        return found;
    }

private:
    static constexpr std::uint32_t never = UINT32_MAX;

    // Places are numbers of scalars behind the first literal. A placeholder that begins at a place may end at most at
    // its reach: at the next line end, or where it has its full length.
    void findReaches() {
        reaches_.resize(offsets_.size());
        std::size_t lineEnd = lineEnds_.size();
        for (std::size_t place = offsets_.size(); place-- > 0;) {
            if (place < lineEnds_.size() && lineEnds_[place]) lineEnd = place;
            reaches_[place] = static_cast<std::uint32_t>(std::min(lineEnd, place + maximumCaptureScalars));
        }
    }

    void fillRow(std::size_t placeholder) {
        std::uint32_t next = never;
        for (std::size_t place = offsets_.size(); place-- > 0;) {
            if (continues(placeholder, place)) next = static_cast<std::uint32_t>(place);
            soonest_[placeholder * offsets_.size() + place] = next;
        }
    }

    // The literal behind the placeholder stands at the place, and what follows it fits.
    [[nodiscard]] bool continues(std::size_t placeholder, std::size_t place) const {
        const std::string& literal = literals_[placeholder];
        const std::size_t offset = offsets_[place];
        if (!text_.substr(offset).starts_with(literal)) return false;
        if (placeholder + 1 == literals_.size()) {
            const std::size_t end = offset + literal.size();
            return end == ends_.end || end == ends_.beforeLineEnd;
        }
        return fits(placeholder + 1, placeBehind(placeholder, place));
    }

    [[nodiscard]] bool fits(std::size_t placeholder, std::size_t place) const {
        const std::size_t stop = soonest(placeholder, place);
        return stop != never && stop <= reaches_[place];
    }

    [[nodiscard]] std::size_t soonest(std::size_t placeholder, std::size_t place) const {
        return soonest_[placeholder * offsets_.size() + place];
    }

    [[nodiscard]] std::size_t placeBehind(std::size_t placeholder, std::size_t place) const {
        return place + UTF8::scalarCount(literals_[placeholder]);
    }

    std::span<const std::string> literals_;  // the one behind each placeholder
    std::string_view text_;
    Ends ends_;
    std::vector<std::uint32_t> offsets_;  // in bytes, of each place
    std::vector<bool> lineEnds_;
    std::vector<std::uint32_t> reaches_;
    std::vector<std::uint32_t> soonest_;  // a row for each placeholder
};

}  // namespace

Ends endsOf(std::string_view text) {
    Ends ends{text.size(), text.size()};
    if (text.empty()) return ends;
    const std::size_t last = UTF8::previousOffset(text, text.size());
    if (isLineEnd(UTF8::decode(text, last).scalar)) ends.beforeLineEnd = text.ends_with("\r\n") ? last - 1 : last;
    return ends;
}

std::optional<std::vector<std::string_view>> captures(std::span<const std::string> literals, std::string_view text) {
    const Ends ends = endsOf(text);
    if (!holdsLiterals(literals, text, ends)) return std::nullopt;
    return Table(literals, text, ends).captures();
}

}  // namespace vellark::TemplateMatcher
