#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureAgentFolders.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactTables.hpp>
#include <VellarkDomain/Capture/Rules/CaptureCredentialNames.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>

#include <optional>

namespace vellark::CaptureRules {

namespace {

using CaptureArtifactTables::NameTrait;
using CaptureArtifactTables::SuffixTrait;

bool hasTrait(const CaptureFileName& file, NameTrait trait) {
    const NameTrait* const found = CaptureArtifactTables::names.find(file.name());
    return found != nullptr && *found == trait;
}

std::optional<ArtifactType> typeOfExtension(std::string_view extension, bool isPlan) {
    const ArtifactCategory category = ArtifactCategories::category(extension);
    switch (category) {
        case ArtifactCategory::documents:
        case ArtifactCategory::plans:
            return ArtifactType{isPlan ? ArtifactCategory::plans : ArtifactCategory::documents,
                                ArtifactCategories::isHTMLExtension(extension) ? "html" : "markdown"};
        case ArtifactCategory::images:
            return ArtifactType{category, "image"};
        case ArtifactCategory::videos:
            return ArtifactType{category, "video"};
        case ArtifactCategory::pdfs:
            return ArtifactType{category, "pdf"};
        case ArtifactCategory::code:
            return ArtifactType{category, "text"};
        case ArtifactCategory::other:
            break;
    }
    return std::nullopt;
}

bool isInCodexMemory(std::string_view path) {
    return PythonText::contains(path, ".codex") && codexMemoryArtifact(PythonPath(path).tail());
}

bool isSafeByType(std::string_view extension) {
    const ArtifactCategory category = ArtifactCategories::category(extension);
    return category == ArtifactCategory::documents || category == ArtifactCategory::images ||
           category == ArtifactCategory::pdfs;
}

// Names that no type makes safe.
bool isPrivateName(const CaptureFileName& file) {
    const std::string_view name = file.name();
    if (hasTrait(file, NameTrait::credentials)) return true;
    if (name.starts_with('.')) return name == ".env" || name.starts_with(".env.") || name == ".ds_store";
    return name.starts_with("rollout") && file.suffix() == ".jsonl";
}

}  // namespace

ArtifactType artifactType(std::string_view path, bool isPlan) {
    const CaptureFileName file(path);
    if (const auto type = typeOfExtension(file.extension(), isPlan)) return *type;
    if (hasTrait(file, NameTrait::code)) return {ArtifactCategory::code, "text"};
    return {};
}

bool excludedArtifact(std::string_view path, const CaptureTemporaryScope& scope, bool temporaryDocuments) {
    if (hermesRuntimeArtifact(path, std::nullopt) || isInCodexMemory(path)) return true;
    if (temporaryLocation(path, scope) && !(temporaryDocuments && temporaryDocument(path))) return true;

    const CaptureFileName file(path);
    const SuffixTrait* const suffix = CaptureArtifactTables::suffixes.find(file.suffix());
    const bool isConfiguration = suffix != nullptr && *suffix == SuffixTrait::configuration;
    if (isPrivateName(file) || (suffix != nullptr && !isConfiguration)) return true;
    if (isSafeByType(file.extension())) return false;
    return sshKeyName(file.name()) || (isConfiguration && credentialName(file.stem()));
}

}  // namespace vellark::CaptureRules
