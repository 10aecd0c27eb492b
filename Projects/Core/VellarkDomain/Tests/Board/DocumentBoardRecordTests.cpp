#include "Support/RandomInput.hpp"
#include "Support/WrongTypes.hpp"
#include <VellarkDomain/Board/DocumentBoardArchive.hpp>
#include <VellarkDomain/Board/IdentifierSet.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <string_view>

namespace vellark {
namespace {

using Reason = DecodingError::Reason;

constexpr std::string_view whole =
    R"({"schemaVersion":1,"boards":[{"id":"board","title":"Plan","nodes":[)"
    R"({"id":"a","kind":"document","documentID":"d","title":"","note":"","position":{"x":1,"y":-2.5,"z":0},)"
    R"("display":"summary","color":"rose","date":"2024-02-29"},)"
    R"({"id":"b","kind":"note","title":"가/나","note":"\n","position":{"x":0,"y":0,"z":0},"display":"icon","color":"gray"}],)"
    R"("edges":[{"id":"e","fromNodeID":"a","toNodeID":"b","label":"","direction":"bidirectional"}],)"
    R"("updatedAt":"2026-01-02T03:04:05Z"}]})";

std::string with(std::string_view piece, std::string_view replacement) {
    std::string text(whole);
    const std::size_t place = text.find(piece);
    EXPECT_NE(place, std::string::npos) << piece;
    return text.replace(place, piece.size(), replacement);
}

TEST(DocumentBoardRecordTests, whatIsReadIsWrittenAlike) {
    const auto archive = readRecord<DocumentBoardArchive>(whole);
    ASSERT_TRUE(archive) << archive.error().path;
    const DocumentBoard& board = archive->boards[0];
    EXPECT_EQ(board.nodes[0].documentID, "d");
    EXPECT_EQ(board.nodes[0].position, (BoardPoint{1, -2.5, 0}));
    EXPECT_EQ(board.nodes[1].date, std::nullopt);
    EXPECT_EQ(board.edges[0].direction, BoardEdgeDirection::bidirectional);
    EXPECT_EQ(board.updatedAt, Date{1767323045});
    EXPECT_EQ(archive->firstViolation(), std::nullopt);

    const auto written = writeRecord(*archive);
    ASSERT_TRUE(written);
    EXPECT_EQ(readRecord<DocumentBoardArchive>(std::string_view(*written)), archive);
    std::size_t place = 0;
    for (const std::string_view key :
         {"schemaVersion", "boards", "id",         "title",    "nodes", "id",        "kind",     "documentID",
          "title",         "note",   "position",   "x",        "y",     "z",         "display",  "color",
          "date",          "id",     "kind",       "title",    "note",  "position",  "display",  "color",
          "edges",         "id",     "fromNodeID", "toNodeID", "label", "direction", "updatedAt"}) {
        place = written->find("\"" + std::string(key) + "\":", place);
        ASSERT_NE(place, std::string::npos) << key;
        ++place;
    }
    EXPECT_EQ(written->find("null"), std::string::npos);
    EXPECT_EQ(writeRecord(DocumentBoardArchive::empty()), std::string(R"({"schemaVersion":1,"boards":[]})"));
}

TEST(DocumentBoardRecordTests, nullIsAbsent) {
    const auto archive = readRecord<DocumentBoardArchive>(with(R"("documentID":"d")", R"("documentID":null,"x":[1])"));
    ASSERT_TRUE(archive);
    EXPECT_EQ(archive->boards[0].nodes[0].documentID, std::nullopt);
}

TEST(DocumentBoardRecordTests, wrongTypesFailUnderEveryKey) {
    testing::expectWrongTypesToFail<DocumentBoardArchive>(whole);
}

struct PlaceRow {
    std::string_view piece;
    std::string_view replacement;
    Reason reason;
    std::string_view path;
};

TEST(DocumentBoardRecordTests, errorsTellTheirPlace) {
    const PlaceRow rows[] = {
        {R"("schemaVersion":1)", R"("schemaVersion":"1")", Reason::wrongType, "schemaVersion"},
        {R"("schemaVersion":1)", R"("schemaVersion":1.5)", Reason::outOfRange, "schemaVersion"},
        {R"("schemaVersion":1,)", "", Reason::missing, "schemaVersion"},
        {R"("id":"board")", R"("id":1)", Reason::wrongType, "boards[0].id"},
        {R"("title":"Plan")", R"("title":[])", Reason::wrongType, "boards[0].title"},
        {R"("id":"a")", R"("id":null)", Reason::missing, "boards[0].nodes[0].id"},
        {R"("kind":"document")", R"("kind":"folder")", Reason::unknownText, "boards[0].nodes[0].kind"},
        {R"("kind":"document")", R"("kind":0)", Reason::wrongType, "boards[0].nodes[0].kind"},
        {R"("documentID":"d")", R"("documentID":1)", Reason::wrongType, "boards[0].nodes[0].documentID"},
        {R"("title":"")", R"("title":false)", Reason::wrongType, "boards[0].nodes[0].title"},
        {R"("note":"\n")", R"("note":{})", Reason::wrongType, "boards[0].nodes[1].note"},
        {R"({"x":1,"y":-2.5,"z":0})", "[1,2,3]", Reason::wrongType, "boards[0].nodes[0].position"},
        {R"("x":1)", R"("x":true)", Reason::wrongType, "boards[0].nodes[0].position.x"},
        {R"("x":1)", R"("x":"1")", Reason::wrongType, "boards[0].nodes[0].position.x"},
        {R"(,"z":0)", "", Reason::missing, "boards[0].nodes[0].position.z"},
        {R"("display":"summary")", R"("display":"Summary")", Reason::unknownText, "boards[0].nodes[0].display"},
        {R"("color":"rose")", R"("color":"grey")", Reason::unknownText, "boards[0].nodes[0].color"},
        {R"("date":"2024-02-29")", R"("date":20240229)", Reason::wrongType, "boards[0].nodes[0].date"},
        {R"("id":"e",)", "", Reason::missing, "boards[0].edges[0].id"},
        {R"("fromNodeID":"a")", R"("fromNodeID":1)", Reason::wrongType, "boards[0].edges[0].fromNodeID"},
        {R"("toNodeID":"b")", R"("toNodeID":[])", Reason::wrongType, "boards[0].edges[0].toNodeID"},
        {R"("label":"")", R"("label":null)", Reason::missing, "boards[0].edges[0].label"},
        {R"("direction":"bidirectional")", R"("direction":"both")", Reason::unknownText,
         "boards[0].edges[0].direction"},
        {R"("updatedAt":"2026-01-02T03:04:05Z")", R"("updatedAt":1767323045)", Reason::wrongType,
         "boards[0].updatedAt"},
        {R"("updatedAt":"2026-01-02T03:04:05Z")", R"("updatedAt":"2026-01-02")", Reason::unknownText,
         "boards[0].updatedAt"},
        {R"("x":1)", R"("x":NaN)", Reason::notJSON, ""},
    };
    for (const PlaceRow& row : rows) {
        const auto read = readRecord<DocumentBoardArchive>(with(row.piece, row.replacement));
        ASSERT_FALSE(read) << row.replacement;
        EXPECT_EQ(read.error().reason, row.reason) << row.replacement;
        EXPECT_EQ(read.error().path, row.path) << row.replacement;
    }
    EXPECT_FALSE(readRecord<DocumentBoardArchive>(with(R"("x":1)", R"("x":1e999)")));
}

TEST(DocumentBoardRecordTests, whatNoFileHoldsIsNotWritten) {
    DocumentBoardArchive archive = *readRecord<DocumentBoardArchive>(whole);
    archive.boards[0].nodes[1].position.y = std::numeric_limits<double>::infinity();
    EXPECT_EQ(writeRecord(archive).error().path, "boards[0].nodes[1].position.y");
    archive.boards[0].nodes[1].position.y = 0;
    archive.boards[0].updatedAt = {std::numeric_limits<double>::quiet_NaN()};
    EXPECT_EQ(writeRecord(archive).error().path, "boards[0].updatedAt");
}

TEST(IdentifierSetTests, actsAsASet) {
    const auto texts = testing::randomTexts(11, 4'000, 30, {"a", "b", "-", "0000000000000000", std::string(1, '\0')});
    IdentifierSet set;
    for (int round = 0; round < 2; ++round) {
        set.reset(texts.size());
        std::set<std::string> plain;
        for (const std::string& text : texts) {
            EXPECT_EQ(set.contains(text), plain.contains(text));
            EXPECT_EQ(set.insert(text), plain.insert(text).second);
        }
    }
    set.reset(0);
    EXPECT_FALSE(set.contains(""));
}

}  // namespace
}  // namespace vellark
