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
// spared what concerns sequences of four, and ASCII behind ASCII is spared everything. What is shorter than a stride,
// and the sequence that the last stride's end may cut, goes to the plain decoder.

namespace vellark::UTF8 {

namespace {

using Block = std::int8_t __attribute__((vector_size(16)));
constexpr std::size_t blockBytes = sizeof(Block);
constexpr std::size_t strideBytes = 4 * blockBytes;
constexpr std::size_t longestLookBack = 3;

// Bytes become signed numbers in the order of their unsigned values: SSE2 compares no others, and only by ">".
constexpr std::int8_t ordered(unsigned byte) {
    return static_cast<std::int8_t>(static_cast<int>(byte) - 128);
}

Block load(const char* bytes) {
    Block block;
    std::memcpy(&block, bytes, blockBytes);
    return block;
}

Block inOrder(Block block) {
    return block ^ ordered(0);
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
    const Block raw = load(bytes);
    const Block current = inOrder(raw);
    const Block first = inOrder(load(bytes - 1));
    const Block second = inOrder(load(bytes - 2));

    const Block isContinuation = raw < std::int8_t{-0x40};
    const Block isAbove9F = current > ordered(0x9F);
    Block isExpected = (first > ordered(0xBF)) | (second > ordered(0xDF));
    Block isWrong = (~isAbove9F & (first == ordered(0xE0))) | (isAbove9F & (first == ordered(0xED))) |
                    ((current & std::int8_t{~1}) == ordered(0xC0));
    if constexpr (hasFour) {
        const Block third = inOrder(load(bytes - 3));
        const Block isAbove8F = current > ordered(0x8F);
        isExpected |= third > ordered(0xEF);
        isWrong |= (~isAbove8F & (first == ordered(0xF0))) | (isAbove8F & (first == ordered(0xF4))) |
                   (current > ordered(0xF4));
    }
    return isWrong | (isContinuation ^ isExpected);
}

template <bool hasFour>
bool isStrideValid(const char* bytes) {
    Block all{};
    for (std::size_t offset = 0; offset < strideBytes; offset += blockBytes)
        all |= errors<hasFour>(bytes + offset);
    return !isAnySet(all);
}

// Whether a byte of the stride at `bytes`, or of the three bytes in front of it, is F0 or above.
bool reachesFour(const char* bytes) {
    Block found = inOrder(load(bytes - longestLookBack)) > ordered(0xEF);
    for (std::size_t offset = 0; offset < strideBytes; offset += blockBytes)
        found |= inOrder(load(bytes + offset)) > ordered(0xEF);
    return isAnySet(found);
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

    bool followsASCII = false;
    const std::size_t start = offset;
    for (; text.size() - offset >= strideBytes; offset += strideBytes) {
        const char* bytes = text.data() + offset;
        const bool isPlain = isASCII(load(bytes) | load(bytes + blockBytes) | load(bytes + 2 * blockBytes) |
                                     load(bytes + 3 * blockBytes));
        if (!(isPlain && followsASCII)) {
            const bool isRight = reachesFour(bytes) ? isStrideValid<true>(bytes) : isStrideValid<false>(bytes);
            if (!isRight) return false;
        }
        followsASCII = isPlain;
    }
    if (offset > start) offset = startOfLastSequence(text, offset);
    return skipSequences(text, offset, text.size()) == text.size();
}

}  // namespace vellark::UTF8
