#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryConclusion.hpp>
#include <VellarkDomain/Documents/Summary/SummaryFacts.hpp>
#include <VellarkDomain/Documents/Summary/SummaryHTML.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

// The page is read as a stream of tags and text. The lines for facts and conclusion are built on the way: block tags
// end a line, cells of a table stand on one line, and headings get the "#" that they have in Markdown.

namespace vellark::SummaryHTML {

namespace {

using DocumentSummaryExtractor::plainInline;
using PythonHTMLTitle::Attribute;

// What a tag means for the digest.
enum Role : std::uint8_t {
    skipped = 1,   // its text is not read
    block = 2,     // ends a line
    quotable = 4,  // "p" and "h2": its text is kept
    row = 8,       // begins outside any cell
    cell = 16,
    code = 32,
    definition = 64,  // "dd": stands on the line of its term
    term = 128,       // "dt": its end does not end the line
};

struct TagRole {
    std::string_view name;
    std::uint8_t role;
};

constexpr auto tagRoles = std::to_array<TagRole>({
    {"article", block},    {"aside", block},   {"blockquote", block},   {"br", block},         {"caption", block},
    {"code", code},        {"dd", definition}, {"div", block},          {"dl", block},         {"dt", block | term},
    {"figcaption", block}, {"figure", block},  {"footer", block},       {"h1", block},         {"h2", block | quotable},
    {"h3", block},         {"h4", block},      {"h5", block},           {"h6", block},         {"head", skipped},
    {"header", block},     {"hr", block},      {"li", block},           {"main", block},       {"nav", block},
    {"noscript", skipped}, {"ol", block},      {"p", block | quotable}, {"pre", block | code}, {"script", skipped},
    {"section", block},    {"style", skipped}, {"table", block | row},  {"td", cell},          {"template", skipped},
    {"th", cell},          {"title", skipped}, {"tr", block | row},     {"ul", block},
});

// Where the tags with each first letter begin in the table; they end where those of the next letter begin.
constexpr auto tagsByLetter = [] {
    std::array<std::uint8_t, 27> firsts{};
    for (std::size_t letter = 0; letter < firsts.size(); ++letter) {
        while (firsts[letter] < tagRoles.size() &&
               tagRoles[firsts[letter]].name.front() < static_cast<char>('a' + letter))
            ++firsts[letter];
    }
    return firsts;
}();

int roleOf(std::string_view name) {
    if (name.empty() || name.front() < 'a' || name.front() > 'z') return 0;
    const auto letter = static_cast<std::size_t>(name.front() - 'a');
    for (std::size_t index = tagsByLetter[letter]; index < tagsByLetter[letter + 1]; ++index) {
        if (tagRoles[index].name == name) return tagRoles[index].role;
    }
    return 0;
}

// The level of "h1" to "h6", 0 for other tags.
std::size_t headingLevel(std::string_view name) {
    const bool isHeading = name.size() == 2 && name[0] == 'h' && name[1] >= '1' && name[1] <= '6';
    return isHeading ? static_cast<std::size_t>(name[1] - '0') : 0;
}

const Attribute* firstNamed(std::span<const Attribute> attributes, std::string_view name) {
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const Attribute& attribute) { return attribute.name == name; });
    return found == attributes.end() ? nullptr : &*found;
}

class PageReader {
public:
    void startTag(std::string_view name, std::span<const Attribute> attributes) {
        if (name == "meta") readMeta(attributes);
        const int role = roleOf(name);
        if ((role & skipped) != 0) ++skipDepth_;
        if ((role & quotable) != 0) openBlock_ = name, blockText_.clear();
        if ((role & row) != 0) cellDepth_ = 0;
        if ((role & block) != 0) breakLine();
        if (const std::size_t level = headingLevel(name); level > 0 && cellDepth_ == 0) {
            line_.append(level, '#').push_back(' ');
        }
        if ((role & definition) != 0) line_ += ' ';
        if ((role & cell) != 0) line_ += " | ", ++cellDepth_;
        if ((role & code) != 0) ++codeDepth_;
    }

    void endTag(std::string_view name) {
        const int role = roleOf(name);
        if ((role & skipped) != 0) leave(skipDepth_);
        if ((role & row) != 0) cellDepth_ = 0;
        if ((role & cell) != 0) leave(cellDepth_);
        if ((role & block) != 0 && (role & term) == 0) breakLine();
        if ((role & code) != 0) leave(codeDepth_);
        if (openBlock_ == name) closeBlock();
    }

    void selfClosingTag(std::string_view name, std::span<const Attribute> attributes) {
        startTag(name, attributes);
        endTag(name);
    }

    void data(std::string_view text) {
        if (skipDepth_ > 0) return;
        if (!openBlock_.empty()) blockText_ += text;
        if (hasText_) text_ += ' ';
        text_ += text;
        hasText_ = true;
        if (codeDepth_ == 0) line_ += text;
    }

    DocumentSummaryExtract digest(bool isComplete) {
        cellDepth_ = 0;
        breakLine();
        std::string summary = plainInline(description_.value_or(""));
        if (summary.empty()) summary = firstParagraph_;
        const std::vector<std::string_view> lines(lines_.begin(), lines_.end());
        const auto prose = DocumentSummaryExtractor::proseLines(lines, false, isComplete);
        return {
            .summary = DocumentSummaryExtractor::cut(summary, DocumentSummaryExtractor::summaryLength),
            .headings = std::move(headings_),
            .body = SummaryText::collapsed(text_),
            .items = {},
            .facts = SummaryFacts::factsOf(prose),
            .conclusion = SummaryConclusion::conclusionOf(prose),
        };
    }

private:
    static void leave(std::size_t& depth) {
        if (depth > 0) --depth;
    }

    void readMeta(std::span<const Attribute> attributes) {
        const Attribute* const name = firstNamed(attributes, "name");
        if (description_ || name == nullptr || !name->value) return;
        if (UnicodeCase::lower(*name->value) != "description") return;
        const Attribute* const content = firstNamed(attributes, "content");
        if (content != nullptr && content->value) description_ = *content->value;
    }

    void breakLine() {
        if (cellDepth_ > 0) {
            line_ += ' ';
            return;
        }
        if (line_.empty()) return;
        std::string line = SummaryText::collapsed(line_);
        if (!line.empty()) lines_.push_back(std::move(line));
        line_.clear();
    }

    void closeBlock() {
        constexpr std::size_t maximumHeadingCount = 3;
        const bool isParagraph = openBlock_ == "p";
        openBlock_.clear();
        if (isParagraph ? !firstParagraph_.empty() : headings_.size() == maximumHeadingCount) return;
        std::string text = plainInline(blockText_);
        if (text.empty()) return;
        if (isParagraph) {
            firstParagraph_ = std::move(text);
        } else {
            headings_.push_back(std::move(text));
        }
    }

    std::optional<std::string> description_;
    std::string firstParagraph_;
    std::vector<std::string> headings_;
    std::string text_;
    bool hasText_ = false;
    std::string openBlock_;  // name of the block whose text is kept; empty outside
    std::string blockText_;
    std::string line_;
    std::vector<std::string> lines_;
    std::size_t skipDepth_ = 0;
    std::size_t cellDepth_ = 0;
    std::size_t codeDepth_ = 0;
};

}  // namespace

DocumentSummaryExtract extract(std::string_view page, bool isComplete) {
    PythonHTMLTitle::Parser parser(page);
    PageReader reader;
    parser.run(reader);
    return reader.digest(isComplete);
}

}  // namespace vellark::SummaryHTML
