// Two parts. The filter looks at each pair of neighbouring bytes: a pair that stands in one of the patterns' fixed
// parts names that pattern, after a comparison with the whole fixed part. Scanners then find the exact ranges, pattern
// by pattern, jumping from one fixed part to the next.

#include <VellarkDomain/Conversations/Redaction/ByteClass.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretKeys.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretPatterns.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretScanner.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>

namespace vellark::SecretScanner {

namespace {

constexpr ByteClass alphanumeric("A-Za-z0-9");
constexpr ByteClass identifier("A-Za-z0-9_-");
constexpr ByteClass underscored("A-Za-z0-9_");
constexpr ByteClass dashed("A-Za-z0-9-");
constexpr ByteClass base64("A-Za-z0-9+/=");
constexpr ByteClass upperCase("A-Z0-9");
constexpr ByteClass armorLabel("A-Z0-9 ");
constexpr ByteClass credential("A-Za-z0-9._~+/-");
constexpr ByteClass letters("A-Za-z");
constexpr ByteClass blanks(" \t");

bool isAt(std::string_view text, std::size_t position, std::string_view piece) {
    return text.compare(position, piece.size(), piece) == 0;
}

bool isByteAt(std::string_view text, std::size_t position, char byte) {
    return position < text.size() && text[position] == byte;
}

// A fixed part of a pattern and the place of the pair in it by which the filter finds it: the rarest pair in prose,
// code and logs.
struct FixedPart {
    std::size_t pattern;
    std::string_view text;
    std::size_t pair;
};

constexpr FixedPart fixedParts[] = {
    {0, "-----BEGIN ", 4}, {1, "k_live_", 0}, {1, "k_test_", 0}, {2, "k-", 0},    {3, "whsec_", 4},
    {4, "ghp_", 2},        {4, "gho_", 2},    {4, "ghu_", 2},    {4, "ghs_", 2},  {4, "ghr_", 2},
    {5, "github_pat_", 5}, {6, "xoxa-", 1},   {6, "xoxb-", 1},   {6, "xoxp-", 1}, {6, "xoxo-", 1},
    {6, "xoxs-", 1},       {6, "xoxr-", 1},   {7, "npm_", 2},    {8, "ya29.", 1}, {9, "GOCSPX-", 5},
    {10, "AKIA", 1},       {11, "AIza", 1},   {12, "glpat-", 4}, {13, "hf_", 1},  {14, "eyJ", 1},
    {16, "Bearer", 0},     {16, "Basic", 0},  {16, "Token", 0},  {17, "://", 0},
};

// The word of pattern 15 is found in any case by this pair of its letters.
constexpr std::string_view authorization = "authorization";
constexpr std::size_t authorizationPair = 6;  // "iz"
constexpr std::size_t authorizationPattern = 15;

constexpr std::size_t pairIndex(char first, char second) {
    return static_cast<std::size_t>(static_cast<unsigned char>(first)) |
           static_cast<std::size_t>(static_cast<unsigned char>(second)) << 8;
}

constexpr char lowered(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

constexpr char uppered(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - ('a' - 'A')) : byte;
}

// A bit for each pair of bytes that begins something worth a look.
class PairFilter {
public:
    PairFilter() {
        for (const FixedPart& part : fixedParts)
            add(part.text[part.pair], part.text[part.pair + 1]);
        const char first = authorization[authorizationPair];
        const char second = authorization[authorizationPair + 1];
        for (const char one : {first, uppered(first)}) {
            for (const char other : {second, uppered(second)})
                add(one, other);
        }
        // What may stand between a secret's key and its sign, and the last letters of such keys.
        for (const char before : std::string_view("\"' \t_.-sdetnlySDETNLY")) {
            add(before, ':');
            add(before, '=');
        }
        for (std::size_t index = 0; index < std::size(fixedParts); ++index) {
            const FixedPart& part = fixedParts[index];
            partsByFirst_[static_cast<unsigned char>(part.text[part.pair])] |= 1U << index;
        }
    }

    /// A bit for each fixed part whose pair begins with the byte.
    [[nodiscard]] std::uint32_t parts(char first) const { return partsByFirst_[static_cast<unsigned char>(first)]; }

    [[nodiscard]] bool holds(char first, char second) const {
        const std::size_t index = pairIndex(first, second);
        return (bits_[index / 64] >> (index % 64) & 1U) != 0;
    }

private:
    void add(char first, char second) {
        const std::size_t index = pairIndex(first, second);
        bits_[index / 64] |= std::uint64_t{1} << (index % 64);
    }

    std::array<std::uint64_t, 1024> bits_{};
    std::array<std::uint32_t, 256> partsByFirst_{};
};

static_assert(std::size(fixedParts) <= 32);

bool equalsInAnyCase(std::string_view text, std::size_t position, std::string_view lower) {
    if (position + lower.size() > text.size()) return false;
    return std::equal(lower.begin(), lower.end(), text.begin() + static_cast<std::ptrdiff_t>(position),
                      [](char expected, char byte) { return lowered(byte) == expected; });
}

void noteFixedParts(std::string_view text, std::size_t position, std::uint32_t parts, Candidates& found) {
    for (; parts != 0; parts &= parts - 1) {
        const FixedPart& part = fixedParts[std::countr_zero(parts)];
        if (position >= part.pair && isAt(text, position - part.pair, part.text)) found.set(part.pattern);
    }
    if (position >= authorizationPair && lowered(text[position]) == authorization[authorizationPair] &&
        equalsInAnyCase(text, position - authorizationPair, authorization)) {
        found.set(authorizationPattern);
    }
}

std::vector<ByteRange> privateKeys(std::string_view text) {
    // The end of an armour line whose label begins at the position, when it names a private key.
    const auto lineEnd = [text](std::size_t label) -> std::optional<std::size_t> {
        const std::size_t end = armorLabel.runEnd(text, label);
        const std::string_view words = text.substr(label, end - label);
        if (!isAt(text, end, "-----")) return std::nullopt;
        if (!words.ends_with("PRIVATE KEY") && !words.ends_with("PRIVATE KEY BLOCK")) return std::nullopt;
        return end + 5;
    };
    constexpr std::string_view begin = "-----BEGIN ";
    constexpr std::string_view end = "-----END ";
    std::vector<ByteRange> result;
    for (std::size_t start = text.find(begin); start != std::string_view::npos;) {
        const auto opened = lineEnd(start + begin.size());
        if (!opened) {
            start = text.find(begin, start + 1);
            continue;
        }
        std::size_t stop = text.size();
        for (std::size_t place = text.find(end, *opened); place != std::string_view::npos;
             place = text.find(end, place + 1)) {
            if (const auto closed = lineEnd(place + end.size())) {
                stop = *closed;
                break;
            }
        }
        result.push_back({start, stop});
        start = text.find(begin, stop);
    }
    return result;
}

// A token of a fixed start, which no letter or digit stands before, and a run of at least so many bytes of a class.
struct TokenForm {
    std::size_t pattern;
    std::string_view start;
    const ByteClass* run;
    std::size_t least;
};

constexpr TokenForm tokenForms[] = {
    {1, "sk_live_", &alphanumeric, 8}, {1, "sk_test_", &alphanumeric, 8},
    {1, "rk_live_", &alphanumeric, 8}, {1, "rk_test_", &alphanumeric, 8},
    {1, "pk_live_", &alphanumeric, 8}, {1, "pk_test_", &alphanumeric, 8},
    {2, "sk-", &identifier, 16},       {2, "pk-", &identifier, 16},
    {2, "rk-", &identifier, 16},       {3, "whsec_", &base64, 16},
    {4, "ghp_", &alphanumeric, 20},    {4, "gho_", &alphanumeric, 20},
    {4, "ghu_", &alphanumeric, 20},    {4, "ghs_", &alphanumeric, 20},
    {4, "ghr_", &alphanumeric, 20},    {5, "github_pat_", &underscored, 20},
    {6, "xoxa-", &dashed, 10},         {6, "xoxb-", &dashed, 10},
    {6, "xoxp-", &dashed, 10},         {6, "xoxo-", &dashed, 10},
    {6, "xoxs-", &dashed, 10},         {6, "xoxr-", &dashed, 10},
    {7, "npm_", &alphanumeric, 20},    {8, "ya29.", &identifier, 20},
    {9, "GOCSPX-", &identifier, 16},   {10, "AKIA", &upperCase, 16},
    {11, "AIza", &identifier, 30},     {12, "glpat-", &identifier, 16},
    {13, "hf_", &alphanumeric, 24},    {14, "eyJ", &identifier, 8},
};

// End of the secret behind the start; nothing when the run is too short.
std::optional<std::size_t> tokenEnd(std::string_view text, const TokenForm& form, std::size_t runStart) {
    std::size_t end = form.run->runEnd(text, runStart);
    if (end - runStart < form.least) return std::nullopt;
    if (form.pattern == 10) {
        const bool isExact = end - runStart == form.least && (end == text.size() || !alphanumeric.holds(text[end]));
        return isExact ? std::optional(end) : std::nullopt;
    }
    if (form.pattern != 14) return end;
    for (int part = 0; part < 2; ++part) {
        if (!isByteAt(text, end, '.')) return std::nullopt;
        const std::size_t partStart = end + 1;
        end = form.run->runEnd(text, partStart);
        if (end - partStart < form.least) return std::nullopt;
    }
    return end;
}

std::vector<ByteRange> tokens(std::string_view text, std::size_t pattern) {
    std::vector<ByteRange> found;
    for (const TokenForm& form : tokenForms) {
        if (form.pattern != pattern) continue;
        for (std::size_t start = text.find(form.start); start != std::string_view::npos;) {
            const bool isInside = start > 0 && alphanumeric.holds(text[start - 1]);
            const auto end = isInside ? std::nullopt : tokenEnd(text, form, start + form.start.size());
            if (end) found.push_back({start, *end});
            start = text.find(form.start, end.value_or(start + 1));
        }
    }
    std::ranges::sort(found, {}, &ByteRange::start);
    std::vector<ByteRange> result;  // of those that overlap the first counts
    for (const ByteRange& range : found) {
        if (result.empty() || range.start >= result.back().end) result.push_back(range);
    }
    return result;
}

// The value of a header at the position: at least so many bytes of the class and the "=" behind them, when a byte of
// the marks stands among them or a "=" right behind.
std::optional<ByteRange> credentialAt(std::string_view text, std::size_t start, std::size_t least,
                                      const ByteClass& marks) {
    std::size_t end = credential.runEnd(text, start);
    if (end - start < least) return std::nullopt;
    const std::string_view run = text.substr(start, end - start);
    const bool isMarked = std::any_of(run.begin(), run.end(), [&marks](char byte) { return marks.holds(byte); });
    if (!isMarked && !isByteAt(text, end, '=')) return std::nullopt;
    while (isByteAt(text, end, '='))
        ++end;
    return ByteRange{start, end};
}

bool isQuoteAt(std::string_view text, std::size_t position) {
    return isByteAt(text, position, '"') || isByteAt(text, position, '\'');
}

// The value behind the word that ends at the position.
std::optional<ByteRange> authorizationValue(std::string_view text, std::size_t position) {
    static constexpr ByteClass marks("0-9+/");
    if (isQuoteAt(text, position)) ++position;
    position = blanks.runEnd(text, position);
    if (!isByteAt(text, position, ':') && !isByteAt(text, position, '=')) return std::nullopt;
    position = blanks.runEnd(text, position + 1);
    if (isQuoteAt(text, position)) ++position;
    const std::size_t schemeEnd = letters.runEnd(text, position);
    const std::size_t value = blanks.runEnd(text, schemeEnd);
    if (schemeEnd > position && value > schemeEnd) {
        if (const auto range = credentialAt(text, value, 8, marks)) return range;
    }
    return credentialAt(text, position, 8, marks);
}

std::vector<ByteRange> authorizations(std::string_view text) {
    std::vector<ByteRange> result;
    std::size_t start = 0;
    while (start + authorization.size() <= text.size()) {
        // "z" is the rarest letter of the word.
        constexpr std::size_t rarest = 7;
        std::size_t found = start + rarest;
        while (found < text.size() && text[found] != 'z' && text[found] != 'Z')
            ++found;
        if (found == text.size()) break;
        start = found - rarest;
        std::optional<ByteRange> value;
        if (equalsInAnyCase(text, start, authorization) && !CharacterClass::isBehindWord(text, start)) {
            value = authorizationValue(text, start + authorization.size());
        }
        if (value) result.push_back(*value);
        start = value ? value->end : start + 1;
    }
    return result;
}

std::vector<ByteRange> bearers(std::string_view text) {
    static constexpr ByteClass marks("0-9");
    std::vector<ByteRange> result;
    for (const std::string_view scheme : {"Bearer", "Basic", "Token"}) {
        for (std::size_t start = text.find(scheme); start != std::string_view::npos;) {
            const std::size_t end = start + scheme.size();
            const std::size_t value = blanks.runEnd(text, end);
            const bool isScheme = value > end && !CharacterClass::isBehindWord(text, start);
            const auto range = isScheme ? credentialAt(text, value, 16, marks) : std::nullopt;
            if (range) result.push_back(*range);
            start = text.find(scheme, range ? range->end : end);
        }
    }
    // A scheme is all letters and ends at a blank, a value holds no blank: no value begins inside another match.
    std::ranges::sort(result, {}, &ByteRange::start);
    return result;
}

// End of the run without white space and the bytes of a set, as the negated classes of the expressions have it.
template <class Stops>
std::size_t wordEnd(std::string_view text, std::size_t position, Stops stops) {
    while (position < text.size() && !stops(text[position])) {
        const auto byte = static_cast<unsigned char>(text[position]);
        if (byte < 0x80) {
            if (byte == ' ' || (byte >= 0x09 && byte <= 0x0D)) break;
            ++position;
            continue;
        }
        const auto decoded = UTF8::decode(text, position);
        if (CharacterClass::isWhitespace(decoded.scalar)) break;
        position += decoded.byteCount;
    }
    return position;
}

std::vector<ByteRange> addressPasswords(std::string_view text) {
    std::vector<ByteRange> result;
    for (std::size_t start = text.find("://"); start != std::string_view::npos;) {
        const std::size_t userEnd =
            wordEnd(text, start + 3, [](char byte) { return byte == '/' || byte == ':' || byte == '@'; });
        std::size_t next = start + 3;
        if (isByteAt(text, userEnd, ':')) {
            const std::size_t end = wordEnd(text, userEnd + 1, [](char byte) { return byte == '/' || byte == '@'; });
            if (end > userEnd + 1 && isByteAt(text, end, '@')) {
                result.push_back({userEnd + 1, end});
                next = end + 1;
            }
        }
        start = text.find("://", next);
    }
    return result;
}

}  // namespace

Candidates candidates(std::string_view text) {
    static const PairFilter filter;
    Candidates found;
    if (text.empty()) return found;
    char current = text[0];
    for (std::size_t position = 0; position + 1 < text.size(); ++position) {
        const char next = text[position + 1];
        if (filter.holds(current, next)) {
            noteFixedParts(text, position, filter.parts(current), found);
            const bool isSign = next == ':' || next == '=';
            if (isSign && !found[keyCandidate] && SecretKeys::endsSecretKey(text, position + 1))
                found.set(keyCandidate);
        }
        current = next;
    }
    return found;
}

std::vector<ByteRange> targets(std::string_view text, std::size_t pattern) {
    switch (pattern) {
        case 0:
            return privateKeys(text);
        case 15:
            return authorizations(text);
        case 16:
            return bearers(text);
        case 17:
            return addressPasswords(text);
        default:
            return tokens(text, pattern);
    }
}

}  // namespace vellark::SecretScanner
