#pragma once

#include "Support/Subprocess.hpp"
#include <VellarkFoundation/JSON/JSONReader.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace vellark::testing {

/// The real program on a data directory and a home of its own.
class HelperFixture : public ::testing::Test {
protected:
    using Arguments = std::vector<std::string>;

    [[nodiscard]] ProcessOptions options(const Arguments& arguments, std::string input = "") const {
        ProcessOptions result{.arguments = {VELLARK_CAPTURE_PROGRAM, "--data", data()},
                              .input = std::move(input),
                              .environment = {{"HOME", home()}},
                              .directory = root_.string()};
        result.arguments.insert(result.arguments.end(), arguments.begin(), arguments.end());
        return result;
    }

    /// Runs the helper and checks what every run has in common: the answer, silence, success, no half-written file.
    void run(const Arguments& arguments, std::string input = "") { check(options(arguments, std::move(input))); }

    void check(const ProcessOptions& options) const {
        const auto result = runProcess(options);
        ASSERT_TRUE(result.has_value());
        EXPECT_EQ(result->status, 0);
        EXPECT_EQ(result->output, options.closesOutput ? "" : "{}\n");
        EXPECT_EQ(result->errors, "");
        for (const std::string& name : spoolNames()) {
            EXPECT_TRUE(name.ends_with(".json")) << name;
        }
    }

    /// All names in the spool, sorted.
    [[nodiscard]] std::vector<std::string> spoolNames() const {
        std::vector<std::string> names;
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(spool(), none)) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }

    /// The text of the one signal that is there; "" when there is none, or more than one.
    [[nodiscard]] std::string signal() const {
        const auto names = spoolNames();
        return names.size() == 1 ? readFile(std::filesystem::path(spool()) / names.front()) : "";
    }

    /// The payload of the one signal that is there.
    [[nodiscard]] JSONObject payload() const {
        const auto value = JSONReader::read(signal());
        if (!value || value->object() == nullptr) return {};
        const JSONObject* found = objectIn(*value->object(), "payload");
        return found == nullptr ? JSONObject() : *found;
    }

    [[nodiscard]] std::string data() const { return (root_ / "data").string(); }
    [[nodiscard]] std::string home() const { return (root_ / "home").string(); }
    [[nodiscard]] std::string spool() const { return data() + "/signals"; }
    [[nodiscard]] std::string root() const { return root_.string(); }

    void SetUp() override {
        std::filesystem::create_directories(data());
        std::filesystem::create_directories(home());
    }

private:
    TemporaryDirectory root_;
};

inline constexpr const char* plainPayload = R"({"cwd": "/w", "tool_input": {"file_path": "/w/a.md"}})";

}  // namespace vellark::testing
