#include <VellarkDomain/Conversations/Export/ConversationExport.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <cmark-gfm.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

using Entry = ConversationEntry;

std::string plainText(cmark_node* node) {
    std::string text;
    for (cmark_node* child = cmark_node_first_child(node); child != nullptr; child = cmark_node_next(child)) {
        if (const char* literal = cmark_node_get_literal(child)) text += literal;
        text += plainText(child);
    }
    return text;
}

// The headings below the first line, which holds the title, each with a mark for every level.
std::vector<std::string> headings(const std::string& markdown) {
    const std::unique_ptr<cmark_node, decltype(&cmark_node_free)> document(
        cmark_parse_document(markdown.data(), markdown.size(), CMARK_OPT_DEFAULT), cmark_node_free);
    std::vector<std::string> result;
    for (cmark_node* node = cmark_node_first_child(document.get()); node != nullptr; node = cmark_node_next(node)) {
        if (cmark_node_get_type(node) != CMARK_NODE_HEADING || cmark_node_get_start_line(node) == 1) continue;
        result.push_back(std::string(static_cast<std::size_t>(cmark_node_get_heading_level(node)), '#') + " " +
                         plainText(node));
    }
    return result;
}

// Whatever titles and names hold, a reader of Markdown finds the headings that were written and no other.
TEST(ConversationExportHeadingsTests, namesMarkNothingUp) {
    const std::string_view names[] = {
        "plain",       "```",           "~~~ sh", "<!-- ",       "<script>", "[a]: /b",       "> quoted", "- item\n===",
        "1. one",      "    indented",  "***",    "a\n---\n# b", "# hash",   "| a |\n|---|",  "a\\",      "&lt;&#35;",
        "\t\n\r\n\v*", "제목 — “인용”", "",       "![x](y)",     "<div>\n",  "</div> `code`", "a  \nb",   "\\# a"};
    const std::vector<std::string> expected = {"## " + L10n::text("최초 지시"), "## " + L10n::text("대화"),
                                               "### 2026-01-02", "### 2026-01-03"};
    for (const std::string_view name : names) {
        const std::string text(name);
        const AgentConversation conversation{
            .title = text, .cwd = "/" + text, .subagents = {{.name = text}, {.name = text}}};
        const double day = 1'767'323'045;
        const std::vector<Entry> entries = {
            {.id = "1", .author = ConversationAuthor::subagent(text), .time = Date{day}, .text = "said"},
            {.id = "2", .kind = Entry::Delegation{text}, .author = ConversationAuthor::main(), .text = text},
            {.id = "3", .kind = Entry::AgentMessage{text}, .time = Date{day + 86'400}, .text = "told"},
            {.id = "4", .kind = Entry::Report(), .author = ConversationAuthor::subagent(text), .text = "done"},
        };
        EXPECT_EQ(headings(ConversationExport::markdown({.conversation = conversation,
                                                         .instruction = "Do it",
                                                         .entries = entries,
                                                         .agentName = name,
                                                         .exportedAt = Date{day},
                                                         .timeZone = "UTC"})),
                  expected)
            << name;
    }
}

}  // namespace
}  // namespace vellark
