#pragma once

#include <VellarkFoundation/JSON/JSONValue.hpp>
#include <VellarkFoundation/Result.hpp>

#include <cstddef>
#include <span>
#include <string_view>

namespace vellark {

/// Where a text stopped being JSON.
struct JSONError {
    std::size_t byteOffset = 0;

    bool operator==(const JSONError&) const = default;
};

/// A member of an object that the reader keeps. With `members`, an object under the key keeps just those of its own;
/// without, and for a value that is no object, the value is kept whole.
struct JSONSelection {
    std::string_view key;
    std::span<const JSONSelection> members = {};
};

/// Reads JSON text as RFC 8259 has it, in UTF-8, and nothing else.
///
///     JSONReader::read(R"({"a": 1, "a": 2})")          {"a": 2}: of equal keys the last counts
///     JSONReader::read("\xEF\xBB\xBF{}")               {}: one byte order mark is passed over
///     JSONReader::read("1")                            an error, unless `fragments` is set
///     JSONReader::read("{} {}"), ("[1,]"), ("[NaN]")   errors, as are comments, raw control characters in strings,
///                                                      ill-formed UTF-8 and escapes of half a surrogate pair
///
/// Numbers keep their digits; one with a fraction or an exponent that no finite double is near to is an error. Time and
/// memory are linear in the text; more than `maximumDepth` containers open at once are an error.
namespace JSONReader {

/// Containers that may be open at once. Values are freed recursively, so this also bounds the stack.
inline constexpr std::size_t maximumDepth = 512;

struct Options {
    /// Also accept a string, number, truth value or null at the top. Otherwise there must be an object or an array.
    bool fragments = false;

    /// When not empty: the members that a top-level object keeps. All others are checked like the rest, then dropped,
    /// so that a text of megabytes costs little memory when few of its members matter.
    std::span<const JSONSelection> keep = {};
};

[[nodiscard]] Result<JSONValue, JSONError> read(std::string_view text, const Options& options = {});

}  // namespace JSONReader

}  // namespace vellark
