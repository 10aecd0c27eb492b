#include <VellarkDomain/Board/DocumentBoardArchive.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace vellark {
namespace {

using Archive = DocumentBoardArchive;
using Error = DocumentBoardValidationError;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// One user-perceived character each, and more than one scalar.
const std::string family = "👩‍👩‍👧‍👦";
const std::string flag = "🇰🇷";
const std::string syllable = "\u1112\u1161\u11AB";  // Hangul in jamo

std::string repeated(const std::string& piece, std::size_t count) {
    std::string text;
    for (; count > 0; --count)
        text += piece;
    return text;
}

// One board with a document, a note and an edge between them.
Archive sample() {
    DocumentBoard board{.id = "board", .title = "Plan", .updatedAt = {0}};
    board.nodes = {{.id = "a", .documentID = "d-1", .position = {1, -2.5, 0}, .date = "2024-02-29"},
                   {.id = "b", .kind = BoardNodeKind::note, .title = "Later", .note = "first\nsecond"}};
    board.edges = {{.id = "a", .fromNodeID = "a", .toNodeID = "b", .label = "leads to"}};
    return {.boards = {board}};
}

// A change of the archive, or of its one board.
struct Change {
    template <class Function>
    Change(Function function)
        : apply([function](Archive& archive) {
              if constexpr (std::is_invocable_v<Function, Archive&>)
                  function(archive);
              else
                  function(archive.boards[0]);
          }) {}

    std::function<void(Archive&)> apply;
};

struct Row {
    const char* name;
    Change change;
    std::optional<Error> error;
};

void expectErrors(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        Archive archive = sample();
        row.change.apply(archive);
        EXPECT_EQ(archive.firstViolation(), row.error) << row.name;
        const auto validated = archive.validated();
        ASSERT_EQ(validated.has_value(), !row.error) << row.name;
        if (validated) {
            EXPECT_EQ(*validated, archive) << row.name;
        }
    }
}

TEST(DocumentBoardArchiveTests, archivesAndBoards) {
    expectErrors({
        {"sample", [](Archive&) {}, {}},
        {"empty", [](Archive& archive) { archive = Archive::empty(); }, {}},
        {"other schema, empty", [](Archive& archive) { archive = {.schemaVersion = 2, .boards = {}}; },
         Error::unsupportedSchema},
        {"schema 0", [](Archive& archive) { archive.schemaVersion = 0; }, Error::unsupportedSchema},
        {"empty identifier", [](DocumentBoard& board) { board.id.clear(); }, Error::invalidID},
        {"128 bytes of identifier", [](DocumentBoard& board) { board.id = std::string(128, '-'); }, {}},
        {"129 bytes of identifier", [](DocumentBoard& board) { board.id = std::string(129, 'Z'); }, Error::invalidID},
        {"letter outside ASCII", [](DocumentBoard& board) { board.id = "caf\u00E9"; }, Error::invalidID},
        {"NUL", [](DocumentBoard& board) { board.id = std::string("a\0", 2); }, Error::invalidID},
        {"a board twice", [](Archive& archive) { archive.boards.push_back(sample().boards[0]); }, Error::duplicateID},
        {"no title", [](DocumentBoard& board) { board.title.clear(); }, Error::invalidBoard},
        {"blank title", [](DocumentBoard& board) { board.title = " \t\u3000\u200B\u2028"; }, Error::invalidBoard},
        {"a joiner is no blank", [](DocumentBoard& board) { board.title = "\uFEFF"; }, {}},
        {"128 families", [](DocumentBoard& board) { board.title = repeated(family, 128); }, {}},
        {"129 families", [](DocumentBoard& board) { board.title = repeated(family, 129); }, Error::invalidBoard},
        {"128 flags", [](DocumentBoard& board) { board.title = repeated(flag, 128); }, {}},
        {"129 flags", [](DocumentBoard& board) { board.title = repeated(flag, 129); }, Error::invalidBoard},
        {"128 syllables", [](DocumentBoard& board) { board.title = repeated(syllable, 128); }, {}},
        {"129 syllables", [](DocumentBoard& board) { board.title = repeated(syllable, 129); }, Error::invalidBoard},
        {"129 letters", [](DocumentBoard& board) { board.title = repeated("thirteenchars", 10).substr(0, 129); },
         Error::invalidBoard},
        {"tab in a title", [](DocumentBoard& board) { board.title = "a\tb"; }, {}},
        {"line feed in a title", [](DocumentBoard& board) { board.title = "a\nb"; }, Error::invalidBoard},
        {"infinite moment", [](DocumentBoard& board) { board.updatedAt = {-infinity}; }, Error::invalidBoard},
        {"no moment", [](DocumentBoard& board) { board.updatedAt = {notANumber}; }, Error::invalidBoard},
    });
}

TEST(DocumentBoardArchiveTests, nodes) {
    expectErrors({
        {"identifier with a blank", [](DocumentBoard& board) { board.nodes[1].id = "b b"; }, Error::invalidID},
        {"a node twice", [](DocumentBoard& board) { board.nodes[1].id = "a"; }, Error::duplicateID},
        {"empty document", [](DocumentBoard& board) { board.nodes[0].documentID = ""; }, Error::invalidID},
        {"document with a slash", [](DocumentBoard& board) { board.nodes[0].documentID = "a/b"; }, Error::invalidID},
        {"blank title with a document", [](DocumentBoard& board) { board.nodes[0].title = "  "; }, {}},
        {"blank title without one", [](DocumentBoard& board) { board.nodes[1].title = "  "; }, Error::invalidNode},
        {"256 characters", [](DocumentBoard& board) { board.nodes[0].title = repeated(family, 256); }, {}},
        {"257 characters", [](DocumentBoard& board) { board.nodes[0].title = repeated(syllable, 257); },
         Error::invalidNode},
        {"escape in a title", [](DocumentBoard& board) { board.nodes[0].title = "a\x1B"; }, Error::invalidNode},
        {"delete in a title", [](DocumentBoard& board) { board.nodes[0].title = "a\x7F"; }, Error::invalidNode},
        {"C1 control in a title", [](DocumentBoard& board) { board.nodes[0].title = "a\u0085"; }, {}},
        {"8,192 characters", [](DocumentBoard& board) { board.nodes[0].note = repeated(flag, 8192); }, {}},
        {"8,193 characters", [](DocumentBoard& board) { board.nodes[0].note = repeated("e\u0301", 8193); },
         Error::invalidNode},
        {"line feed and tab in a note", [](DocumentBoard& board) { board.nodes[0].note = "\n\ta\n"; }, {}},
        {"CR LF in a note", [](DocumentBoard& board) { board.nodes[0].note = "a\r\nb"; }, Error::invalidNode},
        {"greatest coordinate",
         [](DocumentBoard& board) {
             board.nodes[0].position = {100000.0, -100000.0, 100000.0};
         },
         {}},
        {"x beyond", [](DocumentBoard& board) { board.nodes[0].position.x = 100000.5; }, Error::invalidPosition},
        {"y beyond", [](DocumentBoard& board) { board.nodes[0].position.y = -100000.5; }, Error::invalidPosition},
        {"z infinite", [](DocumentBoard& board) { board.nodes[0].position.z = infinity; }, Error::invalidPosition},
        {"x no number", [](DocumentBoard& board) { board.nodes[0].position.x = notANumber; }, Error::invalidPosition},
        {"y negative infinite", [](DocumentBoard& board) { board.nodes[0].position.y = -infinity; },
         Error::invalidPosition},
    });
}

TEST(DocumentBoardArchiveTests, controlsAreSeenAtEveryPlace) {
    for (std::size_t length = 1; length <= 40; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            Archive archive = sample();
            archive.boards[0].nodes[1].title.assign(length, 'a');
            archive.boards[0].nodes[1].title[place] = '\v';
            EXPECT_EQ(archive.firstViolation(), Error::invalidNode) << length << " " << place;
            archive = sample();
            archive.boards[0].nodes[1].id.assign(length, '_');
            archive.boards[0].nodes[1].id[place] = '.';
            EXPECT_EQ(archive.firstViolation(), Error::invalidID) << length << " " << place;
        }
    }
}

TEST(DocumentBoardArchiveTests, everyByteOfAnIdentifier) {
    const std::string_view allowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    for (int byte = 0; byte < 256; ++byte) {
        Archive archive = sample();
        archive.boards[0].id = std::string(1, static_cast<char>(byte));
        const bool isAllowed = allowed.find(static_cast<char>(byte)) != std::string_view::npos;
        EXPECT_EQ(archive.firstViolation() == std::nullopt, isAllowed) << byte;
    }
}

TEST(DocumentBoardArchiveTests, edges) {
    expectErrors({
        {"bad identifier", [](DocumentBoard& board) { board.edges[0].id = "?"; }, Error::invalidID},
        {"bad source", [](DocumentBoard& board) { board.edges[0].fromNodeID = ""; }, Error::invalidID},
        {"bad target", [](DocumentBoard& board) { board.edges[0].toNodeID = "b\n"; }, Error::invalidID},
        {"an edge twice", [](DocumentBoard& board) { board.edges.push_back(board.edges[0]); }, Error::duplicateID},
        {"empty label", [](DocumentBoard& board) { board.edges[0].label.clear(); }, {}},
        {"256 characters", [](DocumentBoard& board) { board.edges[0].label = repeated(flag, 256); }, {}},
        {"257 characters", [](DocumentBoard& board) { board.edges[0].label = repeated(flag, 257); },
         Error::invalidEdge},
        {"line feed", [](DocumentBoard& board) { board.edges[0].label = "\n"; }, Error::invalidEdge},
        {"loop", [](DocumentBoard& board) { board.edges[0].toNodeID = "a"; }, Error::invalidEdge},
        {"loop nowhere", [](DocumentBoard& board) { board.edges[0].fromNodeID = board.edges[0].toNodeID = "x"; },
         Error::invalidEdge},
        {"unknown source", [](DocumentBoard& board) { board.edges[0].fromNodeID = "x"; }, Error::invalidEdge},
        {"unknown target", [](DocumentBoard& board) { board.edges[0].toNodeID = "x"; }, Error::invalidEdge},
        {"node of another board",
         [](Archive& archive) {
             archive.boards.push_back({.id = "other", .title = "Other"});
             archive.boards[1].edges = archive.boards[0].edges;
         },
         Error::invalidEdge},
        {"the same identifiers on another board",
         [](Archive& archive) {
             archive.boards.push_back(sample().boards[0]);
             archive.boards[1].id = "other";
         },
         {}},
    });
}

// Two faults at once: the one that is looked for first is named.
TEST(DocumentBoardArchiveTests, theFirstFaultIsNamed) {
    expectErrors({
        {"schema before boards",
         [](Archive& archive) {
             archive.schemaVersion = 2;
             archive.boards[0].id = "?";
         },
         Error::unsupportedSchema},
        {"number of boards before boards", [](Archive& archive) { archive.boards.resize(101); }, Error::tooManyBoards},
        {"identifier before title",
         [](DocumentBoard& board) {
             board.id = "?";
             board.title = "";
         },
         Error::invalidID},
        {"title before nodes",
         [](DocumentBoard& board) {
             board.title = "";
             board.nodes.resize(2001);
         },
         Error::invalidBoard},
        {"nodes before edges",
         [](DocumentBoard& board) {
             board.nodes.resize(2001);
             board.edges.resize(8001);
         },
         Error::tooManyNodes},
        {"number of edges before nodes",
         [](DocumentBoard& board) {
             board.nodes[0].id = "?";
             board.edges.resize(8001);
         },
         Error::tooManyEdges},
        {"an earlier node's last field before a later one's first",
         [](DocumentBoard& board) {
             board.nodes[0].date = "x";
             board.nodes[1].id = "?";
         },
         Error::invalidDate},
        {"document before title",
         [](DocumentBoard& board) {
             board.nodes[0].documentID = "?";
             board.nodes[0].title = "\n";
         },
         Error::invalidID},
        {"twice before document",
         [](DocumentBoard& board) {
             std::swap(board.nodes[0], board.nodes[1]);
             board.nodes[1].id = "b";
             board.nodes[1].documentID = "?";
         },
         Error::duplicateID},
        {"note before place",
         [](DocumentBoard& board) {
             board.nodes[0].note = "\r";
             board.nodes[0].position.x = infinity;
         },
         Error::invalidNode},
        {"place before date",
         [](DocumentBoard& board) {
             board.nodes[0].date = "x";
             board.nodes[0].position.x = infinity;
         },
         Error::invalidPosition},
        {"nodes before edges' identifiers",
         [](DocumentBoard& board) {
             board.nodes[1].title = "";
             board.edges[0].id = "?";
         },
         Error::invalidNode},
        {"target's identifier before twice",
         [](DocumentBoard& board) {
             board.edges.push_back(board.edges[0]);
             board.edges[1].toNodeID = "?";
         },
         Error::invalidID},
        {"twice before label",
         [](DocumentBoard& board) {
             board.edges.push_back(board.edges[0]);
             board.edges[1].label = "\n";
         },
         Error::duplicateID},
        {"an earlier board's edge before a later board",
         [](Archive& archive) {
             archive.boards[0].edges[0].label = "\n";
             archive.boards.push_back({.id = "?"});
         },
         Error::invalidEdge},
    });
}

TEST(DocumentBoardArchiveTests, countsAreLimited) {
    Archive archive;
    for (std::size_t index = 0; index < Archive::maximumBoards; ++index)
        archive.boards.push_back({.id = std::to_string(index), .title = "T"});
    DocumentBoard& board = archive.boards.back();
    for (std::size_t index = 0; index < Archive::maximumNodes; ++index)
        board.nodes.push_back({.id = std::to_string(index), .title = "T"});
    for (std::size_t index = 0; index < Archive::maximumEdges; ++index)
        board.edges.push_back({.id = std::to_string(index), .fromNodeID = "0", .toNodeID = "1999"});
    EXPECT_EQ(archive.firstViolation(), std::nullopt);

    board.edges.push_back({.id = "more", .fromNodeID = "0", .toNodeID = "1"});
    EXPECT_EQ(archive.firstViolation(), Error::tooManyEdges);
    board.nodes.push_back({.id = "more", .title = "T"});
    EXPECT_EQ(archive.firstViolation(), Error::tooManyNodes);
    archive.boards.push_back({.id = "more", .title = "T"});
    EXPECT_EQ(archive.firstViolation(), Error::tooManyBoards);
}

TEST(DocumentBoardArchiveTests, dates) {
    const std::pair<const char*, bool> rows[] = {
        {"2024-02-29", true},    {"2000-02-29", true},  {"1900-02-29", false}, {"2023-02-29", false},
        {"2026-04-30", true},    {"2026-04-31", false}, {"2026-12-31", true},  {"2026-01-32", false},
        {"2026-00-01", false},   {"2026-13-01", false}, {"2026-01-00", false}, {"0001-01-01", true},
        {"0000-01-01", false},   {"9999-12-31", true},  {"2026-1-02", false},  {"2026-01-2", false},
        {"2026-01-02\n", false}, {" 2026-01-0", false}, {"2026/01/02", false}, {"2026-01-0２", false},
        {"-026-01-02", false},   {"2026-+1-02", false}, {"", false},           {"2026-01-02T00:00:00Z", false},
        {"2026-99-99", false},
    };
    for (const auto& [text, isValid] : rows) {
        Archive archive = sample();
        archive.boards[0].nodes[0].date = text;
        EXPECT_EQ(archive.firstViolation(), isValid ? std::nullopt : std::optional(Error::invalidDate)) << text;
    }
}

TEST(DocumentBoardArchiveTests, anArchiveMayBeHandedOver) {
    Archive archive = sample();
    EXPECT_EQ(std::move(archive).validated(), sample());
    Archive damaged = sample();
    damaged.boards[0].id = "?";
    EXPECT_EQ(std::move(damaged).validated().error(), Error::invalidID);
}

}  // namespace
}  // namespace vellark
