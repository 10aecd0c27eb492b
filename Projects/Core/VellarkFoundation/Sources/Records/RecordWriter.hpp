#pragma once

#include <VellarkFoundation/JSON/CompactJSONWriter.hpp>
#include <VellarkFoundation/Records/DecodingError.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Result.hpp>

#include <concepts>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Writing and hashing of records from the description that RecordReader reads them by.
//
// Keys are written in the order of the description, dictionaries and sets in the order of their UTF-8 bytes. Optional
// fields are written when they have a value; null is never written, but for a null inside a dictionary. Values are
// written by `encodeValue`, which a type with a form of its own overloads; it gives false for a value that no file can
// hold.

namespace vellark {

template <class Record>
concept WritableRecord = std::is_class_v<Record> && requires(class RecordWriter& writer, Record& record) {
    describe(writer, record);
};

/// Where the text goes, and the path of a value that could not be written.
struct EncodingContext {
    CompactJSONWriter json;
    std::optional<std::string> failedPath;

    bool failedIn(std::string_view step) {
        std::string path(step);
        if (failedPath && !failedPath->empty() && !failedPath->starts_with('[')) path += '.';
        failedPath = path + failedPath.value_or("");
        return false;
    }
};

inline bool encodeValue(EncodingContext& context, bool value) {
    context.json.boolean(value);
    return true;
}

inline bool encodeValue(EncodingContext& context, const std::string& value) {
    context.json.string(value);
    return true;
}

inline bool encodeValue(EncodingContext& context, double value) {
    return context.json.number(value);
}

template <std::integral Integer>
bool encodeValue(EncodingContext& context, Integer value) {
    context.json.integer(value);
    return true;
}

template <NamedCases Enum>
bool encodeValue(EncodingContext& context, Enum value) {
    context.json.string(rawValue(value));
    return true;
}

template <WritableRecord Record>
bool encodeValue(EncodingContext& context, const Record& record);

template <class Element>
bool encodeValue(EncodingContext& context, const std::vector<Element>& list);

template <class Element>
bool encodeValue(EncodingContext& context, const std::set<Element>& set);

template <class Value, class Compare>
bool encodeValue(EncodingContext& context, const std::map<std::string, Value, Compare>& dictionary);

template <class Value>
bool encodeValue(EncodingContext& context, const std::optional<Value>& value) {
    if (value) return encodeValue(context, *value);
    context.json.null();
    return true;
}

/// Writes the members of one object.
class RecordWriter {
public:
    explicit RecordWriter(EncodingContext& context) : context_(context) {}

    static constexpr bool isReading = false;

    template <class Value>
    void required(std::string_view key, const Value& value) {
        if (context_.failedPath) return;
        context_.json.key(key);
        if (!encodeValue(context_, value)) context_.failedIn(key);
    }

    template <class Optional>
    void optional(std::string_view key, const Optional& value) {
        if (value) required(key, *value);
    }

    template <class Value, class Default>
    void withDefault(std::string_view key, const Value& value, const Default&) {
        required(key, value);
    }

    template <class Value, class Default>
    void whenAbsent(std::string_view key, const Value& value, const Default&) {
        required(key, value);
    }

    template <class Optional>
    void tolerant(std::string_view key, const Optional& value) {
        optional(key, value);
    }

    template <class Value>
    void unstored(const Value&) {}

private:
    EncodingContext& context_;
};

template <WritableRecord Record>
bool encodeValue(EncodingContext& context, const Record& record) {
    context.json.beginObject();
    RecordWriter writer(context);
    describe(writer, const_cast<Record&>(record));  // one description serves readers too; a writer changes nothing
    context.json.endObject();
    return !context.failedPath;
}

template <class Range>
bool encodeElements(EncodingContext& context, const Range& range) {
    context.json.beginArray();
    std::size_t index = 0;
    for (const auto& element : range) {
        if (!encodeValue(context, element)) return context.failedIn("[" + std::to_string(index) + "]");
        ++index;
    }
    context.json.endArray();
    return true;
}

template <class Element>
bool encodeValue(EncodingContext& context, const std::vector<Element>& list) {
    return encodeElements(context, list);
}

template <class Element>
bool encodeValue(EncodingContext& context, const std::set<Element>& set) {
    return encodeElements(context, set);
}

template <class Value, class Compare>
bool encodeValue(EncodingContext& context, const std::map<std::string, Value, Compare>& dictionary) {
    context.json.beginObject();
    for (const auto& [key, value] : dictionary) {
        context.json.key(key);
        if (!encodeValue(context, value)) return context.failedIn(key);
    }
    context.json.endObject();
    return true;
}

/// Hands the JSON text of a record over in pieces, the last one with a call of its own. After an error some pieces may
/// have been handed over.
template <class Record>
[[nodiscard]] Result<void, EncodingError> writeRecord(const Record& record, CompactJSONWriter::Sink sink) {
    EncodingContext context{.json = CompactJSONWriter(std::move(sink)), .failedPath = {}};
    if (!encodeValue(context, record)) return failure(EncodingError{.path = context.failedPath.value_or("")});
    context.json.flush();
    return {};
}

/// The JSON text of a record.
template <class Record>
[[nodiscard]] Result<std::string, EncodingError> writeRecord(const Record& record) {
    EncodingContext context;
    if (!encodeValue(context, record)) return failure(EncodingError{.path = context.failedPath.value_or("")});
    return context.json.takeText();
}

}  // namespace vellark
