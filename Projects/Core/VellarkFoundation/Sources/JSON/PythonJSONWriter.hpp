#pragma once

#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <optional>
#include <string>

namespace vellark {

/// Writes JSON byte for byte as `json.dumps` of the Python standard library does with its default settings: ", " and
/// ": " between items, everything that is not printable ASCII escaped, so that the whole text is ASCII.
namespace PythonJSONWriter {

struct Options {
    /// Sort the keys of every object by their scalars. Otherwise they keep the object's own order.
    bool sortKeys = false;
};

/// The text. Nothing when a number's nearest double is infinite. Ill-formed UTF-8 is written as U+FFFD.
[[nodiscard]] std::optional<std::string> write(const JSONValue& value, const Options& options = {});

}  // namespace PythonJSONWriter

}  // namespace vellark
