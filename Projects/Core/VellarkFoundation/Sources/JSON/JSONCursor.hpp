#pragma once

#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/JSON/JSONStringScan.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Walks through a JSON text from value to value, for readers that know what comes next. It is as strict as
/// JSONDocument on all that it passes over.
///
/// Each step says whether the text was as expected. After a false the place is unspecified, and the caller gives up or
/// goes back to an earlier offset. The text must be well-formed UTF-8 without a byte order mark, and outlive the
/// cursor.
class JSONCursor {
public:
    explicit JSONCursor(std::string_view text) : text_(text), next_(text.data()), end_(text.data() + text.size()) {
        skipBlanks();
    }

    [[nodiscard]] std::size_t offset() const { return static_cast<std::size_t>(next_ - text_.data()); }
    [[nodiscard]] std::size_t remaining() const { return static_cast<std::size_t>(end_ - next_); }
    [[nodiscard]] std::string_view rest() const { return {next_, remaining()}; }
    [[nodiscard]] bool isAtEnd() const { return next_ == end_; }

    /// Containers that are open here.
    [[nodiscard]] std::size_t depth() const { return depth_; }

    /// Goes back to where an earlier `offset` and `depth` were taken.
    void returnTo(std::size_t offset, std::size_t depth) {
        next_ = text_.data() + offset;
        depth_ = depth;
    }

    /// Whether the next character is this one. Blanks have been passed over already, always.
    [[nodiscard]] bool isAt(char character) const { return next_ != end_ && *next_ == character; }

    bool open(char bracket) {
        if (!take(bracket) || depth_ == JSONDocument::maximumDepth) return false;
        ++depth_;
        return true;
    }
    bool close(char bracket) {
        if (!take(bracket)) return false;
        --depth_;
        return true;
    }

    /// Behind a value of an object: true at the next key and at the object's end.
    bool endMember() {
        if (take(',')) return isAt('"');
        return isAt('}');
    }

    /// Behind an element: true at the next one and at the array's end.
    bool endElement() {
        if (take(',')) return !isAt(']');
        return isAt(']');
    }

    /// Passes over the key when it is this one, written without escapes. Otherwise false, and the place stays; it also
    /// stays when no colon follows, which no step but this one passes over.
    [[gnu::always_inline]] bool takeKey(std::string_view key) {
        const std::size_t size = key.size();
        if (remaining() < size + 3 || next_[0] != '"' || next_[size + 1] != '"') return false;
        if (std::char_traits<char>::compare(next_ + 1, key.data(), size) != 0) return false;
        const char* const start = next_;
        next_ += size + 2;
        if (*next_ == ':') [[likely]] {
            ++next_;
            if (next_ != end_ && static_cast<unsigned char>(*next_) <= ' ') skipBlanks();
            return true;
        }
        skipBlanks();
        if (take(':')) return true;
        next_ = start;
        return false;
    }

    /// The next key and its colon.
    bool takeAnyKey(std::string& key) { return string(key) && take(':'); }

    bool null() { return literal("null"); }
    bool boolean(bool& value);
    bool string(std::string& value);
    bool integer(std::int64_t& value);

    /// The digits of a number. False also for one with a fraction or an exponent that no finite double is near to.
    bool number(std::string_view& digits);

    /// Passes over any value. Its text is what lies between the offsets before and after, and perhaps blanks.
    bool skipValue();

    /// A view of a string without escapes, for readers that take nodes; it must be used before the node's `storage` or
    /// the text goes. False, and the place stays, at any other value.
    struct StringNode {
        JSONNode::Token storage;
        [[nodiscard]] JSONNode node() const { return JSONNode(&storage); }
    };
    bool plainString(StringNode& node);

private:
    void skipBlanks() {
        while (next_ != end_ && (*next_ == ' ' || *next_ == '\n' || *next_ == '\r' || *next_ == '\t')) {
            ++next_;
        }
    }
    bool take(char character) {
        if (!isAt(character)) return false;
        ++next_;
        if (next_ != end_ && static_cast<unsigned char>(*next_) <= ' ') skipBlanks();
        return true;
    }
    bool literal(std::string_view word);
    bool skipString();
    bool skipScalar();

    std::string_view text_;
    const char* next_;
    const char* end_;
    std::size_t depth_ = 0;
};

}  // namespace vellark
