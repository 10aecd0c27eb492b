#include <VellarkFoundation/Concurrency/ConcurrentChunks.hpp>
#include <VellarkFoundation/Concurrency/ParallelLoop.hpp>
#include <VellarkFoundation/Result.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>

namespace vellark {
namespace {

TEST(ParallelLoop, runsEveryRoundOnce) {
    for (const std::size_t count : {0, 1, 2, 3, 100, 10'000}) {
        std::vector<int> rounds(count);
        ParallelLoop::run(count, [&](std::size_t index) { ++rounds[index]; });
        EXPECT_EQ(rounds, std::vector<int>(count, 1)) << count;
    }
}

TEST(ParallelLoop, runsRoundsAtTheSameTime) {
    if (ParallelLoop::width() < 2) GTEST_SKIP() << "one core";
    // Ends only when two rounds run at once.
    std::mutex mutex;
    std::condition_variable met;
    int present = 0;
    ParallelLoop::run(2, [&](std::size_t) {
        std::unique_lock lock(mutex);
        ++present;
        met.notify_all();
        met.wait(lock, [&] { return present == 2; });
    });
    EXPECT_EQ(present, 2);
}

TEST(ParallelLoop, runsInsideItselfAndBesideItself) {
    std::atomic<int> rounds = 0;
    const auto nested = [&] {
        ParallelLoop::run(20, [&](std::size_t) {
            ParallelLoop::run(20, [&](std::size_t) { ParallelLoop::run(3, [&](std::size_t) { ++rounds; }); });
        });
    };
    std::vector<std::thread> callers;
    for (int caller = 0; caller < 4; ++caller)
        callers.emplace_back(nested);
    for (std::thread& caller : callers)
        caller.join();
    EXPECT_EQ(rounds, 4 * 20 * 20 * 3);
}

TEST(ParallelLoop, finishesBeforeItThrows) {
    std::atomic<int> rounds = 0;
    const auto body = [&](std::size_t index) {
        ++rounds;
        if (index % 10 == 7) throw std::runtime_error(std::to_string(index));
    };
    try {
        ParallelLoop::run(100, body);
        FAIL() << "did not throw";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "7");
    }
    EXPECT_EQ(rounds, 100);
}

using Outcome = Result<std::vector<std::string>, int>;

TEST(ConcurrentChunks, givesWhatOneRunWouldGive) {
    std::vector<int> numbers(1'000);
    std::iota(numbers.begin(), numbers.end(), 0);
    const auto transform = [](std::span<const int> chunk) -> Outcome {
        std::vector<std::string> texts;
        for (const int number : chunk) {
            // Some give several values, some none.
            for (int times = number % 3; times > 0; --times)
                texts.push_back(std::to_string(number));
        }
        return texts;
    };
    const Outcome expected = transform(numbers);
    for (const std::ptrdiff_t size : {-1, 0, 1, 3, 7, 333, 500, 999, 1'000, 1'001}) {
        EXPECT_EQ(concurrentChunks(numbers, size, transform), expected) << size;
    }
    EXPECT_EQ(concurrentChunks(std::vector<int>(), 3, transform), Outcome());
}

TEST(ConcurrentChunks, cutsTheListFromItsStart) {
    const std::vector<int> numbers{0, 1, 2, 3, 4, 5, 6};
    struct Row {
        std::ptrdiff_t size;
        std::vector<std::size_t> sizes;
    };
    for (const Row& row : {Row{3, {3, 3, 1}}, Row{6, {6, 1}}, Row{7, {7}}, Row{0, {7}}, Row{-4, {7}}}) {
        const auto caller = std::this_thread::get_id();
        std::atomic<bool> onlyCaller = true;
        const auto sizes = concurrentChunks(numbers, row.size,
                                            [&](std::span<const int> chunk) -> Result<std::vector<std::size_t>, int> {
                                                if (std::this_thread::get_id() != caller) onlyCaller = false;
                                                return std::vector{chunk.size()};
                                            });
        EXPECT_EQ(sizes.value(), row.sizes) << row.size;
        EXPECT_TRUE(onlyCaller || row.sizes.size() > 1) << row.size;
    }
}

TEST(ConcurrentChunks, givesTheFirstErrorAfterAllChunks) {
    const std::vector<int> numbers(100);
    std::atomic<int> chunks = 0;
    const auto result = concurrentChunks(numbers, 1, [&](std::span<const int> chunk) -> Outcome {
        ++chunks;
        const auto index = static_cast<int>(chunk.data() - numbers.data());
        if (index == 60 || index == 20 || index == 99) return failure(index);
        return std::vector<std::string>{"x"};
    });
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error(), 20);
    EXPECT_EQ(chunks, 100);
}

}  // namespace
}  // namespace vellark
