#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The data behind HTMLEntities: all texts in two pools, and fixed-size rows that point into them.
namespace vellark::HTMLEntityTable {

/// All names, one after another, in the order of their bytes: "AEligAElig;AMPAMP;Aacute".
extern const char* const names;

/// The texts in UTF-8, in no order that matters; texts may overlap.
extern const char* const values;

struct Entry {
    std::uint16_t nameOffset;
    std::uint8_t nameLength;
    std::uint8_t valueLength;
    std::uint16_t valueOffset;
};

inline constexpr std::size_t count = 2'231;

/// In the order of their names' bytes.
extern const std::array<Entry, count> entries;

/// Number of bytes from "A" to "z".
inline constexpr std::size_t initialCount = 'z' - 'A' + 1;

/// Number of the first entry whose name begins with 'A' + index, or with a later byte.
extern const std::array<std::uint16_t, initialCount + 1> firstOfInitial;

}  // namespace vellark::HTMLEntityTable
