#pragma once

#include <VellarkShelf/Collect/PendingSignal.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Which documents a signal speaks of.
namespace SignalDocuments {

/// The files that its tool call wrote, absolute and normal, each once: those that its input names, and those that a
/// patch in it adds, updates or moves. None for a call that failed, for a tool that only reads, and for a signal
/// without an absolute working directory where a path is relative. A file that a patch moved away is named too; it is
/// for the caller to see that it is gone.
[[nodiscard]] std::vector<std::string> files(const PendingSignal& signal);

/// The assistant's answer; "" when the signal has none.
[[nodiscard]] std::string_view response(const PendingSignal& signal);

}  // namespace SignalDocuments

}  // namespace vellark
