// One pass checks the grammar and writes at once. What may come next is one of five states; the containers that are
// open are a stack of 64 bits.

#include <VellarkDomain/Conversations/Code/JSONPrinter.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <bitset>
#include <string_view>

namespace vellark {

namespace {

constexpr std::size_t maximumDepth = 64;
constexpr std::size_t maximumIndentLevels = 16;
constexpr std::size_t blanksPerLevel = 2;

class Printer {
public:
    explicit Printer(std::string_view text) : text_(text) { result_.text.reserve(text.size() + text.size() / 4); }

    std::optional<PrintedJSON> run() {
        skipSpace();
        if (!isAt('{') && !isAt('[')) return std::nullopt;
        result_.isObject = isAt('{');
        if (!values()) return std::nullopt;
        skipSpace();
        if (position_ != text_.size()) return std::nullopt;
        return std::move(result_);
    }

private:
    bool atEnd() const { return position_ == text_.size(); }
    bool isAt(char expected) const { return !atEnd() && text_[position_] == expected; }
    bool isDigitAt() const { return !atEnd() && text_[position_] >= '0' && text_[position_] <= '9'; }

    void skipSpace() {
        while (!atEnd() && (text_[position_] == ' ' || (text_[position_] >= '\t' && text_[position_] <= '\r' &&
                                                        text_[position_] != '\v' && text_[position_] != '\f'))) {
            ++position_;
        }
    }

    bool inObject() const { return objects_[depth_ - 1]; }

    // The outermost value with all that it holds.
    bool values() {
        do {
            if (!value()) return false;
            if (!closeEnded()) return false;
        } while (depth_ > 0);
        return true;
    }

    // One value, or the opening of a container up to where its first value stands.
    bool value() {
        skipSpace();
        if (isAt('{') || isAt('[')) return open();
        if (depth_ == 1) result_.count = std::max<std::size_t>(result_.count, 1);
        isComplete_ = true;
        if (isAt('"')) return string();
        if (isAt('t')) return literal("true");
        if (isAt('f')) return literal("false");
        if (isAt('n')) return literal("null");
        return number();
    }

    bool open() {
        if (depth_ == 1) result_.count = std::max<std::size_t>(result_.count, 1);
        if (depth_ == maximumDepth) return false;
        const bool isObject = isAt('{');
        put(text_[position_++]);
        objects_[depth_++] = isObject;
        skipSpace();
        isComplete_ = isAt(isObject ? '}' : ']');
        if (isComplete_) {
            put(text_[position_++]);
            --depth_;
            return true;
        }
        newLine();
        return !isObject || key();
    }

    // Behind a complete value: a comma and where the next value stands, or the ends of containers.
    bool closeEnded() {
        while (isComplete_ && depth_ > 0) {
            skipSpace();
            if (isAt(',')) return next();
            if (!isAt(inObject() ? '}' : ']')) return false;
            --depth_;
            newLine();
            put(text_[position_++]);
        }
        return true;
    }

    bool next() {
        if (depth_ == 1) ++result_.count;
        put(text_[position_++]);
        newLine();
        return !inObject() || key();
    }

    bool key() {
        skipSpace();
        if (!isAt('"') || !string()) return false;
        skipSpace();
        if (!isAt(':')) return false;
        ++position_;
        result_.text += ": ";
        return true;
    }

    bool literal(std::string_view word) {
        if (text_.compare(position_, word.size(), word) != 0) return false;
        copy(word.size());
        return true;
    }

    bool number() {
        const std::size_t start = position_;
        if (isAt('-')) ++position_;
        if (isAt('0')) {
            ++position_;
        } else if (!digits()) {
            return false;
        }
        if (isAt('.')) {
            ++position_;
            if (!digits()) return false;
        }
        if (isAt('e') || isAt('E')) {
            ++position_;
            if (isAt('+') || isAt('-')) ++position_;
            if (!digits()) return false;
        }
        result_.text.append(text_, start, position_ - start);
        return true;
    }

    bool digits() {
        const std::size_t start = position_;
        while (isDigitAt())
            ++position_;
        return position_ > start;
    }

    bool string() {
        std::size_t end = position_ + 1;
        while (end < text_.size() && text_[end] != '"') {
            if (static_cast<unsigned char>(text_[end]) < 0x20) return false;
            if (text_[end] != '\\') {
                ++end;
            } else if (const std::size_t length = escapeLength(end); length > 0) {
                end += length;
            } else {
                return false;
            }
        }
        if (end >= text_.size()) return false;
        copy(end + 1 - position_);
        return true;
    }

    // Bytes of the escape at the position, 0 for what is none.
    std::size_t escapeLength(std::size_t position) const {
        if (position + 1 >= text_.size()) return 0;
        if (text_[position + 1] != 'u') {
            return std::string_view("\"\\/bfnrt").find(text_[position + 1]) == std::string_view::npos ? 0 : 2;
        }
        const std::string_view digits = text_.substr(std::min(position + 2, text_.size()), 4);
        const bool isHexadecimal =
            digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos && digits.size() == 4;
        return isHexadecimal ? 6 : 0;
    }

    void put(char character) { result_.text += character; }

    void copy(std::size_t length) {
        result_.text.append(text_, position_, length);
        position_ += length;
    }

    void newLine() {
        put('\n');
        result_.text.append(blanksPerLevel * std::min(depth_, maximumIndentLevels), ' ');
    }

    std::string_view text_;
    std::size_t position_ = 0;
    PrintedJSON result_;
    std::bitset<maximumDepth> objects_;  // of the open containers, which are objects
    std::size_t depth_ = 0;
    bool isComplete_ = false;  // the last value is whole, not the opening of a container
};

}  // namespace

std::optional<PrintedJSON> printJSON(std::string_view text) {
    if (!UTF8::isValid(text)) return std::nullopt;
    return Printer(text).run();
}

}  // namespace vellark
