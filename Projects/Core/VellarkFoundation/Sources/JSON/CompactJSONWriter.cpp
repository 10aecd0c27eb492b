#include <VellarkFoundation/JSON/CompactJSONWriter.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/JSON/JSONStringScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <array>
#include <charconv>

namespace vellark {

namespace {

/// Bytes that are gathered before the sink gets them.
constexpr std::size_t pieceBytes = std::size_t{1} << 20;

std::string_view escapeOf(char character, std::array<char, 6>& scratch) {
    switch (character) {
        case '\b':
            return "\\b";
        case '\t':
            return "\\t";
        case '\n':
            return "\\n";
        case '\f':
            return "\\f";
        case '\r':
            return "\\r";
        case '"':
            return "\\\"";
        case '\\':
            return "\\\\";
        default:
            break;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(character);
    scratch = {'\\', 'u', '0', '0', digits[byte >> 4], digits[byte & 0xF]};
    return {scratch.data(), scratch.size()};
}

}  // namespace

void CompactJSONWriter::flush() {
    if (sink_) sink_(std::string_view(buffer_).substr(0, std::exchange(size_, 0)));
}

void CompactJSONWriter::grow(std::size_t count) {
    if (sink_ && size_ >= pieceBytes / 2) flush();
    const std::size_t wanted = size_ + count;
    if (wanted > buffer_.capacity()) buffer_.reserve(std::max(wanted, 2 * buffer_.capacity()));
    if (wanted > buffer_.size()) buffer_.resize(std::max(wanted, std::min(buffer_.capacity(), size_ + pieceBytes)));
}

void CompactJSONWriter::begin(char bracket) {
    char* const place = room(2);
    *place = ',';
    place[needsComma_ ? 1 : 0] = bracket;
    size_ += needsComma_ ? 2 : 1;
    needsComma_ = false;
}

void CompactJSONWriter::end(char bracket) {
    *room(1) = bracket;
    ++size_;
    needsComma_ = true;
}

void CompactJSONWriter::raw(std::string_view text) {
    if (needsComma_) append(",");
    append(text);
    needsComma_ = true;
}

void CompactJSONWriter::key(std::string_view key) {
    string(key);
    append(":");
    needsComma_ = false;
}

void CompactJSONWriter::integer(std::int64_t value) {
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    raw({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

bool CompactJSONWriter::number(double value) {
    const auto text = JSONNumberText::pythonRepr(value);
    if (text) raw(*text);
    return text.has_value();
}

void CompactJSONWriter::string(std::string_view text) {
    if (needsComma_) append(",");
    needsComma_ = true;
    if (JSONStringScan::isPlainASCII(text)) {
        char* const place = room(text.size() + 2);
        place[0] = '"';
        std::memcpy(place + 1, text.data(), text.size());
        place[text.size() + 1] = '"';
        size_ += text.size() + 2;
    } else if (UTF8::isValid(text)) {
        quoted(text);
    } else {
        quoted(UTF8::replacingInvalid(text));
    }
}

void CompactJSONWriter::quoted(std::string_view text) {
    append("\"");
    std::array<char, 6> scratch{};
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t end = JSONStringScan::endOfPlain(text, offset);
        append(text.substr(offset, end - offset));
        if (end < text.size()) append(escapeOf(text[end], scratch));
        offset = end + 1;
    }
    append("\"");
}

}  // namespace vellark
