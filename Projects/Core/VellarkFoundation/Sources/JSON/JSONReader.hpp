#pragma once

#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <string_view>

namespace vellark {

/// Reads JSON text into values that stand by themselves. What is JSON, JSONDocument says.
namespace JSONReader {

using Options = JSONDocument::Options;

/// The value of the text. Of members with equal keys the last counts, at the place of the first.
[[nodiscard]] Result<JSONValue, JSONError> read(std::string_view text, const Options& options = {});

}  // namespace JSONReader

}  // namespace vellark
