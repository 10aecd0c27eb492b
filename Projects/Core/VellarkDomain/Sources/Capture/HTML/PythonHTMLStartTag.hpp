#pragma once

#include <VellarkDomain/Capture/HTML/HTMLCharacters.hpp>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vellark::PythonHTMLTitle {

/// Finds where start tags end, and their attributes. It serves one page, from front to back.
class StartTagScanner {
public:
    static constexpr std::size_t usualAttributeCount = 8;

    enum class Outcome {
        startTag,
        selfClosingTag,
        junk,        ///< text that only looks like a tag: "<", a name and U+0000
        incomplete,  ///< the page ends inside the tag, or a quote in it is never closed
    };

    /// An attribute as it stands in the page.
    struct RawAttribute {
        std::string_view name;
        std::string_view value;
        bool hasValue = false;
        bool mayLower = false;  // false: the name is lower-case already
    };

    explicit StartTagScanner(std::string_view text) : text_(text) { attributes_.reserve(usualAttributeCount); }

    /// Scans the tag whose "<" stands at the offset, a letter behind it. Unless the tag is incomplete, `name`,
    /// `attributes` and `end` then tell about it.
    Outcome scan(std::size_t start);

    [[nodiscard]] std::string_view name() const { return name_; }
    [[nodiscard]] bool mayLowerName() const { return mayLowerName_; }
    [[nodiscard]] const std::vector<RawAttribute>& attributes() const { return attributes_; }
    [[nodiscard]] std::size_t end() const { return end_; }

private:
    // The two places in a tag from which all that follows is settled by the offset alone.
    enum class Place : std::uint8_t { betweenAttributes, behindName };

    Outcome walk(std::size_t start);
    bool enter(Place place, std::size_t offset);
    Outcome finish(Outcome outcome, std::size_t end);
    std::size_t skipSeparators(std::size_t offset) const;
    bool mayBeginName(std::size_t offset) const;
    std::size_t scanValue(std::size_t nameEnd, RawAttribute& attribute);
    std::size_t scanQuoted(std::size_t quote, RawAttribute& attribute);
    std::size_t scanBare(std::size_t start, RawAttribute& attribute);

    std::string_view text_;
    std::string_view name_;
    bool mayLowerName_ = false;
    std::vector<RawAttribute> attributes_;
    std::size_t end_ = 0;

    HTMLCharacters::RunFinder tagNameEnds_{HTMLCharacters::endOfTagName};
    HTMLCharacters::RunFinder nameEnds_{HTMLCharacters::space | HTMLCharacters::endOfName};
    HTMLCharacters::RunFinder bareEnds_{HTMLCharacters::space | HTMLCharacters::endOfBareValue};
    HTMLCharacters::ByteFinder doubleQuotes_{'"'};
    HTMLCharacters::ByteFinder singleQuotes_{'\''};

    std::vector<bool> doomed_;  // places from which a tag stays incomplete; empty before the first such tag
    bool isDooming_ = false;    // while the places of an incomplete tag are doomed
};

}  // namespace vellark::PythonHTMLTitle
