#pragma once

#include <VellarkFoundation/Result.hpp>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// The directory that holds the module's files: `Vellark_VellarkLocalization.bundle`, with the catalogues as
/// `Resources/<code>.json` in it.
namespace LocalizationBundle {

inline constexpr std::string_view name = "Vellark_VellarkLocalization.bundle";

/// Largest file that is read, in bytes. A catalogue has some tens of thousands.
inline constexpr std::size_t maximumFileBytes = 16 * 1024 * 1024;

/// Names the bundle's own directory, for hosts and tests that keep it elsewhere. To be called before the first use of
/// any text; later calls change nothing. A directory that does not exist is passed over.
void setDirectory(std::string path);

/// Where the bundle is: the directory that was set, or below the directory of the running program `../share/vellark/`
/// (an installation), or that directory itself (a build); an application of macOS keeps it in `../Resources/`. Looked
/// for once. When it is in none of these places, the process ends with a message: every text would be missing.
[[nodiscard]] const std::string& directory();

/// The places where the bundle may stand, in order.
[[nodiscard]] std::vector<std::string> candidates(std::string_view setPath, std::string_view executableDirectory);

/// The first candidate that is a directory; as the error, the last one that was tried.
[[nodiscard]] Result<std::string, std::string> firstExisting(std::span<const std::string> candidates);

/// The content of a file in the bundle's directory "Resources". Nothing when it is not there, is no regular file or is
/// larger than `maximumFileBytes`.
[[nodiscard]] std::optional<std::string> resource(std::string_view bundle, std::string_view fileName);

/// The contents of the regular files that stand directly in a subdirectory of the bundle, sorted by file name in bytes.
/// A missing subdirectory has none.
[[nodiscard]] std::vector<std::string> files(std::string_view bundle, std::string_view subdirectory);

}  // namespace LocalizationBundle

}  // namespace vellark
