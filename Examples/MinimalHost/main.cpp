// The smallest host: takes the signals that wait below a data directory and prints a line for each document that they
// speak of, with its kind and its headline.
//
//     minimal-host DATA-DIRECTORY BUNDLE
//
// A real host also keeps what it found; see Documentation/Embedding.md and the command `vellark`.

#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CaptureRules.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>

#include <cstdio>
#include <filesystem>
#include <set>
#include <string>

namespace {

using namespace vellark;
namespace fs = std::filesystem;

constexpr std::size_t maximumDocumentBytes = 1 << 20;

// The path that a signal's tool call wrote; "" when it names none.
std::string writtenFile(const JSONObject& payload) {
    const JSONObject* input = objectIn(payload, "tool_input");
    const std::string* path = input != nullptr ? stringIn(*input, "file_path") : nullptr;
    return path != nullptr ? *path : "";
}

// Whether rules and policy let the file onto the shelf.
bool isWanted(const std::string& path, const ResolvedCapturePolicy& policy, const CaptureTemporaryScope& scope) {
    if (CaptureRules::excludedArtifact(path, scope, false)) return false;
    const auto type = CaptureRules::artifactType(path, false);
    std::string extension = fs::path(path).extension().string();
    if (!extension.empty()) extension.erase(0, 1);
    return CaptureRules::artifactAllowed(type.category, {.modifiedAt = std::nullopt, .extension = extension}, policy);
}

void printDocument(const std::string& path, const std::string& content) {
    const auto type = CaptureRules::artifactType(path, false);
    const std::string name = fs::path(path).filename().string();
    const std::string title = CaptureRules::contentTitle(content, {.fallback = name, .kind = type.kind});

    const bool isHTML = type.kind == "html";
    DocumentKindEvidence evidence{.title = title, .path = path};
    evidence.read(content, {.html = isHTML});
    const auto guess = DocumentKindClassifier::classify(evidence);
    const auto kind = guess ? guess->kind({}) : std::nullopt;

    const auto format = isHTML ? DocumentContentFormat::html() : DocumentContentFormat::markdown();
    const auto digest = DocumentSummaryExtractor::extract(content, format);
    std::printf("%s\t%s\t%s\n", kind ? DocumentKinds::title(*kind).c_str() : "", title.c_str(), digest.summary.c_str());
}

void take(const fs::path& signal, const ResolvedCapturePolicy& policy, const CaptureTemporaryScope& scope) {
    const auto text = BoundedFile::read(signal.string(), 2 * CaptureSignal::maximumBytes);
    const auto json = text ? JSONReader::read(*text) : Result<JSONValue, JSONError>(JSONValue());
    const JSONObject* object = json ? json->object() : nullptr;
    const JSONObject* payload = object != nullptr ? objectIn(*object, "payload") : nullptr;
    if (payload == nullptr) return;
    const std::string path = writtenFile(*payload);
    if (path.starts_with('/') && isWanted(path, policy, scope)) {
        if (const auto content = BoundedFile::read(path, maximumDocumentBytes)) printDocument(path, *content);
    }
    fs::remove(signal);  // or the helper stops writing when too many are pending
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) return 2;
    LocalizationBundle::setDirectory(arguments[2]);
    const auto policy = ResolvedCapturePolicy::fromPreferences(CapturePreferences());
    const CaptureTemporaryScope scope{.dataFolderParent = fs::path(arguments[1]).parent_path().string()};
    std::set<fs::path> signals;  // their names begin with the time of their writing
    for (const auto& entry : fs::directory_iterator(std::string(arguments[1]) + "/signals")) {
        if (entry.path().extension() == ".json") signals.insert(entry.path());
    }
    for (const fs::path& signal : signals) {
        take(signal, policy, scope);
    }
    return 0;
}
