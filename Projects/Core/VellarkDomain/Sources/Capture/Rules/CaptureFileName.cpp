#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>

// Folding maps no other character to "." or "/" and neither of these to anything else. So the name may be cut out
// before it is folded, and its suffix after.

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

// The loop works on bytes alone and has no way out, so that compilers make it one over many bytes at a time.
bool isFolded(std::string_view text) {
    unsigned char found = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        found = static_cast<unsigned char>(found | (byte >= 0x80) | ((byte >= 'A') & (byte <= 'Z')));
    }
    return found == 0;
}

}  // namespace

CaptureFileName::CaptureFileName(std::string_view path) : name_(lastComponent(path)) {
    if (!isFolded(name_)) {
        folded_ = PythonText::casefold(name_);
        name_ = folded_;
    }
    stemLength_ = name_.size() - PythonPath::suffix(name_).size();
}

}  // namespace vellark
