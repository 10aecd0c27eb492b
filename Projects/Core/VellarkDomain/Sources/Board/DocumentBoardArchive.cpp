// One walk over the archive that stops at the first broken rule. The order of the rules is part of what is promised:
// an archive with several faults always names the same one.
//
// Cheap tests come first within a rule: a text with no more bytes than it may have characters needs no segmentation,
// and one that begins with a visible ASCII character is not blank.

#include <VellarkDomain/Board/DocumentBoardArchive.hpp>
#include <VellarkDomain/Board/IdentifierSet.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <string_view>
#include <utility>

namespace vellark {

namespace {

using Error = DocumentBoardValidationError;
using Violation = std::optional<Error>;
using Archive = DocumentBoardArchive;

using Bytes = unsigned char __attribute__((vector_size(16)));

bool isTrueEverywhere(auto lanes) {
    std::array<std::uint64_t, 2> words;
    static_assert(sizeof words == sizeof lanes);
    std::memcpy(words.data(), &lanes, sizeof words);
    return (words[0] & words[1]) == ~std::uint64_t{0};
}

// Whether a rule holds for all bytes, 16 of which it judges at a time. It must hold for 'a', which a short text is
// filled up with; the end of a longer one is read together with bytes that were judged before.
template <class Rule>
bool everyByte(std::string_view text, Rule holds) {
    Bytes bytes;
    if (text.size() < sizeof bytes) {
        std::memset(&bytes, 'a', sizeof bytes);
        std::memcpy(&bytes, text.data(), text.size());
        return isTrueEverywhere(holds(bytes));
    }
    const std::size_t last = text.size() - sizeof bytes;
    for (std::size_t offset = 0; offset < last; offset += sizeof bytes) {
        std::memcpy(&bytes, text.data() + offset, sizeof bytes);
        if (!isTrueEverywhere(holds(bytes))) return false;
    }
    std::memcpy(&bytes, text.data() + last, sizeof bytes);
    return isTrueEverywhere(holds(bytes));
}

bool isIdentifier(std::string_view text) {
    if (text.empty() || text.size() > Archive::maximumIdentifierBytes) return false;
    return everyByte(text, [](Bytes bytes) {
        return ((bytes | 0x20) - 'a' < 26) | (bytes - '0' < 10) | (bytes == '_') | (bytes == '-');
    });
}

// Controls are scalars below U+0080, and so single bytes: no other scalar's bytes look like them.
bool isOneLine(std::string_view text) {
    return everyByte(text, [](Bytes bytes) { return ((bytes >= 0x20) & (bytes != 0x7F)) | (bytes == '\t'); });
}

bool isNote(std::string_view text) {
    return everyByte(
        text, [](Bytes bytes) { return ((bytes >= 0x20) & (bytes != 0x7F)) | (bytes == '\t') | (bytes == '\n'); });
}

bool isBlank(std::string_view text) {
    return Whitespace::trimmedWithNewlines(text).empty();
}

bool isCoordinate(double value) {
    return std::abs(value) <= Archive::maximumCoordinate;  // no number at all compares as false
}

std::optional<unsigned> number(std::string_view digits) {
    unsigned value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + static_cast<unsigned>(digit - '0');
    }
    return value;
}

// A day as "2026-01-02", from the year 1 on, in the Gregorian calendar also before its time.
bool isDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
    const auto year = number(text.substr(0, 4));
    const auto month = number(text.substr(5, 2));
    const auto day = number(text.substr(8, 2));
    if (!year || !month || !day || *year == 0) return false;
    return std::chrono::year_month_day(std::chrono::year(static_cast<int>(*year)), std::chrono::month(*month),
                                       std::chrono::day(*day))
        .ok();
}

class Validation {
public:
    Violation of(const Archive& archive) {
        if (archive.schemaVersion != Archive::supportedSchemaVersion) return Error::unsupportedSchema;
        if (archive.boards.size() > Archive::maximumBoards) return Error::tooManyBoards;
        boards_.reset(archive.boards.size());
        for (const DocumentBoard& board : archive.boards) {
            if (const Violation violation = ofBoard(board)) return violation;
        }
        return std::nullopt;
    }

private:
    Violation ofBoard(const DocumentBoard& board) {
        if (!isIdentifier(board.id)) return Error::invalidID;
        if (!boards_.insert(board.id)) return Error::duplicateID;
        if (isBlank(board.title) || GraphemeBreak::exceeds(board.title, Archive::maximumBoardTitleLength) ||
            !isOneLine(board.title) || !std::isfinite(board.updatedAt.secondsSince1970))
            return Error::invalidBoard;
        if (board.nodes.size() > Archive::maximumNodes) return Error::tooManyNodes;
        if (board.edges.size() > Archive::maximumEdges) return Error::tooManyEdges;
        nodes_.reset(board.nodes.size());
        for (const DocumentBoardNode& node : board.nodes) {
            if (const Violation violation = ofNode(node)) return violation;
        }
        edges_.reset(board.edges.size());
        for (const DocumentBoardEdge& edge : board.edges) {
            if (const Violation violation = ofEdge(edge)) return violation;
        }
        return std::nullopt;
    }

    Violation ofNode(const DocumentBoardNode& node) {
        if (!isIdentifier(node.id)) return Error::invalidID;
        if (!nodes_.insert(node.id)) return Error::duplicateID;
        if (node.documentID && !isIdentifier(*node.documentID)) return Error::invalidID;
        if (GraphemeBreak::exceeds(node.title, Archive::maximumNodeTitleLength) || !isOneLine(node.title))
            return Error::invalidNode;
        if (!node.documentID && isBlank(node.title)) return Error::invalidNode;
        if (GraphemeBreak::exceeds(node.note, Archive::maximumNoteLength) || !isNote(node.note))
            return Error::invalidNode;
        const BoardPoint& place = node.position;
        if (!isCoordinate(place.x) || !isCoordinate(place.y) || !isCoordinate(place.z)) return Error::invalidPosition;
        if (node.date && !isDate(*node.date)) return Error::invalidDate;
        return std::nullopt;
    }

    Violation ofEdge(const DocumentBoardEdge& edge) {
        const bool isFromKnown = nodes_.contains(edge.fromNodeID);  // and if so, an identifier
        const bool isToKnown = nodes_.contains(edge.toNodeID);
        if (!isIdentifier(edge.id) || !(isFromKnown || isIdentifier(edge.fromNodeID)) ||
            !(isToKnown || isIdentifier(edge.toNodeID)))
            return Error::invalidID;
        if (!edges_.insert(edge.id)) return Error::duplicateID;
        if (GraphemeBreak::exceeds(edge.label, Archive::maximumEdgeLabelLength) || !isOneLine(edge.label))
            return Error::invalidEdge;
        if (edge.fromNodeID == edge.toNodeID) return Error::invalidEdge;
        if (!isFromKnown || !isToKnown) return Error::invalidEdge;
        return std::nullopt;
    }

    IdentifierSet boards_;
    IdentifierSet nodes_;  // of the present board, like the edges
    IdentifierSet edges_;
};

}  // namespace

std::optional<DocumentBoardValidationError> DocumentBoardArchive::firstViolation() const {
    return Validation().of(*this);
}

Result<DocumentBoardArchive, DocumentBoardValidationError> DocumentBoardArchive::validated() const& {
    if (const Violation violation = firstViolation()) return failure(*violation);
    return *this;
}

Result<DocumentBoardArchive, DocumentBoardValidationError> DocumentBoardArchive::validated() && {
    if (const Violation violation = firstViolation()) return failure(*violation);
    return std::move(*this);
}

}  // namespace vellark
