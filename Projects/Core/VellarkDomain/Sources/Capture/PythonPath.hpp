#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// A path as a value: the lexical half of Python's `PurePosixPath`. Nothing here touches a disk; ".." pieces stay.
///
///     PythonPath("a/./b//c").string()                 "a/b/c"
///     PythonPath("").string()                         "."
///     PythonPath("/p").appending("x/y").string()      "/p/x/y"
///     PythonPath("/p").appending("/q").string()       "/q"
///     PythonPath("a.tar.gz").suffix()                 ".gz"
///     PythonPath(".bashrc").suffix()                  ""
///
/// Views that the operations give look into the path and live as long as it does.
class PythonPath {
public:
    /// The path of a text; empty and "." pieces go.
    explicit PythonPath(std::string_view text);

    /// "" for a relative path, "//" for a text that begins with exactly two slashes, otherwise "/".
    [[nodiscard]] std::string_view root() const { return std::string_view(joined_).substr(0, rootLength_); }

    /// The components below the root.
    [[nodiscard]] std::vector<std::string_view> tail() const;

    /// The path as text; "." for the empty one.
    [[nodiscard]] std::string_view string() const { return joined_.empty() ? std::string_view(".") : joined_; }

    /// The root, when there is one, and the components.
    [[nodiscard]] std::vector<std::string_view> parts() const;

    /// The last component, "" when there is none.
    [[nodiscard]] std::string_view name() const;

    /// The path without its last component; a path that has none stays itself.
    [[nodiscard]] PythonPath parent() const;

    /// `parent`, its parent and so on, down to the path that has no component.
    [[nodiscard]] std::vector<PythonPath> parents() const;

    /// The name from its last "." on, its leading points not counting; "" when there is no such point. A point at the
    /// end counts: "a." gives ".".
    [[nodiscard]] std::string_view suffix() const { return suffix(name()); }

    /// The same of a name that stands alone.
    [[nodiscard]] static std::string_view suffix(std::string_view name);

    /// The path of the text when that has a root; otherwise this path with the text's components added.
    [[nodiscard]] PythonPath appending(std::string_view text) const;

    [[nodiscard]] bool equals(const PythonPath& other) const { return joined_ == other.joined_; }

    /// True when `other` lies below this path.
    [[nodiscard]] bool isParent(const PythonPath& other) const;

    /// True when `other` is this path or lies below it.
    [[nodiscard]] bool contains(const PythonPath& other) const { return equals(other) || isParent(other); }

    /// The components behind those of `base`; nothing when the path is neither `base` nor below it.
    [[nodiscard]] std::optional<std::vector<std::string_view>> relativeParts(const PythonPath& base) const;

    /// The root of a text and what stands behind it.
    struct Split {
        std::string_view root;
        std::string_view rest;

        bool operator==(const Split&) const = default;
    };
    [[nodiscard]] static Split splitRoot(std::string_view text);

    bool operator==(const PythonPath&) const = default;

private:
    PythonPath() = default;

    void append(std::string_view relative);
    [[nodiscard]] std::string_view tailText() const { return std::string_view(joined_).substr(rootLength_); }

    // Root and components, the latter joined by "/". No component is empty, so this text alone tells all of them.
    std::string joined_;
    std::size_t rootLength_ = 0;
};

}  // namespace vellark
