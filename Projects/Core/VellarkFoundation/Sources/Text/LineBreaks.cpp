#include <VellarkFoundation/Text/LineBreaks.hpp>

#include <algorithm>
#include <array>

namespace vellark::LineBreaks {

namespace {

constexpr auto mayEndLine = [] {
    std::array<bool, 256> table{};
    for (const int byte : {0x0A, 0x0B, 0x0C, 0x0D, 0xC2, 0xE2})
        table[static_cast<std::size_t>(byte)] = true;
    return table;
}();

}  // namespace

std::size_t length(std::string_view text, std::size_t position) {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte == '\r') return position + 1 < text.size() && text[position + 1] == '\n' ? 2 : 1;
    if (byte >= 0x0A && byte <= 0x0C) return 1;
    const std::string_view rest = text.substr(position);
    if (byte == 0xC2) return rest.starts_with("\xC2\x85") ? 2 : 0;
    if (byte == 0xE2) return rest.starts_with("\xE2\x80\xA8") || rest.starts_with("\xE2\x80\xA9") ? 3 : 0;
    return 0;
}

std::vector<std::string_view> split(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t position = 0; position < text.size();) {
        const bool mayEnd = mayEndLine[static_cast<unsigned char>(text[position])];
        const std::size_t end = mayEnd ? length(text, position) : 0;
        if (end > 0) {
            lines.push_back(text.substr(start, position - start));
            start = position + end;
        }
        position += std::max<std::size_t>(end, 1);
    }
    lines.push_back(text.substr(start));
    return lines;
}

}  // namespace vellark::LineBreaks
