#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindRoleRule.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

struct Row {
    ConversationRole role;
    DocumentKindRoleRule rule;
};

using enum DocumentKindRoleRule::Weight;
using Role = ConversationRole;
using Kind = DocumentKind;

// Roles that are not listed have no rule.
constexpr std::array rows = std::to_array<Row>({
    {Role::explore, {decides, Kind::research}},
    {Role::review, {decides, Kind::report}},
    {Role::design, {decides, Kind::design}},
    {Role::write, {fallback, Kind::guide}},
    {Role::test, {decides, Kind::testPlan}},
    {Role::plan, {decides, Kind::prd}},
    {Role::data, {fallback, Kind::data}},
    {Role::research, {decides, Kind::research}},
    {Role::marketing, {decides, Kind::marketingCopy}},
    {Role::growth, {fallback, Kind::marketingCopy}},
    {Role::sales, {decides, Kind::sales}},
    {Role::ceo, {fallback, Kind::businessPlan}},
    {Role::business, {fallback, Kind::businessPlan}},
    {Role::finance, {decides, Kind::finance}},
    {Role::legal, {decides, Kind::legal}},
    {Role::support, {fallback, Kind::faq}},
    {Role::translate, {decides, Kind::translation}},
    {Role::video, {decides, Kind::script}},
    {Role::audio, {fallback, Kind::script}},
    {Role::social, {decides, Kind::socialPost}},
    {Role::operations, {fallback, Kind::plan}},
    {Role::email, {decides, Kind::email}},
    {Role::security, {fallback, Kind::report}},
    {Role::education, {decides, Kind::learning}},
    {Role::product, {decides, Kind::prd}},
    {Role::content, {decides, Kind::blogPost}},
});

}  // namespace

std::optional<DocumentKindRoleRule> DocumentKindRoleRule::forRole(ConversationRole role) {
    const auto row =
        std::find_if(rows.begin(), rows.end(), [role](const Row& candidate) { return candidate.role == role; });
    if (row == rows.end()) return std::nullopt;
    return row->rule;
}

}  // namespace vellark
