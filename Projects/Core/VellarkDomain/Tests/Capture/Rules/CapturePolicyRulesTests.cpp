#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Category = ArtifactCategory;

TEST(CapturePolicyRules, normalizesExtensions) {
    struct Row {
        std::string text;
        std::optional<std::string> expected;
    };
    const Row rows[] = {
        {"md", "md"},
        {".MD", "md"},
        {"\x1C\xC2\xA0.Md\n\xE3\x80\x80", "md"},
        {"\xE2\x80\x8Bmd", std::nullopt},  // a zero width space is no white space here
        {"..md", std::nullopt},
        {". md", std::nullopt},
        {"", std::nullopt},
        {".", std::nullopt},
        {" ", std::nullopt},
        {"7z", "7z"},
        {"a_-", "a_-"},
        {"-x", std::nullopt},
        {"_x", std::nullopt},
        {"a b", std::nullopt},
        {"a.b", std::nullopt},
        {"mp4\xE2\x84\xAA", "mp4k"},     // the Kelvin sign
        {"\xC5\xBFh", std::nullopt},     // the long s stays
        {"\xC4\xB0", std::nullopt},      // the dotted capital I leaves a combining dot
        {"\xEB\xAC\xB8", std::nullopt},  // Hangul
        {"\xEF\xBD\x8D", std::nullopt},  // a full-width m
        {"md\xFF", std::nullopt},
        {std::string("md\0", 3), std::nullopt},
        {std::string(20, 'a'), std::string(20, 'a')},
        {"." + std::string(20, 'A') + " ", std::string(20, 'a')},
        {std::string(21, 'a'), std::nullopt},
        {std::string(1'000, ' ') + "md", "md"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CaptureRules::normalizedExtension(row.text), row.expected) << row.text;

    std::string kelvins;
    for (int count = 0; count < 20; ++count)
        kelvins += "\xE2\x84\xAA";
    EXPECT_EQ(CaptureRules::normalizedExtension("." + kelvins), std::string(20, 'k'));
    EXPECT_EQ(CaptureRules::normalizedExtension(kelvins + "k"), std::nullopt);
}

ResolvedCapturePolicy basePolicy() {
    ResolvedCapturePolicy policy;
    policy.enabled = true;
    policy.types = {{Category::documents, true}, {Category::code, true}, {Category::other, true}};
    policy.types[Category::images] = false;
    policy.extensions = {"md", "py", "doc"};
    return policy;
}

ResolvedCapturePolicy with(void (*change)(ResolvedCapturePolicy&)) {
    ResolvedCapturePolicy policy = basePolicy();
    change(policy);
    return policy;
}

TEST(CapturePolicyRules, artifactsByType) {
    const auto base = basePolicy();
    const auto off = with([](auto& policy) { policy.enabled = false; });
    const auto loose = with([](auto& policy) {
        policy.includeExtensionless = true;
        policy.includeUnlistedExtensions = true;
    });
    struct Row {
        const char* name;
        const ResolvedCapturePolicy& policy;
        Category category;
        std::optional<std::string_view> extension;
        bool expected;
    };
    const Row rows[] = {
        {"nothing is captured", off, Category::documents, "md", false},
        {"category switched off", base, Category::images, std::nullopt, false},
        {"category without an entry", base, Category::plans, "md", false},
        {"not judged by extension", base, Category::code, std::nullopt, true},
        {"listed", base, Category::documents, "md", true},
        {"listed, as it was typed", base, Category::documents, " .MD", true},
        {"listed, of another category", base, Category::code, "md", true},
        {"without extension", base, Category::code, "", false},
        {"without extension, where they count", loose, Category::code, "", true},
        {"a blank is no absence", loose, Category::other, " ", false},
        {"a point alone", loose, Category::other, ".", false},
        {"too long", loose, Category::other, "abcdefghijklmnopqrstu", false},
        {"unlisted", base, Category::other, "zzz", false},
        {"unlisted, where they count", loose, Category::other, "zzz", true},
        {"unlisted code", loose, Category::code, "zzz", false},
        {"unlisted extension of code, as other", loose, Category::other, "swift", true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            CaptureRules::artifactAllowed(row.category, {.modifiedAt = {}, .extension = row.extension}, row.policy),
            row.expected)
            << row.name;
    }
}

TEST(CapturePolicyRules, artifactsByMoment) {
    const auto moments = with([](auto& policy) {
        policy.includeExtensionless = true;
        policy.includeUnlistedExtensions = true;
        policy.resumeSince = 100;
        policy.typeResumeSince = {{Category::code, 200}, {Category::other, 50}};
        policy.extensionResumeSince = {{"md", 300}, {"doc", -1}, {"zzz", 900}};
        policy.extensionlessResumeSince = 400;
        policy.unlistedResumeSince = 500;
    });
    struct Row {
        const char* name;
        Category category;
        std::optional<std::string_view> extension;
        double since;
    };
    const Row rows[] = {
        {"all captures", Category::documents, std::nullopt, 100},
        {"the category", Category::code, std::nullopt, 200},
        {"the category, earlier than all", Category::other, std::nullopt, 100},
        {"the extension", Category::code, ".MD", 300},
        {"the extension, earlier than all", Category::other, "doc", 100},
        {"no entry for the extension", Category::code, "py", 200},
        {"without extension", Category::code, "", 400},
        {"unlisted, whatever its own entry", Category::other, "zzz", 500},
    };
    for (const Row& row : rows) {
        const auto allowed = [&](std::optional<double> modifiedAt) {
            return CaptureRules::artifactAllowed(row.category, {.modifiedAt = modifiedAt, .extension = row.extension},
                                                 moments);
        };
        EXPECT_TRUE(allowed(row.since)) << row.name;
        EXPECT_FALSE(allowed(row.since - 0.001)) << row.name;
        EXPECT_TRUE(allowed(std::nullopt)) << row.name;
    }
}

TEST(CapturePolicyRules, assistantResponses) {
    const auto none = basePolicy();
    const auto all = with([](auto& policy) { policy.includeAssistantResponses = true; });
    const auto since = with([](auto& policy) {
        policy.includeAssistantResponses = true;
        policy.assistantResponsesResumeSince = 100;
    });
    const auto sinceAlone = with([](auto& policy) { policy.assistantResponsesResumeSince = 100; });
    struct Row {
        const char* name;
        const ResolvedCapturePolicy& policy;
        CaptureRules::AssistantResponseFacts facts;
        bool expected;
    };
    const Row rows[] = {
        {"no kind", none, {}, true},
        {"a document", none, {.kind = "markdown"}, true},
        {"an empty kind", none, {.kind = ""}, true},
        {"a response", none, {.kind = "candidate"}, false},
        {"with a file", none, {.kind = "candidate", .hasSourcePath = true}, true},
        {"a plan", none, {.kind = "candidate", .artifactCategory = Category::plans}, true},
        {"a document's category", none, {.kind = "candidate", .artifactCategory = Category::documents}, false},
        {"a proposed plan", none, {.kind = "candidate", .originEvent = "codex-proposed-plan"}, true},
        {"nearly a proposed plan", none, {.kind = "candidate", .originEvent = "codex-proposed-plans"}, false},
        {"a plan's file", none, {.kind = "candidate", .originEvent = "plan-file:"}, true},
        {"another event", none, {.kind = "candidate", .originEvent = "a plan-file:"}, false},
        {"where they count", all, {.kind = "candidate"}, true},
        {"of no moment", since, {.kind = "candidate"}, false},
        {"at the moment", since, {.kind = "candidate", .observedAt = 100}, true},
        {"before the moment", since, {.kind = "candidate", .observedAt = 99.999}, false},
        {"a moment alone", sinceAlone, {.kind = "candidate", .observedAt = 200}, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CaptureRules::assistantResponseAllowed(row.facts, row.policy), row.expected) << row.name;
    }
}

}  // namespace
}  // namespace vellark
