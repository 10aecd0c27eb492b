#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

namespace vellark::FilePath {

namespace {

bool isBidirectionalControl(char32_t scalar) {
    return scalar == 0x061C || scalar == 0x200E || scalar == 0x200F || (scalar >= 0x202A && scalar <= 0x202E) ||
           (scalar >= 0x2066 && scalar <= 0x2069);
}

}  // namespace

std::string_view lastComponent(std::string_view path) {
    const std::size_t last = path.find_last_not_of('/');
    if (last == std::string_view::npos) return path.substr(0, std::min<std::size_t>(path.size(), 1));
    path = path.substr(0, last + 1);
    return path.substr(path.rfind('/') + 1);
}

std::string_view pathExtension(std::string_view path) {
    const std::string_view name = lastComponent(path);
    const std::size_t point = name.rfind('.');
    if (point == std::string_view::npos || point == 0 || name.starts_with("..")) return {};
    const std::string_view extension = name.substr(point + 1);
    const auto refuses = [](char32_t scalar) { return scalar == U' ' || isBidirectionalControl(scalar); };
    for (const char32_t scalar : Scalars(extension)) {
        if (refuses(scalar)) return {};
    }
    return extension;
}

}  // namespace vellark::FilePath
