#include "Support/WrongTypes.hpp"
#include <VellarkDomain/Feedback/DocumentFeedbackArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace vellark {
namespace {

using Archive = DocumentFeedbackArchive;
using Reason = DecodingError::Reason;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

DocumentFeedbackNote note(const std::string& id) {
    return {.id = id, .documentID = "d", .revisionID = "r", .text = "?", .createdAt = {1}};
}

DocumentFeedbackRequest request(const std::string& documentID, double sentAt) {
    return {.documentID = documentID, .revisionID = "r", .sentAt = {sentAt}};
}

std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    for (; count > 0; --count)
        text += piece;
    return text;
}

TEST(DocumentFeedbackNoteTests, aNewNoteIsFreshAndUnchanged) {
    EXPECT_EQ(note("a").updatedAt, Date{1});
    EXPECT_FALSE(note("a").isStale);
}

TEST(DocumentFeedbackNoteTests, limits) {
    using Note = DocumentFeedbackNote;
    struct Row {
        const char* name;
        std::function<void(Note&)> change;
        bool isValid;
    };
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    const Row rows[] = {
        {"as it is", [](Note&) {}, true},
        {"no identifier", [](Note& note) { note.id.clear(); }, false},
        {"no document", [](Note& note) { note.documentID.clear(); }, false},
        {"no revision", [](Note& note) { note.revisionID.clear(); }, false},
        {"line 0", [](Note& note) { note.startLine = 0; }, false},
        {"the wrong way round", [](Note& note) { note.startLine = 2; }, false},
        {"400 lines", [](Note& note) { note.endLine = 400; }, true},
        {"401 lines", [](Note& note) { note.endLine = 401; }, false},
        {"last lines of all", [](Note& note) { note.startLine = note.endLine = most; }, true},
        {"all lines", [](Note& note) { note.endLine = most; }, false},
        {"from the least", [](Note& note) { note.startLine = -most - 1, note.endLine = most; }, false},
        {"no text", [](Note& note) { note.text.clear(); }, true},
        {"2,000 families", [](Note& note) { note.text = repeated("👩‍👩‍👧‍👦", 2000); }, true},
        {"2,000 pairs of CR LF", [](Note& note) { note.text = repeated("\r\n", 2000); }, true},
        {"2,001 pairs of CR LF", [](Note& note) { note.text = repeated("\r\n", 2001); }, false},
        {"2,001 syllables of jamo", [](Note& note) { note.text = repeated("\u1112\u1161\u11AB", 2001); }, false},
        {"any anchor", [](Note& note) { note.anchor = "somewhere"; }, true},
        {"32 flags for an anchor", [](Note& note) { note.anchor = repeated("🇰🇷", 32); }, true},
        {"33 digits for an anchor", [](Note& note) { note.anchor = std::string(33, '0'); }, false},
    };
    for (const Row& row : rows) {
        DocumentFeedbackNote changed = note("a");
        row.change(changed);
        EXPECT_EQ(changed.isValid(), row.isValid) << row.name;
    }
}

TEST(DocumentFeedbackArchiveTests, theFirstValidNoteOfAnIdentifierIsKept) {
    Archive archive{.version = 7, .notes = {note("a"), note("b"), note("a"), note(""), note("c"), note("b")}};
    archive.notes[1].startLine = 0;
    archive.notes[2].text = "another";
    const Archive kept{.notes = {archive.notes[0], archive.notes[4], archive.notes[5]}};
    EXPECT_EQ(archive.validated(), kept);
    EXPECT_EQ(archive.validated().version, 1);
    EXPECT_EQ(Archive::empty().validated(), Archive::empty());
}

TEST(DocumentFeedbackArchiveTests, theLastNotesAreKept) {
    Archive archive{.notes = {note("")}};
    for (std::size_t index = 0; index <= Archive::maximumNotes; ++index)
        archive.notes.push_back(note(std::to_string(index)));
    archive.notes.push_back(note("0"));  // still a repetition of the note that is dropped for its age
    const Archive validated = archive.validated();
    ASSERT_EQ(validated.notes.size(), Archive::maximumNotes);
    EXPECT_EQ(validated.notes.front().id, "1");
    EXPECT_EQ(validated.notes.back().id, "5000");
}

TEST(DocumentFeedbackArchiveTests, requestsStandUnderTheirDocument) {
    Archive archive;
    archive.requests = {{"a", request("a", 1)}, {"b", request("c", 1)}, {"", request("", 1)}, {"d", request("d", 1)}};
    archive.requests["d"].revisionID.clear();
    const Archive kept{.requests = {{"", request("", 1)}, {"a", request("a", 1)}}};
    EXPECT_EQ(archive.validated(), kept);
}

TEST(DocumentFeedbackArchiveTests, theNewestRequestsAreKept) {
    const auto key = [](std::size_t index) { return std::to_string(10'000 + index); };
    Archive archive;
    for (std::size_t index = 0; index < Archive::maximumRequests; ++index)
        archive.requests[key(index)] = request(key(index), 100);
    EXPECT_EQ(archive.validated(), archive);

    archive.requests["newest"] = request("newest", infinity);
    archive.requests["no moment"] = request("no moment", notANumber);
    archive.requests[key(7)].sentAt = {99};
    archive.requests["2"] = request("2", 100);  // the highest key of that moment, as text
    const Archive validated = archive.validated();
    EXPECT_EQ(validated.requests.size(), Archive::maximumRequests);
    EXPECT_TRUE(validated.requests.contains("newest"));
    EXPECT_FALSE(validated.requests.contains("no moment"));
    EXPECT_FALSE(validated.requests.contains(key(7)));
    EXPECT_TRUE(validated.requests.contains(key(4999)));
    EXPECT_FALSE(validated.requests.contains("2"));
}

constexpr std::string_view whole =
    R"({"version":1,"notes":[{"id":"n","documentID":"d","revisionID":"r","startLine":3,"endLine":4,)"
    R"("anchor":"00ff","text":"왜?","isStale":false,"createdAt":"2026-01-02T03:04:05Z",)"
    R"("updatedAt":"2026-01-02T03:04:05.250000Z"}],)"
    R"("requests":{"d":{"documentID":"d","revisionID":"r","kind":"question","sentAt":"2026-01-02T03:04:05Z"}}})";

TEST(DocumentFeedbackArchiveTests, whatIsReadIsWrittenAlike) {
    const auto archive = readRecord<Archive>(whole);
    ASSERT_TRUE(archive) << archive.error().path;
    EXPECT_EQ(archive->notes[0].updatedAt, Date{1767323045.25});
    EXPECT_EQ(archive->requests.at("d").kind, DocumentFeedbackRequestKind::question);
    EXPECT_EQ(archive->validated(), *archive);
    EXPECT_EQ(writeRecord(*archive), std::string(whole));
    EXPECT_EQ(writeRecord(Archive::empty()), std::string(R"({"version":1,"notes":[],"requests":{}})"));
}

TEST(DocumentFeedbackArchiveTests, wrongTypesFailUnderEveryKey) {
    testing::expectWrongTypesToFail<Archive>(whole);
}

TEST(DocumentFeedbackArchiveTests, errorsTellTheirPlace) {
    struct Row {
        std::string_view piece;
        std::string_view replacement;
        Reason reason;
        std::string_view path;
    };
    const Row rows[] = {
        {R"("version":1)", R"("version":true)", Reason::wrongType, "version"},
        {R"("version":1,)", "", Reason::missing, "version"},
        {R"("id":"n")", R"("id":1)", Reason::wrongType, "notes[0].id"},
        {R"("documentID":"d")", R"("documentID":[])", Reason::wrongType, "notes[0].documentID"},
        {R"("revisionID":"r")", R"("revisionID":null)", Reason::missing, "notes[0].revisionID"},
        {R"("startLine":3)", R"("startLine":"3")", Reason::wrongType, "notes[0].startLine"},
        {R"("startLine":3)", R"("startLine":3.5)", Reason::outOfRange, "notes[0].startLine"},
        {R"("endLine":4)", R"("endLine":9223372036854775808)", Reason::outOfRange, "notes[0].endLine"},
        {R"("anchor":"00ff")", R"("anchor":255)", Reason::wrongType, "notes[0].anchor"},
        {R"("text":"왜?",)", "", Reason::missing, "notes[0].text"},
        {R"("isStale":false)", R"("isStale":0)", Reason::wrongType, "notes[0].isStale"},
        {R"("createdAt":"2026-01-02T03:04:05Z")", R"("createdAt":0)", Reason::wrongType, "notes[0].createdAt"},
        {R"("updatedAt":"2026-01-02T03:04:05.250000Z")", R"("updatedAt":"now")", Reason::unknownText,
         "notes[0].updatedAt"},
        {R"(,"updatedAt":"2026-01-02T03:04:05.250000Z")", "", Reason::missing, "notes[0].updatedAt"},
        {R"("requests":{"d":{)", R"("requests":{"e":null,"d":{)", Reason::wrongType, "requests.e"},
        {R"("kind":"question")", R"("kind":"praise")", Reason::unknownText, "requests.d.kind"},
        {R"("kind":"question")", R"("kind":1)", Reason::wrongType, "requests.d.kind"},
        {R"(,"sentAt":"2026-01-02T03:04:05Z")", "", Reason::missing, "requests.d.sentAt"},
    };
    for (const Row& row : rows) {
        std::string text(whole);
        const std::size_t place = text.find(row.piece);
        ASSERT_NE(place, std::string::npos) << row.piece;
        const auto read = readRecord<Archive>(text.replace(place, row.piece.size(), row.replacement));
        ASSERT_FALSE(read) << row.replacement;
        EXPECT_EQ(read.error().reason, row.reason) << row.replacement;
        EXPECT_EQ(read.error().path, row.path) << row.replacement;
    }
}

TEST(DocumentFeedbackArchiveTests, whatNoFileHoldsIsNotWritten) {
    Archive archive{.notes = {note("a")}};
    archive.notes[0].updatedAt = {infinity};
    EXPECT_EQ(writeRecord(archive).error().path, "notes[0].updatedAt");
}

}  // namespace
}  // namespace vellark
