#pragma once

#include <VellarkFoundation/Files/Environment.hpp>

#include <string>
#include <vector>

namespace vellark {

/// What the process's environment says of languages and conventions.
namespace LocalizationEnvironment {

/// The languages that the user would like, the dearest first: the pieces of LANGUAGE (split at ":"), then the first
/// that is not empty of LC_ALL, LC_MESSAGES and LANG. Encodings and modifiers (from "." or "@" on) are cut off; "C" and
/// "POSIX" are no languages.
///
///     LANGUAGE=de:pt_BR LANG=ko_KR.UTF-8     {"de", "pt_BR", "ko_KR"}
[[nodiscard]] std::vector<std::string> preferredLanguages(const Environment& environment);

/// The locale for numbers and dates: the first that is not empty of LC_ALL, LC_TIME and LANG, cut in the same way.
/// "en_US" when there is none, or when it is "C" or "POSIX".
[[nodiscard]] std::string systemLocale(const Environment& environment);

}  // namespace LocalizationEnvironment

}  // namespace vellark
