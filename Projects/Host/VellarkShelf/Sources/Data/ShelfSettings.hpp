#pragma once

#include <VellarkDomain/Settings/AppSettings.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <optional>
#include <string>

namespace vellark {

/// The user's settings, as the shelf reads them from "settings.json".
namespace ShelfSettings {

/// A file of settings beyond this many bytes is damaged.
inline constexpr std::size_t maximumBytes = 4'194'304;

struct Reading {
    AppSettings settings;
    std::optional<std::string> problem = {};  ///< why the file counts as absent although there is one
};

/// The settings; the defaults when there is no file, or none that can be read.
[[nodiscard]] Reading read(const DataDirectory& directory);

/// Writes "capture-policy.json", by which the helper learns whether it may pass answers on, unless it says so already.
void publishPolicy(const AppSettings& settings, const DataDirectory& directory);

}  // namespace ShelfSettings

}  // namespace vellark
