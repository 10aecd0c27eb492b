// The rules of Unicode's text segmentation for extended clusters, as ICU 72 states them: a table says for each pair of
// neighbours whether they always stay together, and three small states decide the rest (an emoji before a joiner, a
// consonant before a virama, an odd number of regional indicators). Most boundaries need two loads and one bit test;
// ASCII needs none but for CR LF. Cost: one pass, whatever the text.

#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/ScalarData.hpp>

#include <algorithm>
#include <array>
#include <cstring>
#include <initializer_list>
#include <limits>

namespace vellark {

namespace {

using ScalarData::Break;

constexpr std::uint32_t bit(Break value) {
    return 1U << static_cast<unsigned>(value);
}

constexpr std::uint32_t bits(std::initializer_list<Break> values) {
    std::uint32_t result = 0;
    for (const Break value : values)
        result |= bit(value);
    return result;
}

constexpr std::size_t breakCount = static_cast<std::size_t>(Break::linkingConsonant) + 1;
constexpr std::uint32_t allBreaks = (1U << breakCount) - 1;
constexpr std::uint32_t controls = bits({Break::control, Break::carriageReturn, Break::lineFeed});
constexpr std::uint32_t joining =
    bits({Break::extend, Break::linkingExtend, Break::virama, Break::zeroWidthJoiner, Break::spacingMark});

// By the scalar before: the scalars that never begin a character behind it.
constexpr auto staysTogether = [] {
    std::array<std::uint32_t, breakCount> table{};
    for (std::size_t before = 0; before < breakCount; ++before) {
        const bool isControl = (controls >> before & 1U) != 0;
        table[before] = isControl ? 0 : joining;
    }
    const auto also = [&table](Break before, std::uint32_t after) { table[static_cast<std::size_t>(before)] |= after; };
    also(Break::carriageReturn, bit(Break::lineFeed));
    also(Break::prepend, allBreaks & ~controls);
    also(Break::leading, bits({Break::leading, Break::vowel, Break::syllable, Break::closedSyllable}));
    also(Break::vowel, bits({Break::vowel, Break::trailing}));
    also(Break::syllable, bits({Break::vowel, Break::trailing}));
    also(Break::trailing, bit(Break::trailing));
    also(Break::closedSyllable, bit(Break::trailing));
    return table;
}();

constexpr std::uint32_t undecided = bits({Break::regionalIndicator, Break::pictograph, Break::linkingConsonant});

// One character while it grows: what the pair table cannot know.
class Cluster {
public:
    explicit Cluster(Break first) : last_(first) { remember(first); }

    // Whether the next scalar belongs to the character; if so, it is taken in.
    bool takes(Break next) {
        const bool joins = (staysTogether[static_cast<std::size_t>(last_)] & bit(next)) != 0 ||
                           ((undecided & bit(next)) != 0 && joinsByState(next));
        if (!joins) return false;
        remember(next);
        last_ = next;
        return true;
    }

private:
    bool joinsByState(Break next) const {
        switch (next) {
            case Break::regionalIndicator:
                return last_ == Break::regionalIndicator && oddIndicators_;
            case Break::pictograph:
                return last_ == Break::zeroWidthJoiner && pictograph_;
            default:
                return conjunct_ == Conjunct::linked;
        }
    }

    void remember(Break next) {
        oddIndicators_ = next == Break::regionalIndicator && !oddIndicators_;
        pictograph_ =
            next == Break::pictograph || (pictograph_ && last_ != Break::zeroWidthJoiner && isExtending(next));
        rememberConjunct(next);
    }

    static bool isExtending(Break value) {
        constexpr auto extending = bits({Break::extend, Break::linkingExtend, Break::virama, Break::zeroWidthJoiner});
        return (extending & bit(value)) != 0;
    }

    void rememberConjunct(Break next) {
        switch (next) {
            case Break::linkingConsonant:
                conjunct_ = Conjunct::consonant;
                return;
            case Break::virama:
                if (conjunct_ != Conjunct::none) conjunct_ = Conjunct::linked;
                return;
            case Break::linkingExtend:
            case Break::zeroWidthJoiner:
                return;
            default:
                conjunct_ = Conjunct::none;
        }
    }

    enum class Conjunct { none, consonant, linked };

    Break last_;
    Conjunct conjunct_ = Conjunct::none;
    bool oddIndicators_ = false;
    bool pictograph_ = false;  // a pictograph, extending marks and at most one joiner, which is last, end the character
};

bool isASCIIByte(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// Bytes from `start` on that are one character each and are followed by such a byte or by the end: ASCII but for a
// carriage return, and not the last one before a multi-byte scalar, which may be a mark on it.
std::size_t plainBytes(std::string_view text, std::size_t start, std::size_t limit) {
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t tops = 0x8080808080808080U;
    constexpr std::uint64_t returns = ones * '\r';
    const std::size_t bound = limit < text.size() - start ? start + limit : text.size();
    std::size_t end = start;
    while (end + sizeof(std::uint64_t) <= bound) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + end, sizeof word);
        const std::uint64_t difference = word ^ returns;
        if (((word | ((difference - ones) & ~difference)) & tops) != 0) break;
        end += sizeof word;
    }
    while (end < bound && isASCIIByte(text[end]) && text[end] != '\r')
        ++end;
    if (end > start && end < text.size() && !isASCIIByte(text[end])) --end;
    return end - start;
}

}  // namespace

namespace GraphemeBreak {

std::size_t next(std::string_view text, std::size_t start) {
    const auto first = UTF8::decode(text, start);
    std::size_t end = start + first.byteCount;
    if (end < text.size() && first.scalar < 0x80 && first.scalar != '\r' && isASCIIByte(text[end])) return end;
    Cluster cluster(ScalarData::breakOf(first.scalar));
    while (end < text.size()) {
        const auto following = UTF8::decode(text, end);
        if (!cluster.takes(ScalarData::breakOf(following.scalar))) break;
        end += following.byteCount;
    }
    return end;
}

namespace {

struct Walk {
    std::size_t bytes = 0;
    std::size_t characters = 0;
};

Walk walk(std::string_view text, std::size_t limit) {
    Walk done;
    while (done.bytes < text.size() && done.characters < limit) {
        const std::size_t plain = plainBytes(text, done.bytes, limit - done.characters);
        done.bytes += plain;
        done.characters += plain;
        if (done.bytes == text.size() || done.characters == limit) break;
        done.bytes = next(text, done.bytes);
        ++done.characters;
    }
    return done;
}

}  // namespace

std::size_t count(std::string_view text) {
    return walk(text, std::numeric_limits<std::size_t>::max()).characters;
}

std::string_view prefix(std::string_view text, std::size_t limit) {
    return text.substr(0, walk(text, limit).bytes);
}

bool exceeds(std::string_view text, std::size_t limit) {
    return text.size() > limit && walk(text, limit).bytes < text.size();
}

bool startsWith(std::string_view text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    return prefix.empty() || next(text, prefix.size() - 1) == prefix.size();
}

}  // namespace GraphemeBreak

Graphemes::Graphemes(std::string_view text)
    : text_(text), plain_(UTF8::isASCII(text) && text.find('\r') == std::string_view::npos) {}

void Graphemes::walkToCharacter(std::size_t index) const {
    while (walked_ < text_.size() && starts_.size() <= index) {
        starts_.push_back(static_cast<std::uint32_t>(walked_));
        walked_ = GraphemeBreak::next(text_, walked_);
    }
}

void Graphemes::walkToByte(std::size_t byte) const {
    while (walked_ < text_.size() && walked_ <= byte) {
        starts_.push_back(static_cast<std::uint32_t>(walked_));
        walked_ = GraphemeBreak::next(text_, walked_);
    }
}

std::size_t Graphemes::count() const {
    if (plain_) return text_.size();
    walkToByte(text_.size());
    return starts_.size();
}

bool Graphemes::exceeds(std::size_t limit) const {
    if (plain_ || text_.size() <= limit) return text_.size() > limit;
    walkToCharacter(limit);
    return starts_.size() > limit;
}

std::size_t Graphemes::byteOffset(std::size_t index) const {
    if (plain_) return std::min(index, text_.size());
    walkToCharacter(index);
    return index < starts_.size() ? starts_[index] : text_.size();
}

std::size_t Graphemes::characterAt(std::size_t byte) const {
    if (byte >= text_.size()) return count();
    if (plain_) return byte;
    walkToByte(byte);
    const auto behind = std::upper_bound(starts_.begin(), starts_.end(), byte);
    return static_cast<std::size_t>(behind - starts_.begin()) - 1;
}

std::size_t Graphemes::roundedUp(std::size_t byte) const {
    if (byte == 0) return 0;
    return characterAt(byte - 1) + (byte <= text_.size() ? 1 : 0);
}

std::string_view Graphemes::operator[](std::size_t index) const {
    return slice(index, index + 1);
}

std::string_view Graphemes::slice(std::size_t first, std::size_t last) const {
    const std::size_t start = byteOffset(first);
    const std::size_t end = last <= first ? start : byteOffset(last);
    return text_.substr(start, end - start);
}

}  // namespace vellark
