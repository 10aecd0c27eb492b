#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactTables.hpp>
#include <VellarkDomain/Capture/Rules/CaptureRules.hpp>

#include <string>

using namespace vellark;

// Any bytes make a path, a content and an event; and whatever folder they name, a file of credentials in it is
// excluded.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const CaptureTemporaryScope scope{std::string(text), std::string(text), "/tmp/x"};
    for (const auto& [name, trait] : CaptureArtifactTables::names.entries()) {
        if (trait != CaptureArtifactTables::NameTrait::credentials) continue;
        const std::string path = std::string(text).append("/").append(name);
        fuzz::require(CaptureRules::excludedArtifact(path, scope, true), "credentials are never captured");
    }
    (void)CaptureRules::excludedArtifact(text, scope, false);
    (void)CaptureRules::artifactType(text, true);
    (void)CaptureRules::hermesRuntimeArtifact(text, text);
    (void)CaptureRules::hiddenFoldersAllowed(PythonPath(text).parts(), true);
    (void)CaptureRules::internalArtifact({.content = text, .source = "codex", .kind = "candidate"});
    (void)CaptureRules::internalArtifact({.content = text, .sourcePath = "docs/code_map.md"});
    const std::string title = CaptureRules::contentTitle(text, {.fallback = text, .kind = "html"});
    fuzz::require(title.size() <= 4 * CaptureRules::maximumTitleScalars, "a title is short");
    (void)CaptureRules::assistantResponseAllowed({.kind = text, .originEvent = text}, {});
    (void)CaptureRules::eventSeconds(text);
    return 0;
}
