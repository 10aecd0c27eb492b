#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vellark {

/// Walks the lines of a text: they end at U+000A to U+000D (CR LF as one), U+0085, U+2028 and U+2029.
class TextLines {
public:
    explicit TextLines(std::string_view text) : text_(text) {}

    /// The next line without its end; nothing behind the last one. A text that ends in a line break has an empty last
    /// line.
    [[nodiscard]] std::optional<std::string_view> next() {
        if (isDone_) return std::nullopt;
        const std::size_t start = offset_;
        for (std::size_t end = start; end < text_.size(); ++end) {
            const std::size_t width = breakWidth(end);
            if (width == 0) continue;
            offset_ = end + width;
            return text_.substr(start, end - start);
        }
        isDone_ = true;
        offset_ = text_.size();
        return text_.substr(start);
    }

    /// What follows the last line that was given.
    [[nodiscard]] std::string_view rest() const { return text_.substr(offset_); }

private:
    // Bytes of the line break at the offset, 0 when there is none.
    [[nodiscard]] std::size_t breakWidth(std::size_t offset) const {
        const char byte = text_[offset];
        if (byte >= '\n' && byte <= '\r') return text_.substr(offset, 2) == "\r\n" ? 2 : 1;
        if (byte == '\xC2') return text_.substr(offset, 2) == "\xC2\x85" ? 2 : 0;
        if (byte != '\xE2') return 0;
        const std::string_view three = text_.substr(offset, 3);
        return three == "\xE2\x80\xA8" || three == "\xE2\x80\xA9" ? 3 : 0;
    }

    std::string_view text_;
    std::size_t offset_ = 0;
    bool isDone_ = false;
};

/// The text without the characters at its ends.
[[nodiscard]] inline std::string_view trimmed(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace vellark
