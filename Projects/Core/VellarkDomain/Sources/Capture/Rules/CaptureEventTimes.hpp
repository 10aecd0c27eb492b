#pragma once

#include <optional>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// Seconds since 1970 of an ISO 8601 moment with an offset, in the grammar of PythonISOTimestamp: the double nearest to
/// the decimal text of its seconds with six digits of microseconds. Nothing for any other text.
///
/// Every "Z" counts as "+00:00", also one that stands elsewhere than at the end. Answers to ASCII texts are remembered
/// for the whole process, refusals too; any thread may call.
[[nodiscard]] std::optional<double> eventSeconds(std::string_view text);

}  // namespace CaptureRules

}  // namespace vellark
