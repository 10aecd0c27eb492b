#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

constexpr auto textKinds = std::to_array<std::string_view>({"markdown", "html", "candidate", "text"});

struct KindCategory {
    std::string_view kind;
    ArtifactCategory category;
};

// Where no category is stored; any other kind is a document.
constexpr auto kindCategories = std::to_array<KindCategory>({
    {"image", ArtifactCategory::images},
    {"video", ArtifactCategory::videos},
    {"pdf", ArtifactCategory::pdfs},
    {"text", ArtifactCategory::code},
    {"file", ArtifactCategory::other},
});

// Videos that were once stored under the category that takes all files.
constexpr auto videoExtensions =
    std::to_array<std::string_view>({"avi", "m4v", "mkv", "mov", "mp4", "mpeg", "mpg", "webm"});

constexpr std::string_view fileKind = "file";
constexpr std::string_view candidateKind = "candidate";
constexpr std::string_view candidateSymbol = "text.bubble";
constexpr std::string_view unknownSource = "unknown";

std::string_view extensionOf(const DocumentRecord& record) {
    if (record.sourcePath) return FilePath::pathExtension(*record.sourcePath);
    const DocumentRevision* latest = record.latestRevision();
    return latest == nullptr ? std::string_view() : FilePath::pathExtension(latest->snapshotPath);
}

// The stored text, whether or not it names a category: one that does not hides the revision's all the same.
std::optional<std::string_view> categoryText(const DocumentRecord& record) {
    if (record.artifactCategory) return record.artifactCategory;
    const DocumentRevision* latest = record.latestRevision();
    if (latest != nullptr && latest->artifactCategory) return latest->artifactCategory;
    return std::nullopt;
}

bool isUndecidedFile(const DocumentRecord& record) {
    if (record.kind != fileKind) return false;
    const auto text = categoryText(record);
    return !text || *text == rawValue(ArtifactCategory::other);
}

AgentSourceProfile profileOf(const auto& holder, std::string_view source) {
    return {.source = std::string(source),
            .sourceProfileID = holder.sourceProfileID,
            .sourceProfileLabel = holder.sourceProfileLabel,
            .sourceKind = holder.sourceKind,
            .profileIdentityOrigin = holder.profileIdentityOrigin,
            .profileIdentityVerified = holder.profileIdentityVerified};
}

}  // namespace

const DocumentRevision* DocumentRecord::latestRevision() const {
    return revisions.empty() ? nullptr : &revisions.back();
}

bool DocumentRecord::isNewDocument() const {
    if (revisions.size() > 1) return false;
    return revisions.empty() || !revisions.front().isPreexistingFile.value_or(false);
}

bool DocumentRecord::supportsTextContent() const {
    return std::ranges::find(textKinds, kind) != textKinds.end() || legacyTextCategory();
}

std::optional<ArtifactCategory> DocumentRecord::legacyTextCategory() const {
    if (!isUndecidedFile(*this)) return std::nullopt;
    const auto found = ArtifactCategories::safeTextCategory(extensionOf(*this));
    if (found != ArtifactCategory::documents) return found;
    const DocumentRevision* latest = latestRevision();
    const bool isPlan = latest != nullptr && latest->originEvent.starts_with(DocumentRevision::planEventPrefix);
    return isPlan ? ArtifactCategory::plans : ArtifactCategory::documents;
}

ArtifactCategory DocumentRecord::category() const {
    if (const auto legacy = legacyTextCategory()) return *legacy;
    if (isUndecidedFile(*this)) {
        const std::string extension = UnicodeCase::lower(extensionOf(*this));
        if (std::ranges::find(videoExtensions, extension) != videoExtensions.end()) return ArtifactCategory::videos;
    }
    if (const auto text = categoryText(*this)) {
        if (const auto named = fromRawValue<ArtifactCategory>(*text)) return *named;
    }
    const auto byKind = std::ranges::find(kindCategories, kind, &KindCategory::kind);
    return byKind == kindCategories.end() ? ArtifactCategory::documents : byKind->category;
}

std::string DocumentRecord::categoryTitle() const {
    const auto office = ArtifactCategories::quickLookTitle(UnicodeCase::lower(extensionOf(*this)));
    if (office) return std::string(*office);
    return L10n::text(ArtifactCategories::titleKey(category()));
}

std::string_view DocumentRecord::symbol() const {
    return kind == candidateKind ? candidateSymbol : ArtifactCategories::symbol(category());
}

AgentSourceProfile DocumentRecord::sourceProfile() const {
    const DocumentRevision* latest = latestRevision();
    if (latest == nullptr) return profileOf(*this, source);
    return profileOf(*latest, latest->source ? std::string_view(*latest->source) : unknownSource);
}

}  // namespace vellark
