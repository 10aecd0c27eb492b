#include "HelperFixture.hpp"

#include <sys/stat.h>

// Whatever goes wrong, the agent sees a run that worked, and the spool holds whole signals or none.

namespace vellark::testing {
namespace {

class HelperFailure : public HelperFixture {};

TEST_F(HelperFailure, inputThatIsNoPayload) {
    const std::pair<const char*, std::string> rows[] = {
        {"nothing", ""},
        {"no JSON", "hello"},
        {"an array", "[1]"},
        {"a fragment", "\"text\""},
        {"two objects", "{} {}"},
        {"ill-formed UTF-8", "{\"cwd\": \"\xff\"}"},
        {"half a surrogate pair", R"({"cwd": "\ud800"})"},
        {"cut off", R"({"cwd": "/w)"},
        {"a number beyond doubles", R"({"timestamp": 1e999})"},
        {"a million brackets", std::string(1'000'000, '[')},
        {"a million brackets in a member", "{\"a\":" + std::string(1'000'000, '[')},
    };
    for (const auto& [name, input] : rows) {
        run({"--source", "claude"}, input);
        EXPECT_TRUE(spoolNames().empty()) << name;
    }
}

TEST_F(HelperFailure, commandLineThatIsNotAccepted) {
    const Arguments rows[] = {
        {},
        {"--source"},
        {"--source="},
        {"--source", "nobody"},
        {"--source", "claude", "--verbose"},
        {"--source", "claude", "-v"},
        {"--source", "claude", "payload.json"},
        {"--source", "claude", "--hook"},
        {"--source", "cursor", "--hook", "--file", "a.md"},
        {"--source", "claude", "--model", "\xff"},
    };
    for (const Arguments& arguments : rows) {
        run(arguments, plainPayload);
        EXPECT_TRUE(spoolNames().empty());
    }
}

TEST_F(HelperFailure, sourceThatIsSwitchedOff) {
    const std::pair<const char*, std::string> rows[] = {
        {"settings.json", R"({"disabledConnectors": ["claude", 5]})"},
        {"settings.json", R"({"disabledConnectors": [5, null, "cursor", "claude"], "advanced": 7})"},
        {"integration-preferences.json", R"({"disconnectedAgents": ["claude"]})"},
    };
    for (const auto& [name, content] : rows) {
        writeFile(data() + "/" + name, content);
        run({"--source", "claude"}, plainPayload);
        EXPECT_TRUE(spoolNames().empty()) << content;
        std::filesystem::remove(data() + "/" + name);
    }
    run({"--source", "claude"}, plainPayload);
    EXPECT_EQ(spoolNames().size(), 1U);
}

TEST_F(HelperFailure, configurationThatCannotBeReadCountsAsAbsent) {
    const std::string settings = data() + "/settings.json";
    const std::string disabling = R"({"disabledConnectors": ["claude"]})";
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"a FIFO", [&] { ASSERT_EQ(::mkfifo(settings.c_str(), 0600), 0); }},
        {"a directory", [&] { std::filesystem::create_directory(settings); }},
        {"5 MiB", [&] { writeFile(settings, disabling + std::string(5 * 1024 * 1024, ' ')); }},
        {"no JSON", [&] { writeFile(settings, disabling + "x"); }},
        {"an array", [&] { writeFile(settings, "[" + disabling + "]"); }},
        {"a key of another type", [&] { writeFile(settings, R"({"disabledConnectors": {"claude": true}})"); }},
        {"a dangling link", [&] { std::filesystem::create_symlink("/nowhere/x", settings); }},
    };
    for (const auto& [name, make] : rows) {
        make();
        run({"--source", "claude"}, plainPayload);
        EXPECT_EQ(spoolNames().size(), 1U) << name;
        std::filesystem::remove_all(spool());
        std::filesystem::remove_all(settings);
    }
    writeFile(settings, disabling + std::string(4'194'304 - disabling.size(), ' '));
    run({"--source", "claude"}, plainPayload);
    EXPECT_TRUE(spoolNames().empty()) << "exactly 4 MiB is read";
}

TEST_F(HelperFailure, spoolThatCannotBeUsed) {
    const std::string elsewhere = root() + "/elsewhere";
    std::filesystem::create_directory(elsewhere);
    std::filesystem::create_directory_symlink(elsewhere, spool());
    run({"--source", "claude"}, plainPayload);
    EXPECT_TRUE(std::filesystem::is_empty(elsewhere)) << "a link is not followed";
    std::filesystem::remove(spool());

    writeFile(spool(), "a file");
    run({"--source", "claude"}, plainPayload);
    EXPECT_EQ(readFile(spool()), "a file");
    std::filesystem::remove(spool());

    auto missing = options({"--source", "claude"}, plainPayload);
    missing.arguments[2] = data() + "/missing";
    check(missing);
    EXPECT_FALSE(std::filesystem::exists(data() + "/missing")) << "the data directory is the host's to make";

    auto unwritable = options({"--source", "claude"}, plainPayload);
    unwritable.arguments[2] = "/proc/self";  // no user, root neither, can make a directory there
    check(unwritable);
}

TEST_F(HelperFailure, fullSpoolTakesNoMore) {
    for (int index = 0; index < 511; ++index) {
        writeFile(spool() + "/" + std::to_string(index) + ".json", "{}");
    }
    for (int index = 0; index < 10; ++index) {
        writeFile(spool() + "/.tmp-" + std::to_string(index), "");
    }
    const auto result = runProcess(options({"--source", "claude"}, plainPayload));
    EXPECT_EQ(result->output, "{}\n");
    EXPECT_EQ(spoolNames().size(), 522U) << "temporary files do not count";
    runProcess(options({"--source", "claude"}, plainPayload));
    EXPECT_EQ(spoolNames().size(), 522U);
}

TEST_F(HelperFailure, signalThatIsTooLongIsLostWhole) {
    const std::string start = R"({"cwd": "/w", "timestamp": "t", "model": ")";
    run({"--source", "claude"}, start + "\"}");
    const std::size_t empty = signal().size();
    std::filesystem::remove_all(spool());
    run({"--source", "claude"}, start + std::string(65'536 - empty, 'x') + "\"}");
    EXPECT_EQ(signal().size(), 65'536U);
    std::filesystem::remove_all(spool());
    run({"--source", "claude"}, start + std::string(65'537 - empty, 'x') + "\"}");
    EXPECT_TRUE(spoolNames().empty());
}

TEST_F(HelperFailure, closedOutputIsIgnored) {
    auto closed = options({"--source", "claude"}, plainPayload);
    closed.closesOutput = true;
    check(closed);
    EXPECT_EQ(spoolNames().size(), 1U);
}

}  // namespace
}  // namespace vellark::testing
