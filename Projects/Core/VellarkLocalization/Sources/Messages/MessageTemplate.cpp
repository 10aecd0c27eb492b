#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <limits>

namespace vellark::MessageTemplate {

namespace {

struct Placeholder {
    std::size_t index = 0;
    std::size_t end = 0;  // byte offset behind "}"
};

// The placeholder that begins at a "{"; nothing when what follows is not digits and "}", or its number is not below the
// limit.
std::optional<Placeholder> placeholderAt(std::string_view text, std::size_t offset, std::size_t limit) {
    std::size_t index = 0;
    std::size_t end = offset + 1;
    for (; end < text.size() && text[end] >= '0' && text[end] <= '9'; ++end) {
        index = std::min(limit, 10 * index + static_cast<std::size_t>(text[end] - '0'));
    }
    const bool closed = end > offset + 1 && end < text.size() && text[end] == '}';
    if (!closed || index >= limit) return std::nullopt;
    return Placeholder{index, end + 1};
}

// Hands the pieces of the template over in their order.
template <class OnLiteral, class OnPlaceholder>
void walk(std::string_view text, std::size_t limit, OnLiteral onLiteral, OnPlaceholder onPlaceholder) {
    std::size_t literalStart = 0;
    std::size_t brace = text.find('{');
    while (brace != std::string_view::npos) {
        const auto placeholder = placeholderAt(text, brace, limit);
        if (placeholder) {
            onLiteral(text.substr(literalStart, brace - literalStart));
            onPlaceholder(placeholder->index);
            literalStart = placeholder->end;
        }
        brace = text.find('{', placeholder ? placeholder->end : brace + 1);
    }
    onLiteral(text.substr(literalStart));
}

constexpr std::array<char32_t, 9> groupSeparators = {U'.',      U',',      U' ',      U'\'',    U'\u2019',
                                                     U'\u00A0', U'\u202F', U'\u2009', U'\u066C'};

}  // namespace

std::string filled(std::string_view text, std::span<const std::string> arguments) {
    if (arguments.empty()) return std::string(text);
    std::string result;
    result.reserve(text.size() + 16 * arguments.size());
    walk(
        text, arguments.size(), [&](std::string_view literal) { result += literal; },
        [&](std::size_t index) {
            const std::string& argument = arguments[index];
            result += UTF8::isValid(argument) ? argument : UTF8::replacingInvalid(argument);
        });
    return result;
}

Parsed parse(std::string_view text) {
    Parsed parsed;
    walk(
        text, maximumPlaceholder + 1, [&](std::string_view literal) { parsed.literals.emplace_back(literal); },
        [&](std::size_t index) { parsed.arguments.push_back(index); });
    return parsed;
}

std::optional<std::int64_t> integerQuantity(std::string_view text) {
    std::int64_t quantity = 0;
    bool hasDigit = false;
    for (const char32_t scalar : Scalars(text)) {
        if (std::ranges::find(groupSeparators, scalar) != groupSeparators.end()) continue;
        if (u_charType(static_cast<UChar32>(scalar)) != U_DECIMAL_DIGIT_NUMBER) return std::nullopt;
        const std::int64_t digit = u_charDigitValue(static_cast<UChar32>(scalar));
        if (quantity > (std::numeric_limits<std::int64_t>::max() - digit) / 10) return std::nullopt;
        quantity = 10 * quantity + digit;
        hasDigit = true;
    }
    if (!hasDigit) return std::nullopt;
    return quantity;
}

}  // namespace vellark::MessageTemplate
