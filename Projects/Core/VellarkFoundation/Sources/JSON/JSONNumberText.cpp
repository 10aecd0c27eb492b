#include <VellarkFoundation/JSON/JSONNumberText.hpp>

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

bool isInteger(std::string_view literal) {
    return literal.find_first_of(".eE") == std::string_view::npos;
}

}  // namespace

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
