#include <VellarkFoundation/Text/CaseFolding.hpp>
#include <VellarkFoundation/Text/CaseFoldingTable.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

namespace vellark::CaseFolding {

namespace {

void appendFolded(std::string& result, char32_t scalar) {
    const auto expansion = std::ranges::lower_bound(caseFoldingExpansions, scalar, {}, &CaseFoldingExpansion::scalar);
    if (expansion != caseFoldingExpansions.end() && expansion->scalar == scalar) {
        for (const char32_t part : expansion->folded) {
            UTF8::append(result, part);
        }
        return;
    }
    const auto run = std::ranges::lower_bound(caseFoldingRuns, scalar, {}, &CaseFoldingRun::last);
    const bool isInRun =
        run != caseFoldingRuns.end() && scalar >= run->first && (scalar - run->first) % run->stride == 0;
    UTF8::append(result, isInRun ? static_cast<char32_t>(static_cast<std::int64_t>(scalar) + run->delta) : scalar);
}

char lowered(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

}  // namespace

std::string fold(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        offset += decoded.byteCount;
        if (decoded.scalar < 0x80) {
            result.push_back(lowered(static_cast<char>(decoded.scalar)));
        } else {
            appendFolded(result, decoded.scalar);
        }
    }
    return result;
}

}  // namespace vellark::CaseFolding
