#pragma once

namespace vellark {

/// What each command of `vellark` does. Every one writes to standard output, tells what went wrong on standard error,
/// and gives the exit status.
namespace Commands {

/// Standard input to standard output, every secret blanked. The whole input is held in memory: a secret such as a
/// private key may run over any number of lines.
[[nodiscard]] int redact();

}  // namespace Commands

}  // namespace vellark
