#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>

#include <unistd.h>

#include <array>
#include <charconv>

#ifdef __APPLE__
#include <pwd.h>
#endif

namespace vellark::HomeDirectory {

namespace {

/// Bytes of /etc/passwd that are looked at. Systems with more users keep them in a directory service.
constexpr std::size_t maximumPasswdBytes = 4'194'304;

std::string_view takeUntil(std::string_view& rest, char separator) {
    const std::size_t end = rest.find(separator);
    const std::string_view piece = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return piece;
}

bool isWanted(const PasswdKey& wanted, std::string_view name, std::string_view userID) {
    if (wanted.name) return name == *wanted.name;
    unsigned number = 0;
    const auto [end, error] = std::from_chars(userID.data(), userID.data() + userID.size(), number);
    return error == std::errc() && end == userID.data() + userID.size() && number == wanted.userID;
}

#ifdef __APPLE__
// Users live in the directory service there, and every program is linked dynamically.
std::optional<std::string> lookUp(const PasswdKey& wanted) {
    const passwd* entry = wanted.name ? getpwnam(std::string(*wanted.name).c_str()) : getpwuid(*wanted.userID);
    if (entry == nullptr || entry->pw_dir == nullptr) return std::nullopt;
    return entry->pw_dir;
}
#else
std::optional<std::string> lookUp(const PasswdKey& wanted) {
    const auto passwd = BoundedFile::read("/etc/passwd", maximumPasswdBytes);
    if (!passwd) return std::nullopt;
    return fromPasswd(*passwd, wanted);
}
#endif

}  // namespace

std::optional<std::string> fromPasswd(std::string_view passwd, const PasswdKey& wanted) {
    while (!passwd.empty()) {
        std::string_view line = takeUntil(passwd, '\n');
        std::array<std::string_view, 6> fields;
        std::size_t count = 0;
        while (count < fields.size() && !line.empty()) {
            fields[count++] = takeUntil(line, ':');
        }
        if (count == fields.size() && isWanted(wanted, fields[0], fields[2])) return std::string(fields[5]);
    }
    return std::nullopt;
}

std::optional<std::string> ofUser(std::string_view name) {
    return lookUp({.name = name, .userID = {}});
}

std::string current(const Environment& environment) {
    if (const auto home = environment.value("HOME"); home && home->starts_with('/')) return std::string(*home);
    return lookUp({.name = {}, .userID = getuid()}).value_or("");
}

std::string expandingTilde(std::string_view path, const Environment& environment) {
    if (!path.starts_with('~')) return std::string(path);
    const std::size_t slash = path.find('/');
    const std::string_view name = path.substr(1, slash == std::string_view::npos ? slash : slash - 1);
    const std::string_view rest = slash == std::string_view::npos ? std::string_view() : path.substr(slash);
    std::optional<std::string> home = name.empty() ? current(environment) : ofUser(name);
    if (!home || home->empty()) return std::string(path);
    std::string expanded = std::move(*home);
    if (!rest.empty() && expanded.ends_with('/')) expanded.pop_back();
    expanded += rest;
    while (expanded.size() > 1 && expanded.ends_with('/')) {
        expanded.pop_back();
    }
    return expanded;
}

}  // namespace vellark::HomeDirectory
