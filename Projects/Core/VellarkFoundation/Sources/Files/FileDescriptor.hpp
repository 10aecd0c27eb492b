#pragma once

#include <unistd.h>

#include <utility>

namespace vellark {

/// Owns an open file descriptor and closes it at the end of its scope. -1 stands for none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

    void close() {
        if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
    }

private:
    int descriptor_ = -1;
};

}  // namespace vellark
