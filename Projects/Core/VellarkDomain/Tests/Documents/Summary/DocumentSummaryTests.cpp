#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Texts = std::vector<std::string>;

TEST(DocumentSummary, readsTolerantly) {
    struct Row {
        const char* json;
        const char* written;  // nullptr when it cannot be read
    };
    const Row rows[] = {
        {R"({"headline":"a"})", R"({"headline":"a","points":[]})"},
        {R"({"kind":"report","points":["b"],"headline":"a","change":"c"})",
         R"({"headline":"a","points":["b"],"change":"c","kind":"report"})"},
        {R"({"headline":"a","points":null,"kind":"other"})", R"({"headline":"a","points":[]})"},
        {R"({"headline":"a","kind":"haiku"})", R"({"headline":"a","points":[]})"},
        {R"({"headline":"a","kind":7})", R"({"headline":"a","points":[]})"},
        {R"({"headline":"a","points":"b"})", nullptr},
        {R"({"headline":"a","change":7})", nullptr},
        {R"({"points":[]})", nullptr},
        {R"({"headline":null})", nullptr},
    };
    for (const Row& row : rows) {
        const auto read = readRecord<DocumentSummary>(row.json);
        ASSERT_EQ(read.has_value(), row.written != nullptr) << row.json;
        if (read) {
            EXPECT_EQ(writeRecord(*read).value(), row.written) << row.json;
        }
    }
}

TEST(DocumentSummary, isEmptyWithoutTexts) {
    EXPECT_TRUE(DocumentSummary().isEmpty());
    EXPECT_TRUE((DocumentSummary{.headline = "", .points = {}, .change = "", .kind = DocumentKind::memo}.isEmpty()));
    EXPECT_FALSE((DocumentSummary{.headline = "", .points = {}, .change = "x", .kind = {}}.isEmpty()));
    EXPECT_FALSE((DocumentSummary{.headline = "", .points = {""}, .change = {}, .kind = {}}.isEmpty()));
}

TEST(DocumentSummaryExtract, choosesWhatIsShown) {
    struct Row {
        const char* name;
        DocumentSummaryExtract extract;
        Texts headings;
        std::string headline;
        Texts points;
    };
    const Row rows[] = {
        {"headings are points", {.summary = "s", .items = {"i", "j"}}, {"a", "b", "c", "d"}, "s", {"a", "b", "c"}},
        {"the first item leads", {.summary = "i · j", .items = {"i", "j"}}, {}, "i", {"j"}},
        {"one item is no list", {.summary = "i", .items = {"i"}}, {}, "i", {}},
        {"facts stand first", {.summary = "s", .facts = {"Total: $1,200"}}, {"a"}, "s", {"Total: $1,200", "a"}},
        {"a stated fact goes",
         {.summary = "It costs $1,200.", .facts = {"Total: $1,200"}},
         {"a"},
         "It costs $1,200.",
         {"a"}},
        {"a fact of the conclusion goes",
         {.summary = "s", .facts = {"Total: $1,200"}, .conclusion = "Decision: pay $1,200."},
         {},
         "s",
         {"Decision: pay $1,200."}},
        {"the conclusion replaces its heading",
         {.summary = "s", .conclusion = "결론: 간다."},
         {"1. 결론", "a"},
         "s",
         {"결론: 간다.", "a"}},
        {"a stated conclusion goes with its heading",
         {.summary = "우리는 간다.", .conclusion = "결론: 간다"},
         {"결론", "a"},
         "우리는 간다.",
         {"a"}},
        {"a fact leads when nothing else does",
         {.summary = "", .facts = {"Total: $5,000", "due: 3 May"}},
         {"a", "Total: $5,000"},
         "Total: $5,000",
         {"due: 3 May", "a"}},
    };
    for (const Row& row : rows) {
        const DocumentSummary summary = row.extract.fallback(row.headings);
        EXPECT_EQ(summary.headline, row.headline) << row.name;
        EXPECT_EQ(summary.points, row.points) << row.name;
    }
}

}  // namespace
}  // namespace vellark
