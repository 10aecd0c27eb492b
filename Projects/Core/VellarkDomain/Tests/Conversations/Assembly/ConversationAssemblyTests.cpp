#include "Support/RandomInput.hpp"
#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace vellark {
namespace {

using Entry = ConversationEntry;
using ConversationAssembly::Part;

Entry work(std::string id, std::optional<std::string> topic, std::string file) {
    return {.id = std::move(id), .kind = ConversationActivity{.editedFiles = {std::move(file)}}, .topic = topic};
}

std::vector<std::string> identifiers(const std::vector<Entry>& entries) {
    std::vector<std::string> result;
    for (const Entry& entry : entries)
        result.push_back(entry.id);
    return result;
}

TEST(ConversationAssemblyTests, onlyNeighboursOfOneTopicFold) {
    auto first = work("1", {}, "a");
    first.todos = {{ConversationTodoUpdate::Created{.id = "x", .text = "one"}}};
    auto second = work("2", {}, "b");
    second.todos = {{ConversationTodoUpdate::Updated{.id = "x", .status = std::nullopt}}};
    const auto folded =
        ConversationAssembly::merged({first, second, work("3", {}, "a"), work("4", "A", "a"), work("5", "A", "c"),
                                      Entry{.id = "6"}, work("7", "A", "d"), work("8", "", "d")});
    EXPECT_EQ(identifiers(folded), (std::vector<std::string>{"1", "4", "6", "7", "8"}));
    EXPECT_EQ(std::get<ConversationActivity>(folded[0].kind).editedFiles, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(folded[0].todos.size(), 2U);
}

TEST(ConversationAssemblyTests, aFinishedSubagentHasAReport) {
    const auto subagent = ConversationAuthor::subagent("A");
    const std::vector<Entry> entries = {{.id = "1", .author = subagent},
                                        {.id = "2", .author = subagent},
                                        {.id = "3", .author = ConversationAuthor::main()}};
    const auto reports = [&entries](bool isRoot, bool finished) {
        std::string ids;
        for (const Entry& entry :
             ConversationAssembly::feed({{.session = {.finished = finished}, .entries = entries, .isRoot = isRoot}})) {
            if (entry.is<Entry::Report>()) ids += entry.id;
        }
        return ids;
    };
    EXPECT_EQ(reports(false, true), "2");
    EXPECT_EQ(reports(true, true), "");
    EXPECT_EQ(reports(false, false), "");
    auto reported = entries;
    reported[0].kind = Entry::Report();
    const auto feed = ConversationAssembly::feed({{.session = {.finished = true}, .entries = reported}});
    EXPECT_TRUE(feed[1].is<Entry::Message>());
    EXPECT_TRUE(ConversationAssembly::feed({}).empty());
}

// The plain reading: tuples of time, part and index, sorted one by one.
TEST(ConversationAssemblyTests, entriesStandByTimePartAndOrder) {
    testing::RandomNumbers random(63);
    for (int round = 0; round < 300; ++round) {
        std::vector<Part> parts(random.below(4));
        std::vector<std::tuple<double, std::size_t, std::size_t>> expected;
        for (std::size_t part = 0; part < parts.size(); ++part) {
            double time = static_cast<double>(random.below(4));
            parts[part].session.startedAt = {time};
            for (std::size_t index = random.below(6); index > 0; --index) {
                Entry entry{.id = std::to_string(part) + "." + std::to_string(parts[part].entries.size())};
                if (random.below(3) != 0) entry.time = Date{time = static_cast<double>(random.below(4))};
                expected.emplace_back(time, part, parts[part].entries.size());
                parts[part].entries.push_back(entry);
            }
        }
        std::sort(expected.begin(), expected.end());
        std::vector<std::string> ids;
        for (const auto& [time, part, index] : expected) {
            ids.push_back(std::to_string(part) + "." + std::to_string(index));
        }
        ASSERT_EQ(identifiers(ConversationAssembly::feed(parts)), ids);
    }
}

}  // namespace
}  // namespace vellark
