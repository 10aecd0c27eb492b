#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

constexpr auto officeExtensions =
    std::to_array<std::string_view>({"csv", "doc", "docx", "pdf", "ppt", "pptx", "xls", "xlsx"});

/// What a category of code begins with; all of them would be noise.
constexpr auto starterCodeExtensions = std::to_array<std::string_view>({"swift", "kt", "kts", "js", "ts", "py"});

/// Longest extension, in characters, all of them ASCII.
constexpr std::size_t longestExtension = 20;

bool isLetterOrDigit(char character) {
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9');
}

bool has(std::span<const std::string_view> extensions, std::string_view extension) {
    return std::ranges::find(extensions, extension) != extensions.end();
}

void add(std::vector<std::string>& extensions, std::span<const std::string_view> more) {
    extensions.insert(extensions.end(), more.begin(), more.end());
    extensions = CapturePreferences::normalizedExtensions(extensions);
}

// What a category begins with when it is switched on and none of its extensions is.
std::vector<std::string_view> starterExtensions(ArtifactCategory category) {
    const auto all = ArtifactCategories::fileExtensions(category);
    if (category == ArtifactCategory::code) return {starterCodeExtensions.begin(), starterCodeExtensions.end()};
    std::vector<std::string_view> starters(all.begin(), all.end());
    if (category == ArtifactCategory::images) {
        std::erase_if(starters, [](std::string_view one) { return !has(CapturePreferences::firstExtensions, one); });
    }
    return starters;
}

}  // namespace

CapturePreferences::CapturePreferences() {
    for (const ArtifactCategory category : allCases<ArtifactCategory>()) {
        types.emplace(rawValue(category), ArtifactCategories::isEnabledByDefault(category));
    }
    add(extensions, firstExtensions);
}

std::optional<std::string> CapturePreferences::normalizedExtension(std::string_view text) {
    std::string extension = UnicodeCase::lower(Whitespace::trimmedWithNewlines(text));
    if (extension.starts_with('.')) extension.erase(0, 1);
    if (extension.empty() || extension.size() > longestExtension || !isLetterOrDigit(extension.front())) {
        return std::nullopt;
    }
    const auto isAllowed = [](char character) {
        return isLetterOrDigit(character) || character == '_' || character == '-';
    };
    if (!std::ranges::all_of(extension, isAllowed)) return std::nullopt;
    return extension;
}

std::vector<std::string> CapturePreferences::normalizedExtensions(const std::vector<std::string>& list) {
    std::vector<std::string> normalized;
    for (const std::string& text : list) {
        if (auto extension = normalizedExtension(text)) normalized.push_back(*std::move(extension));
    }
    std::ranges::sort(normalized);
    // Clang before 16 cannot compile what std::ranges::unique gives with GCC's library.
    normalized.erase(std::unique(normalized.begin(), normalized.end()), normalized.end());
    return normalized;
}

bool CapturePreferences::isEnabled(ArtifactCategory category) const {
    const auto entry = types.find(std::string(rawValue(category)));
    return entry == types.end() ? ArtifactCategories::isEnabledByDefault(category) : entry->second;
}

bool CapturePreferences::isExtensionEnabled(std::string_view text) const {
    const auto extension = normalizedExtension(text);
    if (!extension || std::ranges::find(extensions, *extension) == extensions.end()) return false;
    const ArtifactCategory category = ArtifactCategories::category(*extension);
    if (isEnabled(category)) return true;
    return category == ArtifactCategory::documents && isEnabled(ArtifactCategory::plans);
}

void CapturePreferences::setExtension(std::string_view text, bool isOn) {
    const auto extension = normalizedExtension(text);
    if (!extension) return;
    if (!isOn) {
        std::erase(extensions, *extension);
        return;
    }
    const std::string_view added = *extension;
    add(extensions, {&added, 1});
    const ArtifactCategory category = ArtifactCategories::category(*extension);
    types.insert_or_assign(std::string(rawValue(category)), true);
    if (category == ArtifactCategory::documents) {
        types.insert_or_assign(std::string(rawValue(ArtifactCategory::plans)), true);
    }
}

void CapturePreferences::setCategory(ArtifactCategory category, bool isOn) {
    types.insert_or_assign(std::string(rawValue(category)), isOn);
    if (!isOn || category == ArtifactCategory::other) return;
    const auto own = ArtifactCategories::fileExtensions(category);
    if (std::ranges::any_of(extensions, [&](const std::string& extension) { return has(own, extension); })) return;
    add(extensions, starterExtensions(category));
}

void CapturePreferences::applyCollectionDefaults(std::string_view since) {
    if (collectionDefaultsVersion) return;
    collectionDefaultsVersion = currentCollectionDefaults;
    if (!includeSubagentArtifacts) {
        includeSubagentArtifacts = true;
        subagentArtifactsResumeSince = since;
    }
    for (const std::string_view extension : officeExtensions) {
        const ArtifactCategory category = ArtifactCategories::category(extension);
        if (!isEnabled(category)) {
            // Switching the category on must let in what is named here, and no older choice that slept in it.
            std::erase_if(extensions,
                          [&](const std::string& one) { return ArtifactCategories::category(one) == category; });
            const bool isForOther = category == ArtifactCategory::other && !isEnabled(ArtifactCategory::code);
            if (category == ArtifactCategory::code || isForOther) includeExtensionless = false;
        }
        setExtension(extension, true);
    }
}

}  // namespace vellark
