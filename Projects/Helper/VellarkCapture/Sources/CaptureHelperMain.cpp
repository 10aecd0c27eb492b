#include <VellarkCapture/CaptureHelperMain.hpp>
#include <VellarkCapture/CaptureInvocation.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <memory>
#include <vector>

namespace vellark::CaptureHelperMain {

namespace {

/// Bytes that one read asks for.
constexpr std::size_t chunkBytes = 65'536;

std::string currentDirectory() {
    std::array<char, 4096> buffer{};
    if (const char* path = ::getcwd(buffer.data(), buffer.size())) return path;
    if (errno != ERANGE) return "";
    const std::unique_ptr<char, decltype(&std::free)> path(::getcwd(nullptr, 0), &std::free);
    return path ? path.get() : "";
}

enum class Wait { ready, interrupted, failed };

Wait waitForInput(int descriptor, std::chrono::steady_clock::time_point deadline) {
    using namespace std::chrono;
    const auto remaining = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    if (remaining < 1) return Wait::failed;
    pollfd request{.fd = descriptor, .events = POLLIN, .revents = 0};
    const int ready = ::poll(&request, 1, static_cast<int>(remaining));
    if (ready > 0) return Wait::ready;
    return ready < 0 && errno == EINTR ? Wait::interrupted : Wait::failed;
}

void capture(int argumentCount, const char* const* arguments) {
    std::vector<std::string_view> given;
    for (int index = 1; index < argumentCount; ++index) {
        given.emplace_back(arguments[index]);
    }
    const auto invocation = CaptureInvocation::make(given, Environment::ofProcess(), currentDirectory());
    if (!invocation) return;
    invocation->run([] { return readInput(STDIN_FILENO, CaptureSignal::maximumInputBytes, inputTime); });
}

void reply() {
    constexpr std::string_view nothing = "{}\n";
    // A closed output is the agent's business; nobody is left to be told.
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, nothing.data(), nothing.size());
}

}  // namespace

std::optional<InputBuffer> readInput(int descriptor, std::size_t limit, std::chrono::milliseconds time) {
    const auto deadline = std::chrono::steady_clock::now() + time;
    InputBuffer input(limit + 1);
    while (input.length() <= limit) {
        const Wait wait = waitForInput(descriptor, deadline);
        if (wait == Wait::interrupted) continue;
        if (wait == Wait::failed) return std::nullopt;
        const ssize_t count = ::read(descriptor, input.end(), std::min(chunkBytes, limit + 1 - input.length()));
        if (count == 0) break;
        if (count > 0) {
            input.extend(static_cast<std::size_t>(count));
        } else if (errno != EINTR && errno != EAGAIN) {
            return std::nullopt;
        }
    }
    if (input.length() > limit) return std::nullopt;
    return input;
}

int main(int argumentCount, const char* const* arguments) noexcept {
    std::signal(SIGPIPE, SIG_IGN);
    try {
        capture(argumentCount, arguments);
    } catch (...) {
        // Memory ran out: as with every other failure, there is no signal.
    }
    reply();
    return 0;
}

}  // namespace vellark::CaptureHelperMain
