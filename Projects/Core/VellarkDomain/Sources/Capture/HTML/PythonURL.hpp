#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// References as Python's `urllib.parse` takes them apart. Ill-formed UTF-8 is read as U+FFFD everywhere.
namespace PythonURL {

/// The five parts of `urlsplit`; those that are absent are "".
///
///     split("HTTP://user@host:80/a/b.png?v=1#top")    "http", "user@host:80", "/a/b.png", "v=1", "top"
///     split("./a.png")                                "", "", "./a.png", "", ""
struct Parts {
    std::string scheme;  ///< lower-case
    std::string netloc;  ///< behind "//": user information, host and port, as they stand
    std::string path;
    std::string query;
    std::string fragment;

    bool operator==(const Parts&) const = default;
};

/// Control characters and blanks go at the front, tabs and line ends everywhere. Nothing where Python raises an error:
/// for a bracketed host that is no IPv6 address, for an unpaired bracket, and for a host with a character that
/// compatibility normalisation turns into one of "/?#@:".
[[nodiscard]] std::optional<Parts> split(std::string_view text);

/// The text with "%" and two hexadecimal digits replaced by their byte. Bytes that are no UTF-8 become U+FFFD, each run
/// of ASCII in the text standing for itself: no sequence reaches beyond it.
[[nodiscard]] std::string unquote(std::string_view text);

/// The text with every byte but ASCII letters, digits and "_.-~/" as "%" and two hexadecimal digits in capitals.
[[nodiscard]] std::string quote(std::string_view text);

}  // namespace PythonURL

}  // namespace vellark
