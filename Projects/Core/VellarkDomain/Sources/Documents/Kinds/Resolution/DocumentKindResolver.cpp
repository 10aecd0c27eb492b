#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindResolver.hpp>
#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindRoleRule.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentProse.hpp>
#include <VellarkDomain/Settings/DocumentIconDescriptor.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentKindResolver {

namespace {

using Preset = DocumentIconPreset;
using Weight = DocumentKindRoleRule::Weight;

constexpr std::string_view conversationSource = "agent-conversation";

constexpr std::array presetsOfFilesWithKind = {Preset::file, Preset::pdf, Preset::spreadsheet, Preset::presentation};
constexpr std::array presetsOfExtensionsWithKind = {
    Preset::file, Preset::markdown, Preset::html, Preset::pdf, Preset::spreadsheet, Preset::presentation, Preset::plan};
// Of the plain texts only these are written for readers; a log is not.
constexpr std::array<std::string_view, 4> textExtensionsWithKind = {"txt", "text", "rst", "adoc"};

template <class List, class Value>
bool holds(const List& list, const Value& value) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

// Of one group, or both of none.
bool areAlike(DocumentKind first, DocumentKind second) {
    return DocumentKinds::group(first) == DocumentKinds::group(second);
}

std::optional<DocumentKind> usable(std::optional<DocumentKind> ai) {
    if (ai == DocumentKind::conversation || ai == DocumentKind::other) return std::nullopt;
    return ai;
}

// What a role that decides makes of the others' answers.
DocumentKindDecision moderated(DocumentKind byRole, std::optional<DocumentKind> ai,
                               std::optional<DocumentKind> hinted) {
    if (ai && areAlike(*ai, byRole)) return {*ai, DocumentKindSource::ai};
    if (hinted && areAlike(*hinted, byRole)) return {*hinted, DocumentKindSource::keywords};
    return {byRole, DocumentKindSource::subagent};
}

}  // namespace

std::optional<DocumentKindDecision> resolve(const Voices& voices) {
    if (voices.user == DocumentKind::other) return std::nullopt;
    if (voices.user) return DocumentKindDecision{*voices.user, DocumentKindSource::user};
    if (voices.structure) return DocumentKindDecision{*voices.structure, DocumentKindSource::structure};

    const auto& guess = voices.keywords;
    const auto worded = guess ? guess->kind(voices.purposes) : std::nullopt;
    if (worded && guess->isNamed()) return DocumentKindDecision{*worded, DocumentKindSource::keywords};

    const auto ai = usable(voices.ai);
    const auto rule = voices.role ? DocumentKindRoleRule::forRole(*voices.role) : std::nullopt;
    if (rule && rule->weight == Weight::decides) {
        const bool isHint = guess && guess->level <= DocumentKindGuess::Level::weakCue;
        return moderated(rule->kind, ai, isHint ? worded : std::nullopt);
    }
    if (ai) return DocumentKindDecision{*ai, DocumentKindSource::ai};
    if (worded) return DocumentKindDecision{*worded, DocumentKindSource::keywords};
    if (rule) return DocumentKindDecision{rule->kind, DocumentKindSource::subagent};
    return std::nullopt;
}

bool applies(const DocumentRecord& to, const DocumentRevision* revision) {
    if (to.supportsTextContent()) return DocumentProse::reads(to, revision);
    const auto preset = DocumentIconDescriptor::defaultPreset(to, revision);
    return preset && holds(presetsOfFilesWithKind, *preset) && to.category() != ArtifactCategory::videos;
}

bool appliesToExtension(std::string_view extension) {
    const auto preset = DocumentIconDescriptor::defaultPreset(extension);
    if (!preset) return false;
    if (holds(presetsOfExtensionsWithKind, *preset)) return true;
    if (preset != Preset::text) return false;
    const auto normalized = CapturePreferences::normalizedExtension(extension);
    return normalized && holds(textExtensionsWithKind, std::string_view(*normalized));
}

bool readsContent(const DocumentRecord& of, const DocumentRevision* revision) {
    return of.supportsTextContent() && DocumentProse::reads(of, revision);
}

std::optional<DocumentKind> structure(const DocumentRecord& of, const DocumentRevision* revision) {
    const bool isConversation =
        of.source == conversationSource ||
        std::any_of(of.revisions.begin(), of.revisions.end(),
                    [](const DocumentRevision& candidate) { return candidate.source == conversationSource; });
    if (isConversation) return DocumentKind::conversation;
    if (DocumentIconDescriptor::defaultPreset(of, revision) == Preset::plan) return DocumentKind::plan;
    return std::nullopt;
}

std::optional<std::string> creatorSubagent(const DocumentRecord& of) {
    if (of.revisions.empty() || !of.revisions.front().provenance) return std::nullopt;
    const DocumentRevision& first = of.revisions.front();
    const DocumentRevisionProvenance& provenance = *first.provenance;
    const bool isSubagents = provenance.agentId || first.isSubagent.value_or(false) || of.isSubagent.value_or(false);
    if (!isSubagents || !provenance.agentName) return std::nullopt;
    const std::string_view name = Whitespace::trimmedWithNewlines(*provenance.agentName);
    if (name.empty()) return std::nullopt;
    return std::string(name);
}

std::optional<ConversationRole> creatorRole(const DocumentRecord& of) {
    const auto name = creatorSubagent(of);
    if (!name) return std::nullopt;
    return ConversationRoles::resolve({.type = *name, .name = *name});
}

DocumentKindEvidence evidence(const DocumentRecord& of) {
    DocumentKindEvidence result = {.title = of.title, .root = of.projectRoot ? of.projectRoot : of.mainProjectRoot};
    const std::string_view path = of.sourcePath ? Whitespace::trimmedWithNewlines(*of.sourcePath) : std::string_view();
    if (!path.empty()) result.path = std::string(path);
    return result;
}

}  // namespace vellark::DocumentKindResolver
