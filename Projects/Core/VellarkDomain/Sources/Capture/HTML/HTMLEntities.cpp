#include <VellarkDomain/Capture/HTML/HTMLEntities.hpp>
#include <VellarkDomain/Capture/HTML/HTMLEntityTable.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <array>

// A name is looked up by its first letter and then by halving. Only the names without ";" can stand in front of other
// letters, and those have two to six letters, so the longest prefix is found in at most five look-ups.

namespace vellark::HTMLEntities {

namespace {

namespace Table = HTMLEntityTable;

constexpr std::size_t longestName = 32;  // "CounterClockwiseContourIntegral;"
constexpr std::size_t longestBareName = 6;
constexpr std::size_t shortestName = 2;

constexpr bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

constexpr bool isLetterOrDigit(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || isDigit(byte);
}

constexpr int hexadecimalValue(char byte) {
    if (isDigit(byte)) return byte - '0';
    if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
    if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
    return -1;
}

constexpr int decimalValue(char byte) {
    return isDigit(byte) ? byte - '0' : -1;
}

// What the numbers 0x80 to 0x9F mean in windows-1252; 0 where they mean nothing there and stand for themselves.
constexpr std::array<char16_t, 32> windows1252 = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr bool isNoncharacter(char32_t scalar) {
    return (scalar >= 0xFDD0 && scalar <= 0xFDEF) || (scalar & 0xFFFE) == 0xFFFE;
}

constexpr bool isDroppedControl(char32_t scalar) {
    return scalar < 0x20 ? scalar != '\t' && scalar != '\n' && scalar != '\f' && scalar != '\r' : scalar == 0x7F;
}

void appendNumbered(std::string& result, char32_t number) {
    if (number == 0 || number > 0x10FFFF) {
        UTF8::append(result, UTF8::replacementScalar);
    } else if (number >= 0x80 && number <= 0x9F) {
        const char16_t meant = windows1252[number - 0x80];
        UTF8::append(result, meant != 0 ? meant : number);
    } else if (!isDroppedControl(number) && !isNoncharacter(number)) {
        UTF8::append(result, number);
    }
}

// Reads digits and an optional ";" and appends their scalar. The number of bytes read, 0 without a digit.
template <class DigitValue>
std::size_t appendDigits(std::string& result, std::string_view text, unsigned base, DigitValue digitValue) {
    constexpr char32_t tooLarge = 0x110000;
    char32_t number = 0;
    std::size_t length = 0;
    for (; length < text.size() && digitValue(text[length]) >= 0; ++length) {
        number = number * base + static_cast<char32_t>(digitValue(text[length]));
        if (number > tooLarge) number = tooLarge;
    }
    if (length == 0) return 0;
    appendNumbered(result, number);
    return length < text.size() && text[length] == ';' ? length + 1 : length;
}

// Both below take the text behind "&", append what the reference there stands for, and give the number of bytes that
// it takes up behind the "&", 0 when there is no reference.

std::size_t appendNumeric(std::string& result, std::string_view text) {
    const bool hexadecimal = text.size() > 1 && (text[1] == 'x' || text[1] == 'X');
    const std::size_t prefix = hexadecimal ? 2 : 1;
    const std::string_view digits = text.substr(prefix);
    const std::size_t length = hexadecimal ? appendDigits(result, digits, 16, hexadecimalValue)
                                           : appendDigits(result, digits, 10, decimalValue);
    return length == 0 ? 0 : prefix + length;
}

std::size_t appendNamed(std::string& result, std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && length < longestName && isLetterOrDigit(text[length])) {
        ++length;
    }
    if (length < text.size() && text[length] == ';') {
        if (const auto value = find(text.substr(0, length + 1))) {
            result += *value;
            return length + 1;
        }
    }
    const std::optional<Entity> entity = findLongestPrefix(text.substr(0, length));
    if (!entity) return 0;
    result += entity->text;
    return entity->name.size();
}

std::string_view nameOf(const Table::Entry& entry) {
    return {Table::names + entry.nameOffset, entry.nameLength};
}

std::string_view valueOf(const Table::Entry& entry) {
    return {Table::values + entry.valueOffset, entry.valueLength};
}

// `left < right` in the order of bytes. Names differ within a few letters, which is too little for a call of memcmp.
bool precedes(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    std::size_t index = 0;
    while (index < common && left[index] == right[index]) {
        ++index;
    }
    return index == common ? left.size() < right.size() : left[index] < right[index];
}

const Table::Entry* findEntry(std::string_view name) {
    if (name.size() < shortestName || name[0] < 'A' || name[0] > 'z') return nullptr;
    const auto initial = static_cast<std::size_t>(name[0] - 'A');
    const Table::Entry* const begin = Table::entries.data() + Table::firstOfInitial[initial];
    const Table::Entry* const end = Table::entries.data() + Table::firstOfInitial[initial + 1];
    const Table::Entry* const found = std::lower_bound(
        begin, end, name,
        [](const Table::Entry& entry, std::string_view sought) { return precedes(nameOf(entry), sought); });
    return found != end && nameOf(*found) == name ? found : nullptr;
}

}  // namespace

std::size_t count() {
    return Table::count;
}

Entity at(std::size_t index) {
    const Table::Entry& entry = Table::entries.at(index);
    return {nameOf(entry), valueOf(entry)};
}

std::optional<std::string_view> find(std::string_view name) {
    const Table::Entry* const entry = findEntry(name);
    if (entry == nullptr) return std::nullopt;
    return valueOf(*entry);
}

std::optional<Entity> findLongestPrefix(std::string_view text) {
    for (std::size_t length = std::min(text.size(), longestBareName); length >= shortestName; --length) {
        const Table::Entry* const entry = findEntry(text.substr(0, length));
        if (entry != nullptr && nameOf(*entry).back() != ';') return Entity{nameOf(*entry), valueOf(*entry)};
    }
    return std::nullopt;
}

void appendUnescaped(std::string& result, std::string_view text) {
    std::size_t start = 0;
    while (true) {
        const std::size_t ampersand = text.find('&', start);
        if (ampersand == std::string_view::npos) break;
        result += text.substr(start, ampersand - start);
        const std::string_view rest = text.substr(ampersand + 1);
        const std::size_t length = rest.starts_with('#') ? appendNumeric(result, rest) : appendNamed(result, rest);
        if (length == 0) result += '&';
        start = ampersand + 1 + length;
    }
    result += text.substr(start);
}

}  // namespace vellark::HTMLEntities
