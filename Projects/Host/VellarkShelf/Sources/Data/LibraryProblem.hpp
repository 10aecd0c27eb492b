#pragma once

#include <VellarkDomain/Documents/Library/LibraryFile.hpp>

#include <string>

namespace vellark {

/// What is wrong with the library file, for the user.
[[nodiscard]] std::string libraryProblem(const LibraryFileError& error);

}  // namespace vellark
