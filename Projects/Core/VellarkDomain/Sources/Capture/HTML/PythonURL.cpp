#include <VellarkDomain/Capture/HTML/PythonURL.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <array>
#include <vector>

namespace vellark::PythonURL {

namespace {

constexpr std::size_t npos = std::string_view::npos;

constexpr bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

constexpr bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

constexpr int hexadecimalValue(char byte) {
    if (isDigit(byte)) return byte - '0';
    if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
    if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
    return -1;
}

constexpr bool isHexadecimal(char byte) {
    return hexadecimalValue(byte) >= 0;
}

bool isSchemeCharacter(char byte) {
    return isLetter(byte) || isDigit(byte) || byte == '+' || byte == '-' || byte == '.';
}

std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> result;
    while (true) {
        const std::size_t end = text.find(separator);
        result.push_back(text.substr(0, end));
        if (end == npos) return result;
        text.remove_prefix(end + 1);
    }
}

// Cuts the text at the first separator and gives what stood behind it; "" without one.
std::string_view cutBehind(std::string_view& text, char separator) {
    const std::size_t at = text.find(separator);
    if (at == npos) return {};
    const std::string_view behind = text.substr(at + 1);
    text = text.substr(0, at);
    return behind;
}

// Four numbers below 256 without leading zeros.
bool isIPv4Address(std::string_view text) {
    const auto isOctet = [](std::string_view octet) {
        if (octet.empty() || octet.size() > 3 || !std::all_of(octet.begin(), octet.end(), isDigit)) return false;
        if (octet.size() > 1 && octet[0] == '0') return false;
        return octet.size() < 3 || octet <= "255";
    };
    const std::vector<std::string_view> octets = pieces(text, '.');
    return octets.size() == 4 && std::all_of(octets.begin(), octets.end(), isOctet);
}

// Eight groups of one to four hexadecimal digits, or fewer around one "::". An IPv4 address may stand for the last two,
// and a zone may follow behind "%".
bool isIPv6Address(std::string_view text) {
    constexpr std::size_t groupCount = 8;
    if (const std::size_t sign = text.find('%'); sign != npos) {
        const std::string_view zone = text.substr(sign + 1);
        if (zone.empty() || zone.find('%') != npos) return false;
        text = text.substr(0, sign);
    }
    std::vector<std::string_view> groups = pieces(text, ':');
    if (groups.size() < 3) return false;
    if (groups.back().find('.') != npos) {
        if (!isIPv4Address(groups.back())) return false;
        groups.back() = "0";
        groups.emplace_back("0");
    }
    if (groups.size() > groupCount + 1) return false;

    // The gap is an empty group. At an end of the text it leaves a second one, which alone may stand there.
    if (groups.front().empty()) {
        if (!groups[1].empty()) return false;
        groups.erase(groups.begin());
    }
    if (groups.back().empty()) {
        if (!groups[groups.size() - 2].empty()) return false;
        groups.pop_back();
    }
    const auto isGroup = [](std::string_view group) {
        return !group.empty() && group.size() <= 4 && std::all_of(group.begin(), group.end(), isHexadecimal);
    };
    const auto filled = static_cast<std::size_t>(std::count_if(groups.begin(), groups.end(), isGroup));
    const std::size_t gaps = groups.size() - filled;
    if (gaps == 0) return filled == groupCount;
    const bool isGap = std::find(groups.begin(), groups.end(), std::string_view()) != groups.end();
    return gaps == 1 && isGap && filled < groupCount;
}

// "v", hexadecimal digits, "." and at least one character more.
bool isFutureAddress(std::string_view text) {
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isHexadecimal);
    const auto digitCount = static_cast<std::size_t>(end - text.begin()) - 1;
    return digitCount > 0 && end != text.end() && *end == '.' && end + 1 != text.end();
}

bool areBracketsValid(std::string_view netloc) {
    const std::size_t opening = netloc.find('[');
    const std::size_t closing = netloc.find(']');
    if (opening == npos && closing == npos) return true;
    if (opening == npos || closing == npos) return false;
    std::string_view host = netloc.substr(opening + 1);
    host = host.substr(0, host.find(']'));
    return host.starts_with('v') ? isFutureAddress(host) : isIPv6Address(host);
}

// Scalars whose compatibility normalisation (NFKC) holds one of "/?#@:". Unicode's stability policy keeps the
// normalisation of every assigned character, so the list can only grow with new characters.
constexpr std::array<char32_t, 19> hiddenDelimiters = {0x2047, 0x2048, 0x2049, 0x2100, 0x2101, 0x2105, 0x2106,
                                                       0x2A74, 0xFE13, 0xFE16, 0xFE55, 0xFE56, 0xFE5F, 0xFE6B,
                                                       0xFF03, 0xFF0F, 0xFF1A, 0xFF1F, 0xFF20};

bool hidesDelimiter(std::string_view netloc) {
    if (UTF8::isASCII(netloc)) return false;
    return std::any_of(hiddenDelimiters.begin(), hiddenDelimiters.end(), [&](char32_t delimiter) {
        std::string text;
        UTF8::append(text, delimiter);
        return netloc.find(text) != npos;
    });
}

// The text as `split` reads it: well-formed, nothing to strip at the front, one line.
std::string cleaned(std::string_view text) {
    const auto visible =
        std::find_if(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) > 0x20; });
    std::string result = UTF8::replacingInvalid(text.substr(static_cast<std::size_t>(visible - text.begin())));
    std::erase_if(result, [](char byte) { return byte == '\t' || byte == '\r' || byte == '\n'; });
    return result;
}

// Cuts scheme and ":" off the text when it begins with them.
std::string cutScheme(std::string_view& text) {
    const std::size_t colon = text.find(':');
    if (colon == npos || colon == 0 || !isLetter(text[0])) return {};
    std::string scheme(text.substr(0, colon));
    if (!std::all_of(scheme.begin(), scheme.end(), isSchemeCharacter)) return {};
    for (char& byte : scheme) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
    }
    text.remove_prefix(colon + 1);
    return scheme;
}

// Cuts "//" and what follows it up to the path, query or fragment off the text.
std::string_view cutNetloc(std::string_view& text) {
    if (!text.starts_with("//")) return {};
    const std::size_t end = std::min(text.find_first_of("/?#", 2), text.size());
    const std::string_view netloc = text.substr(2, end - 2);
    text.remove_prefix(end);
    return netloc;
}

bool isUnreserved(char byte) {
    return isLetter(byte) || isDigit(byte) || byte == '_' || byte == '.' || byte == '-' || byte == '~' || byte == '/';
}

}  // namespace

std::optional<Parts> split(std::string_view text) {
    const std::string url = cleaned(text);
    std::string_view rest = url;
    Parts parts;
    parts.scheme = cutScheme(rest);
    parts.netloc = cutNetloc(rest);
    if (!areBracketsValid(parts.netloc) || hidesDelimiter(parts.netloc)) return std::nullopt;
    parts.fragment = cutBehind(rest, '#');
    parts.query = cutBehind(rest, '?');
    parts.path = rest;
    return parts;
}

std::string unquote(std::string_view text) {
    if (text.find('%') == npos) return UTF8::replacingInvalid(text);
    std::string result;
    result.reserve(text.size());
    std::string run;
    const auto flush = [&] {
        result += UTF8::replacingInvalid(run);
        run.clear();
    };
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        if (decoded.scalar >= 0x80) {
            flush();
            UTF8::append(result, decoded.scalar);
            offset += decoded.byteCount;
            continue;
        }
        const bool isEscape = text[offset] == '%' && offset + 2 < text.size() && isHexadecimal(text[offset + 1]) &&
                              isHexadecimal(text[offset + 2]);
        run += isEscape
                   ? static_cast<char>(hexadecimalValue(text[offset + 1]) * 16 + hexadecimalValue(text[offset + 2]))
                   : text[offset];
        offset += isEscape ? 3 : 1;
    }
    flush();
    return result;
}

std::string quote(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(text.size());
    for (const char byte : UTF8::replacingInvalid(text)) {
        if (isUnreserved(byte)) {
            result += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            result += '%';
            result += digits[value >> 4];
            result += digits[value & 0xF];
        }
    }
    return result;
}

}  // namespace vellark::PythonURL
