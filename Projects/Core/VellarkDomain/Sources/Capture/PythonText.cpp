#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Text/CaseFolding.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

namespace vellark::PythonText {

namespace {

bool endsLine(char32_t scalar) {
    return (scalar >= 10 && scalar <= 13) || (scalar >= 28 && scalar <= 30) || scalar == 0x85 || scalar == 0x2028 ||
           scalar == 0x2029;
}

std::string_view stripTrailing(std::string_view text) {
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isSpace(UTF8::decode(text, last).scalar)) break;
        text = text.substr(0, last);
    }
    return text;
}

// Whether a piece is empty or begins with a point, as few do. The loop works on bytes alone and has no way out, so that
// compilers make it one over many bytes at a time.
bool mayHoldPoints(std::string_view path) {
    unsigned char found = 0;
    for (std::size_t offset = 1; offset < path.size(); ++offset) {
        const char byte = path[offset];
        found = static_cast<unsigned char>(found | ((path[offset - 1] == '/') & ((byte == '/') | (byte == '.'))));
    }
    return found != 0;
}

}  // namespace

std::string_view stripLeading(std::string_view text) {
    while (!text.empty()) {
        const UTF8::Decoded first = UTF8::decode(text, 0);
        if (!isSpace(first.scalar)) break;
        text.remove_prefix(first.byteCount);
    }
    return text;
}

std::string_view strip(std::string_view text) {
    return stripTrailing(stripLeading(text));
}

std::vector<std::string_view> split(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = std::string_view::npos;  // of the piece that is open
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        if (!isSpace(decoded.scalar)) {
            start = std::min(start, offset);
        } else if (start != std::string_view::npos) {
            pieces.push_back(text.substr(start, offset - start));
            start = std::string_view::npos;
        }
        offset += decoded.byteCount;
    }
    if (start != std::string_view::npos) pieces.push_back(text.substr(start));
    return pieces;
}

std::vector<std::string_view> splitlines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        const std::size_t end = offset;
        offset += decoded.byteCount;
        if (!endsLine(decoded.scalar)) continue;
        if (decoded.scalar == '\r' && offset < text.size() && text[offset] == '\n') ++offset;
        lines.push_back(text.substr(start, end - start));
        start = offset;
    }
    if (start < text.size()) lines.push_back(text.substr(start));
    return lines;
}

std::string casefold(std::string_view text) {
    return CaseFolding::fold(text);
}

// In UTF-8 no scalar's bytes occur inside another's, so scalars stand in a text exactly where their bytes do.
bool contains(std::string_view text, std::string_view needle) {
    return text.find(needle) != std::string_view::npos;
}

bool hasPrefix(std::string_view text, std::string_view prefix) {
    return text.starts_with(prefix);
}

bool isMember(std::string_view text, std::span<const std::string_view> set) {
    return UTF8::isASCII(text) && std::ranges::find(set, text) != set.end();
}

std::string_view prefix(std::string_view text, std::size_t count) {
    std::size_t offset = 0;
    for (; count > 0 && offset < text.size(); --count) {
        offset += UTF8::decode(text, offset).byteCount;
    }
    return text.substr(0, offset);
}

std::vector<std::string_view> components(std::string_view text, char32_t separator) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        if (decoded.scalar == separator) {
            pieces.push_back(text.substr(start, offset - start));
            start = offset + decoded.byteCount;
        }
        offset += decoded.byteCount;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

bool isNormalAbsolute(std::string_view path) {
    if (!path.starts_with('/')) return false;
    if (path.size() == 1) return true;
    if (path.back() != '/' && !mayHoldPoints(path)) return true;
    for (std::size_t start = 1; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string_view piece = path.substr(start, end - start);
        if (piece.empty() || piece == "." || piece == "..") return false;
        start = end + 1;
    }
    return true;
}

std::string normpath(std::string_view path) {
    if (path.empty()) return ".";
    if (isNormalAbsolute(path)) return std::string(path);
    // POSIX leaves the meaning of exactly two leading slashes open, so they are kept.
    const std::size_t slashes = std::min(path.find_first_not_of('/'), path.size());
    const std::string_view root = path.substr(0, slashes > 2 ? 1 : slashes);

    std::vector<std::string_view> kept;
    for (std::size_t start = slashes; start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string_view piece = path.substr(start, end - start);
        start = end + 1;
        if (piece.empty() || piece == ".") continue;
        const bool hasParent = !kept.empty() && kept.back() != "..";
        if (piece == ".." && hasParent) {
            kept.pop_back();
        } else if (piece != ".." || root.empty()) {
            kept.push_back(piece);
        }
    }

    std::string result(root);
    for (const std::string_view piece : kept) {
        if (result.size() > root.size()) result += '/';
        result += piece;
    }
    return result.empty() ? "." : result;
}

}  // namespace vellark::PythonText
