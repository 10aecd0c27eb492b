#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/ScalarProperties.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <memory>
#include <optional>

// One pass over the bytes. Each scalar is emitted, emitted lower-case, dropped, or parts two words; below U+3000 a
// table says which, so that only rare scalars ask for Unicode's data. A text with combining marks is first composed as
// a whole, which is found out on the way: the pass then begins anew.

namespace vellark {

namespace {

// What becomes of a scalar: itself or its lower-case form, or one of these, which no scalar lowers to.
constexpr char32_t parts = 0x11'0000;     // parts two words
constexpr char32_t vanishes = 0x11'0001;  // leaves nothing behind
constexpr char32_t several = 0x11'0002;   // has a lower-case form of several scalars

constexpr char32_t tableSize = 0x3000;

constexpr char32_t asciiFate(char32_t scalar) {
    if (scalar >= U'A' && scalar <= U'Z') return scalar | 0x20;
    if (scalar >= U'a' && scalar <= U'z') return scalar;
    if (scalar == U'\'' || (scalar >= U'0' && scalar <= U'9')) return vanishes;
    return parts;
}

std::string lowered(char32_t scalar) {
    std::string text;
    UTF8::append(text, scalar);
    return UnicodeCase::lower(text);
}

char32_t computedFate(char32_t scalar) {
    constexpr char32_t katakanaMiddleDot = 0x30FB;
    constexpr char32_t rightSingleQuote = 0x2019;
    if (scalar >= 0xFF01 && scalar <= 0xFF5E) return asciiFate(scalar - 0xFEE0);
    if (scalar < 0x80) return asciiFate(scalar);
    if (scalar == rightSingleQuote) return vanishes;
    if (scalar == katakanaMiddleDot) return parts;
    if (ScalarClasses::isJoining(scalar)) return scalar;
    if (ScalarProperties::isDecimalDigit(scalar)) return vanishes;
    if (!ScalarProperties::isAlphabetic(scalar) && !ScalarProperties::isNonspacingOrSpacingMark(scalar)) return parts;
    const std::string lower = lowered(scalar);
    const auto first = UTF8::decode(lower, 0);
    return first.byteCount == lower.size() ? first.scalar : several;
}

const std::array<char32_t, tableSize>& fateTable() {
    static const auto table = [] {
        auto fates = std::make_unique<std::array<char32_t, tableSize>>();
        for (char32_t scalar = 0; scalar < tableSize; ++scalar) {
            (*fates)[scalar] = computedFate(scalar);
        }
        return fates;
    }();
    return *table;
}

constexpr std::uint64_t repeated(std::uint64_t byte) {
    return byte * 0x0101'0101'0101'0101;
}

// Eight bytes that are ASCII letters and blanks, no two of the blanks side by side, in lower case; nothing for others.
// Sums stay inside their bytes, as all are below 0x80.
std::optional<std::uint64_t> loweredLetters(std::uint64_t bytes) {
    constexpr std::uint64_t high = repeated(0x80);
    if ((bytes & high) != 0) return std::nullopt;
    const std::uint64_t lower = bytes | repeated(0x20);
    const std::uint64_t letters = (lower + repeated(0x80 - 'a')) & ~(lower + repeated(0x80 - 'z' - 1)) & high;
    const std::uint64_t blanks = ~((bytes ^ repeated(' ')) + repeated(0x7F)) & high;
    if ((letters | blanks) != high || (blanks & (blanks << 8)) != 0) return std::nullopt;
    return lower;
}

// A mark that a composed form may take in, or a part of a Korean syllable.
bool mayCompose(char32_t scalar) {
    return (scalar >= 0x300 && scalar <= 0x36F) || (scalar >= 0x1100 && scalar <= 0x11FF) || scalar == 0x3099 ||
           scalar == 0x309A;
}

class Normalizer {
public:
    // `result` has room for a scalar for each byte: no scalar becomes more scalars than it has bytes, and a blank
    // stands for at least one byte that is gone.
    Normalizer(std::string_view text, char32_t* result) : text_(text), start_(result), next_(result) {}

    // False when the text must be composed first, which is asked only where it matters.
    bool run(bool isComposed) {
        const auto& fates = fateTable();
        for (std::size_t offset = 0; offset < text_.size();) {
            const auto lead = static_cast<unsigned char>(text_[offset]);
            if (lead < 0x80) {
                offset = emitASCII(fates, offset);
                continue;
            }
            const UTF8::Decoded decoded = decode(offset);
            if (!isComposed && mayCompose(decoded.scalar)) return false;
            offset += decoded.byteCount;
            emit(fate(fates, decoded.scalar), decoded.scalar);
        }
        return true;
    }

    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(next_ - start_); }

private:
    // Sequences of three bytes whose lead alone tells that they are well-formed when continuation bytes follow: most of
    // Korean, Japanese and Chinese.
    [[nodiscard]] UTF8::Decoded decode(std::size_t offset) const {
        const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text_[offset + index]); };
        const unsigned lead = byteAt(0);
        if (lead > 0xE0 && lead < 0xED && offset + 2 < text_.size()) {
            const unsigned second = byteAt(1);
            const unsigned third = byteAt(2);
            if ((second & 0xC0) == 0x80 && (third & 0xC0) == 0x80) {
                return {(lead & 0xF) << 12 | (second & 0x3F) << 6 | (third & 0x3F), 3, true};
            }
        }
        if (lead >= 0xC2 && lead < 0xE0 && offset + 1 < text_.size() && (byteAt(1) & 0xC0) == 0x80) {
            return {(lead & 0x1F) << 6 | (byteAt(1) & 0x3FU), 2, true};
        }
        return UTF8::decodeMultibyte(text_, offset);
    }

    static char32_t fate(const std::array<char32_t, tableSize>& fates, char32_t scalar) {
        if (scalar < tableSize) return fates[scalar];
        if (ScalarClasses::isHangulSyllable(scalar)) return scalar;
        return computedFate(scalar);
    }

    // Emits the next ASCII bytes, up to eight; the offset behind them. Bytes that are not all letters and blanks are
    // taken one by one as long as they are ASCII, before eight are tried again.
    std::size_t emitASCII(const std::array<char32_t, tableSize>& fates, std::size_t offset) {
        constexpr std::size_t most = 8;
        if (text_.size() - offset >= most && emitLetters(offset)) return offset + most;
        const std::size_t end = std::min(offset + most, text_.size());
        for (; offset < end; ++offset) {
            const auto byte = static_cast<unsigned char>(text_[offset]);
            if (byte >= 0x80) break;
            emit(fates[byte], byte);
        }
        return offset;
    }

    // Eight letters and blanks at once, of which a letter is the first.
    bool emitLetters(std::size_t offset) {
        std::array<unsigned char, 8> bytes;
        std::memcpy(bytes.data(), text_.data() + offset, bytes.size());
        const auto lower = loweredLetters(std::bit_cast<std::uint64_t>(bytes));
        if (!lower || bytes.front() == ' ') return false;
        if (isParted_) separate();
        bytes = std::bit_cast<std::array<unsigned char, 8>>(*lower);
        for (std::size_t index = 0; index < bytes.size(); ++index) {
            next_[index] = bytes[index];
        }
        isParted_ = bytes.back() == ' ';
        next_ += isParted_ ? 7 : 8;
        return true;
    }

    void emit(char32_t fate, char32_t scalar) {
        if (fate < parts) {
            if (isParted_) separate();
            *next_++ = fate;
        } else if (fate == parts) {
            isParted_ = true;
        } else if (fate == several) {
            if (isParted_) separate();
            const std::string text = lowered(scalar);
            for (const char32_t one : Scalars(text)) {
                *next_++ = one;
            }
        }
    }

    void separate() {
        isParted_ = false;
        if (next_ != start_) *next_++ = U' ';
    }

    std::string_view text_;
    char32_t* start_;
    char32_t* next_;
    bool isParted_ = false;
};

bool normalizeInto(std::u32string& result, std::string_view text, bool isComposed) {
    result.resize(text.size());
    Normalizer normalizer(text, result.data());
    const bool finished = normalizer.run(isComposed);
    result.resize(normalizer.size());
    return finished;
}

}  // namespace

void DocumentKindMatcher::normalize(std::string_view text, std::u32string& result) {
    if (!normalizeInto(result, text, false)) normalizeInto(result, Normalization::nfc(text), true);
}

std::u32string DocumentKindMatcher::normalize(std::string_view text) {
    std::u32string result;
    normalize(text, result);
    return result;
}

}  // namespace vellark
