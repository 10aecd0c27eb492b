#include <VellarkCapture/CaptureInvocation.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Arguments = std::vector<std::string_view>;

std::optional<CaptureInvocation> make(const Arguments& arguments) {
    return CaptureInvocation::make(arguments, {{"HOME", "/h"}}, "/w");
}

TEST(CaptureInvocation, readsCommandLines) {
    struct Row {
        Arguments arguments;
        std::string source;
        bool hook;
        std::string data;
        std::optional<std::string> file;
        std::map<std::string, std::string, std::less<>> options;
    };
    const std::string data = "/h/Library/Application Support/Vellark";
    const Row rows[] = {
        {{"--source", "claude"}, "claude", false, data, {}, {}},
        {{"--source=kimi-code", "--hook"}, "kimi-code", true, data, {}, {}},
        {{"--source", "nobody", "--source=claude"}, "claude", false, data, {}, {}},
        {{"--data=a=b", "--source=claude"}, "claude", false, "a=b", {}, {}},
        {{"--data=", "--source=claude"}, "claude", false, "", {}, {}},
        {{"--source=claude", "--file", "--hook"}, "claude", false, data, "--hook", {}},
        {{"--source=claude", "--file=", "--model", "--", "--session=a"},
         "claude",
         false,
         data,
         "",
         {{"model", "--"}, {"session", "a"}}},
        {{"--source=cursor", "--hook", "--cwd", "/x"}, "cursor", true, data, {}, {{"cwd", "/x"}}},
        {{"--source=amp", "--source-profile-id=1", "--source-profile-label=2", "--source-kind=3", "--agent-home=4"},
         "amp",
         false,
         data,
         {},
         {{"source-profile-id", "1"}, {"source-profile-label", "2"}, {"source-kind", "3"}, {"agent-home", "4"}}},
    };
    for (const Row& row : rows) {
        const auto invocation = make(row.arguments);
        ASSERT_TRUE(invocation.has_value()) << row.arguments.front();
        EXPECT_EQ(invocation->source, row.source);
        EXPECT_EQ(invocation->hook, row.hook);
        EXPECT_EQ(invocation->data, row.data);
        EXPECT_EQ(invocation->file, row.file);
        EXPECT_EQ(invocation->options, row.options);
    }
}

TEST(CaptureInvocation, refusesWhatItDoesNotKnow) {
    const Arguments rows[] = {
        {},
        {"--"},
        {"claude"},
        {"-s", "claude"},
        {"--source"},
        {"--source="},
        {"--source", "--hook"},
        {"--source=Claude"},
        {"--source=claude", "--hook"},
        {"--source=claude", "--hook=yes"},
        {"--source=cursor", "--hook", "--file=x"},
        {"--source=claude", "--file"},
        {"--source=claude", "--Model=x"},
        {"--source=claude", "--=x"},
        {"--source=claude", "extra"},
        {"--source=claude", "--model=\xc3"},
    };
    for (const Arguments& arguments : rows) {
        EXPECT_FALSE(make(arguments).has_value()) << (arguments.empty() ? "" : arguments.back());
    }
}

TEST(CaptureInvocation, emptyDataVariableStands) {
    const Arguments arguments = {"--source=claude"};
    const auto invocation = CaptureInvocation::make(arguments, {{"HOME", "/h"}, {"VELLARK_DATA_DIR", ""}}, "/w");
    EXPECT_EQ(invocation->data, "");
}

}  // namespace
}  // namespace vellark
