#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/Rules/CaptureAgentFolders.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>
#include <VellarkDomain/Capture/Rules/CaptureInternalArtifact.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkShelf/Collect/CaptureGate.hpp>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace vellark {

namespace {

using Verdict = CaptureVerdict;

// The hidden folders in which agents leave plans; the names are theirs.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> planFolders{
    {{".claude", "plans"}, {".codex", "plans"}, {".omc", "plans"}}};

CaptureTemporaryScope temporaryScope(const DataDirectory& directory, const Environment& environment) {
    CaptureTemporaryScope scope{.dataFolderParent = std::string(PythonPath(directory.path).parent().string())};
    if (const auto temporary = environment.value("TMPDIR")) {
        scope.temporaryDirectory = std::string(*temporary);
        scope.resolvedTemporaryDirectory = SignalSpool::resolved(*temporary);
    }
    return scope;
}

bool liesWithin(std::string_view path, std::string_view folder) {
    return PythonPath(folder).contains(PythonPath(path));
}

bool liesWithinOne(std::string_view path, const std::vector<std::string>& folders) {
    return std::any_of(folders.begin(), folders.end(),
                       [path](const std::string& folder) { return !folder.empty() && liesWithin(path, folder); });
}

// A link may lead anywhere inside the project, or from nowhere known to anywhere, but not out of the project.
bool leavesProject(const CaptureGate::FileFacts& file) {
    if (!file.directory.starts_with('/') || !liesWithin(file.path, file.directory)) return false;
    return !liesWithin(file.actualPath, file.actualDirectory);
}

}  // namespace

CaptureGate::CaptureGate(const AppSettings& settings, const DataDirectory& directory, const Environment& environment)
    : settings_(settings),
      policy_(ResolvedCapturePolicy::fromPreferences(settings.capture)),
      scope_(temporaryScope(directory, environment)),
      home_(HomeDirectory::current(environment)),
      captureAllSince_(settings.captureAllSince ? CaptureRules::eventSeconds(*settings.captureAllSince)
                                                : std::nullopt) {}

CaptureVerdict CaptureGate::byPath(const FileFacts& file) const {
    const bool temporaryDocuments = settings_.capture.includeTemporaryFolderDocuments;
    const std::array places = {std::pair(file.path, file.directory), std::pair(file.actualPath, file.actualDirectory)};
    for (const auto& [path, directory] : places) {
        if (CaptureRules::excludedArtifact(path, scope_, temporaryDocuments)) return Verdict::excludedPath;
        if (!isShown(path, directory)) return Verdict::hiddenFolder;
    }
    if (leavesProject(file)) return Verdict::linkOutside;
    if (const Verdict verdict = byProject(file); verdict != Verdict::captured) return verdict;

    const auto type = CaptureRules::artifactType(file.path, isPlan(file.path));
    const CaptureFileName name(file.path);
    if (!CaptureRules::artifactAllowed(type.category, {.modifiedAt = file.modifiedAt, .extension = name.extension()},
                                       policy_)) {
        return Verdict::typeNotChosen;
    }
    if (!CaptureRules::subagentArtifactAllowed({.isSubagent = file.isSubagents, .observedAt = file.observedAt},
                                               settings_.capture)) {
        return Verdict::subagent;
    }
    return Verdict::captured;
}

CaptureVerdict CaptureGate::byProject(const FileFacts& file) const {
    if (liesWithinOne(file.path, settings_.excludedProjectRoots)) return Verdict::projectExcluded;
    if (settings_.captureMode == AgentProjectCaptureMode::allAgentProjects) {
        const bool isEarlier = captureAllSince_ && file.observedAt && *file.observedAt < *captureAllSince_;
        return isEarlier ? Verdict::projectNotSelected : Verdict::captured;
    }
    // Whoever has selected no project yet has not decided against all of them.
    if (settings_.watchRoots.empty() || liesWithinOne(file.path, settings_.watchRoots)) return Verdict::captured;
    return Verdict::projectNotSelected;
}

bool CaptureGate::isShown(std::string_view path, std::string_view directory) const {
    const PythonPath whole(path);
    for (const std::string_view base : {directory, std::string_view(home_)}) {
        if (!base.starts_with('/')) continue;
        if (const auto parts = whole.relativeParts(PythonPath(base))) {
            return CaptureRules::hiddenFoldersAllowed(*parts, false);
        }
    }
    return CaptureRules::hiddenFoldersAllowed(whole.parts(), false);
}

CaptureVerdict CaptureGate::byContent(const ContentFacts& document) {
    if (document.kind == "html" && CaptureRules::previewHelperHTML(document.content, document.path)) {
        return Verdict::previewHelper;
    }
    const bool hasPath = !document.path.empty();
    const bool isInternal =
        CaptureRules::internalArtifact({.content = document.content,
                                        .sourcePath = hasPath ? std::optional(document.path) : std::nullopt,
                                        .source = document.source,
                                        .kind = document.kind});
    return isInternal ? Verdict::internalNote : Verdict::captured;
}

CaptureVerdict CaptureGate::byResponse(const ResponseFacts& response) const {
    const bool isAllowed = CaptureRules::assistantResponseAllowed(
        {.kind = "candidate", .originEvent = response.event, .observedAt = response.observedAt}, policy_);
    if (!policy_.enabled || !isAllowed) return Verdict::responsesNotChosen;
    const bool isSubagentAllowed = CaptureRules::subagentArtifactAllowed({.isSubagent = response.isSubagents,
                                                                          .isSubagentResponse = response.isSubagents,
                                                                          .response = true,
                                                                          .observedAt = response.observedAt},
                                                                         settings_.capture);
    return isSubagentAllowed ? Verdict::captured : Verdict::subagent;
}

bool CaptureGate::isRemoved(const std::string& documentID) const {
    const auto& removed = settings_.capture.excludedDocumentIDs;
    return std::binary_search(removed.begin(), removed.end(), documentID);
}

bool CaptureGate::isPlan(std::string_view path) {
    const PythonPath whole(path);
    const auto parts = whole.tail();
    for (std::size_t place = 0; place + 2 < parts.size(); ++place) {
        const std::pair folder(parts[place], parts[place + 1]);
        if (std::find(planFolders.begin(), planFolders.end(), folder) != planFolders.end()) return true;
    }
    return false;
}

}  // namespace vellark
