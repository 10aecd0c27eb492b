#include <VellarkShelf/Data/LibraryProblem.hpp>

#include <cstring>

namespace vellark {

std::string libraryProblem(const LibraryFileError& error) {
    switch (error.reason) {
        case LibraryFileError::Reason::notFound:
            return "there is no library yet";
        case LibraryFileError::Reason::unreadable:
            return std::string("the library cannot be read: ") + std::strerror(error.systemError);
        case LibraryFileError::Reason::damaged:
            return "the library is damaged" + (error.damage.path.empty() ? "" : " at " + error.damage.path) +
                   ", byte " + std::to_string(error.damage.byteOffset) + "; it is left as it is";
        case LibraryFileError::Reason::unwritable:
            break;
    }
    return std::string("the library cannot be written: ") + std::strerror(error.systemError);
}

}  // namespace vellark
