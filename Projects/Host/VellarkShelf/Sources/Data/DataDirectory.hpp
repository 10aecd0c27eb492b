#pragma once

#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Result.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// The one directory that the shelf writes to, and the names in it. Helper and shelf meet here.
struct DataDirectory {
    std::string path;  ///< absolute, without a tilde

    /// The directory that the user chose with an option, or else `VELLARK_DATA_DIR`, or else "Library/Application
    /// Support/Vellark" below the home: the same rule as the helper's, without which the two would never meet.
    [[nodiscard]] static DataDirectory chosen(const std::optional<std::string>& option, const Environment& environment);

    /// Makes the directory, with its parents, for its owner alone. False when it cannot be made.
    [[nodiscard]] bool create() const;

    [[nodiscard]] std::string file(std::string_view name) const { return path + "/" + std::string(name); }
    [[nodiscard]] std::string library() const { return file("library.json"); }
    [[nodiscard]] std::string settings() const { return file("settings.json"); }
    [[nodiscard]] std::string capturePolicy() const { return file("capture-policy.json"); }
    [[nodiscard]] std::string signals() const { return file("signals"); }
    [[nodiscard]] std::string snapshots() const { return file("snapshots"); }
    [[nodiscard]] std::string digests() const { return file("digests.jsonl"); }

    /// Puts a file in its place whole or not at all, readable for its owner alone.
    [[nodiscard]] static bool replace(const std::string& path, std::string_view bytes);
};

/// Holds the directory against another process that changes the library. Released with the object, and by the system
/// when the process ends in whatever way.
class DataDirectoryLock {
public:
    enum class Failure { isHeld, unusable };

    /// Does not wait: `isHeld` when another process has it.
    [[nodiscard]] static Result<DataDirectoryLock, Failure> acquire(const DataDirectory& directory);

private:
    explicit DataDirectoryLock(FileDescriptor file) : file_(std::move(file)) {}

    FileDescriptor file_;
};

}  // namespace vellark
