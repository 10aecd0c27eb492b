#include <VellarkFoundation/Records/RecordHash.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {

enum class Colour { red, green };

template <>
inline constexpr auto caseTable<Colour> = std::to_array<CaseName<Colour>>({
    {Colour::red, "red"},
    {Colour::green, "dark-green"},
});

namespace {

struct Leaf {
    std::string name;
    std::optional<std::int64_t> size;
    std::optional<Colour> colour;

    bool operator==(const Leaf&) const = default;
};

template <class Fields>
void describe(Fields& fields, Leaf& leaf) {
    fields.required("name", leaf.name);
    fields.optional("size", leaf.size);
    fields.optional("colour", leaf.colour);
}

struct Tree {
    std::string id;
    bool isOpen = true;
    double weight = 0;
    std::vector<Leaf> leaves;
    std::map<std::string, std::optional<Leaf>> named;
    std::set<std::string> tags;
    std::optional<Leaf> favourite;

    bool operator==(const Tree&) const = default;
};

template <class Fields>
void describe(Fields& fields, Tree& tree) {
    fields.required("id", tree.id);
    fields.withDefault("isOpen", tree.isOpen, true);
    fields.withDefault("weight", tree.weight, 0.0);
    fields.withDefault("leaves", tree.leaves, std::vector<Leaf>());
    fields.withDefault("named", tree.named, std::map<std::string, std::optional<Leaf>>());
    fields.withDefault("tags", tree.tags, std::set<std::string>());
    fields.tolerant("favourite", tree.favourite);
}

TEST(Enumeration, casesHaveTexts) {
    EXPECT_EQ(rawValue(Colour::green), "dark-green");
    EXPECT_EQ(fromRawValue<Colour>("dark-green"), Colour::green);
    EXPECT_EQ(fromRawValue<Colour>("green"), std::nullopt);
    EXPECT_EQ(allCases<Colour>(), (std::array{Colour::red, Colour::green}));
}

TEST(Records, roundTripInCanonicalForm) {
    const std::pair<const char*, const char*> rows[] = {
        {R"({"id":"a"})", R"({"id":"a","isOpen":true,"weight":0.0,"leaves":[],"named":{},"tags":[]})"},
        {R"( {"tags":["b","a","b"], "weight": 1e2, "isOpen": false, "id": "\u00e9/\u0001\n\"", "more": [1]} )",
         R"({"id":"é/\u0001\n\"","isOpen":false,"weight":100.0,"leaves":[],"named":{},"tags":["a","b"]})"},
        {R"({"id":"a","isOpen":null,"leaves":[{"name":"x","size":12e2,"colour":"red"},{"size":null,"name":""}],
             "named":{"z":null,"b":{"name":"y"}},"favourite":{"name":"f"}})",
         R"({"id":"a","isOpen":true,"weight":0.0,"leaves":[{"name":"x","size":1200,"colour":"red"},{"name":""}],)"
         R"("named":{"b":{"name":"y"},"z":null},"tags":[],"favourite":{"name":"f"}})"},
        {R"({"id":"a","favourite":{"name":5}})",
         R"({"id":"a","isOpen":true,"weight":0.0,"leaves":[],"named":{},"tags":[]})"},
        {R"({"id":1,"leaves":5,"leaves":[{"name":"1","name":"2"}],"id":"b"})",
         R"({"id":"b","isOpen":true,"weight":0.0,"leaves":[{"name":"2"}],"named":{},"tags":[]})"},
        {R"({"id":"a","named":{"k":7,"k":{"name":"n"}}})",
         R"({"id":"a","isOpen":true,"weight":0.0,"leaves":[],"named":{"k":{"name":"n"}},"tags":[]})"},
    };
    for (const auto& [text, canonical] : rows) {
        const auto tree = readRecord<Tree>(std::string_view(text));
        ASSERT_TRUE(tree.has_value()) << text << tree.error().path;
        EXPECT_EQ(writeRecord(*tree), std::string(canonical));
        const auto again = readRecord<Tree>(std::string_view(canonical));
        EXPECT_EQ(again, *tree) << canonical;
        EXPECT_EQ(recordHash(*again), recordHash(*tree));
    }
}

TEST(Records, errorsNameThePlace) {
    using Reason = DecodingError::Reason;
    struct Row {
        const char* text;
        Reason reason;
        const char* path;
    };
    const Row rows[] = {
        {"{}", Reason::missing, "id"},
        {R"({"id":null})", Reason::missing, "id"},
        {"[]", Reason::wrongType, ""},
        {R"({"id":"a","isOpen":1})", Reason::wrongType, "isOpen"},
        {R"({"id":"a","weight":true})", Reason::wrongType, "weight"},
        {R"({"id":"a","leaves":[{"name":"x"},{"name":"y","size":1.5}]})", Reason::outOfRange, "leaves[1].size"},
        {R"({"id":"a","leaves":[null]})", Reason::wrongType, "leaves[0]"},
        {R"({"id":"a","named":{"k":{"name":"n","colour":"Red"}}})", Reason::unknownText, "named.k.colour"},
        {R"({"id":"a","tags":["x",5]})", Reason::wrongType, "tags[1]"},
        {R"({"id":"a","leaves":[{"name":"x","size":9223372036854775808}]})", Reason::outOfRange, "leaves[0].size"},
        {R"({"id":"a",})", Reason::notJSON, ""},
    };
    for (const Row& row : rows) {
        const auto tree = readRecord<Tree>(std::string_view(row.text));
        ASSERT_FALSE(tree.has_value()) << row.text;
        EXPECT_EQ(tree.error().reason, row.reason) << row.text;
        EXPECT_EQ(tree.error().path, row.path) << row.text;
    }
}

TEST(Records, whatNoFileHoldsIsNotWritten) {
    Tree tree{.id = "a"};
    tree.weight = std::numeric_limits<double>::infinity();
    EXPECT_EQ(writeRecord(tree), failure(EncodingError{"weight"}));
}

TEST(JSONNumberText, exactIntegers) {
    const std::pair<const char*, std::optional<std::int64_t>> rows[] = {
        {"0", 0},
        {"-0", 0},
        {"-0.0e5", 0},
        {"1.0", 1},
        {"12e2", 1200},
        {"1200e-2", 12},
        {"0.5e1", 5},
        {"1.5", std::nullopt},
        {"1e-1", std::nullopt},
        {"9223372036854775807", INT64_MAX},
        {"9223372036854775807.0", INT64_MAX},
        {"-9223372036854775808e0", INT64_MIN},
        {"9223372036854775808", std::nullopt},
        {"9223372036854775808.0", std::nullopt},
        {"1e18", 1'000'000'000'000'000'000},
        {"1e19", std::nullopt},
        {"1e99999999999999999999", std::nullopt},
        {"0e99999999999999999999", 0},
        {"1e-99999999999999999999", std::nullopt},
    };
    for (const auto& [literal, expected] : rows) {
        EXPECT_EQ(JSONNumberText::exactInteger(literal), expected) << literal;
    }
}

}  // namespace
}  // namespace vellark
