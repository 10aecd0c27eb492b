#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Hooks/HookDefinition.hpp>

#include <cstdio>

namespace vellark {

int Commands::hooks(const Context& context, const std::string& source) {
    const auto hook =
        HookDefinitions::make(source, HookDefinitions::helperPath(), context.directory, context.environment);
    if (!hook) return problem("there is no agent " + source);
    TerminalOutput output(context.environment);
    if (context.json) return writeJSON(output, *hook);
    // The definition alone goes to standard output, so that it can be put into a file.
    if (!hook->file.empty()) std::fprintf(stderr, "%s\n", hook->file.c_str());
    std::fprintf(stderr, "%s\n\n", hook->note.c_str());
    output.write(hook->definition);
    return finish(output);
}

}  // namespace vellark
