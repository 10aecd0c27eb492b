#pragma once

#include <VellarkDomain/Capture/FixedTextMap.hpp>

#include <array>

// Names and suffixes of files, case-folded, with what the rules make of them.
namespace vellark::CaptureArtifactTables {

enum class NameTrait {
    credentials,  ///< in which tools keep keys, passwords and sessions, or what a user typed
    code,         ///< code and what goes with it, though the name has no suffix
};

inline constexpr FixedTextMap names(std::to_array<FixedTextEntry<NameTrait>>({
    {"auth.json", NameTrait::credentials},
    {"credentials.json", NameTrait::credentials},
    {"credentials.yaml", NameTrait::credentials},
    {"credentials.yml", NameTrait::credentials},
    {"tokens.json", NameTrait::credentials},
    {"secrets.json", NameTrait::credentials},
    {"secrets.yaml", NameTrait::credentials},
    {"secrets.yml", NameTrait::credentials},
    {"id_rsa", NameTrait::credentials},
    {"id_ed25519", NameTrait::credentials},
    {"cookie", NameTrait::credentials},
    {"cookies.sqlite", NameTrait::credentials},
    {".npmrc", NameTrait::credentials},
    {".pypirc", NameTrait::credentials},
    {".netrc", NameTrait::credentials},
    {".git-credentials", NameTrait::credentials},
    {".dockercfg", NameTrait::credentials},
    {"history.jsonl", NameTrait::credentials},
    {"client_secret.json", NameTrait::credentials},
    {"makefile", NameTrait::code},
    {"dockerfile", NameTrait::code},
    {"gemfile", NameTrait::code},
    {"license", NameTrait::code},
    {"readme", NameTrait::code},
}));

enum class SuffixTrait {
    key,            ///< keys, certificates with keys and stores of passwords
    systemBinary,   ///< what compilers and linkers write
    configuration,  ///< settings, among which secrets stand; no suffix is one of these
};

/// With their points.
inline constexpr FixedTextMap suffixes(std::to_array<FixedTextEntry<SuffixTrait>>({
    {".pem", SuffixTrait::key},
    {".key", SuffixTrait::key},
    {".p8", SuffixTrait::key},
    {".p12", SuffixTrait::key},
    {".pfx", SuffixTrait::key},
    {".keystore", SuffixTrait::key},
    {".kdbx", SuffixTrait::key},
    {".mobileprovision", SuffixTrait::key},
    {".dylib", SuffixTrait::systemBinary},
    {".so", SuffixTrait::systemBinary},
    {".a", SuffixTrait::systemBinary},
    {".o", SuffixTrait::systemBinary},
    {".pyc", SuffixTrait::systemBinary},
    {".pyo", SuffixTrait::systemBinary},
    {".class", SuffixTrait::systemBinary},
    {".swiftmodule", SuffixTrait::systemBinary},
    {".swiftdoc", SuffixTrait::systemBinary},
    {"", SuffixTrait::configuration},
    {".json", SuffixTrait::configuration},
    {".jsonc", SuffixTrait::configuration},
    {".yaml", SuffixTrait::configuration},
    {".yml", SuffixTrait::configuration},
    {".toml", SuffixTrait::configuration},
    {".ini", SuffixTrait::configuration},
    {".cfg", SuffixTrait::configuration},
    {".conf", SuffixTrait::configuration},
    {".txt", SuffixTrait::configuration},
    {".properties", SuffixTrait::configuration},
}));

}  // namespace vellark::CaptureArtifactTables
