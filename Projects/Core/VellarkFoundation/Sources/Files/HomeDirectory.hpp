#pragma once

#include <VellarkFoundation/Files/Environment.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Home directories and the leading tilde that stands for them.
///
/// On Linux the users' directories are read from /etc/passwd by lines: the C library's own look-up loads name service
/// modules at run time, which crashes a static program when the user is not in that file.
namespace HomeDirectory {

/// The directory of the user of this name. Nothing for a name that the system does not know.
[[nodiscard]] std::optional<std::string> ofUser(std::string_view name);

/// `HOME` when it is set and begins with "/", otherwise the directory of the process's real user; "" when neither is
/// known.
[[nodiscard]] std::string current(const Environment& environment);

/// The path with a leading "~" or "~name" (the name runs to the first "/") replaced by that directory. After a
/// replacement trailing slashes are dropped, but not from "/" itself. An unknown name leaves the text as it is, and so
/// does "~" when there is no home.
[[nodiscard]] std::string expandingTilde(std::string_view path, const Environment& environment);

/// The sixth field of the first line in /etc/passwd form (name:password:uid:gid:comment:home:shell) whose name, or
/// whose user number, is the wanted one. Lines of fewer fields are passed over.
struct PasswdKey {
    std::optional<std::string_view> name;
    std::optional<unsigned> userID;
};
[[nodiscard]] std::optional<std::string> fromPasswd(std::string_view passwd, const PasswdKey& wanted);

}  // namespace HomeDirectory

}  // namespace vellark
