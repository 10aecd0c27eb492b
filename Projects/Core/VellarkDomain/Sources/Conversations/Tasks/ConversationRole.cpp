#include <VellarkDomain/Capture/FixedTextMap.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationRole.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <string>

namespace vellark::ConversationRoles {

namespace {

using Role = ConversationRole;

// Types that agents and their plugins declare, in lower case.
constexpr FixedTextMap types(std::to_array<FixedTextEntry<Role>>({
    {"explore", Role::explore},
    {"explorer", Role::explore},
    {"scout", Role::explore},
    {"executor", Role::build},
    {"worker", Role::build},
    {"builder", Role::build},
    {"implementer", Role::build},
    {"coder", Role::build},
    {"code-reviewer", Role::review},
    {"reviewer", Role::review},
    {"critic", Role::review},
    {"verifier", Role::review},
    {"code-simplifier", Role::review},
    {"designer", Role::design},
    {"debugger", Role::debug},
    {"tracer", Role::debug},
    {"writer", Role::write},
    {"document-specialist", Role::write},
    {"test-engineer", Role::test},
    {"qa-tester", Role::test},
    {"qa", Role::test},
    {"planner", Role::plan},
    {"architect", Role::plan},
    {"analyst", Role::plan},
    {"plan", Role::plan},
    {"scientist", Role::data},
    {"security-reviewer", Role::security},
    {"git-master", Role::devops},
}));

// Types that say nothing about the work. They must not reach the classifier either.
constexpr auto silentTypes = std::to_array<std::string_view>(
    {"general-purpose", "general", "default", "agent", "claude", "subagent", "assistant"});

// The part behind the last colon that has a text before the next one, in the form in which types are compared.
std::string typeName(std::string_view type) {
    const std::string lowered = UnicodeCase::lower(type);
    std::string_view rest = lowered;
    while (rest.ends_with(':'))
        rest.remove_suffix(1);
    rest.remove_prefix(rest.rfind(':') + 1);  // npos + 1 is 0
    return Normalization::nfc(Whitespace::trimmed(rest));
}

std::optional<Role> roleOfType(std::string_view type) {
    const std::string name = typeName(type);
    if (name.empty()) return std::nullopt;
    if (const auto* role = types.find(name)) return *role;
    if (std::ranges::find(silentTypes, name) != silentTypes.end()) return std::nullopt;
    return classifier().best(name, Classifier::Words::keywords);
}

}  // namespace

const Classifier& classifier() {
    static const Classifier shared(table());
    return shared;
}

std::string_view symbol(Role role) {
    const auto& symbols = classifier().symbols();
    const auto found = symbols.find(role);
    return found == symbols.end() ? "square.stack" : std::string_view(found->second);
}

Role resolve(const Clues& clues) {
    if (clues.type) {
        if (const auto role = roleOfType(*clues.type)) return *role;
    }
    return classifier().classify(clues.name, clues.description).value_or(Role::general);
}

}  // namespace vellark::ConversationRoles
