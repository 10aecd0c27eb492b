#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/JSON/JSONStringScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

// The parser and what it stands on. The rest of the library (boost/json/src.hpp) would bring the standard streams, and
// with them most of a static program's size.
#define BOOST_JSON_SOURCE
#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/detail/impl/default_resource.ipp>
#include <boost/json/detail/impl/except.ipp>
#include <boost/json/detail/impl/shared_resource.ipp>
#include <boost/json/detail/impl/stack.ipp>
#include <boost/json/impl/error.ipp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

// Boost.JSON's event parser checks the grammar and calls the JSONDocumentBuilder below, which lays the values out as
// tokens. UTF-8 is checked before it, for the whole text at once: that pass is several times as fast as the parser's
// own check, and lets the parser take its quick path through texts that are not English.

namespace vellark {

namespace json = boost::json;

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

}  // namespace

/// Turns parser events into tokens. A container's token is completed when the container ends.
class JSONDocumentBuilder {
public:
    // The parser asks for limits; the text's own length is the only one here.
    static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_key_size = static_cast<std::size_t>(-1);
    static constexpr std::size_t max_string_size = static_cast<std::size_t>(-1);

    JSONDocumentBuilder(std::string_view source, std::span<const JSONSelection> keep)
        : source_(source), keepAtTop_(keep) {
        frames_.reserve(16);
        document_.tokens_.reserve(64);
    }

    JSONDocument takeDocument() { return std::move(document_); }

    /// Whether the text that is being read, or is about to be, is one that nobody keeps.
    [[nodiscard]] bool dropsText() const { return skippedDepth_ > 0 || skipsNextValue_; }

    bool on_document_begin(json::error_code&) { return true; }
    bool on_document_end(json::error_code&) { return true; }

    bool on_object_begin(json::error_code&) { return begin(JSONKind::object); }
    bool on_object_end(std::size_t count, json::error_code&) { return end(count); }
    bool on_array_begin(json::error_code&) { return begin(JSONKind::array); }
    bool on_array_end(std::size_t count, json::error_code&) { return end(count); }

    bool on_key_part(json::string_view part, std::size_t, json::error_code&) { return collect(part); }
    bool on_key(json::string_view part, std::size_t, json::error_code&) {
        if (skippedDepth_ > 0) return true;
        const std::string_view key = finishText(part);
        if (selects(key)) {
            add(JSONKind::string, key);
            ++frames_.back().keptCount;
        }
        return true;
    }

    bool on_string_part(json::string_view part, std::size_t, json::error_code&) { return collect(part); }
    bool on_string(json::string_view part, std::size_t, json::error_code&) {
        if (!skips()) add(JSONKind::string, finishText(part));
        return true;
    }

    bool on_number_part(json::string_view part, json::error_code&) { return collect(part); }
    bool on_int64(std::int64_t, json::string_view part, json::error_code&) { return addNumber(part); }
    bool on_uint64(std::uint64_t, json::string_view part, json::error_code&) { return addNumber(part); }
    bool on_double(double, json::string_view part, json::error_code& error) {
        // Integers too long for 64 bits come here as well. Numbers are never long, so that a skipped one may be read.
        const bool isWhole = collected_.empty();
        const std::string joined = isWhole ? std::string() : collected_ + std::string(part.data(), part.size());
        const std::string_view literal = isWhole ? std::string_view(part.data(), part.size()) : joined;
        if (!JSONNumberText::isInteger(literal) && std::isinf(JSONNumberText::nearestDouble(literal))) {
            error = json::error::exponent_overflow;
            return false;
        }
        return addNumber(part);
    }

    bool on_bool(bool value, json::error_code&) {
        if (!skips()) add(JSONKind::boolean, {}).count = value ? 1 : 0;
        return true;
    }
    bool on_null(json::error_code&) {
        if (!skips()) add(JSONKind::null, {});
        return true;
    }

    bool on_comment_part(json::string_view, json::error_code&) { return true; }
    bool on_comment(json::string_view, json::error_code&) { return true; }

private:
    /// A container that is open and kept.
    struct Frame {
        std::size_t token;
        JSONKind kind;
        std::span<const JSONSelection> keep;       // empty: every member
        std::span<const JSONSelection> keepBelow;  // what an object under the key just read keeps
        std::size_t keptCount = 0;                 // members whose keys were kept
    };

    JSONNode::Token& add(JSONKind kind, std::string_view text) {
        JSONNode::Token token;
        token.kind = kind;
        token.text = text.data();
        token.size = static_cast<std::uint32_t>(text.size());
        return document_.tokens_.emplace_back(token);
    }

    bool collect(json::string_view part) {
        if (!dropsText()) collected_.append(part.data(), part.size());
        return true;
    }

    // The text of which `part` is the end: left in the source when it stands there whole.
    std::string_view finishText(json::string_view part) {
        const bool standsInSource =
            part.data() >= source_.data() && part.data() + part.size() <= source_.data() + source_.size();
        if (collected_.empty() && standsInSource) return {part.data(), part.size()};
        collected_.append(part.data(), part.size());
        return document_.decoded_.emplace_back(std::exchange(collected_, {}));
    }

    bool addNumber(json::string_view part) {
        if (!skips()) add(JSONKind::number, finishText(part));
        collected_.clear();
        return true;
    }

    bool selects(std::string_view key) {
        Frame& frame = frames_.back();
        frame.keepBelow = {};
        if (frame.keep.empty()) return true;
        const auto found = std::ranges::find(frame.keep, key, &JSONSelection::key);
        skipsNextValue_ = found == frame.keep.end();
        if (!skipsNextValue_) frame.keepBelow = found->members;
        return !skipsNextValue_;
    }

    // Whether the scalar value that the parser reports is one that nobody keeps.
    bool skips() { return skippedDepth_ > 0 || std::exchange(skipsNextValue_, false); }

    bool begin(JSONKind kind) {
        if (skips()) {
            ++skippedDepth_;
            return true;
        }
        Frame frame{.token = document_.tokens_.size(), .kind = kind, .keep = {}, .keepBelow = {}};
        if (kind == JSONKind::object) {
            if (frames_.empty()) frame.keep = keepAtTop_;
            if (!frames_.empty() && frames_.back().kind == JSONKind::object) frame.keep = frames_.back().keepBelow;
        }
        frames_.push_back(frame);
        add(kind, {});
        return true;
    }

    bool end(std::size_t count) {
        if (skippedDepth_ > 0) {
            --skippedDepth_;
            return true;
        }
        const Frame& frame = frames_.back();
        JSONNode::Token& token = document_.tokens_[frame.token];
        token.count = frame.kind == JSONKind::object ? frame.keptCount : count;
        token.size = static_cast<std::uint32_t>(document_.tokens_.size() - frame.token);
        frames_.pop_back();
        return true;
    }

    std::string_view source_;
    std::span<const JSONSelection> keepAtTop_;
    JSONDocument document_;
    std::vector<Frame> frames_;
    std::string collected_;         // earlier parts of the text that is being read
    std::size_t skippedDepth_ = 0;  // containers open inside a value that nobody keeps
    bool skipsNextValue_ = false;   // the next value belongs to a key that nobody keeps
};

namespace {

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

/// Digits of an exponent that are certain to fit the parser's counter.
constexpr std::size_t maximumExponentDigits = 7;

std::size_t endOfDigits(std::string_view text, std::size_t start) {
    while (start < text.size() && isDigit(text[start]))
        ++start;
    return start;
}

/// The parser counts exponents in an int and gives up where that overflows, although the value is plain zero behind a
/// zero mantissa or a minus. Here such an exponent becomes 9,999,999, which in a text that holds fewer digits means the
/// same. The digits are overwritten in place, so that offsets stay true.
std::string clampingExponents(std::string_view text) {
    std::string clamped(text);
    bool inString = false;
    for (std::size_t index = 0; index < clamped.size(); ++index) {
        const char character = clamped[index];
        if (inString && character == '\\') ++index;
        if (character == '"') inString = !inString;
        const bool isExponent =
            !inString && (character == 'e' || character == 'E') && index > 0 && isDigit(clamped[index - 1]);
        if (!isExponent) continue;
        const bool isSigned = index + 1 < clamped.size() && (clamped[index + 1] == '+' || clamped[index + 1] == '-');
        const std::size_t start = index + (isSigned ? 2 : 1);
        const std::size_t end = endOfDigits(clamped, start);
        const std::size_t significant = std::min(clamped.find_first_not_of('0', start), end);
        if (end - significant > maximumExponentDigits) {
            std::fill(clamped.begin() + static_cast<std::ptrdiff_t>(start),
                      clamped.begin() + static_cast<std::ptrdiff_t>(end - maximumExponentDigits), '0');
            std::fill(clamped.begin() + static_cast<std::ptrdiff_t>(end - maximumExponentDigits),
                      clamped.begin() + static_cast<std::ptrdiff_t>(end), '9');
        }
        index = std::max(index, end - 1);
    }
    return clamped;
}

/// One pass of the parser over a text, in as many pieces as the caller likes.
class Parse {
public:
    Parse(std::string_view text, std::string_view source, std::span<const JSONSelection> keep)
        : text_(text), parser_(parserOptions(), source, keep) {}

    /// Hands over the text from where the last piece ended up to `end`.
    void feed(std::size_t end) {
        if (error_ || parser_.done()) return;
        const bool isLast = end == text_.size();
        offset_ += parser_.write_some(!isLast, text_.data() + offset_, end - offset_, error_);
    }

    /// Takes what lies before `end` as read. Only inside a string that nobody keeps.
    void skip(std::size_t end) {
        if (!error_) offset_ = end;
    }

    /// True between the quotes of a string that nobody keeps.
    [[nodiscard]] bool dropsText() { return !error_ && !parser_.done() && parser_.handler().dropsText(); }

    [[nodiscard]] std::size_t offset() const { return offset_; }
    [[nodiscard]] bool hasFailed() const { return error_.failed(); }
    [[nodiscard]] bool exponentOverflowed() const { return error_ == json::error::exponent_overflow; }
    [[nodiscard]] JSONDocument takeDocument() { return parser_.handler().takeDocument(); }

private:
    static json::parse_options parserOptions() {
        json::parse_options options;
        options.max_depth = JSONDocument::maximumDepth;
        options.allow_invalid_utf8 = true;  // checked before
        return options;
    }

    std::string_view text_;
    json::basic_parser<JSONDocumentBuilder> parser_;
    json::error_code error_;
    std::size_t offset_ = 0;
};

/// Strings longer than this, in bytes, are worth a stop in order to pass them over.
constexpr std::size_t longString = 512;

/// Runs the parser over the whole text. Where members are dropped, long strings inside them go past it: they are only
/// scanned, which is what makes a payload of megabytes cheap. A string that is not as it should be is left to the
/// parser, which then finds the fault.
void run(Parse& parse, std::string_view text, bool dropsMembers) {
    std::size_t open = dropsMembers ? text.find('"') : std::string_view::npos;
    while (open != std::string_view::npos) {
        const auto close = JSONStringScan::closingQuote(text, open + 1);
        if (!close) break;
        if (*close - open > longString) {
            parse.feed(open + 1);
            if (parse.dropsText()) parse.skip(*close);
        }
        open = text.find('"', *close + 1);
    }
    parse.feed(text.size());
}

Result<JSONDocument, JSONError> finish(Parse& parse, std::string_view text, std::size_t skipped) {
    if (parse.hasFailed()) return failure(JSONError{skipped + parse.offset()});
    const std::string_view rest = withoutBlanks(text.substr(parse.offset()));
    if (!rest.empty()) return failure(JSONError{skipped + text.size() - rest.size()});
    return parse.takeDocument();
}

}  // namespace

Result<JSONDocument, JSONError> JSONDocument::parse(std::string_view text, const Options& options) {
    const std::size_t skipped = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    text.remove_prefix(skipped);
    const std::string_view content = withoutBlanks(text);
    const bool isContainer = content.starts_with('{') || content.starts_with('[');
    if (!options.fragments && !isContainer) return failure(JSONError{skipped + text.size() - content.size()});
    if (text.size() > std::numeric_limits<std::uint32_t>::max() || !UTF8::isValid(text))
        return failure(JSONError{skipped});

    Parse parse(text, text, options.keep);
    run(parse, text, !options.keep.empty());
    if (parse.exponentOverflowed()) {
        const std::string clamped = clampingExponents(text);
        Parse second(clamped, {}, options.keep);  // no source: all texts are copied, as `clamped` goes
        run(second, clamped, !options.keep.empty());
        return finish(second, text, skipped);
    }
    return finish(parse, text, skipped);
}

std::optional<bool> JSONNode::boolean() const {
    if (kind() != JSONKind::boolean) return std::nullopt;
    return token_->count != 0;
}

std::optional<std::string_view> JSONNode::string() const {
    if (kind() != JSONKind::string) return std::nullopt;
    return text();
}

std::optional<std::string_view> JSONNode::numberLiteral() const {
    if (kind() != JSONKind::number) return std::nullopt;
    return text();
}

std::size_t JSONNode::count() const {
    return isContainer() ? token_->count : 0;
}

JSONNode::Elements JSONNode::elements() const {
    if (kind() != JSONKind::array) return {token_, token_};
    return {token_ + 1, next()};
}

JSONNode::Members JSONNode::members() const {
    if (kind() != JSONKind::object) return {token_, token_};
    return {token_ + 1, next()};
}

}  // namespace vellark
