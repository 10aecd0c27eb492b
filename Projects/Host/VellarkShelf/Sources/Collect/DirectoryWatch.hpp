#pragma once

#include <VellarkFoundation/Files/FileDescriptor.hpp>

#include <optional>
#include <string>

namespace vellark {

/// Waits for files to come into a directory, asleep until the system tells of one: by inotify on Linux, by kqueue on
/// macOS. SIGINT and SIGTERM end the waiting, and from `start` on nothing else.
class DirectoryWatch {
public:
    /// Makes the directory if it is missing. What comes into it from now on ends the next `wait`.
    [[nodiscard]] static std::optional<DirectoryWatch> start(const std::string& directory);

    /// True when something may have come in, false when the user wants an end.
    [[nodiscard]] bool wait();

private:
    DirectoryWatch(FileDescriptor events, FileDescriptor folder)
        : events_(std::move(events)), folder_(std::move(folder)) {}

    FileDescriptor events_;
    FileDescriptor folder_;  // only where the system watches an open folder
};

}  // namespace vellark
