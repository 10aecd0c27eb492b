#pragma once

#include <cstddef>
#include <functional>

namespace vellark {

/// A loop whose rounds run on all of the machine's cores.
///
///     ParallelLoop::run(pages.size(), [&](std::size_t index) { widths[index] = measure(pages[index]); });
///
/// The threads are started by the first loop and wait for the next one; there are as many as cores, the caller among
/// them. Loops may run at the same time and inside one another: a caller works on its own loop until no round is left,
/// so it never waits for a thread that waits for it.
namespace ParallelLoop {

/// Calls `body` once for each index below `count`, in any order and on any thread, and returns when all rounds are
/// done: what they wrote is then visible to the caller. A round that throws does not stop the others; afterwards the
/// exception of the lowest index is thrown.
void run(std::size_t count, const std::function<void(std::size_t index)>& body);

/// How many rounds can run at once: the machine's cores, at least 1.
[[nodiscard]] std::size_t width();

}  // namespace ParallelLoop

}  // namespace vellark
