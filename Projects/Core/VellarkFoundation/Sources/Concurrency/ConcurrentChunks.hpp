#pragma once

#include <VellarkFoundation/Concurrency/ParallelLoop.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <ranges>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace vellark {

/// Transforms a list in chunks of `size` elements, the last one shorter, on all cores at once, and joins what comes out
/// in the order of the chunks: what `transform` would give for the whole list, as long as it treats its elements one by
/// one.
///
///     auto titles = concurrentChunks(documents, 64, titlesOf);
///
/// `transform` takes a `std::span<const Element>` and gives a `Result<std::vector<Value>, Error>`; it is called from
/// many threads. A list of no more than `size` elements, or a `size` of 0 or less, makes one chunk, on the calling
/// thread. Every chunk is finished; then the error of the first chunk that has one is the result.
template <std::ranges::contiguous_range List, class Transform>
[[nodiscard]] auto concurrentChunks(const List& list, std::ptrdiff_t size, const Transform& transform) {
    using Elements = std::span<const std::ranges::range_value_t<List>>;
    using Outcome = std::remove_cvref_t<std::invoke_result_t<const Transform&, Elements>>;
    const Elements elements(list);
    if (size <= 0 || elements.size() <= static_cast<std::size_t>(size)) return Outcome(transform(elements));

    const auto chunkSize = static_cast<std::size_t>(size);
    const std::size_t chunkCount = (elements.size() - 1) / chunkSize + 1;
    std::vector<std::optional<Outcome>> slots(chunkCount);
    ParallelLoop::run(chunkCount, [&](std::size_t index) {
        const std::size_t begin = index * chunkSize;
        slots[index].emplace(transform(elements.subspan(begin, std::min(chunkSize, elements.size() - begin))));
    });

    for (const auto& slot : slots) {
        if (!slot->has_value()) return *slot;
    }
    Outcome all = std::move(*slots.front());
    for (std::size_t index = 1; index < chunkCount; ++index)
        std::ranges::move(**slots[index], std::back_inserter(*all));
    return all;
}

}  // namespace vellark
