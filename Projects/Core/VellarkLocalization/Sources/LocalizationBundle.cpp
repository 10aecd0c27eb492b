#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <system_error>

#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <array>
#endif

namespace vellark::LocalizationBundle {

namespace {

namespace fs = std::filesystem;

struct SetPath {
    std::mutex lock;
    std::string path;
};

SetPath& setPath() {
    static SetPath shared;
    return shared;
}

// The directory of the program itself, not of a link to it; "" when the system does not tell.
std::string executableDirectory() {
    std::error_code error;
#ifdef __APPLE__
    std::array<char, 4096> path{};
    auto size = static_cast<std::uint32_t>(path.size());
    if (_NSGetExecutablePath(path.data(), &size) != 0) return "";
    const fs::path executable = fs::canonical(path.data(), error);
#else
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
#endif
    return error ? "" : executable.parent_path().string();
}

std::string found() {
    std::string path;
    {
        const std::scoped_lock held(setPath().lock);
        path = setPath().path;
    }
    auto existing = firstExisting(candidates(path, executableDirectory()));
    if (!existing) {
        std::fprintf(stderr, "could not load resource bundle: from %s\n", existing.error().c_str());
        std::abort();
    }
    return *std::move(existing);
}

}  // namespace

void setDirectory(std::string path) {
    const std::scoped_lock held(setPath().lock);
    setPath().path = std::move(path);
}

const std::string& directory() {
    static const std::string shared = found();
    return shared;
}

std::vector<std::string> candidates(std::string_view setPath, std::string_view executableDirectory) {
    std::vector<std::string> paths;
    if (!setPath.empty()) paths.emplace_back(setPath);
    const auto add = [&](std::string_view relative) {
        paths.push_back(std::string(executableDirectory).append(relative).append(name));
    };
#ifdef __APPLE__
    add("/../Resources/");
#endif
    add("/../share/vellark/");
    add("/");
    return paths;
}

Result<std::string, std::string> firstExisting(std::span<const std::string> candidates) {
    std::error_code ignored;
    const auto existing =
        std::ranges::find_if(candidates, [&](const std::string& path) { return fs::is_directory(path, ignored); });
    if (existing != candidates.end()) return *existing;
    return failure(candidates.empty() ? std::string() : candidates.back());
}

std::optional<std::string> resource(std::string_view bundle, std::string_view fileName) {
    return BoundedFile::read((fs::path(bundle) / "Resources" / fileName).string(), maximumFileBytes);
}

std::vector<std::string> files(std::string_view bundle, std::string_view subdirectory) {
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator entry(fs::path(bundle) / subdirectory, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_regular_file(ignored)) paths.push_back(entry->path().string());
    }
    std::ranges::sort(paths);  // the directory is common to all, so this is the order of the names

    std::vector<std::string> contents;
    for (const std::string& path : paths) {
        if (auto content = BoundedFile::read(path, maximumFileBytes)) contents.push_back(*std::move(content));
    }
    return contents;
}

}  // namespace vellark::LocalizationBundle
