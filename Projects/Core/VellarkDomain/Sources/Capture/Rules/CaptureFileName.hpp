#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vellark {

/// The name at the end of a path, case-folded as the rules compare it. The path must outlive it.
///
///     CaptureFileName("/p/Notes.TXT")    name "notes.txt", stem "notes", suffix ".txt", extension "txt"
///     CaptureFileName("/p/.env/.")       name ".env", stem ".env", no suffix
class CaptureFileName {
public:
    explicit CaptureFileName(std::string_view path);

    CaptureFileName(const CaptureFileName&) = delete;
    CaptureFileName& operator=(const CaptureFileName&) = delete;

    [[nodiscard]] std::string_view name() const { return name_; }

    /// As PythonPath::suffix has it, with its point.
    [[nodiscard]] std::string_view suffix() const { return name_.substr(stemLength_); }

    /// The suffix without its point.
    [[nodiscard]] std::string_view extension() const {
        return suffix().empty() ? std::string_view() : suffix().substr(1);
    }

    /// The name without its suffix.
    [[nodiscard]] std::string_view stem() const { return name_.substr(0, stemLength_); }

private:
    std::string folded_;  // empty when the name in the path is folded already
    std::string_view name_;
    std::size_t stemLength_ = 0;
};

}  // namespace vellark
