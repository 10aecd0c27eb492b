#pragma once

namespace vellark {

/// The command `vellark`: the shelf of documents for a terminal.
namespace CommandLine {

/// Runs the command that the arguments name. Gives the exit status: 0 when it did its work, 1 when it could not, 2 when
/// the arguments make no command.
[[nodiscard]] int run(int argumentCount, const char* const* arguments);

}  // namespace CommandLine

}  // namespace vellark
