#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// Walks the "#" headings of a text, in time linear in its length.
///
///     HeadingScanner("# C#\ntext\n## Next  ##").next()     "C", then "Next", then nothing
///     HeadingScanner("#\n\nBody").next()                   "Body"
///     HeadingScanner("# ##").next()                        "#"
///     HeadingScanner("#a\n####### b\n # c").next()         nothing
///
/// A heading is one to six "#" at the start of a line, white space (see PythonText::isSpace; line feeds may be among
/// it) and the rest of the line at which that ends, without white space and closing "#" behind it. Only U+000A ends a
/// line. Fenced code is not known here; see structuralText.
class HeadingScanner {
public:
    /// The text must outlive the scanner and the headings.
    explicit HeadingScanner(std::string_view text) : text_(text) {}

    /// The next heading's text, never empty and without white space at its ends; nothing behind the last one.
    [[nodiscard]] std::optional<std::string_view> next();

private:
    std::string_view text_;
    std::size_t line_ = 0;  // byte offset of the line to look at next
};

/// How many entries of a map of source code the text lists: white space at the start of a line, "- `", one of
/// Projects, Sources, Scripts and Tests, "/", and what stands before the next "`". Entries do not overlap.
[[nodiscard]] std::size_t codeMapEntryCount(std::string_view text);

}  // namespace CaptureRules

}  // namespace vellark
