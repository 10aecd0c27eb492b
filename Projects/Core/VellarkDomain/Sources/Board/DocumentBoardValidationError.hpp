#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

namespace vellark {

/// Why an archive of boards is not to be trusted. The host finds the words.
enum class DocumentBoardValidationError {
    unsupportedSchema,
    tooManyBoards,
    tooManyNodes,
    tooManyEdges,
    invalidID,
    duplicateID,
    invalidBoard,
    invalidNode,
    invalidPosition,
    invalidDate,
    invalidEdge,
};

template <>
inline constexpr auto caseTable<DocumentBoardValidationError> = std::to_array<CaseName<DocumentBoardValidationError>>({
    {DocumentBoardValidationError::unsupportedSchema, "unsupportedSchema"},
    {DocumentBoardValidationError::tooManyBoards, "tooManyBoards"},
    {DocumentBoardValidationError::tooManyNodes, "tooManyNodes"},
    {DocumentBoardValidationError::tooManyEdges, "tooManyEdges"},
    {DocumentBoardValidationError::invalidID, "invalidID"},
    {DocumentBoardValidationError::duplicateID, "duplicateID"},
    {DocumentBoardValidationError::invalidBoard, "invalidBoard"},
    {DocumentBoardValidationError::invalidNode, "invalidNode"},
    {DocumentBoardValidationError::invalidPosition, "invalidPosition"},
    {DocumentBoardValidationError::invalidDate, "invalidDate"},
    {DocumentBoardValidationError::invalidEdge, "invalidEdge"},
});

}  // namespace vellark
