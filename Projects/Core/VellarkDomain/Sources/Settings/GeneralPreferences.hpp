#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Settings/DocumentIconPreferences.hpp>
#include <VellarkDomain/Settings/DocumentIconSlots.hpp>
#include <VellarkDomain/Settings/LenientField.hpp>

#include <array>
#include <string>
#include <vector>

namespace vellark {

/// What the reader shows of a document under review.
enum class ReviewBodyMode { summary, original };

template <>
inline constexpr auto caseTable<ReviewBodyMode> = std::to_array<CaseName<ReviewBodyMode>>({
    {ReviewBodyMode::summary, "summary"},
    {ReviewBodyMode::original, "original"},
});

/// How shelf and reader behave.
struct GeneralPreferences {
    double collapseDelay = 0.3;       ///< seconds before the shelf closes
    double notificationDuration = 5;  ///< seconds that a notification stays
    bool dismissOnEscape = true;
    bool dismissOnOutsideClick = true;
    bool hideInFullscreen = true;
    bool globalShelfShortcut = true;
    bool smartFocusSuppression = true;
    bool showsNotificationCountdown = true;
    bool onDeviceSummaries = true;
    ReviewBodyMode reviewBody = ReviewBodyMode::summary;
    DocumentIconPreferences documentIcons;
    DocumentIconSlots documentIconSlots;
    std::vector<DocumentKindGroup> documentPurposes;
    bool classifiesDocumentKinds = true;

    bool operator==(const GeneralPreferences&) const = default;
};

template <class Fields>
void describe(Fields& fields, GeneralPreferences& general) {
    const GeneralPreferences standard;
    fields.withDefault("collapseDelay", general.collapseDelay, standard.collapseDelay);
    fields.withDefault("notificationDuration", general.notificationDuration, standard.notificationDuration);
    fields.withDefault("dismissOnEscape", general.dismissOnEscape, true);
    fields.withDefault("dismissOnOutsideClick", general.dismissOnOutsideClick, true);
    fields.withDefault("hideInFullscreen", general.hideInFullscreen, true);
    fields.withDefault("globalShelfShortcut", general.globalShelfShortcut, true);
    fields.withDefault("smartFocusSuppression", general.smartFocusSuppression, true);
    fields.withDefault("showsNotificationCountdown", general.showsNotificationCountdown, true);
    fields.withDefault("onDeviceSummaries", general.onDeviceSummaries, true);
    lenientCase(fields, "reviewBody", general.reviewBody, standard.reviewBody);
    fields.withDefault("documentIcons", general.documentIcons, DocumentIconPreferences());
    fields.withDefault("documentIconSlots", general.documentIconSlots, DocumentIconSlots());
    if constexpr (Fields::isReading) {
        // Groups that a newer program knows are left out.
        std::vector<std::string> purposes;
        fields.withDefault("documentPurposes", purposes, std::vector<std::string>());
        general.documentPurposes.clear();
        for (const std::string& purpose : purposes) {
            if (const auto group = fromRawValue<DocumentKindGroup>(purpose)) general.documentPurposes.push_back(*group);
        }
    } else {
        fields.required("documentPurposes", general.documentPurposes);
    }
    fields.withDefault("classifiesDocumentKinds", general.classifiesDocumentKinds, true);
}

}  // namespace vellark
