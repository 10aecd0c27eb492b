#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vellark {

/// SHA-256 of bytes that come in pieces.
class SHA256Stream {
public:
    SHA256Stream();
    SHA256Stream(SHA256Stream&&) noexcept;
    SHA256Stream& operator=(SHA256Stream&&) noexcept;
    ~SHA256Stream();

    void add(std::string_view bytes);

    /// The digest of all that was added, as SHA256::hexadecimal has it. Nothing may be added afterwards.
    [[nodiscard]] std::string hexadecimal();

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace vellark
