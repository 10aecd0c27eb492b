#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/Time/TimeText.hpp>
#include <VellarkShelf/Collect/PendingSignal.hpp>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

namespace vellark {

namespace {

constexpr std::string_view temporaryPrefix = ".tmp-";
constexpr std::string_view damagedPrefix = ".damaged-";
constexpr std::string_view signalSuffix = ".json";

enum class Verdict { signal, unknown, damaged };

// The part of "1767225600.123456-<identifier>.json" behind the time, or the whole stem of another name.
std::string identifierOf(std::string_view name) {
    name.remove_suffix(signalSuffix.size());
    const std::size_t dash = name.find('-');
    return std::string(dash == std::string_view::npos ? name : name.substr(dash + 1));
}

Verdict parse(const std::string& path, PendingSignal& signal) {
    // The helper's limit keeps the payload small; twice as much leaves room for the object around it.
    const auto text = BoundedFile::read(path, 2 * CaptureSignal::maximumBytes);
    if (!text) return Verdict::damaged;
    auto json = JSONReader::read(*text);
    const JSONObject* object = json ? json->object() : nullptr;
    const JSONValue* version = object != nullptr ? object->find("version") : nullptr;
    if (version == nullptr || version->number() == nullptr) return Verdict::damaged;
    if (version->number()->asDouble() != CaptureSignal::version) return Verdict::unknown;
    const std::string* source = stringIn(*object, "source");
    const JSONObject* payload = objectIn(*object, "payload");
    if (source == nullptr || payload == nullptr || !CaptureSignal::isSource(*source)) return Verdict::damaged;
    signal.path = path;
    signal.source = *source;
    signal.payload = *payload;
    return Verdict::signal;
}

std::vector<std::string> names(const std::string& directory, bool& exists) {
    std::vector<std::string> result;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(directory.c_str()), ::closedir);
    exists = folder != nullptr;
    while (exists) {
        const dirent* entry = ::readdir(folder.get());
        if (entry == nullptr) break;
        result.emplace_back(entry->d_name);
    }
    // The names begin with the time of writing, in one form.
    std::sort(result.begin(), result.end());
    return result;
}

bool isStale(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return false;
    return static_cast<double>(TimeText::now().tv_sec - status.st_mtime) > PendingSignals::staleAfter;
}

}  // namespace

std::string_view PendingSignal::text(std::string_view key) const {
    const std::string* value = stringIn(payload, key);
    return value != nullptr ? std::string_view(*value) : std::string_view();
}

bool PendingSignal::isSubagents() const {
    const JSONValue* sidechain = payload.find("isSidechain");
    const bool isSidechain = sidechain != nullptr && sidechain->boolean() != nullptr && *sidechain->boolean();
    return isSidechain || !text("agent_id").empty() || text("hook_event_name") == "SubagentStop";
}

PendingSignals::Listing PendingSignals::read(const std::string& directory) {
    Listing listing;
    for (const std::string& name : names(directory, listing.exists)) {
        const std::string path = directory + "/" + name;
        if (name.starts_with(temporaryPrefix) && isStale(path)) listing.unfinished.push_back(path);
        if (name.starts_with('.') || !name.ends_with(signalSuffix)) continue;
        PendingSignal signal{.path = {}, .identifier = identifierOf(name), .source = {}, .payload = {}};
        switch (parse(path, signal)) {
            case Verdict::signal:
                listing.signals.push_back(std::move(signal));
                break;
            case Verdict::unknown:
                listing.unknown.push_back(path);
                break;
            case Verdict::damaged:
                listing.damaged.push_back(path);
                break;
        }
    }
    return listing;
}

void PendingSignals::clearLeftovers(const Listing& listing) {
    for (const std::string& path : listing.unfinished) {
        ::unlink(path.c_str());
    }
    for (const std::string& path : listing.damaged) {
        const std::size_t nameStart = path.rfind('/') + 1;
        const std::string aside = path.substr(0, nameStart) + std::string(damagedPrefix) + path.substr(nameStart);
        (void)std::rename(path.c_str(), aside.c_str());
    }
}

}  // namespace vellark
