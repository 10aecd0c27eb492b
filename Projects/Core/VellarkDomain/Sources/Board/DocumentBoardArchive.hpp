#pragma once

#include <VellarkDomain/Board/DocumentBoard.hpp>
#include <VellarkDomain/Board/DocumentBoardValidationError.hpp>
#include <VellarkFoundation/Result.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vellark {

/// All boards, as one file holds them. An archive is trusted, and written, only once it has passed `validated()`.
struct DocumentBoardArchive {
    static constexpr std::int64_t supportedSchemaVersion = 1;

    // What an archive may hold, each limit included. They keep the check, and the canvas that shows a board, at a cost
    // that is known beforehand.
    static constexpr std::size_t maximumBoards = 100;
    static constexpr std::size_t maximumNodes = 2'000;           ///< of one board
    static constexpr std::size_t maximumEdges = 8'000;           ///< of one board
    static constexpr std::size_t maximumBoardTitleLength = 128;  ///< user-perceived characters, like the three below
    static constexpr std::size_t maximumNodeTitleLength = 256;   ///< a document's own title may be that long
    static constexpr std::size_t maximumNoteLength = 8'192;      ///< a few pages
    static constexpr std::size_t maximumEdgeLabelLength = 256;   ///< as a node's title
    static constexpr std::size_t maximumIdentifierBytes = 128;   ///< three UUIDs fit
    static constexpr double maximumCoordinate = 100'000.0;       ///< in either direction

    std::int64_t schemaVersion = supportedSchemaVersion;
    std::vector<DocumentBoard> boards;

    /// The archive of a user without boards.
    [[nodiscard]] static DocumentBoardArchive empty() { return {}; }

    /// The first rule that the archive breaks, in the order of its boards, and in each of them the board's own fields,
    /// its nodes, its edges; nothing when it keeps all rules. Identifiers consist of ASCII letters, digits, "_" and
    /// "-"; nodes and edges have name spaces of their own in each board. Costs time linear in the archive.
    [[nodiscard]] std::optional<DocumentBoardValidationError> firstViolation() const;

    /// An equal archive when it keeps all rules, otherwise the first one that it breaks. Nothing is repaired.
    [[nodiscard]] Result<DocumentBoardArchive, DocumentBoardValidationError> validated() const&;
    [[nodiscard]] Result<DocumentBoardArchive, DocumentBoardValidationError> validated() &&;

    bool operator==(const DocumentBoardArchive&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentBoardArchive& archive) {
    fields.required("schemaVersion", archive.schemaVersion);
    fields.required("boards", archive.boards);
}

}  // namespace vellark
