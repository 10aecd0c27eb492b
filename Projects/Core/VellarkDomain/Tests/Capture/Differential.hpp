#pragma once

#include "Support/PythonPeer.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// Seeded choices, the same on every machine.
class Generator {
public:
    explicit Generator(std::uint64_t seed) : engine_(seed) {}

    /// A number below the bound.
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }

    bool chance(std::size_t oneIn) { return below(oneIn) == 0; }

    template <class Items>
    const auto& pick(const Items& items) {
        return items[below(std::size(items))];
    }

    /// So many items, joined.
    template <class Items>
    std::string join(const Items& items, std::size_t count) {
        std::string result;
        for (std::size_t index = 0; index < count; ++index) {
            result += pick(items);
        }
        return result;
    }

private:
    std::mt19937_64 engine_;
};

/// All sequences of one to `longest` items, joined, appended to the cases.
template <class Items>
void appendAllSequences(std::vector<std::string>& cases, const Items& items, std::size_t longest) {
    std::vector<std::string> last = {""};
    for (std::size_t length = 1; length <= longest; ++length) {
        std::vector<std::string> next;
        for (const std::string& start : last) {
            for (const auto& item : items) {
                next.push_back(start);
                next.back() += item;
            }
        }
        cases.insert(cases.end(), next.begin(), next.end());
        last = std::move(next);
    }
}

/// Fails for the first few cases in which `ours(case)` is not what the Python script answers (see PythonPeer); skips
/// without a fitting Python.
template <class Ours>
void expectSameAsPython(std::string_view script, const std::vector<std::string>& cases, Ours&& ours) {
    const auto answers = PythonPeer::answers(script, cases, 11);
    if (!answers) GTEST_SKIP() << "no python3 whose library is the model here";
    ASSERT_EQ(answers->size(), cases.size());
    int shown = 0;
    for (std::size_t index = 0; index < cases.size() && shown < 5; ++index) {
        const std::string own = ours(cases[index]);
        if (own == (*answers)[index]) continue;
        ++shown;
        ADD_FAILURE() << ::testing::PrintToString(cases[index]) << "\n  ours   " << ::testing::PrintToString(own)
                      << "\n  python " << ::testing::PrintToString((*answers)[index]);
    }
}

}  // namespace vellark::testing
