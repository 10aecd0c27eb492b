#include <VellarkFoundation/JSON/JSONWindow.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <cstring>
#include <utility>

namespace vellark {

JSONWindow::JSONWindow(Source source, Options options)
    : source_(std::move(source)), options_(options), cursor_(std::string_view()) {
    (void)advance(0);
}

// Moves the start forward over `used` bytes and reads on.
bool JSONWindow::advance(std::size_t used) {
    if (hasFailed_ || hasEnded_) return false;
    start_ += used;
    hasFailed_ = !makeRoom() || !fill() || !validate();
    cursor_ = JSONCursor(hasFailed_ ? std::string_view() : text());
    return !hasFailed_;
}

// What is left moves to the front. Where it takes half of the window, the window becomes twice as large.
bool JSONWindow::makeRoom() {
    const std::size_t rest = end_ - start_;
    if (rest < size_ / 2) {
        std::memmove(bytes_.get(), bytes_.get() + start_, rest);
    } else {
        const std::size_t size = std::max(options_.firstBytes, 2 * size_);
        if (size > options_.maximumBytes) return false;
        auto bytes = std::make_unique_for_overwrite<char[]>(size);
        if (rest > 0) std::memcpy(bytes.get(), bytes_.get() + start_, rest);
        bytes_ = std::move(bytes);
        size_ = size;
    }
    valid_ -= start_;
    end_ = rest;
    start_ = 0;
    return true;
}

bool JSONWindow::fill() {
    while (end_ < size_ && !hasEnded_) {
        const auto count = source_(bytes_.get() + end_, size_ - end_);
        if (!count) return false;
        hasEnded_ = *count == 0;
        end_ += *count;
    }
    return true;
}

// A scalar at the very end is judged with the bytes that follow, which may belong to it.
bool JSONWindow::validate() {
    std::size_t whole = end_;
    if (!hasEnded_) {
        constexpr std::size_t mostContinuations = 3;
        const auto byteAt = [this](std::size_t place) { return static_cast<unsigned char>(bytes_[place]); };
        while (whole > valid_ && end_ - whole < mostContinuations && (byteAt(whole - 1) & 0xC0) == 0x80) {
            --whole;
        }
        if (whole > valid_ && byteAt(whole - 1) >= 0x80) --whole;
    }
    if (!UTF8::isValid({bytes_.get() + valid_, whole - valid_})) return false;
    valid_ = whole;
    return true;
}

}  // namespace vellark
