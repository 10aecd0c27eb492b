#pragma once

#include <memory>
#include <optional>
#include <utility>

namespace vellark {

/// As std::optional, with the value on the heap: for a large part of a record that most records lack, and of which
/// there are too many to give each the room. Copies are deep, and two boxes are equal when their values are.
template <class Value>
class OptionalBox {
public:
    using value_type = Value;

    OptionalBox() = default;
    OptionalBox(std::nullopt_t) {}
    OptionalBox(Value value) : value_(std::make_unique<Value>(std::move(value))) {}
    OptionalBox(const OptionalBox& other) : value_(other ? std::make_unique<Value>(*other) : nullptr) {}
    OptionalBox(OptionalBox&&) noexcept = default;
    OptionalBox& operator=(OptionalBox other) noexcept {
        value_ = std::move(other.value_);
        return *this;
    }
    ~OptionalBox() = default;

    [[nodiscard]] bool has_value() const { return value_ != nullptr; }
    explicit operator bool() const { return has_value(); }

    // Only when there is a value.
    Value& operator*() { return *value_; }
    const Value& operator*() const { return *value_; }
    Value* operator->() { return value_.get(); }
    const Value* operator->() const { return value_.get(); }

    Value& emplace() {
        value_ = std::make_unique<Value>();
        return *value_;
    }
    void reset() { value_.reset(); }

    bool operator==(const OptionalBox& other) const {
        return has_value() == other.has_value() && (!has_value() || **this == *other);
    }

private:
    std::unique_ptr<Value> value_;
};

}  // namespace vellark
