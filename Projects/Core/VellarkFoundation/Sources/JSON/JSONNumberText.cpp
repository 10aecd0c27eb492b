#include <VellarkFoundation/JSON/JSONNumberText.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vellark::JSONNumberText {

namespace {

/// Decimal exponents between which Python writes no exponent: 1e-4 <= |value| < 1e16.
constexpr int lowestPlainExponent = -4;
constexpr int firstScientificExponent = 16;

struct ShortestDigits {
    std::string digits;  // without the point, first digit not 0 (but for zero itself)
    int exponent = 0;    // of the first digit
};

ShortestDigits shortestDigits(double magnitude) {
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    ShortestDigits result;
    for (const char character : text.substr(0, mark)) {
        if (character != '.') result.digits.push_back(character);
    }
    // from_chars takes no leading "+".
    const std::string_view exponent = text.substr(mark + (text[mark + 1] == '+' ? 2 : 1));
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.exponent);
    return result;
}

std::string scientific(const ShortestDigits& shortest) {
    std::string text = shortest.digits.substr(0, 1);
    if (shortest.digits.size() > 1) text += "." + shortest.digits.substr(1);
    const int magnitude = std::abs(shortest.exponent);
    text += shortest.exponent < 0 ? "e-" : "e+";
    if (magnitude < 10) text += "0";
    return text + std::to_string(magnitude);
}

std::string plain(const ShortestDigits& shortest) {
    if (shortest.exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-shortest.exponent - 1), '0') + shortest.digits;
    }
    std::string digits = shortest.digits;
    const std::size_t wholeCount = static_cast<std::size_t>(shortest.exponent) + 1;
    if (digits.size() <= wholeCount) return digits.append(wholeCount - digits.size(), '0') + ".0";
    return digits.insert(wholeCount, ".");
}

/// A literal's digits without point and closing zeros, and the power of ten that they count.
struct Scaled {
    std::string digits;
    std::int64_t exponent = 0;
};

std::int64_t writtenExponent(std::string_view text) {
    constexpr std::int64_t farAway = 1'000'000'000'000;  // beyond the digits of any text
    if (text.starts_with('+')) text.remove_prefix(1);
    std::int64_t value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec != std::errc()) return text.starts_with('-') ? -farAway : farAway;
    return std::clamp(value, -farAway, farAway);
}

Scaled scaled(std::string_view unsignedLiteral) {
    const std::size_t mark = std::min(unsignedLiteral.find_first_of("eE"), unsignedLiteral.size());
    const std::string_view mantissa = unsignedLiteral.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    Scaled result;
    result.digits = mantissa.substr(0, point);
    if (point < mantissa.size()) result.digits += mantissa.substr(point + 1);
    result.exponent = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(result.digits.size());
    if (mark < unsignedLiteral.size()) result.exponent += writtenExponent(unsignedLiteral.substr(mark + 1));
    while (result.digits.ends_with('0')) {
        result.digits.pop_back();
        ++result.exponent;
    }
    result.digits.erase(0, result.digits.find_first_not_of('0'));
    return result;
}

}  // namespace

bool isInteger(std::string_view literal) {
    return literal.find_first_of(".eE") == std::string_view::npos;
}

std::optional<std::int64_t> exactInteger(std::string_view literal) {
    const auto parse = [](std::string_view digits) -> std::optional<std::int64_t> {
        std::int64_t value = 0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (result.ec != std::errc()) return std::nullopt;
        return value;
    };
    if (isInteger(literal)) return parse(literal);
    const bool isNegative = literal.starts_with('-');
    const Scaled number = scaled(literal.substr(isNegative ? 1 : 0));
    if (number.digits.empty()) return 0;
    constexpr std::int64_t mostDigits = 19;  // of a 64-bit integer
    if (number.exponent < 0 || static_cast<std::int64_t>(number.digits.size()) + number.exponent > mostDigits) {
        return std::nullopt;
    }
    return parse((isNegative ? "-" : "") + number.digits + std::string(static_cast<std::size_t>(number.exponent), '0'));
}

double nearestDouble(std::string_view literal) {
#ifdef __cpp_lib_to_chars
    double value = 0;
    const auto result = std::from_chars(literal.data(), literal.data() + literal.size(), value);
    if (result.ec == std::errc()) return value;
#endif
    // Out of range: only the C library tells the two ends apart. The locale is always "C" in our programs; an embedding
    // host that sets another must leave LC_NUMERIC alone, as JSON has just the one decimal point.
    return std::strtod(std::string(literal).c_str(), nullptr);
}

std::optional<std::string> pythonRepr(double value) {
    if (!std::isfinite(value)) return std::nullopt;
    const std::string sign = std::signbit(value) ? "-" : "";
    const ShortestDigits shortest = shortestDigits(std::fabs(value));
    const bool isPlain = shortest.exponent >= lowestPlainExponent && shortest.exponent < firstScientificExponent;
    return sign + (isPlain ? plain(shortest) : scientific(shortest));
}

std::optional<std::string> pythonText(std::string_view literal) {
    if (!isInteger(literal)) return pythonRepr(nearestDouble(literal));
    return literal == "-0" ? "0" : std::string(literal);
}

}  // namespace vellark::JSONNumberText
