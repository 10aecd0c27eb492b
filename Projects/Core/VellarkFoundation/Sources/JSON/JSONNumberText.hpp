#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Numbers between their text and their value. `literal` is always a number in the grammar of RFC 8259.
namespace JSONNumberText {

/// True when the literal has neither a fraction nor an exponent.
[[nodiscard]] bool isInteger(std::string_view literal);

/// The value when it is whole and within 64 signed bits, judged on the digits and never through a double: "1.0", "12e2"
/// and "-0" are integers, "1.5" and "9223372036854775808" give nothing.
[[nodiscard]] std::optional<std::int64_t> exactInteger(std::string_view literal);

/// The nearest double; a value beyond the range of a double gives an infinity, one too close to zero gives zero.
[[nodiscard]] double nearestDouble(std::string_view literal);

/// The double as Python's `repr` writes it: the shortest digits that read back, with an exponent below 1e-4 and from
/// 1e16 on ("0.1", "100.0", "1e-05", "1e+16", "-0.0"). Nothing for an infinity and for not-a-number.
[[nodiscard]] std::optional<std::string> pythonRepr(double value);

/// The number as Python's `json` writes what it reads: an integer as its digits, of any length ("-0" gives "0"), any
/// other as `repr` of the nearest double. Nothing when that double is infinite.
[[nodiscard]] std::optional<std::string> pythonText(std::string_view literal);

}  // namespace JSONNumberText

}  // namespace vellark
