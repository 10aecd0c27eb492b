#include <VellarkDomain/Capture/Rules/CaptureTitle.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (; count > 0; --count)
        result += text;
    return result;
}

TEST(CaptureTitle, comesFromThePageTheHeadingOrTheFallback) {
    const struct {
        const char* name;
        std::string content;
        const char* kind;
        std::string title;
    } rows[] = {
        {"heading", "x\n# T  ##\n# U", "markdown", "T"},
        {"none", "x", "markdown", "fallback"},
        {"empty", "", "html", "fallback"},
        {"page", "<title> a\n&amp;\u00A0 b </title># T", "html", "a & b"},
        {"page of another kind", "<title>a</title>\n# T", "text", "T"},
        {"blank page title", "<title> </title><title>b</title>\n# T", "html", "T"},
        {"long heading", "# " + repeated("한", 201), "markdown", repeated("한", 200)},
        {"long page title", "<title>" + repeated("é ", 150) + "</title>", "html", repeated("é ", 100)},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CaptureRules::contentTitle(row.content, {.fallback = "fallback", .kind = row.kind}), row.title)
            << row.name;
    }
    EXPECT_EQ(CaptureRules::contentTitle("", {.fallback = repeated("x", 201), .kind = ""}), repeated("x", 200));
}

}  // namespace
}  // namespace vellark
