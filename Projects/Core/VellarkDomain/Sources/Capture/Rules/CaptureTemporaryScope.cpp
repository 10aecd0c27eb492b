#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>

#include <algorithm>
#include <array>
#include <span>

namespace vellark {

namespace {

using Texts = std::span<const std::string_view>;

// Temporary on every machine. "/private" is where macOS keeps what its "/tmp" and "/var" link to.
constexpr std::array<std::string_view, 6> commonRoots = {
    "/tmp", "/private/tmp", "/var/tmp", "/private/var/tmp", "/var/folders", "/private/var/folders"};

// Those that people and agents write into by hand; the folders that the system gives out are not among them.
constexpr Texts documentRoots = Texts(commonRoots).first(4);

constexpr std::array<std::string_view, 2> machineNames = {"cmakelists.txt", "robots.txt"};
constexpr std::array<std::string_view, 4> machinePrefixes = {"requirements", "constraints", "license", "copying"};
constexpr std::array<std::string_view, 2> logFolders = {"logs", "log"};

bool isWithin(std::string_view path, std::string_view root) {
    return path.starts_with(root) && (path.size() == root.size() || path[root.size()] == '/');
}

bool isWithinAny(std::string_view path, Texts roots) {
    return std::ranges::any_of(roots, [&](std::string_view root) { return isWithin(path, root); });
}

// The normal form of a path, which is the path itself nearly always.
class NormalPath {
public:
    explicit NormalPath(std::string_view path) : text_(path) {
        if (path.size() > 2 && path.ends_with('/')) text_.remove_suffix(1);
        if (PythonText::isNormalAbsolute(text_)) return;
        made_ = PythonText::normpath(path);
        text_ = made_;
    }
    NormalPath(const NormalPath&) = delete;
    NormalPath& operator=(const NormalPath&) = delete;

    [[nodiscard]] std::string_view text() const { return text_; }

private:
    std::string made_;
    std::string_view text_;
};

bool isAbsolute(const std::optional<std::string>& path) {
    return path && path->starts_with('/');
}

bool isTemporaryDocumentExtension(std::string_view extension) {
    return ArtifactCategories::isMarkdownExtension(extension) || ArtifactCategories::isHTMLExtension(extension) ||
           extension == "pdf" || extension == "txt";
}

bool isInLogFolder(std::string_view path) {
    const std::string folded = PythonText::casefold(path);
    const PythonPath folder = PythonPath(folded).parent();
    const auto isLog = [](std::string_view part) { return PythonText::isMember(part, logFolders); };
    return std::ranges::any_of(folder.tail(), isLog);
}

}  // namespace

std::vector<std::string> CaptureTemporaryScope::roots() const {
    std::vector<std::string> all(commonRoots.begin(), commonRoots.end());
    if (!isAbsolute(temporaryDirectory)) return all;
    all.push_back(PythonText::normpath(*temporaryDirectory));
    if (resolvedTemporaryDirectory) all.push_back(*resolvedTemporaryDirectory);
    return all;
}

bool CaptureTemporaryScope::holds(std::string_view path) const {
    if (isWithinAny(path, commonRoots)) return true;
    if (!isAbsolute(temporaryDirectory)) return false;
    if (resolvedTemporaryDirectory && isWithin(path, *resolvedTemporaryDirectory)) return true;
    return isWithin(path, NormalPath(*temporaryDirectory).text());
}

namespace CaptureRules {

bool temporaryLocation(std::string_view path, const CaptureTemporaryScope& scope) {
    const NormalPath normal(path);
    if (!scope.holds(normal.text())) return false;
    if (!scope.holds(scope.dataFolderParent)) return true;
    const auto roots = scope.roots();
    if (std::ranges::find(roots, scope.dataFolderParent) != roots.end()) return true;
    return !isWithin(normal.text(), scope.dataFolderParent);
}

bool temporaryDocumentFolder(std::string_view path) {
    const NormalPath normal(path);
    const auto root = std::ranges::find_if(documentRoots, [&](auto one) { return isWithin(normal.text(), one); });
    return root != documentRoots.end() && !PythonText::contains(normal.text().substr(root->size()), "/.");
}

bool nonDocumentText(std::string_view path) {
    const CaptureFileName file(path);
    const std::string_view name = file.name();
    if (!name.ends_with(".txt")) return false;
    if (PythonText::isMember(name, machineNames) || name.ends_with(".log.txt")) return true;
    const auto begins = [&](std::string_view prefix) { return name.starts_with(prefix); };
    return std::ranges::any_of(machinePrefixes, begins) || isInLogFolder(path);
}

bool temporaryDocument(std::string_view path) {
    return temporaryDocumentFolder(path) && isTemporaryDocumentExtension(CaptureFileName(path).extension()) &&
           !nonDocumentText(path);
}

}  // namespace CaptureRules

}  // namespace vellark
