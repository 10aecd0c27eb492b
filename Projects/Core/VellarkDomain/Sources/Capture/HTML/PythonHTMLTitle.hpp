#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// HTML as a stream of events, with the meaning of Python's `html.parser.HTMLParser(convert_charrefs=True)` that is fed
/// a whole text and closed. It builds no tree and knows no rules of nesting: it tells which tags and which text stand
/// in a page, malformed ones included, and never fails but for one construct (see Parser::failed).
namespace PythonHTMLTitle {

struct Attribute {
    std::string_view name;                  ///< lower-case
    std::optional<std::string_view> value;  ///< references resolved; nothing without "=", "" for `a=""` and `a=`

    bool operator==(const Attribute&) const = default;
};

enum class EventKind { startTag, endTag, selfClosingTag, data };

struct Event {
    EventKind kind = EventKind::data;
    std::string_view text;                  ///< a tag's name in lower-case; data with its references resolved
    std::span<const Attribute> attributes;  ///< of a start tag or a self-closing one, in order, repeats kept
    std::string_view source;                ///< what stands in the page
};

/// Elements whose content is data up to their own end tag, whatever tags seem to stand in it.
inline constexpr std::array<std::string_view, 2> rawTextElements = {"script", "style"};

/// One walk over a page, in time linear in its length.
///
///     PythonHTMLTitle::Parser parser("<p class=x>a &amp; b</p>");
///     while (const Event* event = parser.next()) ...
///         startTag "p" [class: "x"], data "a & b", endTag "p"
///
/// Neighbouring data are not merged: "a<1" gives "a", "<" and "1". Comments, declarations, processing instructions and
/// marked sections give no event. Data inside a raw-text element keep their references, and are dropped when the
/// element has no end tag.
class Parser {
public:
    /// The page and the names of the elements with raw text, in lower-case letters of ASCII; both must outlive the
    /// parser. Each ill-formed subpart of the page is read as U+FFFD.
    explicit Parser(std::string_view html, std::span<const std::string_view> rawText = rawTextElements);
    Parser(Parser&&) noexcept;
    Parser& operator=(Parser&&) noexcept;
    ~Parser();

    /// The next event; nothing at the end, or once the parser has failed. The event and all that it points to are
    /// good until the next call, its source as long as the parser.
    const Event* next();

    /// True after `next` met a marked section that names no known status, such as "<![x[", where Python's parser
    /// raises an error. What stands behind it is not read.
    [[nodiscard]] bool failed() const;

    /// The page as it is read: the text that was given, or its copy with U+FFFD in place of ill-formed subparts.
    [[nodiscard]] std::string_view text() const;

    /// Hands the next event to the handler: to `startTag(name, attributes)`, `endTag(name)`, `selfClosingTag(name,
    /// attributes)` or `data(text)`. False when there is none.
    template <class Handler>
    bool step(Handler& handler) {
        const Event* const event = next();
        if (event == nullptr) return false;
        switch (event->kind) {
            case EventKind::startTag:
                handler.startTag(event->text, event->attributes);
                break;
            case EventKind::endTag:
                handler.endTag(event->text);
                break;
            case EventKind::selfClosingTag:
                handler.selfClosingTag(event->text, event->attributes);
                break;
            case EventKind::data:
                handler.data(event->text);
                break;
        }
        return true;
    }

    /// Hands all events to the handler. True when the page was read to its end.
    template <class Handler>
    bool run(Handler& handler) {
        while (step(handler)) {
        }
        return !failed();
    }

private:
    class State;

    std::unique_ptr<State> state_;
};

/// The text with its character references resolved, as Python's `html.unescape` does: "&lt;&#39;&notit;" gives
/// "<'¬it;". Ill-formed subparts come out as U+FFFD.
[[nodiscard]] std::string unescape(std::string_view text);

/// The text of the page's first `title` element: its data, joined; tags inside are ignored. Without an end tag it runs
/// to the end of the page. "" without a title; a second title is never read, even when the first one is blank.
[[nodiscard]] std::string titleText(std::string_view html);

}  // namespace PythonHTMLTitle

}  // namespace vellark
