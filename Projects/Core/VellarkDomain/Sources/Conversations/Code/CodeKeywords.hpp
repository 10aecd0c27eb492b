#pragma once

#include <array>
#include <string_view>

// The reserved words of the languages that are coloured, each list in ascending order of bytes.

namespace vellark::CodeKeywords {

inline constexpr auto swift = std::to_array<std::string_view>({
    "Self",        "actor",    "any",    "as",          "associatedtype", "async",       "await",
    "break",       "case",     "catch",  "class",       "continue",       "default",     "defer",
    "deinit",      "do",       "else",   "enum",        "extension",      "fallthrough", "false",
    "fileprivate", "final",    "for",    "func",        "guard",          "if",          "import",
    "in",          "indirect", "init",   "inout",       "internal",       "is",          "lazy",
    "let",         "mutating", "nil",    "nonisolated", "open",           "operator",    "override",
    "private",     "protocol", "public", "repeat",      "required",       "rethrows",    "return",
    "self",        "some",     "static", "struct",      "subscript",      "super",       "switch",
    "throw",       "throws",   "true",   "try",         "typealias",      "unowned",     "var",
    "weak",        "where",    "while",
});

inline constexpr auto python = std::to_array<std::string_view>({
    "False", "None",     "True", "and",    "as",     "assert", "async",  "await",   "break",
    "class", "continue", "def",  "del",    "elif",   "else",   "except", "finally", "for",
    "from",  "global",   "if",   "import", "in",     "is",     "lambda", "match",   "nonlocal",
    "not",   "or",       "pass", "raise",  "return", "try",    "while",  "with",    "yield",
});

/// JavaScript with TypeScript's own words.
inline constexpr auto javaScript = std::to_array<std::string_view>({
    "as",        "async",  "await",    "break", "case",       "catch",     "class",   "const",      "continue",
    "default",   "delete", "do",       "else",  "enum",       "export",    "extends", "false",      "finally",
    "for",       "from",   "function", "if",    "implements", "import",    "in",      "instanceof", "interface",
    "let",       "new",    "null",     "of",    "private",    "protected", "public",  "readonly",   "return",
    "static",    "super",  "switch",   "this",  "throw",      "true",      "try",     "type",       "typeof",
    "undefined", "var",    "void",     "while", "yield",
});

/// Words and commands that make up most of what agents run.
inline constexpr auto shell = std::to_array<std::string_view>({
    "case",     "cd", "do", "done",  "echo",     "elif",   "else", "esac",   "exit", "export", "fi",    "for",
    "function", "if", "in", "local", "readonly", "return", "set",  "source", "then", "unset",  "until", "while",
});

inline constexpr auto json = std::to_array<std::string_view>({"false", "null", "true"});

}  // namespace vellark::CodeKeywords
