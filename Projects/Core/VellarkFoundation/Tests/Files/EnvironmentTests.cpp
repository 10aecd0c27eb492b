#include <VellarkFoundation/Files/Environment.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(Environment, looksIntoTheListOfAProcess) {
    const char* const entries[] = {"HOME=/h", "HOMEX=/x",     "A=b=c",    "NAME",
                                   "EMPTY=",  "HOME=/second", "BAD=\xff", nullptr};
    const Environment environment(entries);
    const std::pair<const char*, std::optional<std::string_view>> rows[] = {
        {"HOME", "/h"},        {"HOMEX", "/x"},        {"A", "b=c"},
        {"EMPTY", ""},         {"NAME", std::nullopt}, {"HOM", std::nullopt},
        {"BAD", std::nullopt}, {"", std::nullopt},     {"home", std::nullopt},
    };
    for (const auto& [name, value] : rows) {
        EXPECT_EQ(environment.value(name), value) << name;
    }
}

TEST(Environment, looksIntoItsOwnVariables) {
    const Environment environment = {{"HOME", "/h"}, {"BAD", "\xff"}, {"EMPTY", ""}};
    EXPECT_EQ(environment.value("HOME"), "/h");
    EXPECT_EQ(environment.value("EMPTY"), "");
    EXPECT_EQ(environment.value("BAD"), std::nullopt);
    EXPECT_EQ(Environment().value("HOME"), std::nullopt);
}

}  // namespace
}  // namespace vellark
