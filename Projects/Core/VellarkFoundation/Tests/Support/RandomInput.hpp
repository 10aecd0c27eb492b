#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vellark::testing {

/// Numbers that look random and are the same in every run, with every standard library.
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint64_t seed) : engine_(seed) {}

    [[nodiscard]] std::uint64_t bits() { return engine_(); }
    [[nodiscard]] std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }

    template <class Item>
    [[nodiscard]] const Item& oneOf(const std::vector<Item>& items) {
        return items[below(items.size())];
    }

private:
    std::mt19937_64 engine_;
};

/// `count` texts, each put together from up to `longest` of the pieces.
inline std::vector<std::string> randomTexts(std::uint64_t seed, std::size_t count, std::size_t longest,
                                            const std::vector<std::string>& pieces) {
    RandomNumbers random(seed);
    std::vector<std::string> texts(count);
    for (std::string& text : texts) {
        for (std::size_t length = random.below(longest + 1); length > 0; --length) {
            text += random.oneOf(pieces);
        }
    }
    return texts;
}

/// JSON texts of few keys and values, so that they often mean something, and repeat keys.
class RandomJSON {
public:
    /// `keys` and `scalars` are JSON texts themselves: "\"cwd\"", "null".
    RandomJSON(std::uint64_t seed, std::vector<std::string> keys, std::vector<std::string> scalars)
        : random_(seed), keys_(std::move(keys)), scalars_(std::move(scalars)) {}

    [[nodiscard]] std::string value(int depth) {
        const std::size_t choice = depth > 0 ? random_.below(4) : 0;
        if (choice < 2) return random_.oneOf(scalars_);
        return choice == 2 ? array(depth) : object(depth, 4);
    }

    [[nodiscard]] std::string object(int depth, std::size_t mostMembers) {
        return list('{', '}', mostMembers, [&] { return random_.oneOf(keys_) + blank() + ":" + value(depth - 1); });
    }

private:
    [[nodiscard]] std::string array(int depth) {
        return list('[', ']', 4, [&] { return value(depth - 1); });
    }

    template <class Item>
    std::string list(char open, char close, std::size_t most, Item item) {
        std::string text(1, open);
        for (std::size_t count = random_.below(most + 1); count > 0; --count) {
            text += item() + blank() + (count > 1 ? "," : "");
        }
        return text + close;
    }

    std::string blank() { return random_.below(4) == 0 ? " \t" : ""; }

    RandomNumbers random_;
    std::vector<std::string> keys_;
    std::vector<std::string> scalars_;
};

}  // namespace vellark::testing
