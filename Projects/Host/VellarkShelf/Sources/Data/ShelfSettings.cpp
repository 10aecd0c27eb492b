#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>

#include <unistd.h>

namespace vellark::ShelfSettings {

Reading read(const DataDirectory& directory) {
    const std::string path = directory.settings();
    if (::access(path.c_str(), F_OK) != 0) return {};
    const auto text = BoundedFile::read(path, maximumBytes);
    if (!text) return {.settings = {}, .problem = "it cannot be read"};
    auto settings = readRecord<AppSettings>(std::string_view(*text));
    if (!settings) {
        const std::string place = settings.error().path;
        return {.settings = {}, .problem = "it is damaged" + (place.empty() ? "" : " at " + place)};
    }
    return {.settings = *std::move(settings), .problem = {}};
}

void publishPolicy(const AppSettings& settings, const DataDirectory& directory) {
    const auto json = ResolvedCapturePolicy::fromPreferences(settings.capture).json();
    if (!json) return;
    const std::string path = directory.capturePolicy();
    if (BoundedFile::read(path, maximumBytes) == *json) return;
    // Without the file the helper passes no answers on: nothing is lost that the user asked for explicitly elsewhere.
    (void)DataDirectory::replace(path, *json);
}

}  // namespace vellark::ShelfSettings
