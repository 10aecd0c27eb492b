#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace vellark {

/// Writes JSON in the form that stored files have: no blanks, no line feed at the end, text as plain UTF-8 with only
/// '"', "\" and U+0000 to U+001F escaped. Equal values give equal bytes.
///
/// The caller opens and closes containers in the right order; commas are set by the writer.
class CompactJSONWriter {
public:
    /// Takes the next piece of the text, in its order.
    using Sink = std::function<void(std::string_view piece)>;

    /// Keeps the text for `takeText`.
    CompactJSONWriter() = default;

    /// Hands the text over in pieces of about a megabyte, so that a text of any length needs no more memory; the last
    /// one with `flush`.
    explicit CompactJSONWriter(Sink sink) : sink_(std::move(sink)) {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    void key(std::string_view key);

    void null() { raw("null"); }
    void boolean(bool value) { raw(value ? "true" : "false"); }
    void integer(std::int64_t value);

    /// The shortest digits that read back, as Python writes them. False, and nothing is written, for an infinity and
    /// for not-a-number.
    [[nodiscard]] bool number(double value);

    /// Ill-formed UTF-8 is written as U+FFFD.
    void string(std::string_view text);

    /// Hands over what has not been yet.
    void flush();

    /// The whole text. Only without a sink.
    [[nodiscard]] std::string takeText() {
        buffer_.resize(std::exchange(size_, 0));
        return std::move(buffer_);
    }

private:
    void begin(char bracket);
    void end(char bracket);
    void raw(std::string_view text);
    void quoted(std::string_view text);

    /// Place for that many bytes behind the text.
    char* room(std::size_t count) {
        if (count > buffer_.size() - size_) grow(count);
        return buffer_.data() + size_;
    }
    void append(std::string_view text) {
        std::memcpy(room(text.size()), text.data(), text.size());
        size_ += text.size();
    }
    void grow(std::size_t count);

    // The text is the first `size_` bytes of the buffer, which is filled up beforehand so that each write is a plain
    // copy.
    std::string buffer_;
    std::size_t size_ = 0;
    bool needsComma_ = false;  // a value stands before the place where the next one goes
    Sink sink_;
};

}  // namespace vellark
