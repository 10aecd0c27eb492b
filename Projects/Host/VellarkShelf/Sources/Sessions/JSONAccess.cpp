#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>

#include <optional>

namespace vellark {

namespace {

constexpr std::size_t escapeSize = 6;  // "\\uD83D"

// The unit of the escape at the place; nothing when there is no escape of that form.
std::optional<unsigned> unitAt(std::string_view text, std::size_t place) {
    if (place + escapeSize > text.size() || text[place] != '\\' || text[place + 1] != 'u') return std::nullopt;
    unsigned unit = 0;
    for (const char digit : text.substr(place + 2, 4)) {
        unit <<= 4;
        if (digit >= '0' && digit <= '9')
            unit += static_cast<unsigned>(digit - '0');
        else if (digit >= 'a' && digit <= 'f')
            unit += static_cast<unsigned>(digit - 'a' + 10);
        else if (digit >= 'A' && digit <= 'F')
            unit += static_cast<unsigned>(digit - 'A' + 10);
        else
            return std::nullopt;
    }
    return unit;
}

bool isHighHalf(std::optional<unsigned> unit) {
    return unit && *unit >= 0xD800 && *unit < 0xDC00;
}

bool isLowHalf(std::optional<unsigned> unit) {
    return unit && *unit >= 0xDC00 && *unit < 0xE000;
}

std::string withoutHalfPairs(std::string_view text) {
    std::string result(text);
    for (std::size_t place = 0; place < result.size();) {
        if (result[place] != '\\') {
            ++place;
            continue;
        }
        const auto unit = unitAt(result, place);
        if (isHighHalf(unit) && isLowHalf(unitAt(result, place + escapeSize))) {
            place += 2 * escapeSize;
        } else if (isHighHalf(unit) || isLowHalf(unit)) {
            result.replace(place, escapeSize, "\\uFFFD");
            place += escapeSize;
        } else {
            place += 2;
        }
    }
    return result;
}

}  // namespace

Result<JSONValue, JSONError> readRecordLine(std::string_view text) {
    auto json = JSONReader::read(text);
    if (json || (text.find("\\ud") == text.npos && text.find("\\uD") == text.npos)) return json;
    return JSONReader::read(withoutHalfPairs(text));
}

}  // namespace vellark
