#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Capture/HTML/PythonURL.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// One walk over the page's events keeps counts; the verdict is a comparison of counts, and last, because it is the dear
// part, a search for a telling name. The walk stops at the first thing that is unclear.

namespace vellark::CaptureRules {

namespace {

using PythonHTMLTitle::Attribute;

constexpr std::size_t leastMedia = 3;
constexpr std::size_t mostVisibleScalars = 600;
constexpr std::size_t mostProseScalars = 160;
constexpr std::size_t paragraphScalars = 100;  // a paragraph must stay below

constexpr std::array<std::string_view, 3> htmlSuffixes = {".html", ".htm", ".xhtml"};

constexpr std::array<std::string_view, 18> unsafeTags = {
    "base",  "script", "iframe",   "form",   "canvas",   "object",   "embed",  "picture", "button",
    "input", "select", "textarea", "option", "optgroup", "datalist", "output", "details", "summary"};

constexpr std::array<std::string_view, 14> voidTags = {"area",  "base", "br",   "col",   "embed",  "hr",    "img",
                                                       "input", "link", "meta", "param", "source", "track", "wbr"};

constexpr std::array<std::string_view, 18> mediaSuffixes = {".png",  ".jpg", ".jpeg", ".gif", ".webp", ".heic",
                                                            ".heif", ".tif", ".tiff", ".svg", ".bmp",  ".ico",
                                                            ".avif", ".mp4", ".mov",  ".m4v", ".webm", ".ogv"};

bool isOneOf(std::string_view text, std::span<const std::string_view> set) {
    return std::find(set.begin(), set.end(), text) != set.end();
}

// The names of a page made to look at pictures, in the languages of its makers. Between the words of two of them any
// of Python's white space may stand, or none.
const Regex* helperName() {
    static const std::optional<Regex> expression = [] {
        const std::string spaces = R"([\t\n\x{0B}\f\r\x{1C}-\x{20}\x{85}\x{A0}\x{1680}\x{2000}-\x{200A})"
                                   R"(\x{2028}\x{2029}\x{202F}\x{205F}\x{3000}]*)";
        return Regex::compile(R"((?i)\b(?:gallery|previews?|contact)" + spaces + R"(sheet)\b|모아보기|시안)" + spaces +
                              "모음|미리보기");
    }();
    return expression ? &*expression : nullptr;
}

// The words of a text with single blanks between them.
std::string collapsed(std::string_view text) {
    std::string result;
    for (const std::string_view word : PythonText::split(text)) {
        if (!result.empty()) result += ' ';
        result += word;
    }
    return result;
}

// Length of texts joined by blanks, in scalars.
struct JoinedLength {
    std::size_t scalars = 0;
    bool isEmpty = true;

    void add(std::size_t count) {
        scalars += count + (isEmpty ? 0 : 1);
        isEmpty = false;
    }
};

// The value of the last attribute of the name. An attribute without a value counts as missing.
std::optional<std::string_view> lastValue(std::span<const Attribute> attributes, std::string_view name) {
    for (std::size_t index = attributes.size(); index-- > 0;) {
        if (attributes[index].name == name) return attributes[index].value;
    }
    return std::nullopt;
}

bool hasAttribute(std::span<const Attribute> attributes, std::string_view name) {
    return std::any_of(attributes.begin(), attributes.end(),
                       [&](const Attribute& attribute) { return attribute.name == name; });
}

// The local media file that a reference names; nothing when it is anything else.
std::optional<std::string> mediaFile(std::string_view reference) {
    const auto parts = PythonURL::split(reference);
    if (!parts || !parts->scheme.empty() || !parts->netloc.empty()) return std::nullopt;
    if (parts->path.find('\\') != std::string::npos) return std::nullopt;
    const std::string unquoted = PythonURL::unquote(parts->path);
    const PythonPath path(unquoted);
    if (!path.root().empty() || isOneOf("..", path.tail())) return std::nullopt;
    if (!isOneOf(UnicodeCase::lower(path.suffix()), mediaSuffixes)) return std::nullopt;
    return std::string(path.string());
}

class PreviewHelper {
public:
    void startTag(std::string_view tag, std::span<const Attribute> attributes) {
        if (isUnclear(tag, attributes)) ambiguous_ = true;
        if (tag == "p") paragraphs_.push_back(0);
        if (isMediaReference(tag, attributes)) addMedia(lastValue(attributes, tag == "a" ? "href" : "src"));
        if (tag == "figure") ++figures_;
        if (tag == "figcaption") ++captions_;
        if (!isOneOf(tag, voidTags)) push(tag);
    }

    void selfClosingTag(std::string_view tag, std::span<const Attribute> attributes) {
        startTag(tag, attributes);
        if (!isOneOf(tag, voidTags)) pop();
    }

    void endTag(std::string_view tag) {
        if (stack_.empty() || stack_.back() != tag) {
            ambiguous_ = true;
        } else {
            pop();
        }
    }

    void data(std::string_view raw) {
        const std::string text = collapsed(raw);
        if (text.empty()) return;
        if (isInside("title")) labels_.push_back(text);
        if (isInside("head") || isInside("script") || isInside("style") || isInside("template")) return;
        const std::size_t length = UTF8::scalarCount(text);
        visible_.add(length);
        if (isInside("h1") || isInside("figcaption")) {
            labels_.push_back(text);
            return;
        }
        prose_.add(length);
        if (isInside("p") && !paragraphs_.empty()) paragraphs_.back() += 1 + length;
    }

    bool isAmbiguous() const { return ambiguous_; }

    bool isGallery() const {
        if (ambiguous_ || !stack_.empty() || media_.size() < leastMedia) return false;
        const bool isCaptioned = figures_ >= leastMedia && captions_ >= leastMedia;
        if (!isCaptioned && linkedMedia_ < leastMedia) return false;
        return visible_.scalars <= mostVisibleScalars && prose_.scalars <= mostProseScalars &&
               std::all_of(paragraphs_.begin(), paragraphs_.end(),
                           [](std::size_t length) { return length < paragraphScalars; });
    }

    const std::vector<std::string>& labels() const { return labels_; }

private:
    bool isUnclear(std::string_view tag, std::span<const Attribute> attributes) const {
        if (isOneOf(tag, unsafeTags)) return true;
        if (tag == "source" && (!isInside("video") || hasAttribute(attributes, "media"))) return true;
        return std::any_of(attributes.begin(), attributes.end(), [](const Attribute& attribute) {
            return attribute.name.starts_with("on") || attribute.name == "srcset" ||
                   attribute.name == "contenteditable";
        });
    }

    static bool isMediaReference(std::string_view tag, std::span<const Attribute> attributes) {
        if (tag == "a" || tag == "img" || tag == "source") return true;
        return tag == "video" && !lastValue(attributes, "src").value_or("").empty();
    }

    void addMedia(std::optional<std::string_view> reference) {
        const auto file = reference && !reference->empty() ? mediaFile(*reference) : std::nullopt;
        if (!file) {
            ambiguous_ = true;
            return;
        }
        media_.insert(*file);
        if (isInside("a")) ++linkedMedia_;
    }

    bool isInside(std::string_view tag) const {
        const auto entry = open_.find(std::string(tag));
        return entry != open_.end() && entry->second > 0;
    }

    void push(std::string_view tag) {
        stack_.emplace_back(tag);
        ++open_[stack_.back()];
    }

    void pop() {
        --open_[stack_.back()];
        stack_.pop_back();
    }

    std::vector<std::string> stack_;
    std::unordered_map<std::string, std::size_t> open_;  // how often each element is on the stack
    std::vector<std::string> labels_;
    JoinedLength visible_;
    JoinedLength prose_;
    std::vector<std::size_t> paragraphs_;  // in scalars
    std::unordered_set<std::string> media_;
    std::size_t figures_ = 0;
    std::size_t captions_ = 0;
    std::size_t linkedMedia_ = 0;
    bool ambiguous_ = false;
};

// What the file and the page call themselves: the file's name without its suffix, then all labels.
std::string nameText(const PythonPath& path, const std::vector<std::string>& labels) {
    std::string result(path.name().substr(0, path.name().size() - path.suffix().size()));
    std::replace_if(
        result.begin(), result.end(), [](char byte) { return byte == '-' || byte == '_'; }, ' ');
    for (const std::string& label : labels) {
        result += ' ';
        result += label;
    }
    return result;
}

}  // namespace

bool previewHelperHTML(std::string_view html, std::string_view sourcePath) {
    const PythonPath path(sourcePath);
    if (!isOneOf(UnicodeCase::lower(path.suffix()), htmlSuffixes)) return false;
    if (html.size() > maximumPreviewHelperBytes || html.find('\0') != std::string_view::npos) return false;

    PythonHTMLTitle::Parser parser(html);
    if (parser.text().size() > maximumPreviewHelperBytes) return false;
    PreviewHelper helper;
    while (!helper.isAmbiguous() && parser.step(helper)) {
    }
    if (parser.failed() || !helper.isGallery()) return false;
    const Regex* const expression = helperName();
    return expression != nullptr && containsMatch(*expression, nameText(path, helper.labels()));
}

}  // namespace vellark::CaptureRules
