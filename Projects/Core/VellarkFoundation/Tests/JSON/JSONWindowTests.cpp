#include <VellarkFoundation/JSON/JSONWindow.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vellark {
namespace {

using Texts = std::vector<std::string>;

JSONWindow::Source inPieces(std::string_view text, std::size_t piece) {
    return [text, piece](char* place, std::size_t room) mutable -> std::optional<std::size_t> {
        const std::size_t count = std::min({piece, room, text.size()});
        std::copy_n(text.data(), count, place);
        text.remove_prefix(count);
        return count;
    };
}

// The texts of a list's elements; nothing when it is not a list.
std::optional<Texts> elements(JSONWindow window) {
    Texts found;
    bool hasMore = false;
    if (!window.take([&](JSONCursor& cursor) {
            const bool isOpen = cursor.open('[');
            hasMore = !cursor.isAt(']');
            return isOpen;
        })) {
        return std::nullopt;
    }
    while (hasMore) {
        std::string text;
        const auto element = [&](JSONCursor& cursor) {
            const std::size_t start = cursor.offset();
            const std::string_view rest = cursor.rest();
            if (!cursor.skipValue()) return false;
            text = rest.substr(0, cursor.offset() - start);
            if (!cursor.endElement()) return false;
            hasMore = !cursor.isAt(']');
            return true;
        };
        if (!window.take(element)) return std::nullopt;
        found.push_back(text);
    }
    const auto end = [](JSONCursor& cursor) { return cursor.close(']') && cursor.isAtEnd(); };
    return window.take(end) ? std::optional(found) : std::nullopt;
}

// Wherever pieces and windows end, the text reads as if it lay there whole, and what is wrong in it stays wrong.
TEST(JSONWindow, readsAsIfTheTextWereWhole) {
    const std::string_view texts[] = {
        R"([1234567890,-1.25e+10,true,null,"한글 \ud83d\ude00 text",{"key":[1,{"k":"v"}],"other":{}},[[[]]]])",
        "[]",
        R"(["an element that is longer than any first window, by far and then some"])",
        R"([1,2,])",
        R"([1,2],)",
        R"([1 2])",
        "[\"\xEC\x9D\",1]",
        "[\"\xED\xA0\x80\"]",
        R"(["cut)",
        "[\"a\"\xF0",
        "",
    };
    for (const std::string_view text : texts) {
        const auto expected = elements(JSONWindow(inPieces(text, text.size() + 1)));
        for (std::size_t size = 1; size < 24; ++size) {
            for (const std::size_t piece : {std::size_t{1}, std::size_t{3}, std::size_t{100}}) {
                EXPECT_EQ(elements(JSONWindow(inPieces(text, piece), {.firstBytes = size})), expected)
                    << text << " through " << size;
            }
        }
    }
    EXPECT_EQ(elements(JSONWindow(inPieces(texts[0], 7)))->size(), 7U);
    EXPECT_EQ(elements(JSONWindow(inPieces(texts[3], 7))), std::nullopt);
}

TEST(JSONWindow, growsNoFurtherThanItMay) {
    const std::string text = "[1,\"" + std::string(100, 'x') + "\",2]";
    EXPECT_TRUE(elements(JSONWindow(inPieces(text, 10), {.firstBytes = 8, .maximumBytes = 256})));
    EXPECT_FALSE(elements(JSONWindow(inPieces(text, 10), {.firstBytes = 8, .maximumBytes = 64})));
}

TEST(JSONWindow, endsWhereNothingCanBeRead) {
    const auto source = [count = 0](char* place, std::size_t) mutable -> std::optional<std::size_t> {
        if (++count > 3) return std::nullopt;
        *place = "[1,"[count - 1];
        return 1;
    };
    EXPECT_FALSE(elements(JSONWindow(source)));
}

}  // namespace
}  // namespace vellark
