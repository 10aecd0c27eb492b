#include <VellarkDomain/Agents/AgentTerminalLocation.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>

#include <algorithm>

namespace vellark {

namespace {

using namespace std::string_view_literals;

constexpr std::array applications = {
    "com.apple.Terminal"sv,   "com.googlecode.iterm2"sv, "org.wezfurlong.wezterm"sv, "com.mitchellh.ghostty"sv,
    "dev.warp.Warp-Stable"sv, "net.kovidgoyal.kitty"sv,  "org.alacritty"sv,
};

// Those whose automation reaches a single tab.
constexpr std::array preciseApplications = {"com.apple.Terminal"sv, "com.googlecode.iterm2"sv};

template <class List>
bool holds(const List& list, std::string_view text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

bool isDigits(std::string_view text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isDevice(std::string_view text) {
    constexpr auto start = "/dev/ttys"sv;
    return text.starts_with(start) && isDigits(text.substr(start.size()), 1, 8);
}

bool isStartIdentity(std::string_view text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    return isDigits(text.substr(0, point), 1, 12) && point < text.size() && isDigits(text.substr(point + 1), 6, 6);
}

}  // namespace

std::span<const std::string_view> AgentTerminalLocation::allowedApplications() {
    return applications;
}

bool AgentTerminalLocation::isValid() const {
    if (!holds(applications, appBundleIdentifier)) return false;
    if (tty && !isDevice(*tty)) return false;
    if (processID && *processID <= 0) return false;
    if (processStartIdentity && !isStartIdentity(*processStartIdentity)) return false;
    return !terminalSessionID || UUID::isValid(*terminalSessionID);
}

bool AgentTerminalLocation::supportsPreciseSelection() const {
    return isValid() && holds(preciseApplications, appBundleIdentifier) && tty && processID && processStartIdentity;
}

}  // namespace vellark
