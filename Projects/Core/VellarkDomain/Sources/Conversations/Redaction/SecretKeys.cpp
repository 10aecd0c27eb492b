// Keys are found from their signs of assignment backwards. Values are then found from the last key to the first, since
// the value of a key may reach over a later key whose own value is blanked already. A bare value that reaches the start
// of one that has been looked at takes over what is known of it, which keeps "password=password=…" linear.

#include <VellarkDomain/Conversations/Redaction/ByteClass.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretKeys.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace vellark::SecretKeys {

namespace {

using namespace std::string_view_literals;

constexpr std::array secretWords = {"pass"sv,  "passwd"sv, "password"sv,   "passphrase"sv,  "pwd"sv,       "secret"sv,
                                    "token"sv, "apikey"sv, "credential"sv, "credentials"sv, "privatekey"sv};

// The word before, where the last word is "key".
constexpr std::array secretKeyKinds = {"api"sv,     "private"sv,    "access"sv, "secret"sv,
                                       "signing"sv, "encryption"sv, "auth"sv};

constexpr std::size_t longestQuoted = 256;
constexpr std::size_t shortestAssigned = 3;
constexpr std::size_t shortestLabeled = 8;

constexpr ByteClass keyBytes("A-Za-z0-9_.-");
constexpr ByteClass blanks(" \t");
constexpr ByteClass asciiLetters("A-Za-z");

template <class List>
bool holds(const List& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

// The last two words of a key, lower-case; a key of one word has an empty first one.
struct LastWords {
    std::string first;
    std::string last;
};

LastWords lastWords(std::string_view key) {
    LastWords words;
    std::string current;
    const auto finish = [&] {
        if (current.empty()) return;
        words.first = std::move(words.last);
        words.last = UnicodeCase::lower(current);
        current.clear();
    };
    bool wasLowerOrNumber = false;
    for (std::size_t start = 0; start < key.size();) {
        const std::size_t end = GraphemeBreak::next(key, start);
        const std::string_view character = key.substr(start, end - start);
        start = end;
        const bool isNumber = CharacterClass::isNumber(character);
        if (!isNumber && !CharacterClass::isLetter(character)) {
            finish();
            wasLowerOrNumber = false;
            continue;
        }
        if (wasLowerOrNumber && CharacterClass::isUppercase(character)) finish();
        current += character;
        wasLowerOrNumber = isNumber || CharacterClass::isLowercase(character);
    }
    finish();
    return words;
}

constexpr char lowered(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

bool equalsInAnyCase(std::string_view text, std::string_view lower) {
    return text.size() == lower.size() &&
           std::equal(text.begin(), text.end(), lower.begin(),
                      [](char byte, char expected) { return lowered(byte) == expected; });
}

template <class List>
bool holdsInAnyCase(const List& list, std::string_view word) {
    return std::any_of(list.begin(), list.end(),
                       [word](std::string_view entry) { return equalsInAnyCase(word, entry); });
}

// The last two letters of all words that end a secret's key: a test that most keys fail.
bool mayBeSecretWord(char first, char last) {
    switch (lowered(last)) {
        case 's':
            return lowered(first) == 's' || lowered(first) == 'l';
        case 'd':
            return lowered(first) == 'w' || lowered(first) == 'r';
        case 'e':
            return lowered(first) == 's';
        case 't':
        case 'y':
        case 'n':
            return lowered(first) == 'e';
        case 'l':
            return lowered(first) == 'a';
        default:
            return false;
    }
}

// The last word of a key of ASCII, which is taken from the key; empty when the key has no word any more. Words are
// parted by what is neither letter nor digit, and before a capital behind a small letter or a digit.
std::string_view takeLastWord(std::string_view& key) {
    static constexpr ByteClass wordBytes("A-Za-z0-9");
    static constexpr ByteClass capitals("A-Z");
    while (!key.empty() && !wordBytes.holds(key.back()))
        key.remove_suffix(1);
    std::size_t start = key.size();
    while (start > 0 && wordBytes.holds(key[start - 1])) {
        --start;
        const bool isHump = capitals.holds(key[start]) && start > 0 && wordBytes.holds(key[start - 1]) &&
                            !capitals.holds(key[start - 1]);
        if (isHump) break;
    }
    const std::string_view word = key.substr(start);
    key = key.substr(0, start);
    return word;
}

bool isSecretASCIIKey(std::string_view key) {
    const std::string_view last = takeLastWord(key);
    if (last.size() < 3 || !mayBeSecretWord(last[last.size() - 2], last.back())) return false;
    return holdsInAnyCase(secretWords, last) ||
           (equalsInAnyCase(last, "key") && holdsInAnyCase(secretKeyKinds, takeLastWord(key)));
}

// A key that names a secret and the sign behind it.
struct Key {
    std::size_t end;
    std::size_t sign;
};

// The key whose sign of assignment stands at the position.
std::optional<Key> keyBefore(std::string_view text, std::size_t sign) {
    std::size_t end = sign;
    while (end > 0 && blanks.holds(text[end - 1]))
        --end;
    if (end > 0 && (text[end - 1] == '"' || text[end - 1] == '\'')) --end;
    std::size_t start = end;
    while (start > 0 && keyBytes.holds(text[start - 1]))
        --start;
    if (start == end || !asciiLetters.holds(text[start])) return std::nullopt;
    if (!isSecretASCIIKey(text.substr(start, end - start))) return std::nullopt;
    return Key{end, sign};
}

// What is known of a run of text that no blank, quote or separator interrupts, as it will stand after blanking.
struct BareRun {
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t characters = 0;  // scalars, counted no further than needed
    bool hasOther = false;       // a character that is no ASCII letter
    bool endsInMark = false;
};

class ValueFinder {
public:
    ValueFinder(std::string_view text, std::string_view mark) : text_(text), mark_(mark) {}

    /// The value of a key that stands before all keys asked for so far.
    std::optional<ByteRange> value(const Key& key) {
        const std::size_t start = blanks.runEnd(text_, key.sign + 1);
        if (start == text_.size()) return std::nullopt;
        if (text_[start] == '"' || text_[start] == '\'') return quoted(start);
        return bare(start, text_[key.sign] == ':');
    }

private:
    std::optional<ByteRange> quoted(std::size_t open) const {
        std::size_t position = open + 1;
        for (std::size_t count = 0; position < text_.size(); ++count) {
            if (text_[position] == text_[open]) {
                const bool isSecret = count > 0 && !endsInMark(open + 1, position);
                return isSecret ? std::optional(ByteRange{open + 1, position}) : std::nullopt;
            }
            if (text_[position] == '\n' || count == longestQuoted) return std::nullopt;
            position += UTF8::decode(text_, position).byteCount;
        }
        return std::nullopt;
    }

    std::optional<ByteRange> bare(std::size_t start, bool isLabeled) {
        BareRun run = bareRun(start);
        const bool isValue =
            isLabeled ? run.characters >= shortestLabeled && run.hasOther : run.characters >= shortestAssigned;
        const bool isSecret = isValue && !run.endsInMark;
        if (isSecret) {
            run.characters = 4;
            run.hasOther = run.endsInMark = true;
        }
        known_ = run;
        return isSecret ? std::optional(ByteRange{start, run.end}) : std::nullopt;
    }

    BareRun bareRun(std::size_t start) const {
        BareRun run{.start = start, .end = start};
        while (run.end < text_.size()) {
            if (run.end == known_.start) return joined(run, known_);
            const auto decoded = UTF8::decode(text_, run.end);
            if (isStop(decoded.scalar)) break;
            ++run.characters;
            run.hasOther = run.hasOther || decoded.scalar >= 0x80 || !asciiLetters.holds(text_[run.end]);
            run.end += decoded.byteCount;
        }
        run.endsInMark = endsInMark(start, run.end);
        return run;
    }

    BareRun joined(BareRun run, const BareRun& rest) const {
        run.end = rest.end;
        run.characters += rest.characters;
        run.hasOther = run.hasOther || rest.hasOther;
        run.endsInMark = rest.endsInMark || endsInMark(run.start, run.end);
        return run;
    }

    static bool isStop(char32_t scalar) {
        if (scalar < 0x80) {
            static constexpr ByteClass stops(" \t\n\v\f\r\"',;&");
            return stops.holds(static_cast<char>(scalar));
        }
        return CharacterClass::isWhitespace(scalar);
    }

    bool endsInMark(std::size_t start, std::size_t end) const {
        return text_.substr(start, end - start).ends_with(mark_);
    }

    std::string_view text_;
    std::string_view mark_;
    BareRun known_{.start = std::string_view::npos};  // the one that was looked at last
};

}  // namespace

bool isSecretKey(std::string_view key) {
    const LastWords words = lastWords(key);
    return holds(secretWords, words.last) || (words.last == "key" && holds(secretKeyKinds, words.first));
}

bool endsSecretKey(std::string_view text, std::size_t sign) {
    return keyBefore(text, sign).has_value();
}

std::vector<ByteRange> values(std::string_view text, std::string_view mark) {
    std::vector<Key> keys;
    for (std::size_t sign = 0; sign < text.size(); ++sign) {
        if (text[sign] != ':' && text[sign] != '=') continue;
        if (const auto key = keyBefore(text, sign)) keys.push_back(*key);
    }
    ValueFinder finder(text, mark);
    std::vector<ByteRange> result;
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        const auto range = finder.value(*key);
        if (!range) continue;
        // A value may reach over later ones, which then go with it.
        while (!result.empty() && result.back().start < range->end)
            result.pop_back();
        result.push_back(*range);
    }
    std::reverse(result.begin(), result.end());
    return result;
}

}  // namespace vellark::SecretKeys
