#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vellark {

/// UTF-8 as the whole system reads it. Text that is not well-formed never fails here: each maximal ill-formed subpart
/// (as Unicode defines it for U+FFFD replacement) counts as one U+FFFD.
namespace UTF8 {

inline constexpr char32_t replacementScalar = 0xFFFD;

/// One scalar as it stands in a text.
struct Decoded {
    char32_t scalar = 0;          ///< U+FFFD for an ill-formed subpart
    std::uint32_t byteCount = 0;  ///< bytes that it takes up in the text, 1 to 4
    bool wellFormed = true;       ///< false tells an ill-formed subpart from a U+FFFD that was written

    bool operator==(const Decoded&) const = default;
};

/// The scalar that is not ASCII at `offset`. For `decode` alone, which answers ASCII without a call.
[[nodiscard]] Decoded decodeMultibyte(std::string_view text, std::size_t offset);

/// The scalar that begins at byte `offset`, which must lie inside the text.
[[nodiscard]] inline Decoded decode(std::string_view text, std::size_t offset) {
    const auto lead = static_cast<unsigned char>(text[offset]);
    if (lead < 0x80) return {lead, 1, true};
    return decodeMultibyte(text, offset);
}

/// Appends the scalar in UTF-8. A surrogate or a value above U+10FFFF is appended as U+FFFD.
void append(std::string& text, char32_t scalar);

/// True when the text is well-formed: no overlong form, no surrogate, nothing above U+10FFFF, nothing cut off.
[[nodiscard]] bool isValid(std::string_view text);

/// The text itself when it is well-formed; otherwise with each ill-formed subpart replaced by U+FFFD.
[[nodiscard]] std::string replacingInvalid(std::string_view text);

/// Number of scalars, each ill-formed subpart counting as one.
[[nodiscard]] std::size_t scalarCount(std::string_view text);

/// True when every byte is below 0x80. An empty text is ASCII.
[[nodiscard]] bool isASCII(std::string_view text);

/// Byte offset at which the scalar before byte `end` begins; `end` must be above 0. Walks back over at most three
/// bytes, and only over a sequence that `decode` reads as a whole.
[[nodiscard]] std::size_t previousOffset(std::string_view text, std::size_t end);

}  // namespace UTF8

/// Walks the scalars of a text: `for (char32_t scalar : Scalars(text))`. The text must outlive the walk.
class Scalars {
public:
    class Iterator {
    public:
        Iterator(std::string_view text, std::size_t offset) : text_(text), offset_(offset) { read(); }

        char32_t operator*() const { return current_.scalar; }

        Iterator& operator++() {
            offset_ += current_.byteCount;
            read();
            return *this;
        }

        bool operator==(const Iterator& other) const { return offset_ == other.offset_; }

        /// Byte offset of the current scalar.
        [[nodiscard]] std::size_t offset() const { return offset_; }

        /// Bytes that the current scalar takes up.
        [[nodiscard]] std::size_t byteCount() const { return current_.byteCount; }

    private:
        void read() {
            if (offset_ < text_.size()) current_ = UTF8::decode(text_, offset_);
        }

        std::string_view text_;
        std::size_t offset_;
        UTF8::Decoded current_;
    };

    explicit Scalars(std::string_view text) : text_(text) {}

    [[nodiscard]] Iterator begin() const { return {text_, 0}; }
    [[nodiscard]] Iterator end() const { return {text_, text_.size()}; }

private:
    std::string_view text_;
};

}  // namespace vellark
