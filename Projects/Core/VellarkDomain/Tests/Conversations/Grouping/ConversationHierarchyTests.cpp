#include <VellarkDomain/Conversations/Grouping/ConversationHierarchy.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vellark {
namespace {

using Hierarchy = ConversationHierarchy;
using Task = ConversationTask;

// "b<a" is the task b below a.
std::vector<Task> tasks(const std::vector<std::string>& descriptions) {
    std::vector<Task> result;
    for (const std::string& text : descriptions) {
        const std::size_t mark = text.find('<');
        result.push_back({.id = text.substr(0, mark)});
        if (mark != std::string::npos) result.back().parentTaskID = text.substr(mark + 1);
    }
    return result;
}

std::string joined(const std::vector<std::string>& list) {
    std::string result;
    for (const std::string& text : list)
        result += text + " ";
    return result;
}

// "a b|c:0 d:1 +2" is two columns, rows with their parents' rows, and two hidden rows in the second.
std::string written(const std::vector<Hierarchy::Column>& columns) {
    std::string result;
    for (const auto& column : columns) {
        if (!result.empty()) result += "|";
        std::string text;
        for (const auto& row : column.rows) {
            text += (text.empty() ? "" : " ") + row.id;
            if (row.parentRow) text += ":" + std::to_string(*row.parentRow);
        }
        if (column.hidden > 0) text += " +" + std::to_string(column.hidden);
        result += text;
    }
    return result;
}

TEST(ConversationHierarchyTests, theTreeIsWalkedDepthFirst) {
    const Hierarchy tree(tasks({"a", "b<a", "c", "d<b", "e<a", "f<lost", "g<g", "x<y", "y<x", "z<y"}));
    EXPECT_EQ(joined(tree.order), "a b d e c f g ");
    EXPECT_EQ(joined(tree.roots), "a c f g ");
    EXPECT_EQ(joined(tree.children.at("a")), "b e ");
    EXPECT_EQ(tree.parent("d"), "b");
    EXPECT_EQ(tree.parent("x"), "y") << "a loop is known, but no root leads to it";
    EXPECT_EQ(tree.parent("f"), std::nullopt);
    EXPECT_EQ(tree.known.size(), 10U);
    EXPECT_EQ(joined(tree.path("d")), "a b d ");
    EXPECT_EQ(joined(tree.path("z")), "x y z ");
    EXPECT_TRUE(tree.path("lost").empty());
    EXPECT_TRUE(tree.path(std::nullopt).empty());
}

TEST(ConversationHierarchyTests, columnsAreCutAtTheLimit) {
    const Hierarchy tree(tasks({"a", "b", "c", "d", "e", "f<a", "g<b", "h<b", "i<d", "j<i"}));
    struct Case {
        const char* name;
        std::optional<std::string_view> selected;
        bool expanded;
        std::int64_t limit;
        std::string columns;
    };
    const Case cases[] = {
        {"five of three", {}, false, 3, "a b +3|f:0 g:1 h:1"},
        {"the selected one is kept", "d", false, 3, "a d +3|f:0 i:1|j:1"},
        {"so is the way to it", "j", false, 2, "d +4|i:0|j:0"},
        {"a shown one moves nothing", "b", false, 3, "a b +3|f:0 g:1 h:1"},
        {"just enough room", {}, false, 5, "a b c d e|f:0 g:1 h:1 i:3|j:3"},
        {"expanded", {}, true, 1, "a b c d e|f:0 g:1 h:1 i:3|j:3"},
        {"a limit of one", {}, false, 1, "a +4|f:0"},
        {"no limit", {}, false, 0, "a +4|f:0"},
        {"the lowest limit", "h", false, std::numeric_limits<std::int64_t>::min(), "b +4|h:0 +1"},
        {"the highest limit", {}, false, std::numeric_limits<std::int64_t>::max(), "a b c d e|f:0 g:1 h:1 i:3|j:3"},
        {"an unknown selection", "q", false, 2, "a +4|f:0"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(written(tree.layout(row.selected, row.expanded, row.limit)), row.columns) << row.name;
    EXPECT_TRUE(Hierarchy(tasks({})).layout({}, true, 0).empty());
}

TEST(ConversationHierarchyTests, repeatedIdentifiersEnd) {
    EXPECT_EQ(written(Hierarchy(tasks({"a", "b<a", "a<b"})).layout({}, true, 0)), "a|b:0|a:0");
    EXPECT_EQ(joined(Hierarchy(tasks({"a", "b<a", "a<b"})).path("a")), "b a ");
    std::vector<std::string> doubled = {"0"};
    for (int level = 1; level < 200; ++level)
        doubled.insert(doubled.end(), 2, std::to_string(level) + "<" + std::to_string(level - 1));
    const Hierarchy tree(tasks(doubled));
    EXPECT_EQ(tree.order.size(), 200U);
    EXPECT_EQ(tree.layout({}, true, 0).size(), 200U);
}

TEST(ConversationHierarchyTests, deepChainsAreLaidOut) {
    std::vector<std::string> chain = {"0"};
    for (int level = 1; level < 10'000; ++level)
        chain.push_back(std::to_string(level) + "<" + std::to_string(level - 1));
    const Hierarchy tree(tasks(chain));
    EXPECT_EQ(tree.layout("9999", false, 1).size(), 10'000U);
    EXPECT_EQ(tree.path("9999").size(), 10'000U);
}

TEST(ConversationHierarchyTests, tasksAreTalliedByStatus) {
    using Status = Task::Status;
    std::vector<Task> list(5);
    list[0].outcome = Task::Outcome::interrupted;
    list[1].outcome = list[2].outcome = Task::Outcome::done;
    list[3].lastActivity = Date{0};
    EXPECT_EQ(Hierarchy::tally(list, {100}),
              (Hierarchy::Tally{{Status::running, 1}, {Status::quiet, 1}, {Status::done, 2}, {Status::stopped, 1}}));
    EXPECT_TRUE(Hierarchy::tally({}, {0}).empty());
}

}  // namespace
}  // namespace vellark
