#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <string>

namespace vellark {

/// Why a change of the library was refused, or a document could not be shown.
enum class LibraryMutationError {
    unsupported,
    conflict,
    notFound,
    invalidInput,
    invalidLibrary,
    snapshotReleased,
    sourceUnavailable,
    sourceChanged,
};

template <>
inline constexpr auto caseTable<LibraryMutationError> = std::to_array<CaseName<LibraryMutationError>>({
    {LibraryMutationError::unsupported, "unsupported"},
    {LibraryMutationError::conflict, "conflict"},
    {LibraryMutationError::notFound, "notFound"},
    {LibraryMutationError::invalidInput, "invalidInput"},
    {LibraryMutationError::invalidLibrary, "invalidLibrary"},
    {LibraryMutationError::snapshotReleased, "snapshotReleased"},
    {LibraryMutationError::sourceUnavailable, "sourceUnavailable"},
    {LibraryMutationError::sourceChanged, "sourceChanged"},
});

/// What the user is told, in the user's language.
[[nodiscard]] std::string errorDescription(LibraryMutationError error);

}  // namespace vellark
