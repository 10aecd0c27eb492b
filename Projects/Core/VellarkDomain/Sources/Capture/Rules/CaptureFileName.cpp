#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>

#include <algorithm>

// Folding maps no other character to "." or "/" and neither of these to anything else. So the name may be cut out
// before it is folded and its suffix after, each on the shorter text.

namespace vellark {

namespace {

// PythonPath(path).name() without a copy of the path.
std::string_view lastComponent(std::string_view path) {
    while (true) {
        const std::size_t slash = path.rfind('/');
        const std::string_view piece = path.substr(slash + 1);  // without a slash: npos + 1, the whole
        if (!piece.empty() && piece != ".") return piece;
        if (slash == std::string_view::npos) return {};
        path = path.substr(0, slash);
    }
}

bool isFolded(std::string_view text) {
    return std::ranges::none_of(
        text, [](char byte) { return (byte >= 'A' && byte <= 'Z') || static_cast<unsigned char>(byte) >= 0x80; });
}

PythonPath foldedName(std::string_view path) {
    const std::string_view name = lastComponent(path);
    return PythonPath(isFolded(name) ? name : PythonText::casefold(name));
}

}  // namespace

CaptureFileName::CaptureFileName(std::string_view path) : file_(foldedName(path)) {}

std::string_view CaptureFileName::extension() const {
    const std::string_view text = suffix();
    return text.empty() ? text : text.substr(1);
}

std::string_view CaptureFileName::stem() const {
    return name().substr(0, name().size() - suffix().size());
}

}  // namespace vellark
