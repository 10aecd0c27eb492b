#include "Support/RandomInput.hpp"
#include "Support/TemporaryDirectory.hpp"
#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkFoundation/Digest/SHA256.hpp>

#include <gtest/gtest.h>

#include <filesystem>

namespace vellark {
namespace {

using namespace std::string_literals;

JSONObject object(std::initializer_list<std::pair<const char*, JSONValue>> members) {
    JSONObject result;
    for (const auto& [key, value] : members) {
        result.set(key, value);
    }
    return result;
}

TEST(SignalSpool, findsTheAgentsDirectory) {
    const testing::TemporaryDirectory home;
    testing::writeFile(home / "data/settings.json",
                       R"({"advanced": {"agentHomes": {"qwen": "~/q/", "kiro": "  ", "amp": "relative", "pi": 5}}})");
    const std::string base = home.string();
    struct Row {
        const char* name;
        const char* source;
        Environment environment;
        std::string expected;
    };
    const Row rows[] = {
        {"usual place", "opencode", {{"HOME", base}}, base + "/.config/opencode"},
        {"settings, tilde", "qwen", {{"HOME", base}, {"QWEN_HOME", "/x"}}, base + "/q"},
        {"blank setting", "kiro", {{"HOME", base}}, base + "/.kiro"},
        {"relative setting", "amp", {{"HOME", base}, {"VELLARK_AMP_CONFIG_DIR", "/amp"}}, "/amp"},
        {"setting of another type", "pi", {{"HOME", base}}, base + "/.pi/agent"},
        {"underscores first",
         "grok-build",
         {{"HOME", base}, {"VELLARK_GROK-BUILD_CONFIG_DIR", "/b"}, {"VELLARK_GROK_BUILD_CONFIG_DIR", "/a"}},
         "/a"},
        {"hyphens second", "grok-build", {{"HOME", base}, {"VELLARK_GROK-BUILD_CONFIG_DIR", "/b"}}, "/b"},
        {"the agent's own variable", "codex", {{"HOME", base}, {"CODEX_HOME", "~/c"}}, base + "/c"},
        {"own variable, relative", "codex", {{"HOME", base}, {"CODEX_HOME", "c"}}, base + "/.codex"},
        {"own variable, home redirected",
         "codex",
         {{"HOME", base}, {"CODEX_HOME", "/c"}, {"VELLARK_AGENT_HOME", "/other"}},
         "/other/.codex"},
        {"own variable, home redirected to itself",
         "codex",
         {{"HOME", base}, {"CODEX_HOME", "/c"}, {"VELLARK_AGENT_HOME", base + "/./"}},
         "/c"},
        {"empty home stays empty", "codex", {{"HOME", ""}}, ".codex"},
        {"older directory is missing", "deepseek", {{"HOME", base}}, base + "/.codewhale"},
    };
    for (const Row& row : rows) {
        const SignalSpool spool{.data = base + "/data", .environment = row.environment};
        EXPECT_EQ(spool.agentRoot(row.source), row.expected) << row.name;
    }
    std::filesystem::create_directory(home / ".deepseek");
    const SignalSpool spool{.data = base + "/data", .environment = {{"HOME", base}}};
    EXPECT_EQ(spool.agentRoot("deepseek"), base + "/.deepseek");
    std::filesystem::create_directory(home / ".codewhale");
    EXPECT_EQ(spool.agentRoot("deepseek"), base + "/.codewhale");
}

TEST(SignalSpool, resolvesWhatExists) {
    const testing::TemporaryDirectory directory;
    const std::string base = directory.string();
    std::filesystem::create_directories(directory / "real/inner");
    std::filesystem::create_directory_symlink(base + "/real", directory / "link");
    std::filesystem::create_symlink("nowhere", directory / "dangling");
    const std::pair<std::string, std::string> rows[] = {
        {base + "/link/inner", base + "/real/inner"},
        {base + "/link/missing/../x", base + "/real/missing/../x"},
        {base + "/dangling/x", base + "/dangling/x"},
        {"/missing-at-the-root/x", "/missing-at-the-root/x"},
        {"/", "/"},
        {base + "/link/./inner//y/", base + "/real/inner/y"},
        {"not/there", std::filesystem::current_path().string() + "/not/there"},
        {base + "/link/a\0b"s, base + "/real/a\0b"s},
        {"/" + std::string(100'000, 'a'), "/" + std::string(100'000, 'a')},
    };
    for (const auto& [path, expected] : rows) {
        EXPECT_EQ(SignalSpool::resolved(path), expected);
    }
}

// The plain way: take one component after another from the end, until what is left can be resolved.
std::string plainlyResolved(const PythonPath& path) {
    std::vector<std::string_view> removed;
    for (PythonPath rest = path;; rest = rest.parent()) {
        std::error_code missing;
        const auto real = std::filesystem::canonical(rest.string(), missing);
        if (!missing) {
            PythonPath result(real.string());
            for (const std::string_view component : removed)
                result = result.appending(component);
            return std::string(result.string());
        }
        if (rest.tail().empty()) return std::string(path.string());
        removed.insert(removed.begin(), path.tail()[rest.tail().size() - 1]);
    }
}

TEST(SignalSpool, resolvesAsThePlainWay) {
    const testing::TemporaryDirectory directory;
    std::filesystem::create_directories(directory / "a/b/a");
    testing::writeFile(directory / "a/file", "");
    std::filesystem::create_directory_symlink(directory / "a/b", directory / "a/b/a/up");
    std::filesystem::create_directory_symlink("b", directory / "a/link");
    std::filesystem::create_symlink("loop", directory / "a/loop");
    const std::vector<std::string> pieces = {"/a", "/b", "/..", "/link", "/up", "/loop", "/file", "/x", "/x"};
    for (const std::string& tail : testing::randomTexts(41, 3'000, 9, pieces)) {
        const std::string path = directory.string() + "/a" + tail;
        ASSERT_EQ(SignalSpool::resolved(path), plainlyResolved(PythonPath(path))) << tail;
    }
}

TEST(SignalSpool, believesOnlySoundIdentities) {
    const SignalSpool spool{.data = "/nowhere", .environment = {{"HOME", "/nowhere/home"}}};
    const std::string home = "/nowhere/home/.claude";
    const auto derived = [&](const std::string& kind) {
        return SHA256::hexadecimal("source-profile-v1\0claude\0"s + kind + "\0"s + home);
    };
    const auto provided = [&](const std::string& kind, const std::string& at, const std::string& identifier) {
        return SHA256::hexadecimal("claude\0"s + kind + "\0"s + at + "\0provided:"s + identifier);
    };
    struct Row {
        const char* name;
        JSONObject supplied;
        std::string identifier;
        std::string kind;
        std::optional<std::string> label;
    };
    std::string euros;
    for (int index = 0; index < 128; ++index)
        euros += "€";
    const Row rows[] = {
        {"nothing", {}, derived("unknown"), "unknown", {}},
        {"a label alone", object({{"sourceProfileLabel", "x"}}), derived("unknown"), "unknown", {}},
        {"a kind", object({{"sourceKind", "desktop"}}), derived("desktop"), "desktop", {}},
        {"an unknown kind", object({{"sourceKind", "Desktop"}}), derived("unknown"), "unknown", {}},
        {"stripped texts", object({{"sourceProfileID", " me "}, {"sourceProfileLabel", "  L\u00A0"}}),
         provided("unknown", home, "me"), "unknown", "L"},
        {"128 scalars", object({{"sourceProfileID", euros}}), provided("unknown", home, euros), "unknown", {}},
        {"129 scalars", object({{"sourceProfileID", euros + "x"}}), derived("unknown"), "unknown", {}},
        {"129 with blanks", object({{"sourceProfileID", euros + " "}}), derived("unknown"), "unknown", {}},
        {"a line feed",
         object({{"sourceProfileID", "a"}, {"sourceProfileLabel", "b\nc"}}),
         provided("unknown", home, "a"),
         "unknown",
         {}},
        {"blank", object({{"sourceProfileID", " \u3000"}}), derived("unknown"), "unknown", {}},
        {"a number", object({{"sourceProfileID", JSONNumber{"5"}}}), derived("unknown"), "unknown", {}},
        {"a home",
         object({{"sourceProfileID", "a"}, {"agentHome", "/nowhere/h/ "}}),
         provided("unknown", "/nowhere/h", "a"),
         "unknown",
         {}},
        {"a home behind a blank",
         object({{"sourceProfileID", "a"}, {"agentHome", " /nowhere/h"}}),
         provided("unknown", home, "a"),
         "unknown",
         {}},
        {"a home with a tilde",
         object({{"sourceProfileID", "a"}, {"agentHome", "~/h"}}),
         provided("unknown", home, "a"),
         "unknown",
         {}},
    };
    for (const Row& row : rows) {
        const JSONObject profile = spool.profile("claude", row.supplied, "unknown");
        EXPECT_EQ(*stringIn(profile, "sourceProfileID"), row.identifier) << row.name;
        EXPECT_EQ(*stringIn(profile, "sourceKind"), row.kind) << row.name;
        const std::string* label = stringIn(profile, "sourceProfileLabel");
        EXPECT_EQ(label == nullptr ? std::nullopt : std::optional(*label), row.label) << row.name;
        EXPECT_FALSE(*profile.find("profileIdentityVerified")->boolean());
    }
    EXPECT_EQ(*stringIn(spool.profile("claude", {}, "odd"), "sourceKind"), "unknown");
    EXPECT_EQ(*stringIn(spool.profile("claude", {}, "manual"), "sourceProfileID"), derived("manual"));
}

}  // namespace
}  // namespace vellark
