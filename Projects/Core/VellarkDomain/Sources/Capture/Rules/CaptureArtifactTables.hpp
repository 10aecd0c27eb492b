#pragma once

#include <array>
#include <string_view>

// Names and suffixes of files, case-folded. Suffixes come with their point.
namespace vellark::CaptureArtifactTables {

/// Files in which tools keep keys, passwords and sessions, or what a user typed.
inline constexpr auto credentialFiles = std::to_array<std::string_view>({
    "auth.json",
    "credentials.json",
    "credentials.yaml",
    "credentials.yml",
    "tokens.json",
    "secrets.json",
    "secrets.yaml",
    "secrets.yml",
    "id_rsa",
    "id_ed25519",
    "cookie",
    "cookies.sqlite",
    ".npmrc",
    ".pypirc",
    ".netrc",
    ".dockercfg",
    "history.jsonl",
    ".git-credentials",
    "client_secret.json",
});

/// Keys, certificates with keys and stores of passwords.
inline constexpr auto keySuffixes =
    std::to_array<std::string_view>({".pem", ".key", ".p8", ".p12", ".pfx", ".keystore", ".kdbx", ".mobileprovision"});

/// What compilers and linkers write.
inline constexpr auto systemBinarySuffixes = std::to_array<std::string_view>(
    {".dylib", ".so", ".a", ".o", ".pyc", ".pyo", ".class", ".swiftmodule", ".swiftdoc"});

/// Files that hold settings, among which secrets stand; those without a suffix are among them.
inline constexpr auto configSuffixes = std::to_array<std::string_view>(
    {"", ".json", ".jsonc", ".yaml", ".yml", ".toml", ".ini", ".cfg", ".conf", ".txt", ".properties"});

/// Files of code and its surroundings that go without a suffix.
inline constexpr auto codeFileNames =
    std::to_array<std::string_view>({"makefile", "dockerfile", "gemfile", "license", "readme"});

}  // namespace vellark::CaptureArtifactTables
