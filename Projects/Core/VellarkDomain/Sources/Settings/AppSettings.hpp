#pragma once

#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Documents/Review/ReviewCadence.hpp>
#include <VellarkDomain/Settings/AdvancedPreferences.hpp>
#include <VellarkDomain/Settings/GeneralPreferences.hpp>
#include <VellarkDomain/Settings/LenientField.hpp>
#include <VellarkDomain/Settings/NotificationPreferences.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// Which agents' projects are captured.
enum class AgentProjectCaptureMode { selectedProjects, allAgentProjects };

template <>
inline constexpr auto caseTable<AgentProjectCaptureMode> = std::to_array<CaseName<AgentProjectCaptureMode>>({
    {AgentProjectCaptureMode::selectedProjects, "selectedProjects"},
    {AgentProjectCaptureMode::allAgentProjects, "allAgentProjects"},
});

enum class ShelfVerticalPosition { top, center, bottom };

template <>
inline constexpr auto caseTable<ShelfVerticalPosition> = std::to_array<CaseName<ShelfVerticalPosition>>({
    {ShelfVerticalPosition::top, "top"},
    {ShelfVerticalPosition::center, "center"},
    {ShelfVerticalPosition::bottom, "bottom"},
});

enum class ShelfDisplayMode { primary, fixed };

template <>
inline constexpr auto caseTable<ShelfDisplayMode> = std::to_array<CaseName<ShelfDisplayMode>>({
    {ShelfDisplayMode::primary, "primary"},
    {ShelfDisplayMode::fixed, "fixed"},
});

enum class ReaderLayout { hoverRail, bottomTray, topDrawer, floatingPalette };

template <>
inline constexpr auto caseTable<ReaderLayout> = std::to_array<CaseName<ReaderLayout>>({
    {ReaderLayout::hoverRail, "hover-rail"},
    {ReaderLayout::bottomTray, "bottom-tray"},
    {ReaderLayout::topDrawer, "top-drawer"},
    {ReaderLayout::floatingPalette, "floating-palette"},
});

enum class AppAppearance { light, dark, system, background };

template <>
inline constexpr auto caseTable<AppAppearance> = std::to_array<CaseName<AppAppearance>>({
    {AppAppearance::light, "light"},
    {AppAppearance::dark, "dark"},
    {AppAppearance::system, "system"},
    {AppAppearance::background, "background"},
});

/// All settings of the user, in one JSON object. Programs of different ages share it: every key may be absent, unknown
/// ones are ignored, and what is retired is migrated where it is read. A default-made value is what `{}` reads as.
struct AppSettings {
    std::string shelfEdge = "right";
    ShelfVerticalPosition shelfVerticalPosition = ShelfVerticalPosition::center;
    bool showsMenuBarItem = true;
    ReaderLayout readerLayout = ReaderLayout::hoverRail;
    std::vector<std::string> watchRoots;
    double hoverDelay = 0.15;  ///< seconds before the shelf opens
    AppAppearance appearance = AppAppearance::light;
    std::string language;  ///< raw value of an AppLanguage; empty follows the system
    ShelfDisplayMode displayMode = ShelfDisplayMode::primary;
    std::optional<std::string> pinnedDisplayID;  ///< the display of `fixed`
    AgentProjectCaptureMode captureMode = AgentProjectCaptureMode::selectedProjects;
    std::optional<std::string> captureAllSince;
    std::vector<std::string> excludedProjectRoots;
    GeneralPreferences general;
    NotificationPreferences notifications;
    SoundPreferences sound;
    AdvancedPreferences advanced;
    ReviewCadence reviewCadence = ReviewCadence::continuous;
    std::int64_t reviewResetMinutes = 0;  ///< minutes after midnight at which the review day begins
    CapturePreferences capture;
    std::optional<bool> analyticsConsent;  ///< absent: not asked yet

    /// Whether there is a list of conversations: the user wants it, and lets agents' session records be read.
    [[nodiscard]] bool showsAgentConversations() const {
        return advanced.agentConversations && capture.readsSessionRecords == true;
    }

    bool operator==(const AppSettings&) const = default;
};

template <class Fields>
void describe(Fields& fields, AppSettings& settings) {
    using List = std::vector<std::string>;
    fields.withDefault("shelfEdge", settings.shelfEdge, "right");
    lenientCase(fields, "shelfVerticalPosition", settings.shelfVerticalPosition, ShelfVerticalPosition::center);
    fields.withDefault("watchRoots", settings.watchRoots, List());
    fields.withDefault("hoverDelay", settings.hoverDelay, 0.15);
    fields.withDefault("appearance", settings.appearance, AppAppearance::light);
    fields.withDefault("language", settings.language, "");
    fields.withDefault("displayMode", settings.displayMode, ShelfDisplayMode::primary);
    fields.optional("pinnedDisplayID", settings.pinnedDisplayID);
    fields.withDefault("showsMenuBarItem", settings.showsMenuBarItem, true);
    lenientCase(fields, "readerLayout", settings.readerLayout, ReaderLayout::hoverRail);
    fields.withDefault("captureMode", settings.captureMode, AgentProjectCaptureMode::selectedProjects);
    fields.optional("captureAllSince", settings.captureAllSince);
    fields.withDefault("excludedProjectRoots", settings.excludedProjectRoots, List());
    fields.withDefault("general", settings.general, GeneralPreferences());
    fields.withDefault("notifications", settings.notifications, NotificationPreferences());
    fields.withDefault("sound", settings.sound, SoundPreferences());
    fields.withDefault("advanced", settings.advanced, AdvancedPreferences());
    fields.withDefault("capture", settings.capture, CapturePreferences());
    fields.withDefault("reviewCadence", settings.reviewCadence, ReviewCadence::continuous);
    fields.withDefault("reviewResetMinutes", settings.reviewResetMinutes, 0);
    fields.tolerant("analyticsConsent", settings.analyticsConsent);
    if constexpr (Fields::isReading) {
        constexpr std::int64_t minutesPerDay = 1440;
        if (settings.reviewCadence == ReviewCadence::daily) settings.reviewCadence = ReviewCadence::weekly;  // retired
        if (settings.reviewResetMinutes >= minutesPerDay) settings.reviewResetMinutes = 0;
    }
}

}  // namespace vellark
