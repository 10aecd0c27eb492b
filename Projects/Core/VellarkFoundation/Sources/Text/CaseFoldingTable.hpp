#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace vellark {

/// The scalars first, first + stride, ... last, each of which folds to the scalar `delta` further on.
struct CaseFoldingRun {
    char32_t first;
    char32_t last;
    std::uint32_t stride;
    std::int32_t delta;
};

/// A scalar that folds to two or three.
struct CaseFoldingExpansion {
    char32_t scalar;
    std::u32string_view folded;
};

/// Full case folding above ASCII (CaseFolding.txt, statuses C and F), in ascending order of scalars. A scalar in
/// neither table folds to itself.
extern const std::span<const CaseFoldingRun> caseFoldingRuns;
extern const std::span<const CaseFoldingExpansion> caseFoldingExpansions;

}  // namespace vellark
