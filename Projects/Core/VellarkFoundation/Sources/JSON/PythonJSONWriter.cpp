#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <utility>

namespace vellark {

namespace {

bool standsForItself(char character) {
    return character >= ' ' && character <= '~' && character != '"' && character != '\\';
}

/// One pass over a value. Its methods give false as soon as something cannot be written.
class Writer {
public:
    explicit Writer(const PythonJSONWriter::Options& options) : options_(options) {}

    std::string takeText() { return std::move(text_); }

    bool write(const JSONValue& value) {
        return value.visit([this](const auto& content) { return writeContent(content); });
    }

private:
    bool writeContent(std::nullptr_t) {
        text_ += "null";
        return true;
    }

    bool writeContent(bool value) {
        text_ += value ? "true" : "false";
        return true;
    }

    bool writeContent(const JSONNumber& number) {
        const auto text = JSONNumberText::pythonText(number.literal);
        if (text) text_ += *text;
        return text.has_value();
    }

    bool writeContent(const std::string& string) {
        text_ += '"';
        std::string_view rest = string;
        while (!rest.empty()) {
            const auto plainEnd = std::ranges::find_if_not(rest, standsForItself);
            const auto plainCount = static_cast<std::size_t>(plainEnd - rest.begin());
            text_ += rest.substr(0, plainCount);
            rest.remove_prefix(plainCount);
            if (rest.empty()) break;
            const UTF8::Decoded decoded = UTF8::decode(rest, 0);
            writeEscape(decoded.scalar);
            rest.remove_prefix(decoded.byteCount);
        }
        text_ += '"';
        return true;
    }

    bool writeContent(const JSONArray& array) {
        text_ += '[';
        bool isFirst = true;
        for (const JSONValue& element : array) {
            if (!std::exchange(isFirst, false)) text_ += ", ";
            if (!write(element)) return false;
        }
        text_ += ']';
        return true;
    }

    bool writeContent(const JSONObject& object) {
        text_ += '{';
        bool isFirst = true;
        for (const JSONMember* member : ordered(object)) {
            if (!std::exchange(isFirst, false)) text_ += ", ";
            writeContent(member->key);
            text_ += ": ";
            if (!write(member->value)) return false;
        }
        text_ += '}';
        return true;
    }

    // The order of UTF-8 bytes is the order of scalars.
    [[nodiscard]] std::vector<const JSONMember*> ordered(const JSONObject& object) const {
        std::vector<const JSONMember*> members;
        members.reserve(object.members().size());
        for (const JSONMember& member : object.members()) {
            members.push_back(&member);
        }
        if (options_.sortKeys)
            std::ranges::sort(members, {}, [](const JSONMember* member) -> const std::string& { return member->key; });
        return members;
    }

    void writeEscape(char32_t scalar) {
        switch (scalar) {
            case '\b':
                text_ += "\\b";
                return;
            case '\t':
                text_ += "\\t";
                return;
            case '\n':
                text_ += "\\n";
                return;
            case '\f':
                text_ += "\\f";
                return;
            case '\r':
                text_ += "\\r";
                return;
            case '"':
                text_ += "\\\"";
                return;
            case '\\':
                text_ += "\\\\";
                return;
            default:
                break;
        }
        if (scalar < 0x10000) return writeUnit(scalar);
        writeUnit(0xD800 + ((scalar - 0x10000) >> 10));
        writeUnit(0xDC00 + ((scalar - 0x10000) & 0x3FF));
    }

    void writeUnit(char32_t unit) {
        constexpr std::string_view digits = "0123456789abcdef";
        text_ += "\\u";
        for (int shift = 12; shift >= 0; shift -= 4) {
            text_ += digits[(unit >> shift) & 0xF];
        }
    }

    const PythonJSONWriter::Options& options_;
    std::string text_;
};

}  // namespace

std::optional<std::string> PythonJSONWriter::write(const JSONValue& value, const Options& options) {
    Writer writer(options);
    if (!writer.write(value)) return std::nullopt;
    return writer.takeText();
}

}  // namespace vellark
