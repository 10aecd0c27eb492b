#pragma once

#include <VellarkFoundation/JSON/JSONCursor.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <type_traits>

// The quick way from text to records, for the files that our own writer made: keys in the order of the description,
// none twice. Values go straight into their fields, without a document in between, which takes a third of the time and
// half of the memory.
//
// It never judges. Where an object's keys are in another order, or among them is one that the description does not know
// and that is not behind all others, that object alone is read by RecordReader. Whatever else is not as expected, be it
// a damaged file, a wrong type or a key that stands twice, makes the whole text be read again by RecordReader, which
// decides and names the error. So both ways give the same records, and errors come from one place.
//
// Each `readDirectly` gives false where it gives up; the cursor's place and the value then mean nothing.

namespace vellark {

namespace detail {

// Converts to a reference to the record, and so fits a function that was written for the record, but no template.
template <class Value>
struct OwnDecodingProbe {
    operator Value&() const;
};

}  // namespace detail

/// A type with a `decodeValue` of its own that is no template.
template <class Value>
concept DecodesItself = std::is_class_v<Value> && requires(JSONNode node, DecodingContext& context) {
    decodeValue(node, detail::OwnDecodingProbe<Value>(), context);
};

/// Finds out whether a description names a key.
class KeySearch {
public:
    explicit KeySearch(std::string_view key) : wanted_(key) {}

    static constexpr bool isReading = false;

    template <class Value>
    void required(std::string_view key, const Value&) {
        found_ = found_ || key == wanted_;
    }
    template <class Value>
    void optional(std::string_view key, const Value& value) {
        required(key, value);
    }
    template <class Value, class Default>
    void withDefault(std::string_view key, const Value& value, const Default&) {
        required(key, value);
    }
    template <class Value, class Default>
    void whenAbsent(std::string_view key, const Value& value, const Default&) {
        required(key, value);
    }
    template <class Value>
    void tolerant(std::string_view key, const Value& value) {
        required(key, value);
    }
    template <class Value>
    void unstored(const Value&) {}

    [[nodiscard]] bool hasFound() const { return found_; }

private:
    std::string_view wanted_;
    bool found_ = false;
};

/// The value that begins at `offset`, read through a document of its own.
template <class Value>
bool readThroughDocument(JSONCursor& cursor, Value& value) {
    const std::string_view text = cursor.rest();
    const std::size_t start = cursor.offset();
    if (!cursor.skipValue()) return false;
    const auto document = JSONDocument::parse(text.substr(0, cursor.offset() - start), {.fragments = true});
    DecodingContext context;
    return document && decodeValue(document->root(), value, context);
}

inline bool readDirectly(JSONCursor& cursor, bool& value) {
    return cursor.boolean(value);
}

inline bool readDirectly(JSONCursor& cursor, std::string& value) {
    return cursor.string(value);
}

inline bool readDirectly(JSONCursor& cursor, double& value) {
    std::string_view digits;
    if (!cursor.number(digits)) return false;
    value = JSONNumberText::nearestDouble(digits);
    return value - value == 0;
}

template <std::integral Integer>
bool readDirectly(JSONCursor& cursor, Integer& value) {
    std::int64_t read = 0;
    if (!cursor.integer(read) || !std::in_range<Integer>(read)) return false;
    value = static_cast<Integer>(read);
    return true;
}

template <NamedCases Enum>
bool readDirectly(JSONCursor& cursor, Enum& value) {
    JSONCursor::StringNode text;
    if (!cursor.plainString(text)) return false;
    const auto read = fromRawValue<Enum>(*text.node().string());
    if (read) value = *read;
    return read.has_value();
}

template <DecodesItself Value>
bool readDirectly(JSONCursor& cursor, Value& value) {
    if (!cursor.isAt('"')) return readThroughDocument(cursor, value);
    JSONCursor::StringNode text;
    DecodingContext context;
    return cursor.plainString(text) && decodeValue(text.node(), value, context);
}

template <ReadableRecord Record>
requires(!DecodesItself<Record>) bool readDirectly(JSONCursor& cursor, Record& record);

template <class Element>
bool readDirectly(JSONCursor& cursor, std::vector<Element>& list);

template <class Element>
bool readDirectly(JSONCursor& cursor, std::set<Element>& set);

template <class Value, class Compare>
bool readDirectly(JSONCursor& cursor, std::map<std::string, Value, Compare>& dictionary);

template <class Value>
bool readDirectly(JSONCursor& cursor, std::optional<Value>& value) {
    if (!cursor.isAt('n')) return readDirectly(cursor, value.emplace());
    value.reset();
    return cursor.null();
}

/// The fields of one object, by the description's order.
class DirectRecordReader {
public:
    explicit DirectRecordReader(JSONCursor& cursor) : cursor_(cursor) {}

    static constexpr bool isReading = true;

    template <class Value>
    [[gnu::always_inline]] void required(std::string_view key, Value& value) {
        if (state_ != State::inOrder) return;
        if (cursor_.takeKey(key)) {
            readPresent(value);
        } else {
            state_ = State::outOfOrder;
        }
    }

    template <class Optional>
    [[gnu::always_inline]] void optional(std::string_view key, Optional& value) {
        if (state_ != State::inOrder) return;
        if (cursor_.takeKey(key) && !takesNull()) {
            readPresent(value.emplace());
        } else {
            value.reset();
        }
    }

    template <class Value, class Default>
    [[gnu::always_inline]] void withDefault(std::string_view key, Value& value, Default&& fallback) {
        if (state_ != State::inOrder) return;
        if (cursor_.takeKey(key) && !takesNull()) {
            readPresent(value);
        } else {
            value = std::forward<Default>(fallback);
        }
    }

    template <class Value, class Default>
    [[gnu::always_inline]] void whenAbsent(std::string_view key, Value& value, Default&& fallback) {
        if (state_ != State::inOrder) return;
        if (cursor_.takeKey(key)) {
            readPresent(value);
        } else {
            value = std::forward<Default>(fallback);
        }
    }

    template <class Optional>
    [[gnu::always_inline]] void tolerant(std::string_view key, Optional& value) {
        if (state_ != State::inOrder) return;
        if (cursor_.takeKey(key) && !takesNull()) {
            readTolerantly(value);
        } else {
            value.reset();
        }
    }

    template <class Value>
    void unstored(Value& value) {
        value = Value{};
    }

    enum class State {
        inOrder,
        outOfOrder,  // a key where it was not expected
        failed,      // no such text or value is expected anywhere
    };
    [[nodiscard]] State state() const { return state_; }

private:
    // A null under an optional key, which counts as if the key were not there.
    bool takesNull() {
        if (!cursor_.isAt('n')) return false;
        if (!cursor_.null() || !cursor_.endMember()) state_ = State::failed;
        return true;
    }

    // Also a null where there must be a value is left to the one who names errors.
    template <class Value>
    void readPresent(Value& value) {
        if (cursor_.isAt('n') || !readDirectly(cursor_, value) || !cursor_.endMember()) state_ = State::failed;
    }

    template <class Optional>
    void readTolerantly(Optional& value) {
        const std::size_t offset = cursor_.offset();
        const std::size_t depth = cursor_.depth();
        bool isRead = readDirectly(cursor_, value.emplace());
        if (!isRead) {
            cursor_.returnTo(offset, depth);
            const std::string_view text = cursor_.rest();
            if (!cursor_.skipValue()) {
                state_ = State::failed;
                return;
            }
            JSONCursor again(text.substr(0, cursor_.offset() - offset));
            isRead = readThroughDocument(again, value.emplace());
        }
        if (!isRead) value.reset();
        if (!cursor_.endMember()) state_ = State::failed;
    }

    JSONCursor& cursor_;
    State state_ = State::inOrder;
};

/// Passes over members that the description does not know; stops at one that it does, and at the object's end.
template <class Record>
bool skipUnknownMembers(JSONCursor& cursor, Record& record) {
    std::string key;
    while (!cursor.isAt('}')) {
        if (!cursor.takeAnyKey(key)) return false;
        KeySearch search(key);
        describe(search, record);
        if (search.hasFound()) return true;
        if (!cursor.skipValue() || !cursor.endMember()) return false;
    }
    return true;
}

template <ReadableRecord Record>
requires(!DecodesItself<Record>) bool readDirectly(JSONCursor& cursor, Record& record) {
    const std::size_t offset = cursor.offset();
    const std::size_t depth = cursor.depth();
    if (!cursor.open('{') || !(cursor.isAt('"') || cursor.isAt('}'))) return false;
    DirectRecordReader reader(cursor);
    describe(reader, record);
    using State = DirectRecordReader::State;
    if (reader.state() == State::failed) return false;
    if (reader.state() == State::inOrder) {
        if (!skipUnknownMembers(cursor, record)) return false;
        if (cursor.isAt('}')) return cursor.close('}');
    }
    cursor.returnTo(offset, depth);
    record = Record{};
    return readThroughDocument(cursor, record);
}

/// Room for a long list is made once, by the length of its first elements: growing it step by step would copy what is
/// there again and again, and hold it twice. Only lists near the top of a file are long in that sense.
template <class Element>
void makeRoom(const JSONCursor& cursor, std::size_t start, std::vector<Element>& list) {
    constexpr std::size_t sampled = 32;
    constexpr std::size_t deepest = 2;   // containers around the elements
    constexpr std::size_t mostRoom = 2;  // bytes for each byte of text that is left
    if (list.size() != sampled || cursor.depth() > deepest) return;
    const std::size_t expected = sampled * cursor.remaining() / (cursor.offset() - start);
    const std::size_t most = mostRoom * cursor.remaining() / sizeof(Element);
    list.reserve(sampled + std::min(expected + expected / 16, most));
}

template <class Element>
bool readDirectly(JSONCursor& cursor, std::vector<Element>& list) {
    list.clear();
    const std::size_t start = cursor.offset();
    if (!cursor.open('[')) return false;
    while (!cursor.isAt(']')) {
        if (!readDirectly(cursor, list.emplace_back()) || !cursor.endElement()) return false;
        makeRoom(cursor, start, list);
    }
    return cursor.close(']');
}

template <class Element>
bool readDirectly(JSONCursor& cursor, std::set<Element>& set) {
    std::vector<Element> list;
    if (!readDirectly(cursor, list)) return false;
    set = std::set<Element>(std::make_move_iterator(list.begin()), std::make_move_iterator(list.end()));
    return true;
}

template <class Value, class Compare>
bool readDirectly(JSONCursor& cursor, std::map<std::string, Value, Compare>& dictionary) {
    dictionary.clear();
    if (!cursor.open('{') || !(cursor.isAt('"') || cursor.isAt('}'))) return false;
    std::string key;
    while (!cursor.isAt('}')) {
        Value value{};
        if (!cursor.takeAnyKey(key) || !readDirectly(cursor, value) || !cursor.endMember()) return false;
        dictionary.insert_or_assign(std::move(key), std::move(value));
    }
    return cursor.close('}');
}

/// The value of a text whose top is an object or an array. False when the text has to be read by RecordReader.
template <class Value>
bool readDirectly(std::string_view text, Value& value) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    if (!UTF8::isValid(text)) return false;
    JSONCursor cursor(text);
    return (cursor.isAt('{') || cursor.isAt('[')) && readDirectly(cursor, value) && cursor.isAtEnd();
}

}  // namespace vellark
