#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTitle.hpp>
#include <VellarkFoundation/Digest/SHA256.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Time/TimeText.hpp>
#include <VellarkShelf/Collect/CaptureGate.hpp>
#include <VellarkShelf/Collect/CapturedDocument.hpp>
#include <VellarkShelf/Collect/ProjectRoot.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

#include <cmath>

namespace vellark {

namespace {

std::optional<std::string> optionalText(std::string_view text) {
    if (text.empty()) return std::nullopt;
    return std::string(text);
}

std::string momentText(double seconds) {
    const double whole = std::floor(seconds);
    return TimeText::millisecondsUTC(
        {.tv_sec = static_cast<time_t>(whole), .tv_nsec = static_cast<long>((seconds - whole) * 1e9)});
}

std::string answerKey(std::string_view source, std::string_view session, std::string_view digest) {
    return "answer\n" + std::string(source) + "\n" + std::string(session) + "\n" + std::string(digest);
}

std::optional<std::string> ofProfile(const PendingSignal& signal, std::string_view key) {
    const JSONObject* profile = objectIn(signal.payload, "_vellarkProfile");
    const std::string* text = profile != nullptr ? stringIn(*profile, key) : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

DocumentRevisionProvenance provenance(const PendingSignal& signal) {
    return {.agent = signal.source,
            .session = optionalText(signal.text("session_id")),
            .agentId = optionalText(signal.text("agent_id")),
            .toolUseId = optionalText(signal.text("tool_use_id")),
            .model = optionalText(signal.text("model")),
            .cwd = optionalText(signal.text("cwd")),
            .op = optionalText(signal.text("tool_name")),
            .timestamp = optionalText(signal.text("timestamp")),
            .via = "signal"};
}

}  // namespace

std::optional<CapturedDocument> CapturedDocument::fromFile(const PendingSignal& signal, const std::string& path,
                                                           std::size_t place, OpenedFile& file) {
    const bool isPlan = CaptureGate::isPlan(path);
    const auto type = CaptureRules::artifactType(path, isPlan);
    const std::string event(signal.text("hook_event_name"));
    CapturedDocument document{
        .revisionID = place == 0 ? signal.identifier : signal.identifier + "." + std::to_string(place + 1),
        .key = path,
        .path = path,
        .kind = std::string(type.kind),
        .category = std::string(rawValue(type.category)),
        .originEvent = isPlan ? std::string(DocumentRevision::planEventPrefix) + event : event,
        .byteCount = file.byteCount(),
        .modifiedAt = file.modifiedAt(),
        .fallbackTitle = std::string(FilePath::lastComponent(path))};
    if (auto content = file.content(maximumSnapshotBytes)) {
        document.content = *std::move(content);
        document.byteCount = document.content.size();
        document.digest = SHA256::hexadecimal(document.content);
        return document;
    }
    if (file.byteCount() <= maximumSnapshotBytes) return std::nullopt;
    auto digest = file.digest();
    if (!digest) return std::nullopt;
    document.digest = *std::move(digest);
    document.storage = DocumentStorageKind::sourceReference;
    return document;
}

CapturedDocument CapturedDocument::fromResponse(const PendingSignal& signal, std::string_view response) {
    std::string digest = SHA256::hexadecimal(response);
    return {.revisionID = signal.identifier + ".answer",
            .key = answerKey(signal.source, signal.text("session_id"), digest),
            .path = std::nullopt,
            .kind = "candidate",
            .category = std::nullopt,
            .originEvent = std::string(signal.text("hook_event_name")),
            .digest = std::move(digest),
            .content = std::string(response),
            .byteCount = response.size(),
            .modifiedAt = std::nullopt,
            .fallbackTitle = AgentSourceProfile::providerTitle(signal.source)};
}

std::string CapturedDocument::keyOf(const DocumentRecord& document) {
    if (document.sourcePath) return *document.sourcePath;
    return answerKey(document.source, document.sourceSession.value_or(""), document.lastCapturedHash.value_or(""));
}

std::string CapturedDocument::snapshotExtension() const {
    if (!path) return "md";
    return CaptureRules::normalizedExtension(CaptureFileName(*path).extension()).value_or("");
}

std::optional<DocumentRecord> CapturedDocument::newRecord(const PendingSignal& signal, std::string_view home) const {
    auto id = UUID::random();
    if (!id) return std::nullopt;
    const std::string_view directory = signal.text("cwd");
    const ProjectRoot project =
        path ? ProjectRoot::ofFile(*path, directory, home) : ProjectRoot{std::string(directory), {}};
    return DocumentRecord{.id = *std::move(id),
                          .title = fallbackTitle,
                          .project = std::string(FilePath::lastComponent(project.root)),
                          .source = signal.source,
                          .sourcePath = path,
                          .sourceSession = optionalText(signal.text("session_id")),
                          .kind = kind,
                          .createdAt = TimeText::millisecondsUTC(TimeText::now()),
                          .updatedAt = {},
                          .projectRoot = optionalText(project.root),
                          .sourceProfileID = ofProfile(signal, "sourceProfileID"),
                          .sourceProfileLabel = ofProfile(signal, "sourceProfileLabel"),
                          .sourceKind = ofProfile(signal, "sourceKind"),
                          .profileIdentityOrigin = ofProfile(signal, "profileIdentityOrigin"),
                          .profileIdentityVerified = false,
                          .parentSessionID = optionalText(signal.text("parent_session_id")),
                          .mainProjectRoot = project.mainRoot,
                          .isSubagent = signal.isSubagents() ? std::optional(true) : std::nullopt};
}

DocumentRevision CapturedDocument::revision(const PendingSignal& signal, const std::string& storedAt) const {
    DocumentRevision revision{.id = revisionID,
                              .contentHash = digest,
                              .snapshotPath = storedAt,
                              .capturedAt = TimeText::millisecondsUTC(TimeText::now()),
                              .originEvent = originEvent,
                              .source = signal.source,
                              .model = optionalText(signal.text("model")),
                              .sourceSession = optionalText(signal.text("session_id")),
                              .artifactCategory = category,
                              .byteSize = static_cast<std::int64_t>(byteCount),
                              .sourceProfileID = ofProfile(signal, "sourceProfileID"),
                              .sourceProfileLabel = ofProfile(signal, "sourceProfileLabel"),
                              .sourceKind = ofProfile(signal, "sourceKind"),
                              .profileIdentityOrigin = ofProfile(signal, "profileIdentityOrigin"),
                              .profileIdentityVerified = false,
                              .parentSessionID = optionalText(signal.text("parent_session_id")),
                              .storageKind = storage};
    if (signal.isSubagents()) revision.isSubagent = true;
    if (signal.isSubagents() && !path) revision.isSubagentResponse = true;
    if (modifiedAt) revision.sourceModifiedAt = momentText(*modifiedAt);
    revision.provenance = provenance(signal);
    return revision;
}

void CapturedDocument::addTo(DocumentRecord& record, const PendingSignal& signal, const std::string& storedAt) const {
    record.revisions.push_back(revision(signal, storedAt));
    DocumentRevision& latest = record.revisions.back();
    latest.mainProjectRoot = record.mainProjectRoot;
    record.updatedAt = latest.capturedAt;
    record.lastCapturedHash = digest;
    record.byteSize = latest.byteSize;
    record.artifactCategory = category;
    record.model = latest.model;
    record.sourceSession = latest.sourceSession;
    const std::string_view opening = std::string_view(content).substr(0, DocumentDigests::readingLimit);
    record.title = record.supportsTextContent()
                       ? CaptureRules::contentTitle(opening, {.fallback = fallbackTitle, .kind = kind})
                       : fallbackTitle;
}

}  // namespace vellark
