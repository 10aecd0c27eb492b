#include <VellarkDomain/Conversations/Tasks/ConversationRole.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace vellark {
namespace {

using Role = ConversationRole;
using Words = ConversationRoles::Classifier::Words;

// The row in which a list names the word first: of equal words the earlier row's counts.
template <class List>
Role firstOwner(List list, const std::string& word) {
    for (const auto& entry : ConversationRoles::table()) {
        const auto& words = entry.words.*list;
        if (std::find(words.begin(), words.end(), word) != words.end()) return entry.id;
    }
    return Role::general;
}

// A word may end in another role's word, which then is the one that stands last. These are all such words.
const std::map<std::string, Role> overlaps = {
    {"程式設計師", Role::design}, {"介面設計", Role::plan}, {"視覺設計", Role::plan}};

template <class List>
void expectEveryWordCounts(List list, Words words) {
    for (const auto& entry : ConversationRoles::table()) {
        for (const std::string& word : entry.words.*list) {
            const auto overlap = overlaps.find(word);
            const Role expected = overlap == overlaps.end() ? firstOwner(list, word) : overlap->second;
            EXPECT_EQ(rawValue(ConversationRoles::classifier().best(word, words).value_or(Role::general)),
                      rawValue(expected))
                << word;
        }
    }
}

TEST(ConversationRoleTests, everyWordOfTheTableMeansItsRole) {
    expectEveryWordCounts(&KeywordLists::nouns, Words::nouns);
    expectEveryWordCounts(&KeywordLists::activity, Words::activity);
    expectEveryWordCounts(&KeywordLists::domain, Words::domain);
}

TEST(ConversationRoleTests, noExcludedPhraseMeansItsRole) {
    for (const auto& entry : ConversationRoles::table()) {
        for (const std::string& phrase : entry.words.exclusions) {
            for (const Words words : {Words::nouns, Words::activity, Words::domain})
                EXPECT_NE(ConversationRoles::classifier().best(phrase, words), entry.id) << phrase;
        }
    }
}

TEST(ConversationRoleTests, everyRoleHasOneRowAndAnIcon) {
    std::set<Role> roles;
    std::set<std::string_view> symbols;
    for (const Role role : allCases<Role>())
        symbols.insert(ConversationRoles::symbol(role));
    for (const auto& entry : ConversationRoles::table())
        roles.insert(entry.id);
    EXPECT_EQ(roles.size(), allCases<Role>().size());
    EXPECT_EQ(ConversationRoles::table().size(), roles.size());
    EXPECT_EQ(symbols.size(), roles.size());
    EXPECT_EQ(ConversationRoles::symbol(Role::general), "square.stack");
}

struct Case {
    const char* name;
    ConversationRoles::Clues clues;
    Role expected;
};

TEST(ConversationRoleTests, typeThenNameThenDescriptionTell) {
    const Case cases[] = {
        {"a type", {.type = "explore"}, Role::explore},
        {"a plugin's type", {.type = "tools:Code-Reviewer"}, Role::review},
        {"the last part that is not empty", {.type = "tools:QA::"}, Role::test},
        {"white space around", {.type = "tools:\u3000planner\t"}, Role::plan},
        {"not within", {.type = "code - reviewer please"}, Role::review},
        {"the type before the name", {.type = "worker", .name = "번역가"}, Role::build},
        {"a table row before its words", {.type = "analyst"}, Role::plan},
        {"words of any list in a type", {.type = "youtube-helper"}, Role::video},
        {"a noun in a type", {.type = "senior accountant"}, Role::finance},
        {"a silent type", {.type = "claude", .name = "designer"}, Role::design},
        {"a silent type of a plugin", {.type = "x:General-Purpose", .name = "번역가"}, Role::translate},
        {"no type in colons", {.type = "::", .description = "Deploy the site"}, Role::devops},
        {"only blanks", {.type = "x: ", .description = "Deploy the site"}, Role::devops},
        {"an unknown type", {.type = "zebra", .description = "조사해서 요약"}, Role::write},
        {"the name's noun before the text", {.name = "변호사", .description = "Write the tests"}, Role::legal},
        {"English says first what it is about", {.description = "Fix the flaky login test"}, Role::build},
        {"Korean says it last", {.description = "로그인 테스트 수정"}, Role::build},
        {"an activity before a domain", {.description = "Security: review the keys"}, Role::review},
        {"a domain alone", {.description = "Instagram"}, Role::social},
        {"Japanese", {.description = "契約書の翻訳"}, Role::translate},
        {"simplified Chinese", {.description = "部署网站"}, Role::devops},
        {"traditional Chinese", {.name = "測試員"}, Role::test},
        {"decomposed Korean", {.name = "\u1107\u1165\u11ab\u110b\u1167\u11a8\u1100\u1161"}, Role::translate},
        {"inside another word", {.description = "specific contents"}, Role::general},
        {"nothing known", {}, Role::general},
        {"empty clues", {.type = "", .name = "", .description = ""}, Role::general},
    };
    for (const Case& row : cases)
        EXPECT_EQ(rawValue(ConversationRoles::resolve(row.clues)), rawValue(row.expected)) << row.name;
}

TEST(ConversationRoleTests, declaredTypesHaveTheirRole) {
    const std::pair<Role, std::vector<const char*>> rows[] = {
        {Role::explore, {"explore", "explorer", "scout"}},
        {Role::build, {"executor", "worker", "builder", "implementer", "coder"}},
        {Role::review, {"code-reviewer", "reviewer", "critic", "verifier", "code-simplifier"}},
        {Role::design, {"designer"}},
        {Role::debug, {"debugger", "tracer"}},
        {Role::write, {"writer", "document-specialist"}},
        {Role::test, {"test-engineer", "qa-tester", "qa"}},
        {Role::plan, {"planner", "architect", "analyst", "plan"}},
        {Role::data, {"scientist"}},
        {Role::security, {"security-reviewer"}},
        {Role::devops, {"git-master"}},
    };
    for (const auto& [role, types] : rows) {
        for (const char* type : types)
            EXPECT_EQ(rawValue(ConversationRoles::resolve({.type = type})), rawValue(role)) << type;
    }
    for (const char* type : {"general-purpose", "general", "default", "agent", "claude", "subagent", "assistant"})
        EXPECT_EQ(ConversationRoles::resolve({.type = type, .name = "lawyer"}), Role::legal) << type;
}

}  // namespace
}  // namespace vellark
