#pragma once

#include <VellarkFoundation/Records/OptionalBox.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// Hashing of records from the description that they are read and written by. Equal records have equal hashes.

namespace vellark {

class RecordHasher;

/// The hash of a record, of all the fields that its description names.
template <class Record>
[[nodiscard]] std::size_t recordHash(const Record& record);

class RecordHasher {
public:
    static constexpr bool isReading = false;

    template <class Value>
    void required(std::string_view, const Value& value) {
        add(value);
    }
    template <class Optional>
    void optional(std::string_view, const Optional& value) {
        add(value);
    }
    template <class Value, class Default>
    void withDefault(std::string_view, const Value& value, const Default&) {
        add(value);
    }
    template <class Value, class Default>
    void whenAbsent(std::string_view, const Value& value, const Default&) {
        add(value);
    }
    template <class Optional>
    void tolerant(std::string_view, const Optional& value) {
        add(value);
    }
    template <class Value>
    void unstored(const Value& value) {
        add(value);
    }

    template <class Value>
    void add(const Value& value) {
        if constexpr (
            requires { std::hash<Value>()(value); } &&
            !requires(RecordHasher & hasher, Value & record) { describe(hasher, record); }) {
            mix(std::hash<Value>()(value));
        } else {
            mix(recordHash(value));
        }
    }
    template <class Value>
    void add(const std::optional<Value>& value) {
        mix(value ? 1 : 0);
        if (value) add(*value);
    }
    template <class Value>
    void add(const OptionalBox<Value>& value) {
        mix(value ? 1 : 0);
        if (value) add(*value);
    }
    template <class Value>
    void add(const std::vector<Value>& list) {
        addAll(list);
    }
    template <class Value>
    void add(const std::set<Value>& set) {
        addAll(set);
    }
    template <class Value, class Compare>
    void add(const std::map<std::string, Value, Compare>& dictionary) {
        mix(dictionary.size());
        for (const auto& [key, value] : dictionary) {
            add(key);
            add(value);
        }
    }

    [[nodiscard]] std::size_t value() const { return value_; }

private:
    template <class Range>
    void addAll(const Range& range) {
        mix(range.size());
        for (const auto& element : range) {
            add(element);
        }
    }

    void mix(std::size_t hash) { value_ ^= hash + 0x9e3779b97f4a7c15 + (value_ << 6) + (value_ >> 2); }

    std::size_t value_ = 0;
};

template <class Record>
std::size_t recordHash(const Record& record) {
    RecordHasher hasher;
    describe(hasher, const_cast<Record&>(record));  // one description serves readers too; a hasher changes nothing
    return hasher.value();
}

}  // namespace vellark
