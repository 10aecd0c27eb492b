#pragma once

#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// What the scanners of HTML ask of single characters and of runs of them. Offsets are bytes of one well-formed text.
namespace vellark::HTMLCharacters {

/// Bits of a byte's class.
enum Class : std::uint8_t {
    letter = 1,           ///< of ASCII
    space = 2,            ///< white space of ASCII
    leadOfSpace = 4,      ///< may begin white space beyond ASCII
    endOfTagName = 8,     ///< white space of HTML, "/", ">" and U+0000
    endOfName = 16,       ///< ends an attribute's name, but for white space: "/", "=" and ">"
    endOfBareValue = 32,  ///< ends a value without quotes, but for white space: ">"
    endTagName = 64,      ///< letters, digits and "-.:_", which a regular end tag's name is made of
    mayLower = 128,       ///< capitals of ASCII, and all bytes beyond ASCII
};

inline constexpr std::array<std::uint8_t, 256> classes = [] {
    std::array<std::uint8_t, 256> result{};
    const auto add = [&](std::string_view bytes, int classBits) {
        for (const char byte : bytes) {
            auto& entry = result[static_cast<unsigned char>(byte)];
            entry = static_cast<std::uint8_t>(entry | classBits);
        }
    };
    add("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", letter | endTagName);
    add("0123456789-.:_", endTagName);
    add("ABCDEFGHIJKLMNOPQRSTUVWXYZ", mayLower);
    for (std::size_t byte = 0x80; byte < result.size(); ++byte) {
        result[byte] = mayLower;
    }
    add("\t\n\v\f\r\x1C\x1D\x1E\x1F ", space);
    add("\xC2\xE1\xE2\xE3", leadOfSpace);
    add(std::string_view("\t\n\f\r />\0", 8), endOfTagName);
    add("/=>", endOfName);
    add(">", endOfBareValue);
    return result;
}();

inline int classOf(char byte) {
    return classes[static_cast<unsigned char>(byte)];
}

inline bool isIn(char byte, int classBits) {
    return (classOf(byte) & classBits) != 0;
}

/// Bytes of the white space character at the offset, which must lie inside the text; 0 when there is none.
inline std::size_t spaceLength(std::string_view text, std::size_t offset) {
    if (isIn(text[offset], space)) return 1;
    if (!isIn(text[offset], leadOfSpace)) return 0;
    const UTF8::Decoded decoded = UTF8::decodeMultibyte(text, offset);
    return PythonText::isSpace(decoded.scalar) ? decoded.byteCount : 0;
}

/// Offset behind the white space that begins at the offset.
inline std::size_t skipSpaces(std::string_view text, std::size_t offset) {
    while (offset < text.size()) {
        const std::size_t length = spaceLength(text, offset);
        if (length == 0) break;
        offset += length;
    }
    return offset;
}

/// True when the character before the offset is white space.
inline bool endsInSpace(std::string_view text, std::size_t offset) {
    if (offset == 0) return false;
    const std::size_t previous = UTF8::previousOffset(text, offset);
    return spaceLength(text, previous) == offset - previous;
}

/// Offset at which the white space that ends at the offset begins.
inline std::size_t skipSpacesBack(std::string_view text, std::size_t offset) {
    while (endsInSpace(text, offset)) {
        offset = UTF8::previousOffset(text, offset);
    }
    return offset;
}

/// A run of characters: where it stops, and the bits of all classes that occur in it.
struct Run {
    std::size_t stop = 0;
    int seen = 0;
};

/// The run from the offset to the next byte of the classes, white space beyond ASCII included when `classBits` hold
/// `space`; to the text's end without one.
inline Run findRun(std::string_view text, std::size_t offset, int classBits) {
    const int interesting = (classBits & space) != 0 ? classBits | leadOfSpace : classBits;
    int seen = 0;
    for (; offset < text.size(); ++offset) {
        const int byteClass = classOf(text[offset]);
        if ((byteClass & interesting) != 0) {
            if ((byteClass & classBits) != 0 || spaceLength(text, offset) > 0) break;
        }
        seen |= byteClass;
    }
    return {offset, seen};
}

/// `findRun` that remembers its last answer, so that searches from many places inside one run cost one walk. What it
/// has then seen may stand before the offset.
class RunFinder {
public:
    explicit RunFinder(int classBits) : classBits_(classBits) {}

    Run find(std::string_view text, std::size_t offset) {
        if (offset < from_ || offset > run_.stop) {
            run_ = findRun(text, offset, classBits_);
            from_ = offset;
        }
        return run_;
    }

private:
    int classBits_;
    std::size_t from_ = 1;  // behind the run's stop at first: nothing is remembered
    Run run_;
};

/// Search for one byte that remembers from where on there is none, so that hostile pages cannot make it walk to the end
/// again and again.
class ByteFinder {
public:
    explicit ByteFinder(char byte) : byte_(byte) {}

    /// Offset of the byte at or behind the offset; `npos` without one.
    std::size_t find(std::string_view text, std::size_t offset) {
        if (offset >= noneFrom_) return std::string_view::npos;
        const std::size_t found = text.find(byte_, offset);
        if (found == std::string_view::npos) noneFrom_ = offset;
        return found;
    }

private:
    char byte_;
    std::size_t noneFrom_ = std::string_view::npos;
};

}  // namespace vellark::HTMLCharacters
