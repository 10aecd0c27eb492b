#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace vellark {

struct DocumentRecord;
struct DocumentRevision;

/// What a document's text is written in, and so how it is shown and read.
///
///     DocumentContentFormat::code("swift")      source text, coloured as Swift
///     DocumentContentFormat::code(std::nullopt) source text of a language that nobody knows
///     DocumentContentFormat::markdown()
///     DocumentContentFormat::html()
struct DocumentContentFormat {
    /// Text that is shown as it stands. The language is a name that code colouring knows, such as "python", or the
    /// file's own extension where there is no better name; nothing when the file does not tell.
    struct Code {
        std::optional<std::string> language;

        bool operator==(const Code&) const = default;
    };
    struct Markdown {
        bool operator==(const Markdown&) const = default;
    };
    struct HTML {
        bool operator==(const HTML&) const = default;
    };

    std::variant<Code, Markdown, HTML> value;

    /// The format of a document, judged by its kind, its category and its name: that of its source path, else that of
    /// the revision's snapshot, else its title. Without a revision, give a null pointer.
    ///
    ///     kind "markdown", "notes.swift"      markdown
    ///     kind "text", "notes.swift"          code "swift"
    ///     kind "text", "Dockerfile.dev"       code "dockerfile"
    ///     kind "text", "LICENSE"              code of no language
    [[nodiscard]] static DocumentContentFormat resolve(const DocumentRecord& document,
                                                       const DocumentRevision* revision);

    [[nodiscard]] static DocumentContentFormat code(std::optional<std::string> language) {
        return {Code{std::move(language)}};
    }
    [[nodiscard]] static DocumentContentFormat markdown() { return {Markdown{}}; }
    [[nodiscard]] static DocumentContentFormat html() { return {HTML{}}; }

    [[nodiscard]] bool isMarkdown() const { return std::holds_alternative<Markdown>(value); }
    [[nodiscard]] bool isHTML() const { return std::holds_alternative<HTML>(value); }

    /// Whether people wrote it for people: Markdown, HTML, and code in one of the plain text languages.
    [[nodiscard]] bool isProse() const;

    bool operator==(const DocumentContentFormat&) const = default;
};

/// The languages of code that are in truth running text. Compared byte by byte.
inline constexpr auto plainTextLanguages = std::to_array<std::string_view>({"plaintext", "rst", "adoc"});

/// Whether the language is one of `plainTextLanguages`.
[[nodiscard]] bool isPlainTextLanguage(std::string_view language);

}  // namespace vellark
