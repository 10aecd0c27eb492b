#include <VellarkFoundation/JSON/CompactJSONWriter.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark {

namespace {

bool needsEscape(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

void appendEscape(std::string& text, char character) {
    switch (character) {
        case '\b':
            text += "\\b";
            return;
        case '\t':
            text += "\\t";
            return;
        case '\n':
            text += "\\n";
            return;
        case '\f':
            text += "\\f";
            return;
        case '\r':
            text += "\\r";
            return;
        case '"':
            text += "\\\"";
            return;
        case '\\':
            text += "\\\\";
            return;
        default:
            break;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    text += "\\u00";
    text += digits[static_cast<unsigned char>(character) >> 4];
    text += digits[static_cast<unsigned char>(character) & 0xF];
}

}  // namespace

void CompactJSONWriter::separate() {
    if (needsComma_) text_ += ',';
}

void CompactJSONWriter::begin(char bracket) {
    separate();
    text_ += bracket;
    needsComma_ = false;
}

void CompactJSONWriter::end(char bracket) {
    text_ += bracket;
    needsComma_ = true;
}

void CompactJSONWriter::raw(std::string_view text) {
    separate();
    text_ += text;
    needsComma_ = true;
}

void CompactJSONWriter::key(std::string_view key) {
    separate();
    quoted(key);
    text_ += ':';
    needsComma_ = false;
}

void CompactJSONWriter::integer(std::int64_t value) {
    raw(std::to_string(value));
}

bool CompactJSONWriter::number(double value) {
    const auto text = JSONNumberText::pythonRepr(value);
    if (text) raw(*text);
    return text.has_value();
}

void CompactJSONWriter::string(std::string_view text) {
    separate();
    if (UTF8::isValid(text)) {
        quoted(text);
    } else {
        quoted(UTF8::replacingInvalid(text));
    }
    needsComma_ = true;
}

void CompactJSONWriter::quoted(std::string_view text) {
    text_ += '"';
    std::size_t start = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (!needsEscape(text[index])) continue;
        text_ += text.substr(start, index - start);
        appendEscape(text_, text[index]);
        start = index + 1;
    }
    text_ += text.substr(start);
    text_ += '"';
}

}  // namespace vellark
