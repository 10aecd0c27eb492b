#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>
#include <VellarkShelf/Sessions/ToolActivity.hpp>

#include <algorithm>
#include <array>

namespace vellark::ToolActivity {

namespace {

using namespace std::string_view_literals;
using Status = ConversationTodo::Status;

constexpr std::array shellTools = {"Bash"sv,        "shell"sv,          "shell_command"sv,    "exec_command"sv,
                                   "local_shell"sv, "container.exec"sv, "run_shell_command"sv};
constexpr std::array editTools = {"Edit"sv, "Write"sv, "MultiEdit"sv, "NotebookEdit"sv, "write_file"sv, "replace"sv};
constexpr std::array planTools = {"TodoWrite"sv, "update_plan"sv, "write_todos"sv};

template <class List>
bool holds(const List& list, std::string_view name) {
    return std::find(list.begin(), list.end(), name) != list.end();
}

// A command is a text, or a list of words whose last is the script of a shell.
std::string commandLine(const JSONObject& input) {
    const std::string text = firstTextIn(input, "command", "cmd");
    if (!text.empty()) return text;
    const JSONArray* words = arrayIn(input, "command");
    if (words == nullptr) return "";
    const bool isScript =
        words->size() == 3 && words->at(1).string() != nullptr && words->at(1).string()->starts_with("-");
    std::string line;
    for (std::size_t place = isScript ? 2 : 0; place < words->size(); ++place) {
        if (const std::string* word = words->at(place).string()) line += (line.empty() ? "" : " ") + *word;
    }
    return line;
}

Status statusOf(std::string_view word) {
    return fromRawValue<Status>(word).value_or(Status::pending);
}

// A whole list under "todos" or "plan", its items' texts under "content", "step" or "description".
ConversationTodoUpdate snapshot(const JSONObject& input) {
    ConversationTodoUpdate::Snapshot list;
    const JSONArray* items = arrayIn(input, "todos");
    if (items == nullptr) items = arrayIn(input, "plan");
    for (std::size_t place = 0; items != nullptr && place < items->size(); ++place) {
        const JSONObject* item = items->at(place).object();
        if (item == nullptr) continue;
        list.todos.push_back({.text = firstTextIn(*item, "content", "step", "description"),
                              .status = statusOf(textIn(*item, "status"))});
    }
    return {std::move(list)};
}

std::optional<ConversationTodoUpdate> changeOfOne(std::string_view tool, const JSONObject& input) {
    if (tool == "TaskCreate") {
        return ConversationTodoUpdate{ConversationTodoUpdate::Created{.id = {}, .text = firstTextIn(input, "subject")}};
    }
    if (tool != "TaskUpdate" || textIn(input, "status").empty()) return std::nullopt;
    return ConversationTodoUpdate{ConversationTodoUpdate::Updated{
        .id = std::string(textIn(input, "taskId")), .status = fromRawValue<Status>(textIn(input, "status"))}};
}

}  // namespace

ConversationActivity ofPatch(std::string_view patch) {
    constexpr std::array headers = {"*** Add File:"sv, "*** Update File:"sv, "*** Move to:"sv};
    ConversationActivity activity;
    for (const std::string_view line : PythonText::splitlines(patch)) {
        for (const std::string_view header : headers) {
            if (!line.starts_with(header)) continue;
            activity.merge(ConversationActivity::edit(PythonText::strip(line.substr(header.size()))));
        }
    }
    return activity;
}

SessionEvent::Activity ofCall(std::string_view tool, const JSONObject& input) {
    if (holds(shellTools, tool)) {
        const std::string line = commandLine(input);
        if (line.find("*** Begin Patch") != std::string::npos) return {ofPatch(line)};
        return {ConversationActivity::command(line)};
    }
    if (holds(editTools, tool)) {
        return {ConversationActivity::edit(firstTextIn(input, "file_path", "path", "absolute_path", "notebook_path"))};
    }
    if (tool == "apply_patch") return {ofPatch(firstTextIn(input, "input", "patch"))};
    SessionEvent::Activity activity{ConversationActivity::tool()};
    if (holds(planTools, tool)) activity.todos.push_back(snapshot(input));
    if (auto change = changeOfOne(tool, input)) activity.todos.push_back(*std::move(change));
    return activity;
}

}  // namespace vellark::ToolActivity
