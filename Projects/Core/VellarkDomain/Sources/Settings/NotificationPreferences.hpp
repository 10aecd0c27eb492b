#pragma once

#include <VellarkDomain/Settings/LenientField.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <string>

namespace vellark {

/// What the user is notified of.
struct NotificationPreferences {
    bool expandOnNewDocument = true;
    bool systemNotifications = false;
    bool notifyOnSessionCompletion = true;
    bool includeSubagents = false;
    bool notifyOnDocumentChanges = false;
    std::optional<std::string> documentChangesNotifySince;
    double reminderIntervalSeconds = 0;  ///< 0: no reminders

    bool operator==(const NotificationPreferences&) const = default;
};

template <class Fields>
void describe(Fields& fields, NotificationPreferences& notifications) {
    fields.withDefault("expandOnNewDocument", notifications.expandOnNewDocument, true);
    fields.withDefault("systemNotifications", notifications.systemNotifications, false);
    fields.withDefault("notifyOnSessionCompletion", notifications.notifyOnSessionCompletion, true);
    fields.withDefault("includeSubagents", notifications.includeSubagents, false);
    fields.withDefault("notifyOnDocumentChanges", notifications.notifyOnDocumentChanges, false);
    fields.optional("documentChangesNotifySince", notifications.documentChangesNotifySince);
    fields.withDefault("reminderIntervalSeconds", notifications.reminderIntervalSeconds, 0.0);
}

/// The sounds that a host can play.
enum class VellarkSound { calmDocument, softComplete, gentleAttention, calmGlass, calmSignal };

template <>
inline constexpr auto caseTable<VellarkSound> = std::to_array<CaseName<VellarkSound>>({
    {VellarkSound::calmDocument, "calmDocument"},
    {VellarkSound::softComplete, "softComplete"},
    {VellarkSound::gentleAttention, "gentleAttention"},
    {VellarkSound::calmGlass, "calmGlass"},
    {VellarkSound::calmSignal, "calmSignal"},
});

/// One sound for all events. Older records held a sound for each event; the first that is known stays.
struct SoundPreferences {
    bool enabled = true;
    double volume = 0.5;  ///< 0 to 1
    VellarkSound sound = VellarkSound::calmDocument;

    bool operator==(const SoundPreferences&) const = default;
};

template <class Fields>
void describe(Fields& fields, SoundPreferences& sound) {
    fields.withDefault("enabled", sound.enabled, true);
    fields.withDefault("volume", sound.volume, 0.5);
    std::optional<std::string> stored;
    std::optional<VellarkSound> known;
    if constexpr (Fields::isReading) {
        fields.optional("sound", stored);
        known = fromRawValue<VellarkSound>(stored.value_or(""));
    } else {
        fields.required("sound", sound.sound);
    }
    for (const char* key : {"documentAdded", "sessionCompleted", "attention"}) {
        std::optional<std::string> older;  // never written, but named here so that readers look for it
        fields.optional(key, older);
        if (!stored && !known && older) known = fromRawValue<VellarkSound>(*older);
    }
    if constexpr (Fields::isReading) sound.sound = known.value_or(VellarkSound::calmDocument);
}

}  // namespace vellark
