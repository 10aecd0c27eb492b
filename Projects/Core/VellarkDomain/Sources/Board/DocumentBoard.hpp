#pragma once

#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <optional>
#include <string>
#include <vector>

// A board: a free canvas on which documents, notes, people and events lie and are joined by labelled edges. Values
// only; whether they make sense together is decided by DocumentBoardArchive::validated().

namespace vellark {

/// A place on the canvas, in the canvas's own unit.
struct BoardPoint {
    double x = 0;
    double y = 0;
    double z = 0;  ///< stacking: the higher one covers the lower one

    bool operator==(const BoardPoint&) const = default;
};

template <class Fields>
void describe(Fields& fields, BoardPoint& point) {
    fields.required("x", point.x);
    fields.required("y", point.y);
    fields.required("z", point.z);
}

/// What a node stands for.
enum class BoardNodeKind { document, note, person, event };

template <>
inline constexpr auto caseTable<BoardNodeKind> = std::to_array<CaseName<BoardNodeKind>>({
    {BoardNodeKind::document, "document"},
    {BoardNodeKind::note, "note"},
    {BoardNodeKind::person, "person"},
    {BoardNodeKind::event, "event"},
});

/// How much of a node is shown.
enum class BoardNodeDisplay { icon, title, summary };

template <>
inline constexpr auto caseTable<BoardNodeDisplay> = std::to_array<CaseName<BoardNodeDisplay>>({
    {BoardNodeDisplay::icon, "icon"},
    {BoardNodeDisplay::title, "title"},
    {BoardNodeDisplay::summary, "summary"},
});

enum class BoardNodeColor { amber, blue, green, purple, rose, gray };

template <>
inline constexpr auto caseTable<BoardNodeColor> = std::to_array<CaseName<BoardNodeColor>>({
    {BoardNodeColor::amber, "amber"},
    {BoardNodeColor::blue, "blue"},
    {BoardNodeColor::green, "green"},
    {BoardNodeColor::purple, "purple"},
    {BoardNodeColor::rose, "rose"},
    {BoardNodeColor::gray, "gray"},
});

/// At which ends of an edge an arrow head stands.
enum class BoardEdgeDirection { none, forward, bidirectional };

template <>
inline constexpr auto caseTable<BoardEdgeDirection> = std::to_array<CaseName<BoardEdgeDirection>>({
    {BoardEdgeDirection::none, "none"},
    {BoardEdgeDirection::forward, "forward"},
    {BoardEdgeDirection::bidirectional, "bidirectional"},
});

struct DocumentBoardNode {
    std::string id;
    BoardNodeKind kind = BoardNodeKind::document;
    std::optional<std::string> documentID;  ///< the document of the library that the node shows
    std::string title;                      ///< blank only where `documentID` is set
    std::string note;
    BoardPoint position;
    BoardNodeDisplay display = BoardNodeDisplay::icon;
    BoardNodeColor color = BoardNodeColor::amber;
    std::optional<std::string> date;  ///< a day as "2026-01-02"

    bool operator==(const DocumentBoardNode&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentBoardNode& node) {
    fields.required("id", node.id);
    fields.required("kind", node.kind);
    fields.optional("documentID", node.documentID);
    fields.required("title", node.title);
    fields.required("note", node.note);
    fields.required("position", node.position);
    fields.required("display", node.display);
    fields.required("color", node.color);
    fields.optional("date", node.date);
}

struct DocumentBoardEdge {
    std::string id;
    std::string fromNodeID;
    std::string toNodeID;
    std::string label;  ///< may be empty
    BoardEdgeDirection direction = BoardEdgeDirection::none;

    bool operator==(const DocumentBoardEdge&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentBoardEdge& edge) {
    fields.required("id", edge.id);
    fields.required("fromNodeID", edge.fromNodeID);
    fields.required("toNodeID", edge.toNodeID);
    fields.required("label", edge.label);
    fields.required("direction", edge.direction);
}

struct DocumentBoard {
    std::string id;
    std::string title;
    std::vector<DocumentBoardNode> nodes;
    std::vector<DocumentBoardEdge> edges;
    Date updatedAt;

    bool operator==(const DocumentBoard&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentBoard& board) {
    fields.required("id", board.id);
    fields.required("title", board.title);
    fields.required("nodes", board.nodes);
    fields.required("edges", board.edges);
    fields.required("updatedAt", board.updatedAt);
}

}  // namespace vellark
