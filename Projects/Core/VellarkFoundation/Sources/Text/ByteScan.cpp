#include <VellarkFoundation/Text/ByteScan.hpp>

#include <cstdint>
#include <cstring>

// A comparison of sixteen bytes gives -1 where the byte stands, so subtracting comparisons counts in sixteen lanes at
// once. A stride of 256 bytes adds at most 16 to a lane, and its eight lanes of one half at most 128: sums of bytes fit
// into bytes.

namespace vellark::ByteScan {

namespace {

using Block = std::uint8_t __attribute__((vector_size(16)));
constexpr std::size_t blockBytes = sizeof(Block);
constexpr std::size_t strideBytes = 16 * blockBytes;

// The sum of the eight bytes, which must stay below 256.
std::size_t sumOfBytes(std::uint64_t word) {
    return static_cast<std::size_t>((word * 0x0101010101010101) >> 56);
}

std::size_t countInStride(const char* bytes, char byte) {
    const auto wanted = static_cast<std::uint8_t>(byte);
    Block counts{};
    for (std::size_t offset = 0; offset < strideBytes; offset += blockBytes) {
        Block block;
        std::memcpy(&block, bytes + offset, blockBytes);
        counts -= reinterpret_cast<Block>(block == wanted);
    }
    std::uint64_t halves[2];
    std::memcpy(halves, &counts, blockBytes);
    return sumOfBytes(halves[0]) + sumOfBytes(halves[1]);
}

}  // namespace

std::size_t count(std::string_view text, char byte) {
    std::size_t total = 0;
    for (; text.size() >= strideBytes; text.remove_prefix(strideBytes))
        total += countInStride(text.data(), byte);
    for (const char one : text)
        total += one == byte ? 1 : 0;
    return total;
}

std::size_t endOfNth(std::string_view text, char byte, std::size_t ordinal) {
    std::size_t offset = 0;
    while (text.size() - offset >= strideBytes) {
        const std::size_t found = countInStride(text.data() + offset, byte);
        if (found >= ordinal) break;
        ordinal -= found;
        offset += strideBytes;
    }
    for (; ordinal > 0; --ordinal) {
        offset = text.find(byte, offset);
        if (offset == std::string_view::npos) return offset;
        ++offset;
    }
    return offset;
}

}  // namespace vellark::ByteScan
