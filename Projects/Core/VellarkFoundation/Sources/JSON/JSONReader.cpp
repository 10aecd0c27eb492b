#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/src.hpp>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

// Boost.JSON's event parser checks the grammar and calls the ValueBuilder below, which builds values on a stack of its
// own. UTF-8 is checked before it, for the whole text at once: that pass is several times as fast as the parser's own
// check, and lets the parser take its quick path through texts that are not English.

namespace vellark {

namespace {

namespace json = boost::json;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// A container that is still open.
struct Frame {
    bool isObject = false;
    JSONArray elements;
    std::vector<JSONMember> members;
    std::string key;                           // of the member whose value comes next
    std::span<const JSONSelection> keep;       // empty: every member
    std::span<const JSONSelection> keepBelow;  // what an object under `key` keeps
};

/// Turns parser events into a value.
class ValueBuilder {
public:
    // The parser asks for limits; the text's own length is the only one here.
    static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_key_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_string_size = static_cast<std::size_t>(-1);

    explicit ValueBuilder(std::span<const JSONSelection> keep) : keepAtTop_(keep) {}

    JSONValue takeValue() { return std::move(top_); }

    bool on_document_begin(json::error_code&) { return true; }
    bool on_document_end(json::error_code&) { return true; }

    bool on_object_begin(json::error_code&) { return begin(true); }
    bool on_object_end(std::size_t, json::error_code&) { return end(); }
    bool on_array_begin(json::error_code&) { return begin(false); }
    bool on_array_end(std::size_t, json::error_code&) { return end(); }

    bool on_key_part(json::string_view part, std::size_t, json::error_code&) { return append(part); }
    bool on_key(json::string_view part, std::size_t, json::error_code&) {
        append(part);
        if (skippedDepth_ == 0) nameNextMember();
        return true;
    }

    bool on_string_part(json::string_view part, std::size_t, json::error_code&) { return append(part); }
    bool on_string(json::string_view part, std::size_t, json::error_code&) {
        append(part);
        return emit([&] { return JSONValue(std::exchange(text_, {})); });
    }

    bool on_number_part(json::string_view part, json::error_code&) {
        number_.append(part.data(), part.size());
        return true;
    }
    bool on_int64(std::int64_t, json::string_view part, json::error_code& error) { return onNumber(part, error); }
    bool on_uint64(std::uint64_t, json::string_view part, json::error_code& error) { return onNumber(part, error); }
    bool on_double(double, json::string_view part, json::error_code& error) { return onNumber(part, error); }

    bool on_bool(bool value, json::error_code&) {
        return emit([&] { return JSONValue(value); });
    }
    bool on_null(json::error_code&) {
        return emit([] { return JSONValue(); });
    }

    bool on_comment_part(json::string_view, json::error_code&) { return true; }
    bool on_comment(json::string_view, json::error_code&) { return true; }

private:
    [[nodiscard]] bool isSkipping() const { return skippedDepth_ > 0 || skipsNextValue_; }

    bool append(json::string_view part) {
        if (!isSkipping()) text_.append(part.data(), part.size());
        return true;
    }

    void nameNextMember() {
        Frame& frame = frames_.back();
        frame.key = std::exchange(text_, {});
        frame.keepBelow = {};
        if (frame.keep.empty()) return;
        const auto found = std::ranges::find(frame.keep, frame.key, &JSONSelection::key);
        if (found == frame.keep.end()) {
            skipsNextValue_ = true;
        } else {
            frame.keepBelow = found->members;
        }
    }

    bool begin(bool isObject) {
        if (isSkipping()) {
            skipsNextValue_ = false;
            ++skippedDepth_;
            return true;
        }
        Frame frame;
        frame.isObject = isObject;
        if (isObject) {
            if (frames_.empty()) frame.keep = keepAtTop_;
            if (!frames_.empty() && frames_.back().isObject) frame.keep = frames_.back().keepBelow;
        }
        frames_.push_back(std::move(frame));
        return true;
    }

    bool end() {
        if (skippedDepth_ > 0) {
            --skippedDepth_;
            return true;
        }
        Frame frame = std::move(frames_.back());
        frames_.pop_back();
        return emit([&] {
            return frame.isObject ? JSONValue(JSONObject::fromMembers(std::move(frame.members)))
                                  : JSONValue(std::move(frame.elements));
        });
    }

    bool onNumber(json::string_view part, json::error_code& error) {
        number_.append(part.data(), part.size());
        JSONNumber number{std::exchange(number_, {})};
        if (!number.isInteger() && std::isinf(number.asDouble())) {
            error = json::error::exponent_overflow;
            return false;
        }
        return emit([&] { return JSONValue(std::move(number)); });
    }

    // Puts a finished value where it belongs, unless it is one that nobody keeps.
    template <class Make>
    bool emit(Make make) {
        if (skippedDepth_ > 0) return true;
        if (std::exchange(skipsNextValue_, false)) return true;
        if (frames_.empty()) {
            top_ = make();
        } else if (Frame& frame = frames_.back(); frame.isObject) {
            JSONValue value = make();
            frame.members.push_back({std::move(frame.key), std::move(value)});
        } else {
            frame.elements.push_back(make());
        }
        return true;
    }

    std::span<const JSONSelection> keepAtTop_;
    std::vector<Frame> frames_;
    JSONValue top_;
    std::string text_;              // the string or key that is being read
    std::string number_;            // the number that is being read
    std::size_t skippedDepth_ = 0;  // containers open inside a value that nobody keeps
    bool skipsNextValue_ = false;   // the next value belongs to a key that nobody keeps
};

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The parser counts exponents in an int and gives up where that overflows, although the value is plain zero behind a
/// zero mantissa or a minus. An exponent of more than seven digits means the same as 9,999,999 in any text that fits in
/// memory with it; the digits are overwritten in place, so that offsets stay true.
std::string clampingExponents(std::string_view text) {
    std::string clamped(text);
    bool inString = false;
    for (std::size_t index = 0; index < clamped.size(); ++index) {
        const char character = clamped[index];
        if (inString && character == '\\') ++index;
        if (character == '"') inString = !inString;
        const bool marksExponent =
            !inString && (character == 'e' || character == 'E') && index > 0 && isDigit(clamped[index - 1]);
        if (!marksExponent) continue;
        std::size_t start = index + 1;
        if (start < clamped.size() && (clamped[start] == '+' || clamped[start] == '-')) ++start;
        std::size_t end = start;
        while (end < clamped.size() && isDigit(clamped[end]))
            ++end;
        const std::size_t firstSignificant = std::min(clamped.find_first_not_of('0', start), end);
        if (end - firstSignificant > 7) {
            clamped.replace(start, end - start, std::string(end - start - 7, '0') + "9999999");
        }
        index = end - 1;
    }
    return clamped;
}

struct Parse {
    std::optional<JSONValue> value;
    std::size_t byteOffset = 0;  // where it stopped
    bool exponentOverflow = false;
};

Parse parse(std::string_view text, std::span<const JSONSelection> keep) {
    json::parse_options options;
    options.max_depth = JSONReader::maximumDepth;
    options.allow_invalid_utf8 = true;  // checked before
    json::basic_parser<ValueBuilder> parser(options, keep);
    json::error_code error;
    const std::size_t consumed = parser.write_some(false, text.data(), text.size(), error);
    if (error) return {{}, consumed, error == json::error::exponent_overflow};
    if (const auto rest = withoutBlanks(text.substr(consumed)); !rest.empty()) return {{}, text.size() - rest.size()};
    return {parser.handler().takeValue(), consumed};
}

}  // namespace

Result<JSONValue, JSONError> JSONReader::read(std::string_view text, const Options& options) {
    const std::size_t skipped = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    text.remove_prefix(skipped);
    if (!UTF8::isValid(text)) return failure(JSONError{skipped});
    const std::string_view content = withoutBlanks(text);
    const bool isContainer = content.starts_with('{') || content.starts_with('[');
    if (!options.fragments && !isContainer) return failure(JSONError{skipped + text.size() - content.size()});

    Parse result = parse(text, options.keep);
    if (result.exponentOverflow) result = parse(clampingExponents(text), options.keep);
    if (!result.value) return failure(JSONError{skipped + result.byteOffset});
    return std::move(*result.value);
}

}  // namespace vellark
