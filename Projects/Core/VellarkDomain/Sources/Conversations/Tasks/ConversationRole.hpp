#pragma once

#include <VellarkDomain/Text/KeywordClassifier.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace vellark {

/// What kind of work a subagent does.
enum class ConversationRole {
    explore,
    build,
    review,
    design,
    debug,
    write,
    test,
    plan,
    data,
    research,
    marketing,
    growth,
    sales,
    ceo,
    business,
    finance,
    legal,
    support,
    translate,
    video,
    photo,
    audio,
    social,
    hr,
    operations,
    email,
    security,
    devops,
    mobile,
    web,
    education,
    product,
    content,
    general,
};

template <>
inline constexpr auto caseTable<ConversationRole> = std::to_array<CaseName<ConversationRole>>({
    {ConversationRole::explore, "explore"},
    {ConversationRole::build, "build"},
    {ConversationRole::review, "review"},
    {ConversationRole::design, "design"},
    {ConversationRole::debug, "debug"},
    {ConversationRole::write, "write"},
    {ConversationRole::test, "test"},
    {ConversationRole::plan, "plan"},
    {ConversationRole::data, "data"},
    {ConversationRole::research, "research"},
    {ConversationRole::marketing, "marketing"},
    {ConversationRole::growth, "growth"},
    {ConversationRole::sales, "sales"},
    {ConversationRole::ceo, "ceo"},
    {ConversationRole::business, "business"},
    {ConversationRole::finance, "finance"},
    {ConversationRole::legal, "legal"},
    {ConversationRole::support, "support"},
    {ConversationRole::translate, "translate"},
    {ConversationRole::video, "video"},
    {ConversationRole::photo, "photo"},
    {ConversationRole::audio, "audio"},
    {ConversationRole::social, "social"},
    {ConversationRole::hr, "hr"},
    {ConversationRole::operations, "operations"},
    {ConversationRole::email, "email"},
    {ConversationRole::security, "security"},
    {ConversationRole::devops, "devops"},
    {ConversationRole::mobile, "mobile"},
    {ConversationRole::web, "web"},
    {ConversationRole::education, "education"},
    {ConversationRole::product, "product"},
    {ConversationRole::content, "content"},
    {ConversationRole::general, "general"},
});

/// Tells roles by declared types, names and task texts in English, Korean, Japanese and Chinese.
namespace ConversationRoles {

using Classifier = KeywordClassifier<ConversationRole>;

/// One row for each role: its icon and its words. The order is the classifier's: of two roles whose words stand at the
/// same place of a text the earlier row wins.
[[nodiscard]] const std::vector<Classifier::Entry>& table();

/// The classifier of the table.
[[nodiscard]] const Classifier& classifier();

/// The role's icon, a name of the platform's icon set.
[[nodiscard]] std::string_view symbol(ConversationRole role);

/// What is known of a subagent.
struct Clues {
    std::optional<std::string_view> type = {};         ///< as its call declares it, with or without a plugin's name
    std::optional<std::string_view> name = {};         ///< its display name
    std::optional<std::string_view> description = {};  ///< its task
};

/// The role by the type; when that says nothing, by the name and the description; `general` when these say nothing too.
///
///     resolve({.type = "tools:Code-Reviewer"})                    review
///     resolve({.type = "general-purpose", .name = "번역가"})      translate
///     resolve({.description = "Fix the flaky login test"})        build: an English text says first what it is about
[[nodiscard]] ConversationRole resolve(const Clues& clues);

}  // namespace ConversationRoles

}  // namespace vellark
