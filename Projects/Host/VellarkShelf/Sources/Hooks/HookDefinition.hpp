#pragma once

#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// How an agent is made to run the helper.
struct HookDefinition {
    std::string source;
    std::string file;        ///< where the definition goes; "" when the agent has no file for it
    std::string definition;  ///< what goes there, or the command to run
    std::string note;        ///< how to put it there

    bool operator==(const HookDefinition&) const = default;
};

template <class Fields>
void describe(Fields& fields, HookDefinition& definition) {
    fields.required("source", definition.source);
    fields.required("file", definition.file);
    fields.required("definition", definition.definition);
    fields.required("note", definition.note);
}

namespace HookDefinitions {

/// The definition for a source of CaptureSignal; nothing for any other. `helper` is the path of the program.
[[nodiscard]] std::optional<HookDefinition> make(std::string_view source, std::string_view helper,
                                                 const DataDirectory& directory, const Environment& environment);

/// The helper beside this program, or else its bare name, which the shell then looks for.
[[nodiscard]] std::string helperPath();

/// Whether the agent's own file mentions the helper already.
[[nodiscard]] bool isConnected(const HookDefinition& definition);

}  // namespace HookDefinitions

}  // namespace vellark
