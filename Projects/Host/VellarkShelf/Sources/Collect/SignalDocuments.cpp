#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkShelf/Collect/SignalDocuments.hpp>

#include <algorithm>
#include <array>

namespace vellark::SignalDocuments {

namespace {

using namespace std::string_view_literals;

constexpr std::array pathKeys = {"file_path"sv, "path"sv, "absolute_path"sv};
constexpr std::array patchKeys = {"patch"sv, "input"sv, "command"sv};
constexpr std::array patchHeaders = {"*** Add File:"sv, "*** Update File:"sv, "*** Move to:"sv};

// Tools that name a file without writing it, in lower case and without "_" and "-".
constexpr std::array readingTools = {
    "cat"sv,       "codebasesearch"sv, "fetch"sv,      "filesearch"sv, "findfiles"sv, "glob"sv,
    "grep"sv,      "grepsearch"sv,     "list"sv,       "listdir"sv,    "ls"sv,        "listdirectory"sv,
    "listfiles"sv, "notebookread"sv,   "open"sv,       "read"sv,       "readfile"sv,  "readmanyfiles"sv,
    "search"sv,    "searchfiles"sv,    "searchtext"sv, "view"sv,       "viewfile"sv,  "searchfilecontent"sv,
    "viewimage"sv, "webfetch"sv,       "websearch"sv,
};

bool onlyReads(std::string_view tool) {
    std::string plain;
    for (const char byte : tool) {
        if (byte == '_' || byte == '-') continue;
        plain.push_back(byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte);
    }
    return std::find(readingTools.begin(), readingTools.end(), plain) != readingTools.end();
}

bool failed(const JSONObject& payload) {
    const JSONObject* response = objectIn(payload, "tool_response");
    if (response == nullptr) return false;
    const JSONValue* success = response->find("success");
    if (success != nullptr && success->boolean() != nullptr && !*success->boolean()) return true;
    const std::string* error = stringIn(*response, "error");
    return error != nullptr && !error->empty();
}

class FileList {
public:
    explicit FileList(std::string_view directory) : directory_(directory) {}

    void add(std::string_view path) {
        if (path.empty()) return;
        const PythonPath whole = PythonPath(directory_).appending(path);
        if (whole.root().empty()) return;
        std::string normal = PythonText::normpath(whole.string());
        if (std::find(files_.begin(), files_.end(), normal) == files_.end()) files_.push_back(std::move(normal));
    }

    void addPatch(std::string_view patch) {
        for (const std::string_view line : PythonText::splitlines(patch)) {
            for (const std::string_view header : patchHeaders) {
                if (line.starts_with(header)) add(PythonText::strip(line.substr(header.size())));
            }
        }
    }

    std::vector<std::string> take() { return std::move(files_); }

private:
    std::string_view directory_;
    std::vector<std::string> files_;
};

}  // namespace

std::vector<std::string> files(const PendingSignal& signal) {
    const JSONObject* input = objectIn(signal.payload, "tool_input");
    if (input == nullptr || failed(signal.payload) || onlyReads(signal.text("tool_name"))) return {};
    FileList list(signal.text("cwd"));
    for (const std::string_view key : pathKeys) {
        if (const std::string* path = stringIn(*input, key)) list.add(*path);
    }
    for (const std::string_view key : patchKeys) {
        if (const std::string* patch = stringIn(*input, key)) list.addPatch(*patch);
    }
    return list.take();
}

std::string_view response(const PendingSignal& signal) {
    const std::string_view message = signal.text("last_assistant_message");
    return message.empty() ? signal.text("assistant_response") : message;
}

}  // namespace vellark::SignalDocuments
