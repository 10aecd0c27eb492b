#include <VellarkDomain/Documents/Library/LibraryOrganization.hpp>
#include <VellarkFoundation/Records/RecordHash.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(LibraryOrganization, invalidAddressesVanish) {
    const std::map<std::string, std::string> addresses = {
        {"a", "https://example.org/x"}, {"b", "ftp://example.org"}, {"c", "http://example.org"}, {"d", ""}};
    const std::map<std::string, std::string> kept = {{"a", "https://example.org/x"}, {"c", "http://example.org"}};
    const LibraryOrganization made({{"1", "가"}}, {{"a", "1"}}, {"b"}, addresses);
    EXPECT_EQ(made.documentSourceWebsiteURLs, kept);
    const std::string_view stored =
        R"({"documentSourceWebsiteURLs":{"a":"https://example.org/x","b":"ftp://example.org","c":"http://example.org",)"
        R"("d":""},"favoriteDocumentIDs":["b","b"],"collections":[{"id":"1","name":"가"}],"documentCollections":{"a":"1"}})";
    const auto read = readRecord<LibraryOrganization>(stored);
    EXPECT_EQ(read, made);
    EXPECT_EQ(recordHash(*read), recordHash(made));
    EXPECT_EQ(writeRecord(made),
              std::string(R"({"collections":[{"id":"1","name":"가"}],"documentCollections":{"a":"1"},)"
                          R"("favoriteDocumentIDs":["b"],"documentSourceWebsiteURLs":{"a":"https://example.org/x",)"
                          R"("c":"http://example.org"}})"));
    EXPECT_EQ(readRecord<LibraryOrganization>(std::string_view(*writeRecord(made))), made);
}

TEST(LibraryOrganization, onlyTwoKeysMayBeAbsentAndOneNull) {
    using Reason = DecodingError::Reason;
    const std::string head = R"({"collections":[],"documentCollections":{})";
    struct Row {
        std::string text;
        std::optional<DecodingError> error;
    };
    const Row rows[] = {
        {head + "}", std::nullopt},
        {head + R"(,"favoriteDocumentIDs":[],"documentSourceWebsiteURLs":null})", std::nullopt},
        {head + R"(,"favoriteDocumentIDs":null})", DecodingError{Reason::wrongType, "favoriteDocumentIDs"}},
        {head + R"(,"favoriteDocumentIDs":{}})", DecodingError{Reason::wrongType, "favoriteDocumentIDs"}},
        {head + R"(,"documentSourceWebsiteURLs":{"a":null}})",
         DecodingError{Reason::wrongType, "documentSourceWebsiteURLs.a"}},
        {R"({"collections":[]})", DecodingError{Reason::missing, "documentCollections"}},
        {R"({"collections":null,"documentCollections":{}})", DecodingError{Reason::missing, "collections"}},
        {R"({"collections":[{"id":"a"}],"documentCollections":{}})",
         DecodingError{Reason::missing, "collections[0].name"}},
    };
    for (const Row& row : rows) {
        const auto organization = readRecord<LibraryOrganization>(std::string_view(row.text));
        ASSERT_EQ(organization.has_value(), !row.error) << row.text;
        if (row.error) {
            EXPECT_EQ(organization.error(), *row.error) << row.text;
        } else {
            EXPECT_EQ(*organization, LibraryOrganization());
        }
    }
}

}  // namespace
}  // namespace vellark
