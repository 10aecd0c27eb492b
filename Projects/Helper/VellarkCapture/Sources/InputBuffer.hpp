#pragma once

#include <cstddef>
#include <string_view>

namespace vellark {

/// Memory for an input whose length is not known: reserved whole, taken up as bytes arrive, never copied. A short input
/// costs the pages that it fills; a long one gets pages of two megabytes where the system has them, as the thousand
/// faults of small ones would cost more than the reading.
class InputBuffer {
public:
    /// Throws std::bad_alloc when the system refuses the reservation.
    explicit InputBuffer(std::size_t capacity);
    InputBuffer(InputBuffer&& other) noexcept;
    InputBuffer(const InputBuffer&) = delete;
    InputBuffer& operator=(const InputBuffer&) = delete;
    ~InputBuffer();

    [[nodiscard]] std::size_t length() const { return length_; }
    [[nodiscard]] std::string_view bytes() const { return {start_, length_}; }

    /// Where the next byte goes.
    [[nodiscard]] char* end() { return start_ + length_; }

    /// `count` bytes have been written there; never more than the capacity in all.
    void extend(std::size_t count) { length_ += count; }

private:
    void* reservation_;
    std::size_t reservedBytes_;
    char* start_;
    std::size_t length_ = 0;
};

}  // namespace vellark
