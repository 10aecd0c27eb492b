#pragma once

#include <VellarkDomain/Documents/Library/CaptureLibrary.hpp>
#include <VellarkFoundation/Records/DecodingError.hpp>
#include <VellarkFoundation/Result.hpp>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vellark {

/// Why a library file was not read or not written.
struct LibraryFileError {
    enum class Reason {
        notFound,    ///< no file at the path
        unreadable,  ///< the system refused to read it; `systemError` says why
        damaged,     ///< the file is no library; `damage` says where it stops being one
        unwritable,  ///< the system refused to write; `systemError` says why
    };

    Reason reason = Reason::notFound;
    int systemError = 0;  ///< an errno
    DecodingError damage;

    bool operator==(const LibraryFileError&) const = default;
};

/// The library as one file: read whole, and written whole in place of the old one.
namespace LibraryFile {

/// Tells one state of the file from every later one.
struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t byteCount = 0;
    std::int64_t modifiedNanoseconds = 0;

    bool operator==(const Stamp&) const = default;
};

struct Contents {
    CaptureLibrary library;
    Stamp stamp;
};

/// The library at the path, all of it or none. A damaged file is left as it is.
[[nodiscard]] Result<Contents, LibraryFileError> read(const std::string& path);

/// Calls the function with each document of the file, in its order and one at a time: a library of hundreds of
/// megabytes is looked through in a megabyte or two. False when there is no such file, or it is not as `write`
/// leaves one; the documents that were visited then do not count, and `read` tells what is wrong or reads it all the
/// same.
[[nodiscard]] bool visit(const std::string& path, const std::function<void(const DocumentRecord&)>& visitor);

/// Puts the library in the place of the file, which nobody ever sees half written: the bytes go into a temporary file
/// of the same folder, onto the disk, and then there in one step. Whatever fails, the old file stays as it was. A link
/// at the path stays a link. The new file has the old one's permissions, or none but the owner's.
///
/// A file that is damaged is not overwritten. So that it need not be read for that each time, the caller may hand in
/// the stamp of the file that it has read or written last: one with this stamp is known to be good.
[[nodiscard]] Result<Stamp, LibraryFileError> write(const CaptureLibrary& library, const std::string& path,
                                                    const std::optional<Stamp>& known = std::nullopt);

}  // namespace LibraryFile

}  // namespace vellark
