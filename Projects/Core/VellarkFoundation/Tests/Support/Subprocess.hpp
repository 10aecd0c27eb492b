#pragma once

#include "Support/TemporaryDirectory.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vellark::testing {

/// What a program left behind.
struct ProcessResult {
    int status = -1;  ///< exit status; 128 plus the number of the signal that ended it
    std::string output;
    std::string errors;
};

struct ProcessOptions {
    std::vector<std::string> arguments;  ///< the program first, searched in PATH when it holds no slash
    std::string input;
    std::map<std::string, std::string> environment;  ///< the whole of it
    std::string directory = "/";
    std::optional<int> inputDescriptor;  ///< in place of `input`
    bool closesOutput = false;           ///< standard output and error are closed
};

/// A program that runs, with its streams in files, so that no amount of output can block it.
class Process {
public:
    /// Nothing when the program cannot be started.
    static std::optional<Process> start(const ProcessOptions& options) {
        Process process;
        process.scratch_ = std::make_unique<TemporaryDirectory>();
        if (!process.spawn(options)) return std::nullopt;
        return process;
    }

    void kill(int signal) const { ::kill(child_, signal); }

    /// Waits for its end.
    ProcessResult wait() const {
        int status = 0;
        while (::waitpid(child_, &status, 0) < 0 && errno == EINTR) {
        }
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        return {code, readFile(*scratch_ / "out"), readFile(*scratch_ / "err")};
    }

private:
    static std::vector<char*> pointers(std::vector<std::string>& texts) {
        std::vector<char*> result;
        for (std::string& text : texts) {
            result.push_back(text.data());
        }
        result.push_back(nullptr);
        return result;
    }

    bool spawn(const ProcessOptions& options) {
        std::vector<std::string> arguments = options.arguments;
        std::vector<std::string> entries;
        for (const auto& [name, value] : options.environment) {
            entries.push_back(name + "=" + value);
        }
        writeFile(*scratch_ / "in", options.input);
        const std::string streams[] = {(*scratch_ / "in").string(), (*scratch_ / "out").string(),
                                       (*scratch_ / "err").string()};
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, options.directory.c_str());
        if (options.inputDescriptor) {
            posix_spawn_file_actions_adddup2(&actions, *options.inputDescriptor, 0);
        } else {
            posix_spawn_file_actions_addopen(&actions, 0, streams[0].c_str(), O_RDONLY, 0);
        }
        for (int stream = 1; stream <= 2; ++stream) {
            if (options.closesOutput) {
                posix_spawn_file_actions_addclose(&actions, stream);
            } else {
                posix_spawn_file_actions_addopen(&actions, stream, streams[stream].c_str(), O_WRONLY | O_CREAT, 0600);
            }
        }
        const int failed = posix_spawnp(&child_, arguments[0].c_str(), &actions, nullptr, pointers(arguments).data(),
                                        pointers(entries).data());
        posix_spawn_file_actions_destroy(&actions);
        return failed == 0;
    }

    std::unique_ptr<TemporaryDirectory> scratch_;
    pid_t child_ = 0;
};

/// Runs a program to its end. Nothing when it cannot be started.
inline std::optional<ProcessResult> runProcess(const ProcessOptions& options) {
    const auto process = Process::start(options);
    if (!process) return std::nullopt;
    return process->wait();
}

}  // namespace vellark::testing
