#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Doctor/ShelfCheckup.hpp>

namespace vellark {

namespace {

std::string stateOf(const ShelfCheckup::Agent& agent) {
    if (!agent.isEnabled) return "switched off by the user";
    if (agent.isConnected) return "connected";
    return "not connected; `vellark hooks " + agent.source + "` shows how";
}

void writeCheckup(TerminalOutput& output, const ShelfCheckup& checkup) {
    using DisplayWidth::harmless;
    output.line("data       " + harmless(checkup.directory));
    output.line("helper     " + harmless(checkup.helper));
    output.line("documents  " + std::to_string(checkup.documents));
    output.line("pending    " + std::to_string(checkup.pendingSignals) + " of " +
                std::to_string(checkup.maximumPending));
    for (const ShelfCheckup::Agent& agent : checkup.agents) {
        output.line(DisplayWidth::padded(AgentSourceProfile::providerTitle(agent.source), 16) + " " + stateOf(agent) +
                    output.dim("  " + harmless(agent.home)));
    }
    for (const std::string& problem : checkup.problems) {
        output.line(output.bold("! ") + harmless(problem));
    }
    if (checkup.problems.empty()) output.line("all is well");
}

}  // namespace

int Commands::doctor(const Context& context) {
    const ShelfCheckup checkup = ShelfCheckup::make(context.directory, context.environment);
    TerminalOutput output(context.environment);
    if (context.json) return writeJSON(output, checkup);
    writeCheckup(output, checkup);
    return finish(output);
}

}  // namespace vellark
