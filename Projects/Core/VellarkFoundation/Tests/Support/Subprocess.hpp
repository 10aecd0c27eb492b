#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Support/TemporaryDirectory.hpp"

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
};

/// Runs a program to its end, with its streams in files, so that no amount of output can block it. Nothing when it
/// cannot be started.
inline std::optional<ProcessResult> runProcess(const ProcessOptions& options) {
    const TemporaryDirectory scratch;
    writeFile(scratch / "in", options.input);
    const std::string paths[] = {(scratch / "in").string(), (scratch / "out").string(), (scratch / "err").string()};

    std::vector<char*> arguments;
    for (const std::string& argument : options.arguments) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    std::vector<std::string> entries;
    for (const auto& [name, value] : options.environment) {
        entries.push_back(name + "=" + value);
    }
    std::vector<char*> environment;
    for (std::string& entry : entries) {
        environment.push_back(entry.data());
    }
    environment.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, options.directory.c_str());
    posix_spawn_file_actions_addopen(&actions, 0, paths[0].c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, paths[1].c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, paths[2].c_str(), O_WRONLY | O_CREAT, 0600);
    pid_t child = 0;
    const int failed = posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environment.data());
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) return std::nullopt;

    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return ProcessResult{code, readFile(paths[1]), readFile(paths[2])};
}

}  // namespace vellark::testing
