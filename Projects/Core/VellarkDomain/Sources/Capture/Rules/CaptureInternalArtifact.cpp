#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>
#include <VellarkDomain/Capture/Rules/CaptureInternalArtifact.hpp>
#include <VellarkDomain/Capture/Rules/CaptureStructuralText.hpp>

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <string>

namespace vellark::CaptureRules {

namespace {

using Headings = std::set<std::string, std::less<>>;
using Words = std::span<const std::string_view>;

constexpr std::string_view marker = "<!-- vellark:internal -->";
constexpr std::string_view contractName = "capture_contract.md";
constexpr std::string_view codeMapName = "code_map.md";
constexpr std::string_view memoryCitation = "final needs exactly one memory citation";
constexpr std::ptrdiff_t leastHandoffPhrases = 2;
constexpr std::size_t leastCodeMapEntries = 5;

// Headings and phrases are case-folded.
constexpr std::array<std::string_view, 3> taskHeadings = {"active request", "active task", "current task"};
constexpr std::array<std::string_view, 5> agentHeadings = {"running agents", "delegation / review",
                                                           "agents / delegation", "agents", "delegation"};
constexpr std::array<std::string_view, 3> nextHeadings = {"next actions", "next steps", "suggested next steps"};
constexpr std::array<std::string_view, 6> handoffPhrases = {
    "already told user",  "do not redo",  "do not reset",
    "do not edit memory", memoryCitation, "no implementation/test/install completed"};
constexpr std::array<std::string_view, 4> contractHeadings = {"capture contract", "project scope",
                                                              "documents and versions", "integrations and failures"};

Headings foldedHeadings(std::string_view structural) {
    Headings headings;
    HeadingScanner scanner(structural);
    while (const auto heading = scanner.next())
        headings.insert(PythonText::casefold(*heading));
    return headings;
}

bool hasAny(const Headings& headings, Words names) {
    return std::ranges::any_of(names, [&](std::string_view name) { return headings.contains(name); });
}

bool hasAll(const Headings& headings, Words names) {
    return std::ranges::all_of(names, [&](std::string_view name) { return headings.contains(name); });
}

bool isSessionHandoff(std::string_view content, const Headings& headings) {
    if (!hasAny(headings, taskHeadings) || !hasAny(headings, agentHeadings) || !hasAny(headings, nextHeadings)) {
        return false;
    }
    const std::string folded = PythonText::casefold(content);
    const auto occurs = [&](std::string_view phrase) { return PythonText::contains(folded, phrase); };
    if (!headings.contains("memory") && !occurs(memoryCitation)) return false;
    return std::ranges::count_if(handoffPhrases, occurs) >= leastHandoffPhrases;
}

bool isCaptureContract(std::string_view content, const Headings& headings) {
    return hasAll(headings, contractHeadings) && PythonText::contains(content, "reviewEligible") &&
           PythonText::contains(content, "originEvent");
}

bool isCodeMap(std::string_view content, const Headings& headings, std::string_view structural) {
    if (!PythonText::contains(content, "generate-code-map.py")) return false;
    if (std::ranges::none_of(headings, [](const std::string& heading) { return heading.ends_with("code map"); })) {
        return false;
    }
    if (codeMapEntryCount(structural) < leastCodeMapEntries) return false;
    return PythonText::contains(content, "생성 파일입니다. 직접 고치지 말고") ||
           PythonText::contains(PythonText::casefold(content), "generated file. do not edit");
}

// The folded name of a file in a "docs" folder, "" for all others.
std::string documentName(std::string_view sourcePath) {
    const PythonPath path(sourcePath);
    if (PythonText::casefold(path.parent().name()) != "docs") return {};
    return PythonText::casefold(path.name());
}

}  // namespace

bool internalArtifact(const InternalArtifactCandidate& candidate) {
    if (!candidate.content || candidate.content->size() > maximumInternalArtifactBytes) return false;
    const std::string_view content = *candidate.content;
    if (content.find('\0') != std::string_view::npos) return false;
    if (PythonText::stripLeading(content).starts_with(marker)) return true;

    // The two names end in a Markdown extension, so that they are the whole test of the type.
    const std::string name = candidate.sourcePath ? documentName(*candidate.sourcePath) : std::string();
    const bool mayBeInternal = candidate.sourcePath ? name == contractName || name == codeMapName
                                                    : candidate.source == "codex" && candidate.kind == "candidate";
    if (!mayBeInternal || content.find('#') == std::string_view::npos) return false;

    const std::string structural = structuralText(content);
    const Headings headings = foldedHeadings(structural);
    if (!candidate.sourcePath) return isSessionHandoff(content, headings);
    if (name == contractName) return isCaptureContract(content, headings);
    return isCodeMap(content, headings, structural);
}

}  // namespace vellark::CaptureRules
