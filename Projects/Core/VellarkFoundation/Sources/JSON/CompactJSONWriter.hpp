#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vellark {

/// Writes JSON in the form that stored files have: no blanks, no line feed at the end, text as plain UTF-8 with only
/// '"', "\" and U+0000 to U+001F escaped. Equal values give equal bytes.
///
/// The caller opens and closes containers in the right order; commas are set by the writer.
class CompactJSONWriter {
public:
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

    [[nodiscard]] std::string takeText() { return std::move(text_); }

private:
    void separate();
    void begin(char bracket);
    void end(char bracket);
    void raw(std::string_view text);
    void quoted(std::string_view text);

    std::string text_;
    bool needsComma_ = false;  // a value stands before the place where the next one goes
};

}  // namespace vellark
