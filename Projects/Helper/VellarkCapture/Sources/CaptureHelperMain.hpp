#pragma once

#include <VellarkCapture/InputBuffer.hpp>

#include <chrono>
#include <cstddef>
#include <optional>

namespace vellark {

/// The helper as a program. Whatever happens, it prints "{}" and a line feed and ends with status 0: to the agent that
/// runs it as a hook, a run that failed looks like a run that worked.
namespace CaptureHelperMain {

/// Longest wait for the whole of standard input.
inline constexpr std::chrono::milliseconds inputTime{1500};

/// Reads the descriptor to its end. Nothing when that takes longer than `time`, when there are more than `limit` bytes
/// (one byte over it is read at most), or on a read error; never a part of the input.
[[nodiscard]] std::optional<InputBuffer> readInput(int descriptor, std::size_t limit, std::chrono::milliseconds time);

/// The whole program, as `main` gets its arguments.
int main(int argumentCount, const char* const* arguments) noexcept;

}  // namespace CaptureHelperMain

}  // namespace vellark
