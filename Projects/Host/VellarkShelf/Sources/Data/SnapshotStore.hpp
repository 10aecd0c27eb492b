#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Copies of documents' contents, each kept once under the digest of its bytes:
///
///     snapshots/3f/3f2a…c1.md
class SnapshotStore {
public:
    explicit SnapshotStore(std::string folder) : folder_(std::move(folder)) {}

    /// Where the content lies from now on; nothing when it cannot be written. The extension, without its point, makes
    /// the copy open as what it is; it may be empty. The copy is on the disk only after `flush`.
    [[nodiscard]] std::optional<std::string> put(std::string_view content, std::string_view digest,
                                                 std::string_view extension);

    /// Waits until all copies are on the disk. False when the system could not promise it.
    [[nodiscard]] bool flush();

private:
    std::string folder_;
    bool isDirty_ = false;
};

}  // namespace vellark
