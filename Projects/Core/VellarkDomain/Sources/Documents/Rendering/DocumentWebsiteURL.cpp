#include <VellarkDomain/Documents/Rendering/DocumentWebsiteURL.hpp>

#include <array>
#include <cstdint>

// The generic syntax of RFC 3986, cut down to http and https with a host and without user information. One scan from
// left to right; each piece takes what belongs to it, and what is left in the end refuses the whole.

namespace vellark::DocumentWebsiteURL {

namespace {

// Where a character may stand as itself.
enum Place : std::uint8_t {
    digit = 1,
    hexadecimal = 2,
    address = 4,  // between the brackets of an IPv6 address
    host = 8,
    path = 16,
    query = 32,  // and fragment
};

constexpr auto places = [] {
    std::array<std::uint8_t, 256> table{};
    const auto allow = [&](std::string_view characters, int where) {
        for (const char character : characters) {
            auto& row = table[static_cast<unsigned char>(character)];
            row = static_cast<std::uint8_t>(row | where);
        }
    };
    allow("0123456789", digit);
    allow("0123456789ABCDEFabcdef", hexadecimal | address);
    allow(":.", address);
    allow("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,;=", host | path | query);
    allow(":@/", path | query);
    allow("?", query);
    return table;
}();

bool mayStand(char character, Place place) {
    return (places[static_cast<unsigned char>(character)] & place) != 0;
}

// The rest of an address that is still to be read. Each operation takes its piece away.
class Rest {
public:
    explicit Rest(std::string_view text) : text_(text) {}

    bool isEmpty() const { return text_.empty(); }

    bool take(char character) {
        if (!text_.starts_with(character)) return false;
        text_.remove_prefix(1);
        return true;
    }

    // Letters of the wanted text, which is in lower case, in either case.
    bool takeLetters(std::string_view wanted) {
        if (text_.size() < wanted.size()) return false;
        for (std::size_t index = 0; index < wanted.size(); ++index) {
            if ((text_[index] | 0x20) != wanted[index]) return false;
        }
        text_.remove_prefix(wanted.size());
        return true;
    }

    std::string_view takeAll(Place place) {
        std::size_t length = 0;
        while (length < text_.size() && mayStand(text_[length], place))
            ++length;
        const std::string_view taken = text_.substr(0, length);
        text_.remove_prefix(length);
        return taken;
    }

    // Characters of the place, and bytes escaped as a percent sign with two hexadecimal digits.
    void takeEscaped(Place place) {
        takeAll(place);
        while (text_.size() >= 3 && text_[0] == '%' && mayStand(text_[1], hexadecimal) &&
               mayStand(text_[2], hexadecimal)) {
            text_.remove_prefix(3);
            takeAll(place);
        }
    }

private:
    std::string_view text_;
};

bool takeScheme(Rest& rest) {
    if (!rest.takeLetters("http")) return false;
    rest.takeLetters("s");
    return rest.take(':') && rest.take('/') && rest.take('/');
}

bool takeHost(Rest& rest) {
    if (rest.take('[')) return !rest.takeAll(address).empty() && rest.take(']');
    return !rest.takeAll(host).empty();
}

// No port, an empty one, or one from 1 to 65535, with any number of zeros in front.
bool takePort(Rest& rest) {
    if (!rest.take(':')) return true;
    const std::string_view digits = rest.takeAll(digit);
    std::uint32_t value = 0;
    for (const char character : digits) {
        value = value * 10 + static_cast<std::uint32_t>(character - '0');
        if (value > 65'535) return false;
    }
    return digits.empty() || value > 0;
}

}  // namespace

std::optional<std::string> validated(std::optional<std::string_view> text) {
    if (!text || text->size() > maximumBytes) return std::nullopt;
    Rest rest(*text);
    if (!takeScheme(rest) || !takeHost(rest) || !takePort(rest)) return std::nullopt;
    if (rest.take('/')) rest.takeEscaped(path);
    if (rest.take('?')) rest.takeEscaped(query);
    if (rest.take('#')) rest.takeEscaped(query);
    if (!rest.isEmpty()) return std::nullopt;
    return std::string(*text);
}

}  // namespace vellark::DocumentWebsiteURL
