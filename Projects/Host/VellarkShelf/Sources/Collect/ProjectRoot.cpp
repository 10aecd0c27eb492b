#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkShelf/Collect/ProjectRoot.hpp>

#include <sys/stat.h>

namespace vellark {

namespace {

constexpr std::size_t maximumLinkBytes = 8'192;

// A linked worktree has a file ".git" that names its folder in the main checkout: "gitdir: /main/.git/worktrees/name".
std::optional<std::string> mainRootOf(const std::string& link) {
    const auto text = BoundedFile::read(link, maximumLinkBytes);
    constexpr std::string_view prefix = "gitdir:";
    if (!text || !text->starts_with(prefix)) return std::nullopt;
    const std::string_view target = PythonText::strip(std::string_view(*text).substr(prefix.size()));
    const std::size_t end = target.rfind("/.git/worktrees/");
    if (!target.starts_with('/') || end == std::string_view::npos || end == 0) return std::nullopt;
    return PythonText::normpath(target.substr(0, end));
}

}  // namespace

ProjectRoot ProjectRoot::ofFile(std::string_view file, std::string_view directory, std::string_view home) {
    const PythonPath path(file);
    const PythonPath homePath(home);
    for (const PythonPath& folder : path.parents()) {
        if (folder.contains(homePath)) break;
        const std::string git = std::string(folder.string()) + "/.git";
        struct stat status {};
        if (::lstat(git.c_str(), &status) != 0) continue;
        if (S_ISDIR(status.st_mode)) return {std::string(folder.string()), std::nullopt};
        if (S_ISREG(status.st_mode)) return {std::string(folder.string()), mainRootOf(git)};
    }
    if (directory.starts_with('/') && PythonPath(directory).contains(path)) return {std::string(directory), {}};
    return {std::string(path.parent().string()), {}};
}

}  // namespace vellark
