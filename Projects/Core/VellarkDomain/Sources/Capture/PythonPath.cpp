#include <VellarkDomain/Capture/PythonPath.hpp>

#include <algorithm>

namespace vellark {

namespace {

std::vector<std::string_view> pieces(std::string_view joined) {
    std::vector<std::string_view> result;
    for (std::size_t start = 0; start < joined.size();) {
        const std::size_t end = std::min(joined.find('/', start), joined.size());
        result.push_back(joined.substr(start, end - start));
        start = end + 1;
    }
    return result;
}

}  // namespace

PythonPath::Split PythonPath::splitRoot(std::string_view text) {
    if (!text.starts_with('/')) return {"", text};
    const bool hasTwo = text.starts_with("//") && !text.starts_with("///");
    const std::size_t rootLength = hasTwo ? 2 : 1;
    return {text.substr(0, rootLength), text.substr(rootLength)};
}

PythonPath::PythonPath(std::string_view text) {
    const Split split = splitRoot(text);
    joined_.reserve(text.size());
    joined_ = split.root;
    rootLength_ = split.root.size();
    append(split.rest);
}

void PythonPath::append(std::string_view relative) {
    for (std::size_t start = 0; start < relative.size();) {
        const std::size_t end = std::min(relative.find('/', start), relative.size());
        const std::string_view piece = relative.substr(start, end - start);
        start = end + 1;
        if (piece.empty() || piece == ".") continue;
        if (joined_.size() > rootLength_) joined_ += '/';
        joined_ += piece;
    }
}

std::vector<std::string_view> PythonPath::tail() const {
    return pieces(tailText());
}

std::vector<std::string_view> PythonPath::parts() const {
    std::vector<std::string_view> result = tail();
    if (rootLength_ > 0) result.insert(result.begin(), root());
    return result;
}

std::string_view PythonPath::name() const {
    const std::string_view text = tailText();
    return text.substr(text.rfind('/') + 1);  // without a slash: npos + 1, the whole
}

PythonPath PythonPath::parent() const {
    PythonPath result;
    result.rootLength_ = rootLength_;
    const std::size_t slash = tailText().rfind('/');
    result.joined_ = joined_.substr(0, slash == std::string_view::npos ? rootLength_ : rootLength_ + slash);
    return result;
}

std::vector<PythonPath> PythonPath::parents() const {
    std::vector<PythonPath> result;
    for (PythonPath path = *this; !path.tailText().empty();) {
        path = path.parent();
        result.push_back(path);
    }
    return result;
}

std::string_view PythonPath::suffix(std::string_view name) {
    name.remove_prefix(std::min(name.find_first_not_of('.'), name.size()));
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? std::string_view() : name.substr(point);
}

PythonPath PythonPath::appending(std::string_view text) const {
    if (text.starts_with('/')) return PythonPath(text);
    PythonPath result = *this;
    result.append(text);
    return result;
}

bool PythonPath::isParent(const PythonPath& other) const {
    if (rootLength_ != other.rootLength_ || other.joined_.size() <= joined_.size()) return false;
    if (!other.joined_.starts_with(joined_)) return false;
    return joined_.size() == rootLength_ || other.joined_[joined_.size()] == '/';
}

std::optional<std::vector<std::string_view>> PythonPath::relativeParts(const PythonPath& base) const {
    if (!base.contains(*this)) return std::nullopt;
    std::string_view rest = std::string_view(joined_).substr(base.joined_.size());
    if (rest.starts_with('/')) rest.remove_prefix(1);
    return pieces(rest);
}

}  // namespace vellark
