// Finding a stretch again means hashing every stretch of that many lines anew, for FNV-1a cannot roll: in a text of
// 50,000 lines some 160 million steps for a note on 400. Each step waits for the multiplication of the one before, so
// one stretch at a time leaves the processor idle for three cycles of four. Three things help:
//
// 1. The sieve. A step is an exclusive or and a multiplication, and neither carries anything downwards: the low 16 bits
//    of a hash follow from the low 16 bits of the state before. So 64 stretches, next to each other, are first hashed
//    modulo 2^16, in eight vectors of eight lanes whose multiplications overlap. That is exact: what differs there
//    differs in full. Of 65,536 other stretches one passes.
// 2. What passes is hashed in full, eight stretches taking turns, so that even a text made to let everything pass (one
//    line over and over) costs a fraction of the plain loop.
// 3. The search goes outwards from the old place and ends where nothing nearer can come. Lines that moved because some
//    were inserted above them are found in the first blocks.

#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>
#include <VellarkDomain/Feedback/FeedbackLineIndex.hpp>
#include <VellarkFoundation/Text/ByteScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <bit>
#include <cstring>
#include <string>
#include <string_view>

namespace vellark {

namespace {

using Lanes = std::uint16_t __attribute__((vector_size(16)));

constexpr std::size_t laneCount = sizeof(Lanes) / sizeof(std::uint16_t);
constexpr std::size_t vectorCount = 8;
constexpr std::size_t blockSize = laneCount * vectorCount;  // stretches; one bit of a word each

constexpr auto lowPrime = static_cast<std::uint16_t>(FeedbackHash::prime);
constexpr auto lowBasis = static_cast<std::uint16_t>(FeedbackHash::offsetBasis);

Lanes lanes(std::uint16_t value) {
    return Lanes{} + value;
}

Lanes load(const std::uint16_t* values) {
    Lanes result;
    std::memcpy(&result, values, sizeof result);
    return result;
}

}  // namespace

struct FeedbackLineIndex::Sought {
    std::uint64_t hash = 0;
    std::size_t span = 0;
};

FeedbackLineIndex::FeedbackLineIndex(std::string_view text) : lineCount_(ByteScan::count(text, '\n') + 1) {
    if (!isSearchable()) return;
    std::string replaced;
    if (!UTF8::isValid(text)) {
        replaced = UTF8::replacingInvalid(text);
        text = replaced;
    }
    const auto lines = DocumentFeedbackAnchor::lines(text);
    hashes_.resize(lineCount_);
    std::transform(lines.begin(), lines.end(), hashes_.begin(), FeedbackHash::ofWellFormedLine);
    for (std::size_t byte = 0; byte < columns_.size(); ++byte) {
        auto& column = columns_[byte];
        column.resize(lineCount_ + blockSize);  // a block at the end looks past the last line, and ignores what it sees
        std::transform(hashes_.begin(), hashes_.end(), column.begin(),
                       [byte](std::uint64_t hash) { return static_cast<std::uint16_t>(hash >> (8 * byte) & 0xFF); });
    }
}

std::uint64_t FeedbackLineIndex::stretchHash(std::size_t start, std::size_t span) const {
    std::uint64_t state = FeedbackHash::offsetBasis;
    for (std::size_t line = start; line < start + span; ++line)
        state = FeedbackHash::combined(state, hashes_[line]);
    return state;
}

// The hashes of several stretches, which take turns so that none waits for its own multiplications.
std::array<std::uint64_t, FeedbackLineIndex::chainCount> FeedbackLineIndex::stretchHashes(
    const std::array<std::size_t, chainCount>& starts, std::size_t span) const {
    std::array<std::uint64_t, chainCount> states;
    states.fill(FeedbackHash::offsetBasis);
    for (std::size_t line = 0; line < span; ++line) {
        std::array<std::uint64_t, chainCount> hashes;
        for (std::size_t chain = 0; chain < chainCount; ++chain)
            hashes[chain] = hashes_[starts[chain] + line];
        for (int byte = 0; byte < 64; byte += 8) {
            for (std::size_t chain = 0; chain < chainCount; ++chain)
                states[chain] = FeedbackHash::step(states[chain], static_cast<unsigned char>(hashes[chain] >> byte));
        }
    }
    return states;
}

// The stretches of the block of 64 that begins at `first` whose hash may be the one sought, a bit each. Stretches that
// do not lie in the text have any bit.
std::uint64_t FeedbackLineIndex::sieve(const Sought& sought, std::size_t first) const {
    std::array<Lanes, vectorCount> states;
    states.fill(lanes(lowBasis));
    const Lanes prime = lanes(lowPrime);
    const std::size_t end = std::min(first + sought.span, lineCount_);
    for (std::size_t line = first; line < end; ++line) {
        for (const auto& column : columns_) {
            const std::uint16_t* bytes = column.data() + line;
            for (std::size_t vector = 0; vector < vectorCount; ++vector)
                states[vector] = (states[vector] ^ load(bytes + vector * laneCount)) * prime;
        }
    }
    const auto wanted = static_cast<std::uint16_t>(sought.hash);
    std::uint64_t starts = 0;
    for (std::size_t index = 0; index < blockSize; ++index) {
        const bool passes = states[index / laneCount][index % laneCount] == wanted;
        starts |= std::uint64_t{passes} << index;
    }
    return starts;
}

// The first of the given starts in a block, in the direction that is sought in, which begins a stretch with the hash.
std::optional<std::size_t> FeedbackLineIndex::confirm(const Sought& sought, std::size_t first, std::uint64_t starts,
                                                      Direction direction) const {
    while (starts != 0) {
        std::array<std::size_t, chainCount> chains{};
        std::size_t used = 0;
        for (; starts != 0 && used < chainCount; ++used) {
            const std::uint64_t next = direction == Direction::down ? starts & (~starts + 1) : std::bit_floor(starts);
            starts &= ~next;
            chains[used] = first + static_cast<std::size_t>(std::countr_zero(next));
        }
        std::fill(chains.begin() + static_cast<std::ptrdiff_t>(used), chains.end(), chains[0]);
        const auto hashes = stretchHashes(chains, sought.span);
        for (std::size_t chain = 0; chain < used; ++chain) {
            if (hashes[chain] == sought.hash) return chains[chain];
        }
    }
    return std::nullopt;
}

// The start of the stretch sought among those from `begin` up to `end`, at most a block, that comes first in the
// direction.
std::optional<std::size_t> FeedbackLineIndex::firstMatch(const Sought& sought, std::size_t begin, std::size_t end,
                                                         Direction direction) const {
    if (begin == end) return std::nullopt;
    const std::size_t unused = blockSize - (end - begin);
    return confirm(sought, begin, sieve(sought, begin) & ~std::uint64_t{0} >> unused, direction);
}

std::optional<std::size_t> FeedbackLineIndex::nearestStretch(std::uint64_t hash, std::size_t span,
                                                             std::size_t from) const {
    const Sought sought{.hash = hash, .span = span};
    const std::size_t startCount = lineCount_ - span + 1;
    const std::size_t middle = std::min(from, startCount);
    std::size_t left = middle;  // everything from here up to `right` has been looked at
    std::size_t right = middle;
    while (left > 0 || right < startCount) {
        const std::size_t leftEnd = left;
        const std::size_t rightBegin = right;
        left -= std::min(left, blockSize);
        right += std::min(startCount - right, blockSize);
        const auto below = firstMatch(sought, rightBegin, right, Direction::down);
        const auto above = firstMatch(sought, left, leftEnd, Direction::up);
        if (above && below) return middle - *above <= *below - middle ? above : below;
        if (above || below) return above ? above : below;
    }
    return std::nullopt;
}

}  // namespace vellark
