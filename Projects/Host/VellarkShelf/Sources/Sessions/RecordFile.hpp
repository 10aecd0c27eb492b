#pragma once

#include <VellarkFoundation/Files/FileDescriptor.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// A file into which an agent may be writing while we read: lines that a program made, of any number and length.
class RecordFile {
public:
    /// A longer line is passed over, in bytes: what people and agents say is far shorter, and a line with what is made
    /// of it must fit into the memory of a small command.
    static constexpr std::size_t longestLine = std::size_t{16} << 20;

    /// A line without its line feed; the text goes with the next line.
    struct Line {
        std::string_view text;
        std::int64_t offset = 0;  ///< in the file, in bytes
    };

    /// False ends the walk.
    using Visitor = std::function<bool(const Line& line)>;

    /// Nothing when the path leads to no regular file or cannot be read. A FIFO does not block, and a symbolic link at
    /// the path's end is not followed: agents write files, so a link would lead to something else.
    [[nodiscard]] static std::optional<RecordFile> open(const std::string& path);

    /// The fingerprint of the file at the path, which is not opened; nothing where `open` would give nothing.
    [[nodiscard]] static std::optional<std::vector<std::int64_t>> fingerprintOf(const std::string& path);

    /// Size, time of the last change in nanoseconds, inode and device. Equal ones mean an unchanged file.
    [[nodiscard]] const std::vector<std::int64_t>& fingerprint() const { return fingerprint_; }

    /// Walks the lines from an offset on, which must be a line's start, in memory for one piece and the longest line.
    /// Only the bytes that were there when the file was opened are read; a last line that is still being written is
    /// handed out as far as it goes.
    void walk(std::int64_t from, const Visitor& visit) const;

    /// Bytes from an offset on, of those that were there when the file was opened. Gives how many were put at the
    /// place: 0 at the end, and where the file cannot be read.
    [[nodiscard]] std::size_t read(std::int64_t offset, char* place, std::size_t room) const;

private:
    RecordFile(FileDescriptor file, std::vector<std::int64_t> fingerprint)
        : file_(std::move(file)), fingerprint_(std::move(fingerprint)) {}

    FileDescriptor file_;
    std::vector<std::int64_t> fingerprint_;
};

}  // namespace vellark
