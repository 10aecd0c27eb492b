#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vellark {

/// A set of bytes with a look-up table.
class ByteClass {
public:
    /// Of ranges and single bytes as in a bracket expression: "A-Za-z0-9_"; a "-" at the end is itself.
    constexpr explicit ByteClass(std::string_view members) {
        for (std::size_t index = 0; index < members.size(); ++index) {
            const auto first = static_cast<unsigned char>(members[index]);
            const bool isRange = index + 2 < members.size() && members[index + 1] == '-';
            const auto last = isRange ? static_cast<unsigned char>(members[index + 2]) : first;
            for (std::size_t byte = first; byte <= last; ++byte)
                table_[byte] = true;
            if (isRange) index += 2;
        }
    }

    [[nodiscard]] constexpr bool holds(char byte) const { return table_[static_cast<unsigned char>(byte)]; }

    /// End of the run of members that begins at the position.
    [[nodiscard]] std::size_t runEnd(std::string_view text, std::size_t position) const {
        while (position < text.size() && holds(text[position]))
            ++position;
        return position;
    }

private:
    std::array<bool, 256> table_{};
};

}  // namespace vellark
