#include <VellarkFoundation/JSON/JSONCursor.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>

#include <bitset>
#include <charconv>
#include <cmath>

namespace vellark {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

const char* endOfDigits(const char* next, const char* end) {
    while (next != end && isDigit(*next)) {
        ++next;
    }
    return next;
}

/// The end of the number that begins here, and whether it has a fraction or an exponent. A null pointer when there is
/// none.
const char* endOfNumber(const char* next, const char* end, bool& isInteger) {
    if (next != end && *next == '-') ++next;
    if (next == end || !isDigit(*next)) return nullptr;
    next = *next == '0' ? next + 1 : endOfDigits(next, end);
    isInteger = true;
    if (next != end && *next == '.') {
        isInteger = false;
        const char* const start = ++next;
        next = endOfDigits(next, end);
        if (next == start) return nullptr;
    }
    if (next != end && (*next == 'e' || *next == 'E')) {
        isInteger = false;
        ++next;
        if (next != end && (*next == '+' || *next == '-')) ++next;
        const char* const start = next;
        next = endOfDigits(next, end);
        if (next == start) return nullptr;
    }
    return next;
}

}  // namespace

bool JSONCursor::literal(std::string_view word) {
    if (remaining() < word.size() || std::string_view(next_, word.size()) != word) return false;
    next_ += word.size();
    skipBlanks();
    return true;
}

bool JSONCursor::boolean(bool& value) {
    value = isAt('t');
    return literal(value ? "true" : "false");
}

bool JSONCursor::string(std::string& value) {
    if (!isAt('"')) return false;
    const std::size_t start = offset() + 1;
    const std::size_t end = JSONStringScan::endOfPlain(text_, start);
    if (end == text_.size()) return false;
    if (text_[end] == '"') {
        value.assign(text_, start, end - start);
        next_ = text_.data() + end;
    } else {
        const auto close = JSONStringScan::closingQuote(text_, end);
        if (!close) return false;
        value = JSONStringScan::decoded(text_.substr(start, *close - start));
        next_ = text_.data() + *close;
    }
    return take('"');
}

bool JSONCursor::plainString(StringNode& node) {
    if (!isAt('"')) return false;
    const std::size_t start = offset() + 1;
    const std::size_t end = JSONStringScan::endOfPlain(text_, start);
    if (end == text_.size() || text_[end] != '"' || end - start > UINT32_MAX) return false;
    node.storage.kind = JSONKind::string;
    node.storage.text = text_.data() + start;
    node.storage.size = static_cast<std::uint32_t>(end - start);
    next_ = text_.data() + end;
    return take('"');
}

bool JSONCursor::integer(std::int64_t& value) {
    std::string_view digits;
    if (!number(digits)) return false;
    const auto read = JSONNumberText::exactInteger(digits);
    value = read.value_or(0);
    return read.has_value();
}

bool JSONCursor::number(std::string_view& digits) {
    bool isInteger = false;
    const char* const end = endOfNumber(next_, end_, isInteger);
    if (end == nullptr) return false;
    digits = std::string_view(next_, static_cast<std::size_t>(end - next_));
    if (!isInteger && std::isinf(JSONNumberText::nearestDouble(digits))) return false;
    next_ = end;
    skipBlanks();
    return true;
}

bool JSONCursor::skipString() {
    if (!isAt('"')) return false;
    const auto close = JSONStringScan::closingQuote(text_, offset() + 1);
    if (!close) return false;
    next_ = text_.data() + *close;
    return take('"');
}

bool JSONCursor::skipScalar() {
    if (isAt('"')) return skipString();
    if (isAt('n')) return null();
    bool truth = false;
    if (isAt('t') || isAt('f')) return boolean(truth);
    std::string_view digits;
    return number(digits);
}

// Without recursion: of the containers that were opened here, one bit each says whether it is an object.
bool JSONCursor::skipValue() {
    const std::size_t start = depth_;
    std::bitset<JSONDocument::maximumDepth + 1> isObject;
    const auto skipKey = [&] { return skipString() && take(':'); };
    while (true) {
        const bool opensObject = isAt('{');
        if (opensObject || isAt('[')) {
            if (!open(opensObject ? '{' : '[')) return false;
            isObject[depth_] = opensObject;
            if (!isAt(opensObject ? '}' : ']')) {
                if (opensObject && !skipKey()) return false;
                continue;
            }
        } else if (!skipScalar()) {
            return false;
        }
        while (depth_ > start && (isObject[depth_] ? isAt('}') : isAt(']'))) {
            close(*next_);
        }
        if (depth_ == start) return true;
        if (!(isObject[depth_] ? endMember() && skipKey() : endElement())) return false;
    }
}

}  // namespace vellark
