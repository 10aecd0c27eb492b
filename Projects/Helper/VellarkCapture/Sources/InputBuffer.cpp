#include <VellarkCapture/InputBuffer.hpp>

#include <sys/mman.h>

#include <cstdint>
#include <new>
#include <utility>

namespace vellark {

namespace {

constexpr std::size_t largePageBytes = 2'097'152;

/// Bytes at the start that stay on small pages. Up to about this length clearing a large page costs more than it saves.
constexpr std::size_t smallPageBytes = 524'288;

}  // namespace

InputBuffer::InputBuffer(std::size_t capacity) : reservedBytes_(capacity + 2 * largePageBytes) {
    reservation_ = ::mmap(nullptr, reservedBytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (reservation_ == MAP_FAILED) throw std::bad_alloc();
    // The first large page begins on its own boundary, the buffer that many small pages before it.
    const auto address = reinterpret_cast<std::uintptr_t>(reservation_);
    const std::uintptr_t boundary = (address + smallPageBytes + largePageBytes - 1) / largePageBytes * largePageBytes;
    start_ = static_cast<char*>(reservation_) + (boundary - smallPageBytes - address);
#ifdef MADV_HUGEPAGE
    if (capacity > smallPageBytes) ::madvise(start_ + smallPageBytes, capacity - smallPageBytes, MADV_HUGEPAGE);
#endif
}

InputBuffer::InputBuffer(InputBuffer&& other) noexcept
    : reservation_(std::exchange(other.reservation_, nullptr)),
      reservedBytes_(other.reservedBytes_),
      start_(std::exchange(other.start_, nullptr)),
      length_(std::exchange(other.length_, 0)) {}

InputBuffer::~InputBuffer() {
    if (reservation_ != nullptr) ::munmap(reservation_, reservedBytes_);
}

}  // namespace vellark
