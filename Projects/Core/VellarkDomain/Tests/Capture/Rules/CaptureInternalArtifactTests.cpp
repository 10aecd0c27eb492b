#include <VellarkDomain/Capture/Rules/CaptureInternalArtifact.hpp>

#include <gtest/gtest.h>

#include <string>

namespace vellark {
namespace {

using Candidate = CaptureRules::InternalArtifactCandidate;

const std::string marker = "<!-- vellark:internal -->";
const std::string handoff =
    "# Active Request\nx\n## Agents / Delegation\nx\n## NEXT steps ##\nx\n# Memory\nDo not RESET it. Do not redo it.\n";
const std::string contract =
    "# Capture Contract\nreviewEligible originEvent\n## Project scope\nx\n## Documents and versions\nx\n"
    "## Integrations and failures\nx\n";
const std::string codeMap =
    "# Vellark Code Map\nGenerated FILE. Do not edit: generate-code-map.py\n- `Projects/a`\n  - `Sources/b`\n"
    "- `Scripts/c`\n- `Tests/d`\n- `Tests/e`\n";

std::string replacing(std::string text, std::string_view from, std::string_view to) {
    return text.replace(text.find(from), from.size(), to);
}

Candidate answer(std::string_view content) {
    return {.content = content, .sourcePath = {}, .source = "codex", .kind = "candidate"};
}

Candidate file(std::string_view content, std::string_view path) {
    return {.content = content, .sourcePath = path, .source = {}, .kind = {}};
}

TEST(CaptureInternalArtifact, theMarkerComesFirst) {
    const std::size_t limit = CaptureRules::maximumInternalArtifactBytes;
    const std::pair<std::string, bool> rows[] = {
        {marker, true},
        {" \n\u3000" + marker + "x", true},
        {"\uFEFF" + marker, false},
        {"\u200B" + marker, false},
        {"<!-- Vellark:internal -->", false},
        {"x" + marker, false},
        {marker + std::string(1, '\0'), false},
        {marker + std::string(limit - marker.size(), 'x'), true},
        {marker + std::string(limit + 1 - marker.size(), 'x'), false},
    };
    for (const auto& [content, isInternal] : rows) {
        EXPECT_EQ(CaptureRules::internalArtifact({content, {}, {}, {}}), isInternal) << content.substr(0, 40);
        EXPECT_EQ(CaptureRules::internalArtifact(file(content, "/p/a.html")), isInternal) << content.substr(0, 40);
    }
    EXPECT_FALSE(CaptureRules::internalArtifact({}));
}

TEST(CaptureInternalArtifact, knowsHandoffs) {
    const std::string cited = replacing(handoff, "# Memory", "Final needs exactly one memory citation");
    const std::pair<std::string, bool> rows[] = {
        {handoff, true},
        {cited, true},
        {replacing(cited, "Do not redo", "Redo"), true},
        {replacing(handoff, "# Memory", "Memory"), false},
        {replacing(handoff, "Do not redo", "Redo"), false},
        {replacing(handoff, "Active Request", "Active"), false},
        {replacing(handoff, "Agents /", "Agent /"), false},
        {replacing(handoff, "NEXT steps", "Then"), false},
        {"```\n" + handoff, false},
    };
    for (const auto& [content, isInternal] : rows) {
        EXPECT_EQ(CaptureRules::internalArtifact(answer(content)), isInternal) << content;
    }
    EXPECT_FALSE(CaptureRules::internalArtifact({handoff, {}, "Codex", "candidate"}));
    EXPECT_FALSE(CaptureRules::internalArtifact({handoff, {}, "codex", {}}));
    EXPECT_FALSE(CaptureRules::internalArtifact({handoff, "/p/docs/code_map.md", "codex", "candidate"}));
}

TEST(CaptureInternalArtifact, knowsTheGeneratedDocuments) {
    const std::string contractPath = "/p/Docs/CAPTURE_contract.md";
    const std::string mapPath = "docs/code_map.MD";
    const struct {
        const char* name;
        std::string content;
        std::string path;
        bool isInternal;
    } rows[] = {
        {"contract", contract, contractPath, true},
        {"contract as a map", contract, mapPath, false},
        {"contract elsewhere", contract, "/p/docs/x/capture_contract.md", false},
        {"contract of another type", contract, "/p/docs/capture_contract.markdown", false},
        {"contract without a heading", replacing(contract, "## Project", "Project"), contractPath, false},
        {"contract in other letters", replacing(contract, "originEvent", "originevent"), contractPath, false},
        {"map", codeMap, mapPath, true},
        {"map in Korean", replacing(codeMap, "Generated FILE. Do not edit", "생성 파일입니다. 직접 고치지 말고"),
         mapPath, true},
        {"map with no note", replacing(codeMap, "Do not edit", "Edit"), mapPath, false},
        {"map with no script", replacing(codeMap, "generate-", "Generate-"), mapPath, false},
        {"map with another heading", replacing(codeMap, "Code Map", "Code Map 2"), mapPath, false},
        {"map of four", replacing(codeMap, "- `Tests/e`", "- `Test/e`"), mapPath, false},
        {"map with entries in a fence", replacing(codeMap, "- `Projects", "```\n- `Projects"), mapPath, false},
        {"no path", codeMap, "", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CaptureRules::internalArtifact(file(row.content, row.path)), row.isInternal) << row.name;
    }
}

}  // namespace
}  // namespace vellark
