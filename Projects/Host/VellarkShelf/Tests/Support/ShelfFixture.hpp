#pragma once

#include "Support/Subprocess.hpp"
#include "Support/TemporaryDirectory.hpp"
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// A user's home with a project in it and a data directory, in which the real programs run.
class ShelfFixture : public ::testing::Test {
protected:
    ShelfFixture() {
        std::filesystem::create_directories(project());
        std::filesystem::create_directories(data());
    }

    [[nodiscard]] std::string home() const { return (root_ / "home").string(); }
    [[nodiscard]] std::string project() const { return home() + "/project"; }
    [[nodiscard]] std::string data() const { return (root_ / "data").string(); }
    [[nodiscard]] std::string path(std::string_view name) const { return project() + "/" + std::string(name); }

    std::string write(std::string_view name, std::string_view content) const {
        const std::string whole = path(name);
        std::filesystem::create_directories(std::filesystem::path(whole).parent_path());
        writeFile(whole, std::string(content));
        return whole;
    }

    /// What an agent's hook does at the end of a tool call.
    void hook(std::string_view tool, std::string_view file, std::map<std::string, JSONValue> more = {}) const {
        JSONObject input;
        input.set("file_path", std::string(file));
        JSONObject payload;
        payload.set("hook_event_name", "PostToolUse");
        payload.set("session_id", "session-1");
        payload.set("cwd", project());
        payload.set("tool_name", std::string(tool));
        payload.set("tool_input", std::move(input));
        for (auto& [key, value] : more) {
            payload.set(key, std::move(value));
        }
        const auto text = CaptureSignal::pythonJSON(payload, false);
        const auto run = runProcess({.arguments = {VELLARK_CAPTURE_PROGRAM, "--source", "claude"},
                                     .input = *text,
                                     .environment = environment()});
        ASSERT_TRUE(run);
        ASSERT_EQ(run->output, "{}\n");
    }

    [[nodiscard]] ProcessResult vellark(std::vector<std::string> arguments, std::string input = {}) const {
        arguments.insert(arguments.begin(), VELLARK_PROGRAM);
        const auto run = runProcess(
            {.arguments = arguments, .input = std::move(input), .environment = environment(), .directory = project()});
        EXPECT_TRUE(run);
        return run.value_or(ProcessResult());
    }

    /// The JSON value that a command writes.
    [[nodiscard]] JSONValue json(std::vector<std::string> arguments) const {
        arguments.push_back("--json");
        const auto run = vellark(std::move(arguments));
        EXPECT_EQ(run.status, 0) << run.errors;
        auto value = JSONReader::read(run.output);
        EXPECT_TRUE(value) << run.output;
        return value.value_or(JSONValue());
    }

    [[nodiscard]] CaptureLibrary library() const {
        auto contents = LibraryFile::read(data() + "/library.json");
        EXPECT_TRUE(contents);
        return contents ? std::move(contents->library) : CaptureLibrary();
    }

    [[nodiscard]] std::vector<std::string> pending() const {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(data() + "/signals", error)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    [[nodiscard]] std::map<std::string, std::string> environment() const {
        return {{"HOME", home()}, {"VELLARK_DATA_DIR", data()}, {"LANG", "en_US.UTF-8"}, {"TMPDIR", home()}};
    }

private:
    TemporaryDirectory root_;
};

}  // namespace vellark::testing
