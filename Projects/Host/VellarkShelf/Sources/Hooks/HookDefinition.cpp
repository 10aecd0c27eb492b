#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Conversations/Reply/ConversationReplyCommand.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkShelf/Hooks/HookDefinition.hpp>
#include <VellarkShelf/Hooks/HookTable.hpp>

#include <unistd.h>

#include <array>
#include <climits>

#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace vellark::HookDefinitions {

namespace {

constexpr std::string_view helperName = "VellarkCapture";
constexpr std::string_view placeholder = "{command}";

// Inside a text of JSON, TOML or JavaScript, which agree on these.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') result += '\\';
        result += byte;
    }
    return result;
}

std::string filled(std::string_view form, std::string_view command) {
    std::string text(form);
    for (std::size_t place = text.find(placeholder); place != std::string::npos;
         place = text.find(placeholder, place + command.size())) {
        text.replace(place, placeholder.size(), command);
    }
    return text;
}

std::string programPath() {
    std::array<char, PATH_MAX> buffer{};
#ifdef __APPLE__
    auto size = static_cast<std::uint32_t>(buffer.size());
    return ::_NSGetExecutablePath(buffer.data(), &size) == 0 ? std::string(buffer.data()) : std::string();
#else
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length)) : std::string();
#endif
}

}  // namespace

std::optional<HookDefinition> make(std::string_view source, std::string_view helper, const DataDirectory& directory,
                                   const Environment& environment) {
    if (!CaptureSignal::isSource(source)) return std::nullopt;
    const HookRow& row = hookRow(source);
    std::string command = ConversationReplyCommand::quoted(helper) + " --source " + std::string(source);
    if (HookNormalizer::isHooked(source) && !row.file.empty()) command += " --hook";
    HookDefinition definition{
        .source = std::string(source), .file = {}, .definition = {}, .note = std::string(row.note)};
    if (row.file.empty()) {
        definition.definition = filled(row.form, command);
        return definition;
    }
    const SignalSpool spool{.data = directory.path, .environment = environment};
    definition.file = spool.agentRoot(source) + "/" + std::string(row.file);
    definition.definition = filled(row.form, escaped(command));
    return definition;
}

std::string helperPath() {
    const std::string program = programPath();
    const std::size_t slash = program.rfind('/');
    if (slash == std::string::npos) return std::string(helperName);
    std::string helper = program.substr(0, slash + 1) + std::string(helperName);
    return ::access(helper.c_str(), X_OK) == 0 ? helper : std::string(helperName);
}

bool isConnected(const HookDefinition& definition) {
    if (definition.file.empty()) return false;
    const auto text = BoundedFile::read(definition.file, CaptureSignal::maximumInputBytes);
    return text && text->find("--source " + definition.source) != std::string::npos &&
           text->find(helperName) != std::string::npos;
}

}  // namespace vellark::HookDefinitions
