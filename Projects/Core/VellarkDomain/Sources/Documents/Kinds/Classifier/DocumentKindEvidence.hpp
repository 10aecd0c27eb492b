#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What is known of a document whose kind is asked.
///
///     DocumentKindEvidence evidence = {.title = "Weekly sync", .path = "/work/app/notes/sync.md", .root =
///     "/work/app"}; evidence.read(text, {.html = false}); DocumentKindClassifier::classify(evidence)
struct DocumentKindEvidence {
    /// Most bytes of a text that count as its opening; twice as many are looked at before front matter is taken off.
    static constexpr std::size_t bodyLimit = 4'096;

    std::string title = {};
    std::optional<std::string> path = std::nullopt;
    std::optional<std::string> root = std::nullopt;  ///< of the project
    std::vector<std::string> declared = {};          ///< values of front matter keys such as "type"
    std::vector<std::string> tags = {};              ///< values of front matter keys such as "tags"
    std::vector<std::string> headings = {};
    std::string body = {};        ///< the opening text
    std::int64_t checkboxes = 0;  ///< Markdown task items

    struct Format {
        bool html = false;
    };

    /// Takes what the opening of a text shows: front matter (not of HTML), headings, task items and the body. Headings
    /// and body replace what was there; declared values and tags are added to it. Never fails: malformed front matter
    /// is body, and what was read of it stays.
    void read(std::string_view text, Format format);

    bool operator==(const DocumentKindEvidence&) const = default;
};

}  // namespace vellark
