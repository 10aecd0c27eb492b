#include "Documents/Library/LibraryTexts.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkFoundation/Records/RecordHash.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using namespace vellark::testing;
using Reason = DecodingError::Reason;

/// The slow way alone, by which the quick one is judged.
Result<CaptureLibrary, DecodingError> readThroughDocument(std::string_view text) {
    const auto document = JSONDocument::parse(text);
    if (!document) return failure(DecodingError{Reason::notJSON, "", document.error().byteOffset});
    return readRecord<CaptureLibrary>(document->root());
}

Result<CaptureLibrary, DecodingError> read(const std::string& text) {
    auto library = readRecord<CaptureLibrary>(std::string_view(text));
    EXPECT_EQ(library, readThroughDocument(text)) << text;
    return library;
}

bool isRightType(FieldType type, std::string_view value) {
    switch (type) {
        case FieldType::text:
            return value.starts_with('"');
        case FieldType::truth:
            return value == "true" || value == "false";
        case FieldType::integer:
            return value == "0" || value == "1" || value == "1.0" || value == "12e2";
        case FieldType::texts:
            return value == "[]" || value == R"(["a"])";
        case FieldType::revisions:
            return value == "[]";
        case FieldType::storageKind:
            return value == R"("released")";
    }
    return false;
}

void checkStrictness(const std::vector<FieldRow>& rows, const std::string& place, auto libraryOf) {
    const char* const values[] = {"\"a\"", "\"released\"", "\"\\u0000\"", "true", "false", "0",       "1",   "1.0",
                                  "12e2",  "1.5",          "-1e30",       "[]",   "{}",    "[\"a\"]", "[1]", "[null]"};
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const FieldRow& row = rows[index];
        for (const std::string value : {"", "null"}) {
            const auto library = read(libraryOf(objectText(rows, index, value)));
            ASSERT_EQ(library.has_value(), !row.isRequired) << row.key << value;
            if (!library) {
                EXPECT_EQ(library.error(), (DecodingError{Reason::missing, place + row.key, 0}));
            }
        }
        for (const std::string_view value : values) {
            const auto library = read(libraryOf(objectText(rows, index, value)));
            ASSERT_EQ(library.has_value(), isRightType(row.type, value)) << row.key << value;
            if (!library) {
                EXPECT_TRUE(library.error().path.starts_with(place + row.key)) << library.error().path;
            }
        }
    }
}

TEST(CaptureLibrary, everyKeyOfARecordIsAsStrictAsItSays) {
    checkStrictness(recordRows(), "documents[0].", [](const std::string& record) { return libraryText(record); });
}

TEST(CaptureLibrary, everyKeyOfARevisionIsAsStrictAsItSays) {
    checkStrictness(revisionRows(), "documents[0].revisions[0].",
                    [](const std::string& revision) { return libraryText(recordText(revision)); });
}

TEST(CaptureLibrary, rootAndPlaces) {
    struct Row {
        const char* name;
        std::string text;
        DecodingError error;
    };
    const std::string good = objectText(recordRows());
    const Row rows[] = {
        {"empty", "{}", {Reason::missing, "version"}},
        {"no documents", R"({"version":1})", {Reason::missing, "documents"}},
        {"null documents", R"({"version":1,"documents":null})", {Reason::missing, "documents"}},
        {"documents of another type", R"({"version":1,"documents":{}})", {Reason::wrongType, "documents"}},
        {"text for a version", R"({"version":"1","documents":[]})", {Reason::wrongType, "version"}},
        {"version with a fraction", R"({"version":1.5,"documents":[]})", {Reason::outOfRange, "version"}},
        {"version too large", R"({"version":9223372036854775808,"documents":[]})", {Reason::outOfRange, "version"}},
        {"a list", "[]", {Reason::wrongType, ""}},
        {"third document",
         R"({"version":1,"documents":[)" + good + "," + good + ",null]}",
         {Reason::wrongType, "documents[2]"}},
        {"storage kind",
         libraryText(recordText(objectText(revisionRows(), 30, "\"Snapshot\""))),
         {Reason::unknownText, "documents[0].revisions[0].storageKind"}},
        {"metadata changes",
         libraryText(recordText(objectText(revisionRows(), 27, "[\"a\",5]"))),
         {Reason::wrongType, "documents[0].revisions[0].sourceMetadataChanges[1]"}},
        {"text behind", libraryText(good) + "x", {Reason::notJSON, "", libraryText(good).size()}},
        {"raw line feed", "{\"version\":1,\"documents\":[],\"x\":\"\n\"}", {Reason::notJSON, "", 32}},
        {"half a pair under an unknown key", R"({"version":1,"documents":[],"x":"\ud800"})", {Reason::notJSON, "", 38}},
    };
    for (const Row& row : rows) {
        const auto library = read(row.text);
        ASSERT_FALSE(library.has_value()) << row.name;
        EXPECT_EQ(library.error().reason, row.error.reason) << row.name;
        EXPECT_EQ(library.error().path, row.error.path) << row.name;
        if (row.error.byteOffset != 0) {
            EXPECT_NEAR(double(library.error().byteOffset), double(row.error.byteOffset), 2);
        }
    }
    EXPECT_FALSE(read("{\"version\":1,\"documents\":[],\"x\":\"\xff\"}").has_value());
    EXPECT_FALSE(read("{\"version\":1,\"documents\":[],\"x\":" + std::string(512, '[') + std::string(512, ']') + "}"));
    EXPECT_TRUE(read("{\"version\":1,\"documents\":[],\"x\":" + std::string(511, '[') + std::string(511, ']') + "}"));
}

TEST(CaptureLibrary, provenanceAloneIsTolerant) {
    const std::pair<const char*, std::optional<DocumentRevisionProvenance>> rows[] = {
        {"null", std::nullopt},
        {"\"text\"", std::nullopt},
        {"[]", std::nullopt},
        {"{}", DocumentRevisionProvenance{}},
        {R"({"agent":5})", std::nullopt},
        {R"({"agent":5,"agent":"a"})", DocumentRevisionProvenance{.agent = "a"}},
        {R"({"agent":"a","contested":"yes"})", std::nullopt},
        {R"({"agent":"a","contested":1})", std::nullopt},
        {R"({"agent":"a","more":{"x":[1]},"userEdit":true,"local":false,"host":null})",
         DocumentRevisionProvenance{.agent = "a", .userEdit = true, .local = false}},
        {R"({"local":true,"certainty":"c"})", DocumentRevisionProvenance{.certainty = "c", .local = true}},
    };
    std::string revision = objectText(revisionRows());
    revision.pop_back();
    for (const auto& [text, provenance] : rows) {
        const auto library = read(libraryText(recordText(revision + ",\"provenance\":" + text + "}")));
        ASSERT_TRUE(library.has_value()) << text;
        const DocumentRevision& first = library->documents[0].revisions[0];
        ASSERT_EQ(first.provenance.has_value(), provenance.has_value()) << text;
        if (provenance) {
            EXPECT_EQ(*first.provenance, *provenance) << text;
        }
        EXPECT_EQ(first.storageKind, DocumentStorageKind::sourceReference);
    }
    EXPECT_FALSE(read(libraryText(recordText(revision + ",\"provenance\":{\"agent\":\"\\ud800\"}}"))).has_value());
}

TEST(CaptureLibrary, writesItsOwnFormBack) {
    const std::string whole = libraryText(recordText(objectText(revisionRows())));
    const auto library = read(whole);
    ASSERT_TRUE(library.has_value());
    EXPECT_EQ(writeRecord(*library), whole);

    const std::string sparse = R"( {"documents" : [{"revisions":[{"originEvent":"e","capturedAt":"t","snapshotPath":"p",
        "contentHash":"h","id":"r","reviewEligible":null}],"updatedAt":"b","createdAt":"a","kind":"k","source":"s",
        "project":"p","title":"t","id":"old","id":"d","sessionTitles":{"a":"b"}}], "version": 7.0, "later": {"x": 1}})";
    EXPECT_EQ(writeRecord(*read(sparse)),
              std::string(R"({"version":7,"documents":[{"id":"d","title":"t","project":"p","source":"s","kind":"k",)"
                          R"("createdAt":"a","updatedAt":"b","revisions":[{"id":"r","contentHash":"h",)"
                          R"("snapshotPath":"p","capturedAt":"t","originEvent":"e","reviewEligible":true,)"
                          R"("sourceMetadataChanges":[]}]}]})"));
}

TEST(CaptureLibrary, equalityAndHashSeeEveryField) {
    const auto recordOf = [](const std::string& text) { return read(libraryText(text))->documents[0]; };
    const auto other = [](const FieldRow& row) -> std::string {
        return row.type == FieldType::truth         ? (row.sample == "true" ? "false" : "true")
               : row.type == FieldType::integer     ? "77"
               : row.type == FieldType::texts       ? "[]"
               : row.type == FieldType::storageKind ? "\"released\""
                                                    : "\"other\"";
    };
    const DocumentRecord plain = recordOf(recordText(objectText(revisionRows())));
    std::vector<DocumentRecord> all = {plain};
    for (std::size_t index = 0; index < revisionRows().size(); ++index) {
        all.push_back(recordOf(recordText(objectText(revisionRows(), index, other(revisionRows()[index])))));
    }
    for (std::size_t index = 0; index < recordRows().size(); ++index) {
        if (recordRows()[index].type == FieldType::revisions) continue;
        all.push_back(recordOf(objectText(recordRows(), index, other(recordRows()[index]))));
    }
    all.push_back(plain);
    all.back().sessionTitles["s"] = "t";
    all.push_back(plain);
    all.back().revisions[0].provenance = DocumentRevisionProvenance{};
    for (std::size_t first = 0; first < all.size(); ++first) {
        for (std::size_t second = first + 1; second < all.size(); ++second) {
            EXPECT_NE(all[first], all[second]);
            EXPECT_NE(recordHash(all[first]), recordHash(all[second]));
        }
        const DocumentRecord copy = all[first];
        EXPECT_EQ(copy, all[first]);
        EXPECT_EQ(recordHash(copy), recordHash(all[first]));
    }
    EXPECT_EQ(writeRecord(all[all.size() - 2]), writeRecord(plain)) << "session titles are not stored";
}

TEST(CaptureLibrary, aCutFileIsNoLibrary) {
    std::string record = recordText(objectText(revisionRows()) + "," + objectText(revisionRows(), 5, ""));
    while (record.size() < 3000) {
        record += "," + recordText("");
    }
    const std::string text = libraryText(record + "," + record);
    ASSERT_GT(text.size(), 4096U);
    ASSERT_TRUE(readRecord<CaptureLibrary>(std::string_view(text)).has_value());
    const auto cut = [&](std::size_t length) {
        const auto library = readRecord<CaptureLibrary>(std::string_view(text).substr(0, length));
        ASSERT_FALSE(library.has_value()) << length;
        EXPECT_EQ(library.error().reason, Reason::notJSON) << length;
    };
    for (std::size_t length = 0; length < 4096; ++length) {
        cut(length);
    }
    RandomNumbers random(3);
    for (int round = 0; round < 500; ++round) {
        cut(random.below(text.size()));
    }
}

// The quick way and the thorough one over files with keys out of order, doubled, unknown, of other types, and with
// bytes that are wrong.
TEST(CaptureLibrary, bothWaysOfReadingAgree) {
    RandomNumbers random(11);
    const std::vector<std::string> values = {"null",
                                             "\"a\"",
                                             "\"\\u00e9\\n\"",
                                             "1",
                                             "1.0",
                                             "2e400",
                                             "true",
                                             "[]",
                                             "{}",
                                             "[\"x\"]",
                                             " \"b\" ",
                                             "{\"agent\":\"z\"}",
                                             "{\"agent\":1}",
                                             "\"released\""};
    const std::vector<std::string> extraKeys = {"provenance", "unknown", "i\\u0064", "storageKind"};
    const auto mutated = [&](const std::vector<FieldRow>& rows, const std::string& revisions) {
        std::vector<std::string> members;
        for (const FieldRow& row : rows) {
            if (!row.isRequired && random.below(2) == 0) continue;
            const bool isOdd = random.below(60) == 0;
            const std::string value = row.type == FieldType::revisions ? revisions : row.sample;
            members.push_back("\"" + row.key + "\"" + (random.below(9) == 0 ? " : " : ":") +
                              (isOdd ? random.oneOf(values) : value));
        }
        for (std::size_t count = random.below(3); count > 0; --count) {
            const std::string& key = random.below(3) > 0 ? random.oneOf(extraKeys) : random.oneOf(rows).key;
            const std::size_t place = random.below(2) == 0 ? members.size() : random.below(members.size() + 1);
            members.insert(members.begin() + static_cast<std::ptrdiff_t>(place),
                           "\"" + key + "\":" + random.oneOf(values));
        }
        if (random.below(6) == 0) std::swap(members[random.below(members.size())], members.front());
        std::string text;
        for (const std::string& member : members) {
            text += (text.empty() ? "" : ",") + member;
        }
        return "{" + text + "}";
    };
    std::size_t good = 0;
    std::size_t direct = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::string revision = mutated(revisionRows(), "");
        std::string text = libraryText(mutated(recordRows(), "[" + revision + "]"));
        if (random.below(4) == 0) text[random.below(text.size())] = static_cast<char>(random.below(256));
        if (random.below(30) == 0) text = "\xEF\xBB\xBF" + text;
        CaptureLibrary library;
        const auto judged = readThroughDocument(text);
        good += judged ? 1 : 0;
        if (readDirectly(std::string_view(text), library)) {
            ++direct;
            EXPECT_EQ(judged, library) << text;
        }
        EXPECT_EQ(readRecord<CaptureLibrary>(std::string_view(text)), judged) << text;
    }
    EXPECT_GT(good, 800U);
    EXPECT_GT(direct, 400U);
}

}  // namespace
}  // namespace vellark
