#include <VellarkDomain/Capture/Outputs/CaptureDownloadOrigin.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <string>
#include <variant>

namespace vellark::CaptureOutputs {

namespace {

struct Service {
    ChatHost row;
    bool isWeak = false;
};
struct Foreign {};
struct Opaque {};
using Origin = std::variant<Service, Foreign, Opaque>;

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// What no URL holds: C0 controls, the blank and what RFC 3986 leaves out of ASCII. Browsers mend such texts, each in
// its own way, so that the host that they would ask is unknown.
bool isRefusedASCII(char byte) {
    constexpr std::string_view refused = "\"<>\\^`{|}";
    return (byte >= '\0' && byte <= ' ') || byte == '\x7F' || refused.find(byte) != std::string_view::npos;
}

bool holdsRefused(std::string_view text) {
    if (std::ranges::any_of(text, isRefusedASCII)) return true;
    if (UTF8::isASCII(text)) return false;
    static const Regex controls(R"([\p{Cc}\p{Cf}])");
    return containsMatch(controls, text);
}

bool isScheme(std::string_view text) {
    return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, [](char byte) {
        return isLetter(byte) || isDigit(byte) || byte == '+' || byte == '-' || byte == '.';
    });
}

// The text between "//" and the path, the query or the fragment.
std::optional<std::string_view> authority(std::string_view url) {
    if (!url.starts_with('/')) {
        const std::size_t colon = url.find(':');
        if (colon == std::string_view::npos || !isScheme(url.substr(0, colon))) return std::nullopt;
        url.remove_prefix(colon + 1);
    }
    if (!url.starts_with("//")) return std::nullopt;
    url.remove_prefix(2);
    return url.substr(0, url.find_first_of("/?#"));
}

// The lower-case host of a URL, not decoded; nothing for a text that is no URL or has no host.
std::optional<std::string> host(std::string_view url) {
    if (holdsRefused(url)) return std::nullopt;
    auto rest = authority(url);
    if (!rest) return std::nullopt;
    if (const std::size_t at = rest->rfind('@'); at != std::string_view::npos) rest->remove_prefix(at + 1);
    const std::size_t colon = rest->find(':');
    if (colon != std::string_view::npos && !std::ranges::all_of(rest->substr(colon + 1), isDigit)) return std::nullopt;
    const std::string_view name = rest->substr(0, colon);
    if (name.empty()) return std::nullopt;
    return UnicodeCase::lower(name);
}

bool isAtOrBelow(std::string_view host, std::string_view top) {
    if (!host.ends_with(top)) return false;
    return host.size() == top.size() || host[host.size() - top.size() - 1] == '.';
}

// The closest row above the host. All that match end alike, so that the longest is the closest.
const ChatHost* closestRow(std::string_view host, std::span<const ChatHost> hosts) {
    const ChatHost* best = nullptr;
    for (const ChatHost& row : hosts) {
        if (isAtOrBelow(host, row.host) && (best == nullptr || best->host.size() < row.host.size())) best = &row;
    }
    return best;
}

Origin origin(std::string_view url, std::span<const ChatHost> hosts) {
    constexpr std::string_view blob = "blob:";
    const bool isBlob = url.starts_with(blob);
    if (isBlob) url.remove_prefix(blob.size());
    const auto name = host(url);
    if (const ChatHost* const row = name ? closestRow(*name, hosts) : nullptr) {
        return Service{*row, std::ranges::find(weakHosts, row->host) != weakHosts.end()};
    }
    if (isBlob) return Opaque();
    return Foreign();
}

bool isLabel(std::string_view text) {
    return !text.empty() && text.size() <= maximumLabelLength && text.front() != '-' && text.back() != '-' &&
           std::ranges::all_of(text, [](char byte) { return isLetter(byte) || isDigit(byte) || byte == '-'; });
}

}  // namespace

std::optional<ChatHost> chatOrigin(std::span<const std::string_view> urls, std::span<const ChatHost> hosts) {
    for (std::size_t index = 0; index < urls.size(); ++index) {
        const Origin found = origin(urls[index], hosts);
        if (index == 0 && std::holds_alternative<Foreign>(found)) return std::nullopt;
        if (const auto* const service = std::get_if<Service>(&found); service != nullptr && !service->isWeak) {
            return service->row;
        }
    }
    return std::nullopt;
}

bool isOverrideHost(std::string_view host) {
    const std::string lowered = UnicodeCase::lower(host);
    if (lowered.size() > maximumHostLength) return false;
    std::string_view rest = lowered;
    for (std::size_t dot = rest.find('.'); dot != std::string_view::npos; dot = rest.find('.')) {
        if (!isLabel(rest.substr(0, dot))) return false;
        rest.remove_prefix(dot + 1);
    }
    return rest.size() < lowered.size() && isLabel(rest) && !std::ranges::all_of(rest, isDigit);
}

}  // namespace vellark::CaptureOutputs
