#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>

#include <gtest/gtest.h>

#include <limits>

namespace vellark {
namespace {

using Category = ArtifactCategory;

ResolvedCapturePolicy read(std::string_view text) {
    const auto json = JSONReader::read(text);
    EXPECT_TRUE(json) << text;
    return json ? ResolvedCapturePolicy::fromJSON(*json) : ResolvedCapturePolicy();
}

// Every field away from its default, and every dictionary with two entries.
ResolvedCapturePolicy fullPolicy() {
    ResolvedCapturePolicy policy;
    policy.enabled = true;
    policy.types = {{Category::pdfs, false}, {Category::documents, true}, {Category::code, true}};
    policy.extensions = {"png", "md"};
    policy.includeExtensionless = true;
    policy.includeUnlistedExtensions = true;
    policy.includeAssistantResponses = true;
    policy.captureTitleChanges = true;
    policy.captureLocationChanges = true;
    policy.resumeSince = 1.5;
    policy.typeResumeSince = {{Category::plans, 2}, {Category::code, 3}};
    policy.extensionResumeSince = {{"png", 4}, {"md", 5}};
    policy.extensionlessResumeSince = 6;
    policy.unlistedResumeSince = 7;
    policy.assistantResponsesResumeSince = -8;
    policy.outputs = {{"b", false}, {"a", true}};
    policy.outputResumeSince = {{"a/é", 0.1}};
    return policy;
}

constexpr std::string_view fullText =
    R"({"enabled":true,"types":{"code":true,"documents":true,"pdfs":false},"extensions":["md","png"],)"
    R"("includeExtensionless":true,"includeUnlistedExtensions":true,"includeAssistantResponses":true,)"
    R"("capture_title_changes":true,"capture_location_changes":true,"resumeSince":1.5,)"
    R"("typeResumeSince":{"code":3.0,"plans":2.0},"extensionResumeSince":{"md":5.0,"png":4.0},)"
    R"("extensionlessResumeSince":6.0,"unlistedResumeSince":7.0,"assistantResponsesResumeSince":-8.0,)"
    R"("outputs":{"a":true,"b":false},"outputResumeSince":{"a/é":0.1}})";

TEST(ResolvedCapturePolicy, writesAndReadsEveryField) {
    EXPECT_EQ(fullPolicy().json(), std::string(fullText));
    EXPECT_EQ(read(fullText), fullPolicy());
    EXPECT_EQ(ResolvedCapturePolicy().json(),
              std::string(R"({"enabled":false,"types":{},"extensions":[],"includeExtensionless":false,)"
                          R"("includeUnlistedExtensions":false,"includeAssistantResponses":false,)"
                          R"("capture_title_changes":false,"capture_location_changes":false,"typeResumeSince":{},)"
                          R"("extensionResumeSince":{},"outputs":{},"outputResumeSince":{}})"));
}

TEST(ResolvedCapturePolicy, refusesToWriteInfinity) {
    ResolvedCapturePolicy policy;
    policy.extensionResumeSince = {{"md", 1}, {"png", std::numeric_limits<double>::infinity()}};
    const auto written = policy.json();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, "extensionResumeSince.png");
}

TEST(ResolvedCapturePolicy, truthiness) {
    struct Row {
        const char* value;
        bool expected;
    };
    const Row rows[] = {
        {"true", true},   {"false", false}, {"null", false},  {"0", false},     {"-0.0", false},     {"0e9", false},
        {"1", true},      {"-0.5", true},   {"1e308", true},  {R"("")", false}, {R"("no")", true},   {R"("0")", true},
        {R"(" ")", true}, {"[]", false},    {"[null]", true}, {"{}", false},    {R"({"":0})", true},
    };
    for (const Row& row : rows) {
        const std::string value = row.value;
        EXPECT_EQ(read(R"({"enabled":)" + value + "}").enabled, row.expected) << value;
        const auto policy = read(R"({"types":{"code":)" + value + R"(},"outputs":{"x":)" + value + "}}");
        EXPECT_EQ(policy.types, (std::map<Category, bool>{{Category::code, row.expected}})) << value;
        EXPECT_EQ(policy.outputs, (std::map<std::string, bool>{{"x", row.expected}})) << value;
    }
}

TEST(ResolvedCapturePolicy, numbers) {
    struct Row {
        const char* value;
        std::optional<double> expected;
    };
    const Row rows[] = {
        {"0", 0.0},
        {"-1.25", -1.25},
        {"1767225600.123456", 1767225600.123456},
        {"1e308", 1e308},
        {"true", std::nullopt},
        {"null", std::nullopt},
        {R"("1")", std::nullopt},
        {"[1]", std::nullopt},
    };
    for (const Row& row : rows) {
        const std::string value = row.value;
        EXPECT_EQ(read(R"({"resumeSince":)" + value + "}").resumeSince, row.expected) << value;
        const auto policy = read(R"({"outputResumeSince":{"x":)" + value + R"(,"y":1}})");
        std::map<std::string, double> moments{{"y", 1}};
        if (row.expected) moments["x"] = *row.expected;
        EXPECT_EQ(policy.outputResumeSince, moments) << value;
    }
}

TEST(ResolvedCapturePolicy, oddValuesCostNoOthers) {
    struct Row {
        const char* name;
        const char* text;
        ResolvedCapturePolicy expected;
    };
    ResolvedCapturePolicy extensions;
    extensions.extensions = {"", ".PNG", "md"};
    ResolvedCapturePolicy known;
    known.types = {{Category::plans, true}};
    known.typeResumeSince = {{Category::plans, 2}};
    ResolvedCapturePolicy any;
    any.extensionResumeSince = {{"", 1}, {".MD", 2}};
    const Row rows[] = {
        {"array", R"([{"enabled":true}])", {}},
        {"empty", "{}", {}},
        {"dictionaries of other types", R"({"types":[1],"typeResumeSince":1,"outputs":"x","extensions":{"md":1}})", {}},
        {"camel case of the two old keys", R"({"captureTitleChanges":true,"captureLocationChanges":true})", {}},
        {"extensions", R"({"extensions":["md",1,".PNG",null,["js"],"","md"]})", extensions},
        {"ids alone", R"({"types":{"Plans":1,"plans":1,"x":1},"typeResumeSince":{"":1,"plans":2}})", known},
        {"extensions as they stand", R"({"extensionResumeSince":{"":1,".MD":2,"js":true}})", any},
    };
    for (const Row& row : rows)
        EXPECT_EQ(read(row.text), row.expected) << row.name;
}

}  // namespace
}  // namespace vellark
