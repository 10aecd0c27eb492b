#pragma once

#include <VellarkDomain/Capture/PythonPath.hpp>

#include <string_view>

namespace vellark {

/// The name at the end of a path, case-folded as the rules compare it. It stands on its own: the path may go.
///
///     CaptureFileName("/p/Notes.TXT")    name "notes.txt", stem "notes", suffix ".txt", extension "txt"
///     CaptureFileName("/p/.env/.")       name ".env", stem ".env", no suffix
class CaptureFileName {
public:
    explicit CaptureFileName(std::string_view path);

    [[nodiscard]] std::string_view name() const { return file_.name(); }

    /// As PythonPath::suffix has it, with its point.
    [[nodiscard]] std::string_view suffix() const { return file_.suffix(); }

    /// The suffix without its point.
    [[nodiscard]] std::string_view extension() const;

    /// The name without its suffix.
    [[nodiscard]] std::string_view stem() const;

private:
    PythonPath file_;
};

}  // namespace vellark
