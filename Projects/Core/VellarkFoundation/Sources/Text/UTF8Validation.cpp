#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <cstring>

// Sixteen bytes at a time, by comparisons alone. Whether a byte stands rightly follows from itself and the three bytes
// before it, so each byte of a block is set against the blocks that begin one, two and three bytes earlier:
//
//   - it is a continuation byte exactly when one of the three is a lead byte that reaches this far;
//   - behind E0, ED, F0 and F4 only a part of the continuation bytes keeps a sequence from being overlong, a
//     surrogate or above U+10FFFF;
//   - C0, C1 and F5 to FF stand nowhere.
//
// Together these are the table of well-formed sequences of the Unicode Standard. A stride without a byte from F0 on is
// spared what concerns sequences of four, and ASCII is spared everything when the three bytes before it are ASCII too.
// What is shorter than a stride, and the sequence that the last stride's end may cut, goes to the plain decoder.

namespace vellark::UTF8 {

namespace {

using Block = std::uint8_t __attribute__((vector_size(16)));
using SignedBlock = std::int8_t __attribute__((vector_size(16)));
constexpr std::size_t blockBytes = sizeof(Block);
constexpr std::size_t strideBytes = 4 * blockBytes;
constexpr std::size_t longestLookBack = 3;

// SSE2 compares signed numbers only, by ">". Flipping the high bit puts signed numbers into the order of the bytes.
constexpr std::int8_t ordered(unsigned byte) {
    return static_cast<std::int8_t>(static_cast<int>(byte) - 128);
}

SignedBlock inOrder(Block block) {
    return reinterpret_cast<SignedBlock>(block ^ std::uint8_t{0x80});
}

Block load(const char* bytes) {
    Block block;
    std::memcpy(&block, bytes, blockBytes);
    return block;
}

Block largest(Block first, Block second) {
    return first > second ? first : second;
}

bool isAnySet(Block block) {
    std::uint64_t halves[2];
    std::memcpy(halves, &block, blockBytes);
    return (halves[0] | halves[1]) != 0;
}

bool isASCII(Block block) {
    std::uint64_t halves[2];
    std::memcpy(halves, &block, blockBytes);
    return ((halves[0] | halves[1]) & 0x8080808080808080) == 0;
}

// Not zero where a byte of the block at `bytes` is wrong. Reads three bytes in front of it. Without `hasFour`, none of
// the nineteen bytes may be F0 or above.
template <bool hasFour>
Block errors(const char* bytes) {
    const Block current = load(bytes);
    const auto signedCurrent = reinterpret_cast<SignedBlock>(current);
    const Block first = load(bytes - 1);

    // As signed numbers, 80 to BF are the lowest. The comparisons that split them may say anything of other bytes:
    // behind a lead byte those are wrong already.
    const SignedBlock isContinuation = signedCurrent < std::int8_t{-0x40};
    const auto isAbove9F = reinterpret_cast<Block>(signedCurrent > std::int8_t{-0x61});
    SignedBlock isExpected = (inOrder(first) > ordered(0xBF)) | (inOrder(load(bytes - 2)) > ordered(0xDF));
    // E0 before 80 to 9F, or ED before A0 to BF; then C0 and C1.
    SignedBlock isWrong = ((first ^ (isAbove9F & std::uint8_t{0xE0 ^ 0xED})) == std::uint8_t{0xE0}) |
                          ((current & std::uint8_t{0xFE}) == std::uint8_t{0xC0});
    if constexpr (hasFour) {
        // F0 before 80 to 8F, or F4 before 90 to BF; then F5 and above.
        const auto isAbove8F = reinterpret_cast<Block>(signedCurrent > std::int8_t{-0x71});
        isExpected |= inOrder(load(bytes - 3)) > ordered(0xEF);
        isWrong |= ((first ^ (isAbove8F & std::uint8_t{0xF0 ^ 0xF4})) == std::uint8_t{0xF0}) |
                   (inOrder(current) > ordered(0xF4));
    }
    return reinterpret_cast<Block>(isWrong | (isContinuation ^ isExpected));
}

template <bool hasFour>
bool isStrideValid(const char* bytes) {
    Block all{};
    for (std::size_t offset = 0; offset < strideBytes; offset += blockBytes)
        all |= errors<hasFour>(bytes + offset);
    return !isAnySet(all);
}

// Bytes from `offset` on that are whole well-formed sequences, until `end` is reached or one is ill-formed.
std::size_t skipSequences(std::string_view text, std::size_t offset, std::size_t end) {
    for (end = std::min(end, text.size()); offset < end;) {
        const Decoded decoded = decode(text, offset);
        if (!decoded.wellFormed) break;
        offset += decoded.byteCount;
    }
    return offset;
}

// Where the sequence begins that holds the byte before `end`, or `end` itself behind ASCII. All bytes before `end` are
// right, but for a last sequence that may go on behind it.
std::size_t startOfLastSequence(std::string_view text, std::size_t end) {
    if (static_cast<unsigned char>(text[end - 1]) < 0x80) return end;
    std::size_t start = end - 1;
    while ((static_cast<unsigned char>(text[start]) & 0xC0) == 0x80)
        --start;
    return start;
}

}  // namespace

bool isValid(std::string_view text) {
    std::size_t offset = skipSequences(text, 0, longestLookBack);
    if (offset < longestLookBack) return offset == text.size();

    const std::size_t start = offset;
    for (; text.size() - offset >= strideBytes; offset += strideBytes) {
        const char* bytes = text.data() + offset;
        Block top = load(bytes - longestLookBack);
        for (std::size_t block = 0; block < strideBytes; block += blockBytes)
            top = largest(top, load(bytes + block));
        // ASCII right up to here, three bytes back included.
        if (isASCII(top)) continue;
        const bool hasFour = isAnySet(reinterpret_cast<Block>(top >= std::uint8_t{0xF0}));
        if (!(hasFour ? isStrideValid<true>(bytes) : isStrideValid<false>(bytes))) return false;
    }
    if (offset > start) offset = startOfLastSequence(text, offset);
    return skipSequences(text, offset, text.size()) == text.size();
}

}  // namespace vellark::UTF8
