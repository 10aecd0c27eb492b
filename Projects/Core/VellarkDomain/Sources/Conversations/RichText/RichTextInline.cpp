// Inline Markdown is cmark-gfm's. It is made for whole documents, so a paragraph is put together by hand and only its
// inline phase runs: "#", "-", ">" and "1." stay literal. What that phase would drop is guarded:
//
// - white space around line ends by a stand-in, a blank of Unicode that the text does not hold, which cmark takes for
//   white space but never strips; it is removed from all that comes out;
// - a single "~", which would open a strike-through, by the private scalar U+E000;
// - the bytes of a code span, which cmark normalises, by finding the span in the source again.
//
// The library keeps its special characters in global tables, so one mutex stands around its use.

#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm-extension_api.h>
#include <cmark-gfm.h>
#include <cmark-gfm/buffer.h>
#include <cmark-gfm/inlines.h>
#include <cmark-gfm/node.h>
#include <cmark-gfm/parser.h>
#include <cmark-gfm/syntax_extension.h>

#include <array>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vellark {

namespace {

using Run = ConversationRichText::Run;
using Traits = Run::Traits;

constexpr std::string_view tildeStandIn = "\xEE\x80\x80";  // U+E000

constexpr std::array<std::string_view, 13> blankStandIns = {"\u205F", "\u1680", "\u2000", "\u2001", "\u2002",
                                                            "\u2003", "\u2004", "\u2005", "\u2006", "\u2007",
                                                            "\u2008", "\u2009", "\u200A"};

constexpr auto marksMarkdown = [] {
    std::array<bool, 256> table{};
    for (const char byte : std::string_view("*_`~[<\\&:@"))
        table[static_cast<unsigned char>(byte)] = true;
    return table;
}();

bool needsMarkdown(std::string_view text) {
    for (const char byte : text) {
        if (marksMarkdown[static_cast<unsigned char>(byte)]) return true;
    }
    return text.find("www.") != std::string_view::npos;
}

bool has(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

// Whether cmark would give back the text as it is, which most texts with but one of these marks are: ":" begins an
// address only in "://", "[" a link only in "](", "&" an entity only before a ";", and single "~" are guarded anyway.
bool isInert(std::string_view text) {
    if (text.find_first_of(std::string_view("*_`<\\@\r\0", 8)) != std::string_view::npos) return false;
    const bool mayEscape = has(text, "&") && has(text, ";");
    return !mayEscape && !has(text, "://") && !has(text, "](") && !has(text, "~~") && !has(text, "www.") &&
           UTF8::isValid(text);
}

std::string replacingAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t found = text.find(from); found != std::string_view::npos; found = text.find(from, start)) {
        result += text.substr(start, found - start);
        result += to;
        start = found + from.size();
    }
    result += text.substr(start);
    return result;
}

// The text as cmark gets it, and what brings its answers back.
class Source {
public:
    explicit Source(std::string_view text) : text_(text) {
        if (!UTF8::isValid(text_)) keep(UTF8::replacingInvalid(text_));
        protectTildes();
        if (has(text_, nul)) keep(replacingAll(text_, nul, "\uFFFD"));
        protectBlanks();
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    [[nodiscard]] std::string_view text() const { return text_; }

    /// Whether pieces are as the writer wrote them already.
    [[nodiscard]] bool isUnchanged() const { return blankStandIn_.empty() && !protectsTildes_; }
    [[nodiscard]] bool protectsTildes() const { return protectsTildes_; }

    /// A piece of the text, or of what cmark made of it, as the writer wrote it.
    [[nodiscard]] std::string restored(std::string_view piece) const {
        std::string result =
            blankStandIn_.empty() ? std::string(piece) : replacingAll(piece, blankStandIn_, std::string_view());
        return protectsTildes_ ? replacingAll(result, tildeStandIn, "~") : result;
    }

    [[nodiscard]] std::string withoutStandIn(std::string_view piece) const {
        return blankStandIn_.empty() ? std::string(piece) : replacingAll(piece, blankStandIn_, std::string_view());
    }

private:
    static constexpr std::string_view nul{"\0", 1};

    void keep(std::string text) {
        changed_ = std::move(text);
        text_ = changed_;
    }

    void protectTildes() {
        if (!has(text_, "~") || has(text_, tildeStandIn)) return;
        std::string result;
        for (std::size_t index = 0; index < text_.size(); ++index) {
            const bool isSingle = text_[index] == '~' && (index == 0 || text_[index - 1] != '~') &&
                                  (index + 1 == text_.size() || text_[index + 1] != '~');
            if (isSingle) {
                result += tildeStandIn;
                protectsTildes_ = true;
            } else {
                result += text_[index];
            }
        }
        keep(std::move(result));
    }

    static bool isBlankOrTab(char byte) { return byte == ' ' || byte == '\t'; }
    static bool isBlankBefore(char byte) { return isBlankOrTab(byte) || byte == '\v' || byte == '\f'; }
    static bool isSpace(char byte) { return isBlankBefore(byte) || byte == '\n' || byte == '\r'; }

    void protectBlanks() {
        if (!has(text_, "\n") && !isSpace(text_.back())) return;
        for (const std::string_view candidate : blankStandIns) {
            if (!has(text_, candidate)) {
                blankStandIn_ = candidate;
                break;
            }
        }
        if (blankStandIn_.empty()) return;  // a text that holds all of them loses some blanks at its line ends
        std::string result;
        for (std::size_t index = 0; index < text_.size(); ++index) {
            const bool isFeed = text_[index] == '\n';
            if (isFeed && index > 0 && isBlankBefore(text_[index - 1])) result += blankStandIn_;
            result += text_[index];
            if (isFeed && index + 1 < text_.size() && isBlankOrTab(text_[index + 1])) result += blankStandIn_;
        }
        if (isSpace(text_.back())) result += blankStandIn_;
        keep(std::move(result));
    }

    std::string_view text_;
    std::string changed_;  // what `text_` views, when it is not the writer's own
    std::string_view blankStandIn_;
    bool protectsTildes_ = false;
};

// Finds the code spans of a text again, from its start to its end. Texts are short (`inlineLimit`), so that looking for
// each closing run from its opening one is quick.
class CodeSpans {
public:
    explicit CodeSpans(std::string_view text) : text_(text) {}

    /// The bytes of the next span whose content cmark normalises to this; nothing when there is none.
    std::optional<std::string_view> next(std::string_view normalised) {
        for (std::size_t open = text_.find('`', cursor_); open != std::string_view::npos;) {
            const std::size_t contentStart = runEnd(open);
            const auto close = closing(contentStart, contentStart - open);
            if (close && normalises(text_.substr(contentStart, *close - contentStart), normalised)) {
                cursor_ = runEnd(*close);
                return text_.substr(contentStart, *close - contentStart);
            }
            // The first tick may have been escaped by a backslash; the others then open a span of their own.
            open = open + 1 < contentStart ? open + 1 : text_.find('`', contentStart);
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] std::size_t runEnd(std::size_t start) const {
        const std::size_t end = text_.find_first_not_of('`', start);
        return end == std::string_view::npos ? text_.size() : end;
    }

    [[nodiscard]] std::optional<std::size_t> closing(std::size_t from, std::size_t length) const {
        for (std::size_t start = text_.find('`', from); start != std::string_view::npos;) {
            const std::size_t end = runEnd(start);
            if (end - start == length) return start;
            start = text_.find('`', end);
        }
        return std::nullopt;
    }

    // cmark turns line ends into blanks and takes one blank from either end when both have one.
    static bool normalises(std::string_view content, std::string_view normalised) {
        std::string result;
        result.reserve(content.size());
        for (std::size_t index = 0; index < content.size(); ++index) {
            if (content[index] == '\r' && index + 1 < content.size() && content[index + 1] == '\n') continue;
            result += content[index] == '\n' || content[index] == '\r' ? ' ' : content[index];
        }
        const bool isPadded = result.size() > 1 && result.front() == ' ' && result.back() == ' ' &&
                              result.find_first_not_of(' ') != std::string::npos;
        return isPadded ? std::string_view(result).substr(1, result.size() - 2) == normalised : result == normalised;
    }

    std::string_view text_;
    std::size_t cursor_ = 0;
};

bool isHexadecimal(std::string_view text) {
    return text.size() == 2 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

bool mayStandInAddress(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           std::string_view("-._~:/?#[]@!$&'()*+,;=").find(byte) != std::string_view::npos;
}

std::string escapedAddress(std::string_view address) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (std::size_t index = 0; index < address.size(); ++index) {
        const auto byte = static_cast<unsigned char>(address[index]);
        const bool isEscape = byte == '%' && isHexadecimal(address.substr(index + 1, 2));
        if (isEscape || mayStandInAddress(address[index])) {
            result += address[index];
        } else {
            result += '%';
            result += digits[byte >> 4];
            result += digits[byte & 15];
        }
    }
    return result;
}

// The address of a link that leads outside; nothing for all other schemes.
std::optional<std::string> outsideAddress(const Source& source, const char* url) {
    if (url == nullptr) return std::nullopt;
    std::string address = escapedAddress(source.withoutStandIn(url));
    std::string scheme = address.substr(0, address.find(':'));
    for (char& letter : scheme) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
    }
    if (scheme.size() == address.size() || (scheme != "http" && scheme != "https" && scheme != "mailto")) {
        return std::nullopt;
    }
    return source.protectsTildes() ? replacingAll(address, "%EE%80%80", "~") : address;
}

struct NodeDeleter {
    void operator()(cmark_node* node) const { cmark_node_free(node); }
    void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
};

using Node = std::unique_ptr<cmark_node, NodeDeleter>;

// cmark's parser with the two extensions that messages need; made once, used under the mutex.
class InlineParser {
public:
    static InlineParser& shared() {
        static InlineParser& parser = *new InlineParser();
        return parser;
    }

    Node parse(std::string_view text) {
        const std::lock_guard lock(mutex_);
        Node document(cmark_node_new(CMARK_NODE_DOCUMENT));
        cmark_node* paragraph = cmark_node_new(CMARK_NODE_PARAGRAPH);
        cmark_node_append_child(document.get(), paragraph);
        cmark_strbuf_set(&paragraph->content, reinterpret_cast<const unsigned char*>(text.data()),
                         static_cast<bufsize_t>(text.size()));
        cmark_manage_extensions_special_characters(parser_, 1);
        cmark_parse_inlines(parser_, paragraph, parser_->refmap, CMARK_OPT_DEFAULT);
        cmark_manage_extensions_special_characters(parser_, 0);
        // What follows looks for mail addresses only.
        if (!has(text, "@")) return document;
        cmark_consolidate_text_nodes(document.get());
        for (cmark_syntax_extension* extension : extensions_) {
            if (extension->postprocess_func != nullptr) {
                extension->postprocess_func(extension, parser_, document.get());
            }
        }
        return document;
    }

private:
    InlineParser() : parser_(cmark_parser_new(CMARK_OPT_DEFAULT)) {
        cmark_gfm_core_extensions_ensure_registered();
        for (const char* name : {"autolink", "strikethrough"}) {
            cmark_syntax_extension* extension = cmark_find_syntax_extension(name);
            cmark_parser_attach_syntax_extension(parser_, extension);
            extensions_.push_back(extension);
        }
    }

    std::mutex mutex_;
    cmark_parser* parser_;
    std::vector<cmark_syntax_extension*> extensions_;
};

// Walks a parsed paragraph and gathers its runs.
class RunBuilder {
public:
    explicit RunBuilder(const Source& source) : source_(source), codeSpans_(source.text()) {}

    std::vector<Run> runs(cmark_node* document) {
        const std::unique_ptr<cmark_iter, NodeDeleter> iterator(cmark_iter_new(document));
        for (auto event = cmark_iter_next(iterator.get()); event != CMARK_EVENT_DONE;
             event = cmark_iter_next(iterator.get())) {
            visit(cmark_iter_get_node(iterator.get()), event == CMARK_EVENT_ENTER);
        }
        return std::move(runs_);
    }

private:
    void visit(cmark_node* node, bool isEntering) {
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_STRONG) {
            count(bold_, isEntering);
        } else if (type == CMARK_NODE_EMPH) {
            count(italic_, isEntering);
        } else if (type == CMARK_NODE_LINK) {
            follow(links_, node, isEntering);
        } else if (type == CMARK_NODE_IMAGE) {
            follow(images_, node, isEntering);
        } else if (isStrikethrough(node)) {
            count(strikethrough_, isEntering);
        } else if (isEntering) {
            leaf(node, type);
        }
    }

    // The type's number is the extension's own secret.
    static bool isStrikethrough(cmark_node* node) {
        return node->extension != nullptr && std::string_view(node->extension->name) == "strikethrough";
    }

    void leaf(cmark_node* node, cmark_node_type type) {
        if (type == CMARK_NODE_SOFTBREAK || type == CMARK_NODE_LINEBREAK) {
            append("\n", 0);
            return;
        }
        const char* literal = cmark_node_get_literal(node);
        if (literal == nullptr) return;
        const bool isCode = type == CMARK_NODE_CODE;
        const std::string_view piece = isCode ? codeSpans_.next(literal).value_or(literal) : literal;
        const std::uint32_t traits = isCode ? Traits::code : 0;
        if (source_.isUnchanged()) {
            append(piece, traits);
        } else {
            append(source_.restored(piece), traits);
        }
    }

    static void count(int& depth, bool isEntering) { depth += isEntering ? 1 : -1; }

    void follow(std::vector<std::optional<std::string>>& addresses, cmark_node* node, bool isEntering) {
        if (isEntering) {
            addresses.push_back(outsideAddress(source_, cmark_node_get_url(node)));
        } else {
            addresses.pop_back();
        }
    }

    void append(std::string_view text, std::uint32_t more) {
        if (text.empty()) return;
        const auto when = [](int depth, std::uint32_t bit) { return depth > 0 ? bit : 0; };
        const Traits traits{when(bold_, Traits::bold) | when(italic_, Traits::italic) |
                            when(strikethrough_, Traits::strikethrough) | more};
        const std::optional<std::string>& link = currentLink();
        if (!runs_.empty() && runs_.back().traits == traits && runs_.back().link == link) {
            runs_.back().text += text;
        } else {
            runs_.push_back({.text = std::string(text), .traits = traits, .link = link});
        }
    }

    const std::optional<std::string>& currentLink() const {
        static const std::optional<std::string> none;
        if (!links_.empty()) return links_.back();
        return images_.empty() ? none : images_.back();
    }

    const Source& source_;
    CodeSpans codeSpans_;
    std::vector<Run> runs_;
    int bold_ = 0;
    int italic_ = 0;
    int strikethrough_ = 0;
    std::vector<std::optional<std::string>> links_;  // those that are open, innermost last
    std::vector<std::optional<std::string>> images_;
};

}  // namespace

std::vector<Run> ConversationRichText::inlineRuns(std::string_view text) {
    if (text.empty()) return {};
    if (text.size() > inlineLimit || !needsMarkdown(text) || isInert(text)) return {{.text = std::string(text)}};
    const Source source(text);
    return RunBuilder(source).runs(InlineParser::shared().parse(source.text()).get());
}

}  // namespace vellark
