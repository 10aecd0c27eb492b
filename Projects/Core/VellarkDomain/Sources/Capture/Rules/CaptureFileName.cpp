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

// Names are short: going through all of one is quicker than stopping early.
bool isFolded(std::string_view text) {
    bool isOther = false;
    for (const char byte : text)
        isOther |= (byte >= 'A' && byte <= 'Z') || static_cast<unsigned char>(byte) >= 0x80;
    return !isOther;
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
