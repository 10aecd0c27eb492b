#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Latin text in plain letters.
namespace LatinASCII {

/// ICU's transform "Latin-ASCII" of a text in NFC: "đặc tả" gives "dac ta", "Straße" gives "Strasse"; what has no ASCII
/// form stays. Letters of the European and Vietnamese alphabets are answered from Unicode's decompositions, since
/// loading the transform takes tens of milliseconds. Nothing when ICU lacks the transform; ill-formed UTF-8 counts as
/// U+FFFD.
[[nodiscard]] std::optional<std::string> transform(std::string_view text);

}  // namespace LatinASCII

}  // namespace vellark
