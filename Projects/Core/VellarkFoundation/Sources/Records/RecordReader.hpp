#pragma once

#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/Records/DecodingError.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Result.hpp>

#include <concepts>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Reading of records from their one description. A record is an aggregate with a function
//
//     template <class Fields>
//     void describe(Fields& fields, Record& record) {
//         fields.required("id", record.id);
//         fields.optional("source", record.source);
//         fields.withDefault("reviewEligible", record.reviewEligible, true);
//         fields.tolerant("provenance", record.provenance);
//     }
//
// which names its keys in the order in which they are written; fields that may be absent are a std::optional or an
// OptionalBox. RecordWriter writes by the same description.
//
// Null under a key that is optional or has a default counts as absent. Unknown keys are ignored, and of equal keys the
// last counts. Values are read by `decodeValue`, which a type with a form of its own overloads.

namespace vellark {

/// What one reading shares: the first error, and the members of the objects that are open.
class DecodingContext {
public:
    using Member = JSONNode::Members::Member;

    [[nodiscard]] bool hasFailed() const { return error_.has_value(); }

    /// Notes the error of the value that is being read; the readers above add their part of the path. Gives false.
    bool fail(DecodingError::Reason reason) {
        error_ = DecodingError{.reason = reason, .path = {}, .byteOffset = 0};
        return false;
    }

    /// Adds a key, or an index in brackets, in front of the path of the error. Gives false.
    bool failedIn(std::string_view step) {
        std::string path(step);
        if (!error_->path.empty() && !error_->path.starts_with('[')) path += '.';
        error_->path = path + error_->path;
        return false;
    }
    bool failedIn(std::size_t index) { return failedIn("[" + std::to_string(index) + "]"); }

    /// Forgets the error: a tolerant key has swallowed it.
    void forgive() { error_.reset(); }

    [[nodiscard]] DecodingError takeError() { return std::move(*error_); }

private:
    friend class RecordReader;

    std::optional<DecodingError> error_;
    std::vector<Member> members_;  // of all objects that are open, one behind the other
};

template <class Record>
concept ReadableRecord = std::is_class_v<Record> && requires(class RecordReader& reader, Record& record) {
    describe(reader, record);
};

inline bool decodeValue(JSONNode node, bool& value, DecodingContext& context) {
    const auto read = node.boolean();
    if (!read) return context.fail(DecodingError::Reason::wrongType);
    value = *read;
    return true;
}

inline bool decodeValue(JSONNode node, std::string& value, DecodingContext& context) {
    const auto read = node.string();
    if (!read) return context.fail(DecodingError::Reason::wrongType);
    value = *read;
    return true;
}

inline bool decodeValue(JSONNode node, double& value, DecodingContext& context) {
    const auto literal = node.numberLiteral();
    if (!literal) return context.fail(DecodingError::Reason::wrongType);
    value = JSONNumberText::nearestDouble(*literal);
    if (value - value == 0) return true;
    return context.fail(DecodingError::Reason::outOfRange);  // an integer beyond every double
}

template <std::integral Integer>
bool decodeValue(JSONNode node, Integer& value, DecodingContext& context) {
    const auto literal = node.numberLiteral();
    if (!literal) return context.fail(DecodingError::Reason::wrongType);
    const auto read = JSONNumberText::exactInteger(*literal);
    if (!read || !std::in_range<Integer>(*read)) return context.fail(DecodingError::Reason::outOfRange);
    value = static_cast<Integer>(*read);
    return true;
}

template <NamedCases Enum>
bool decodeValue(JSONNode node, Enum& value, DecodingContext& context) {
    const auto text = node.string();
    if (!text) return context.fail(DecodingError::Reason::wrongType);
    const auto read = fromRawValue<Enum>(*text);
    if (!read) return context.fail(DecodingError::Reason::unknownText);
    value = *read;
    return true;
}

template <ReadableRecord Record>
bool decodeValue(JSONNode node, Record& record, DecodingContext& context);

template <class Element>
bool decodeValue(JSONNode node, std::vector<Element>& list, DecodingContext& context);

template <class Element>
bool decodeValue(JSONNode node, std::set<Element>& set, DecodingContext& context);

template <class Value, class Compare>
bool decodeValue(JSONNode node, std::map<std::string, Value, Compare>& dictionary, DecodingContext& context);

/// Null is a value here: for dictionaries whose values may be null.
template <class Value>
bool decodeValue(JSONNode node, std::optional<Value>& value, DecodingContext& context) {
    if (node.kind() == JSONKind::null) {
        value.reset();
        return true;
    }
    return decodeValue(node, value.emplace(), context);
}

/// The fields of one object. Keys are expected in the order of the description, which costs one comparison each; any
/// other order is read too.
class RecordReader {
public:
    RecordReader(JSONNode object, DecodingContext& context) : context_(context), first_(context.members_.size()) {
        for (const auto& member : object.members()) {
            context.members_.push_back(member);
        }
    }
    RecordReader(const RecordReader&) = delete;
    RecordReader& operator=(const RecordReader&) = delete;
    ~RecordReader() { context_.members_.erase(begin(), context_.members_.end()); }

    static constexpr bool isReading = true;

    /// The key must be there, with a value that is not null and of the field's type.
    template <class Value>
    void required(std::string_view key, Value& value) {
        if (context_.hasFailed()) return;
        const auto node = find(key);
        const bool isThere = node && node->kind() != JSONKind::null;
        if (!(isThere ? decodeValue(*node, value, context_) : context_.fail(DecodingError::Reason::missing))) {
            context_.failedIn(key);
        }
    }

    /// Absent and null give nothing; a value of another type fails.
    template <class Optional>
    void optional(std::string_view key, Optional& value) {
        value.reset();
        if (context_.hasFailed()) return;
        const auto node = find(key);
        if (!node || node->kind() == JSONKind::null) return;
        if (!decodeValue(*node, value.emplace(), context_)) context_.failedIn(key);
    }

    /// Absent and null give the default; a value of another type fails.
    template <class Value, class Default>
    void withDefault(std::string_view key, Value& value, Default&& fallback) {
        if (context_.hasFailed()) return;
        const auto node = find(key);
        if (!node || node->kind() == JSONKind::null) {
            value = std::forward<Default>(fallback);
        } else if (!decodeValue(*node, value, context_)) {
            context_.failedIn(key);
        }
    }

    /// Absent gives the default; null fails like any other value of another type.
    template <class Value, class Default>
    void whenAbsent(std::string_view key, Value& value, Default&& fallback) {
        if (context_.hasFailed()) return;
        const auto node = find(key);
        if (!node) {
            value = std::forward<Default>(fallback);
        } else if (!decodeValue(*node, value, context_)) {
            context_.failedIn(key);
        }
    }

    /// As `optional`, but a value that cannot be read counts as absent.
    template <class Optional>
    void tolerant(std::string_view key, Optional& value) {
        if (context_.hasFailed()) return;
        optional(key, value);
        if (!context_.hasFailed()) return;
        context_.forgive();
        value.reset();
    }

    /// Part of the record's value but not of the file: as it is made, after reading.
    template <class Value>
    void unstored(Value& value) {
        value = Value{};
    }

    /// True when some member was not asked for, which is where equal keys hide.
    [[nodiscard]] bool hasRemainder() const { return foundCount_ < size(); }

    /// Leaves of members with equal keys the last. True when there were any.
    bool dropRepeatedKeys();

private:
    using Members = std::vector<DecodingContext::Member>;

    [[nodiscard]] Members::iterator begin() const {
        return context_.members_.begin() + static_cast<std::ptrdiff_t>(first_);
    }
    // Members of inner objects are gone again whenever this object's are looked at.
    [[nodiscard]] std::size_t size() const { return context_.members_.size() - first_; }

    std::optional<JSONNode> find(std::string_view key) {
        const std::size_t count = size();
        for (std::size_t step = 0; step < count; ++step) {
            const std::size_t index = next_ + step < count ? next_ + step : next_ + step - count;
            const auto& member = context_.members_[first_ + index];
            if (member.key != key) continue;
            next_ = index + 1;
            ++foundCount_;
            return member.value;
        }
        return std::nullopt;
    }

    DecodingContext& context_;
    std::size_t first_;     // of this object's members in the context's
    std::size_t next_ = 0;  // the member that is expected next
    std::size_t foundCount_ = 0;
};

template <ReadableRecord Record>
bool decodeValue(JSONNode node, Record& record, DecodingContext& context) {
    if (node.kind() != JSONKind::object) return context.fail(DecodingError::Reason::wrongType);
    RecordReader reader(node, context);
    describe(reader, record);
    const bool mayHideRepeatedKeys = context.hasFailed() || reader.hasRemainder();
    if (mayHideRepeatedKeys && reader.dropRepeatedKeys()) {
        context.forgive();
        record = Record{};
        describe(reader, record);
    }
    return !context.hasFailed();
}

template <class Element>
bool decodeValue(JSONNode node, std::vector<Element>& list, DecodingContext& context) {
    if (node.kind() != JSONKind::array) return context.fail(DecodingError::Reason::wrongType);
    list.clear();
    list.reserve(node.count());
    for (const JSONNode element : node.elements()) {
        if (!decodeValue(element, list.emplace_back(), context)) return context.failedIn(list.size() - 1);
    }
    return true;
}

template <class Element>
bool decodeValue(JSONNode node, std::set<Element>& set, DecodingContext& context) {
    std::vector<Element> list;
    if (!decodeValue(node, list, context)) return false;
    set = std::set<Element>(std::make_move_iterator(list.begin()), std::make_move_iterator(list.end()));
    return true;
}

template <class Value, class Compare>
bool decodeValue(JSONNode node, std::map<std::string, Value, Compare>& dictionary, DecodingContext& context) {
    if (node.kind() != JSONKind::object) return context.fail(DecodingError::Reason::wrongType);
    dictionary.clear();
    std::map<std::string_view, JSONNode> last;  // of members with equal keys only the last is read
    for (const auto& [key, value] : node.members()) {
        last.insert_or_assign(key, value);
    }
    for (const auto& [key, member] : last) {
        Value value{};
        if (!decodeValue(member, value, context)) return context.failedIn(key);
        dictionary.emplace_hint(dictionary.end(), key, std::move(value));
    }
    return true;
}

/// The record of a parsed document's root.
template <class Record>
[[nodiscard]] Result<Record, DecodingError> readRecord(JSONNode node) {
    Record record{};
    DecodingContext context;
    if (!decodeValue(node, record, context)) return failure(context.takeError());
    return record;
}

/// The quick way, in DirectRecordReader.hpp: false when the text has to be read by a RecordReader.
template <class Value>
bool readDirectly(std::string_view text, Value& value);

/// The record of a JSON text, which must hold one object or array and nothing else.
template <class Record>
[[nodiscard]] Result<Record, DecodingError> readRecord(std::string_view text) {
    Result<Record, DecodingError> record;
    if (readDirectly(text, *record)) return record;
    *record = Record{};  // gives back what was read so far
    const auto document = JSONDocument::parse(text);
    if (!document) {
        return failure(DecodingError{
            .reason = DecodingError::Reason::notJSON, .path = {}, .byteOffset = document.error().byteOffset});
    }
    return readRecord<Record>(document->root());
}

}  // namespace vellark

#include <VellarkFoundation/Records/DirectRecordReader.hpp>
