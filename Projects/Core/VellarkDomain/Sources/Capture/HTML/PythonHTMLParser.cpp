#include <VellarkDomain/Capture/HTML/HTMLCharacters.hpp>
#include <VellarkDomain/Capture/HTML/HTMLEntities.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLStartTag.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <vector>

// One function per construct. Each begins at `position_`, leaves it behind what it read, and answers whether it made an
// event. A construct that the page does not complete becomes text up to the next ">" (or, without one, "<"), and the
// walk goes on from there. So every search that may run to the end of the page in vain remembers that it did.

namespace vellark::PythonHTMLTitle {

namespace {

using HTMLCharacters::isIn;
using HTMLCharacters::skipSpaces;

constexpr std::size_t npos = std::string_view::npos;

char loweredLetter(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

// Statuses of marked sections. Those of SGML end at "]]>", those that word processors write at "]>".
constexpr std::array<std::string_view, 5> standardStatuses = {"temp", "cdata", "ignore", "include", "rcdata"};
constexpr std::array<std::string_view, 3> conditionalStatuses = {"if", "else", "endif"};

bool isOneOf(std::string_view text, std::span<const std::string_view> set) {
    return std::find(set.begin(), set.end(), text) != set.end();
}

// The end of a construct: a mark, `count` times over, and ">", with white space allowed behind each mark.
class Terminator {
public:
    Terminator(std::string_view mark, int count) : mark_(mark), count_(count) {}

    // Offset behind the first ">" whose marks stand at or behind the offset, before which there is no white space.
    std::size_t findEnd(std::string_view text, std::size_t from) {
        if (from >= noneFrom_) return npos;
        for (std::size_t at = text.find('>', from); at != npos; at = text.find('>', at + 1)) {
            if (endsMarks(text, from, at)) return at + 1;
        }
        noneFrom_ = from;
        return npos;
    }

private:
    bool endsMarks(std::string_view text, std::size_t from, std::size_t offset) const {
        for (int index = 0; index < count_; ++index) {
            offset = HTMLCharacters::skipSpacesBack(text, offset);
            if (offset < from + mark_.size()) return false;
            offset -= mark_.size();
            if (text.substr(offset, mark_.size()) != mark_) return false;
        }
        return true;
    }

    std::string_view mark_;
    int count_;
    std::size_t noneFrom_ = npos;
};

// Bytes of the character at the offset when it equals the lower-case letter but for case, as Python's expressions
// compare: by simple case mapping, which makes the long s an "s" and both dotless and dotted i an "i". 0 otherwise.
std::size_t matchLetter(std::string_view text, std::size_t offset, char letter) {
    if (offset == text.size()) return 0;
    if (loweredLetter(text[offset]) == letter) return 1;
    const std::string_view rest = text.substr(offset);
    const auto matches = [&](char own, std::string_view variant) { return letter == own && rest.starts_with(variant); };
    if (matches('s', "\u017F") || matches('i', "\u0130") || matches('i', "\u0131")) return 2;
    return matches('k', "\u212A") ? 3 : 0;
}

}  // namespace

class Parser::State {
public:
    State(std::string_view html, std::span<const std::string_view> rawText)
        : repaired_(UTF8::isValid(html) ? std::string() : UTF8::replacingInvalid(html)),
          text_(repaired_.empty() ? html : repaired_),
          rawText_(rawText),
          startTags_(text_) {
        attributes_.reserve(StartTagScanner::usualAttributeCount);
    }

    const Event* next() {
        while (position_ < text_.size()) {
            if (readConstruct()) return &event_;
        }
        return nullptr;
    }

    [[nodiscard]] bool failed() const { return failed_; }
    [[nodiscard]] std::string_view text() const { return text_; }

private:
    bool readConstruct();
    bool readText();
    bool readRawText();
    bool readStartTag();
    bool readEndTag();
    bool readDeclaration();
    bool readMarkedSection();
    bool readIncomplete();

    bool skipTo(std::size_t end);
    bool skipPastBracket();

    bool emit(EventKind kind, std::string_view text, std::size_t end);
    bool emitUnescaped(std::size_t end);
    bool emitStartTag(bool selfClosing);
    bool emitEndTag(std::size_t end);

    std::size_t regularEndTag();
    [[nodiscard]] std::size_t matchRawEndTag(std::size_t offset) const;

    std::string_view lowered(std::string_view name, bool mayLower);
    std::string_view unescaped(std::string_view text);
    std::string& scratch();

    std::string repaired_;
    std::string_view text_;
    std::span<const std::string_view> rawText_;
    std::size_t position_ = 0;
    bool failed_ = false;
    std::string_view rawElement_;  // the open element of raw text, "" outside
    std::string_view endTagName_;  // of the last end tag, as it stands
    int endTagClasses_ = 0;        // what occurs in it

    StartTagScanner startTags_;
    HTMLCharacters::ByteFinder brackets_{'>'};
    Terminator commentEnd_{"--", 1};
    Terminator sectionEnd_{"]", 2};
    Terminator conditionalEnd_{"]", 1};

    Event event_;
    std::vector<Attribute> attributes_;
    std::vector<std::unique_ptr<std::string>> scratch_;  // texts of the current event that differ from the page's
    std::size_t scratchUsed_ = 0;
};

bool Parser::State::readConstruct() {
    if (!rawElement_.empty()) return readRawText();
    if (text_[position_] != '<') return readText();
    const char next = position_ + 1 < text_.size() ? text_[position_ + 1] : '\0';
    if (isIn(next, HTMLCharacters::letter)) return readStartTag();
    if (next == '/') return readEndTag();
    if (next == '!') return readDeclaration();
    if (next == '?') return skipPastBracket();
    return emit(EventKind::data, "<", position_ + 1);
}

bool Parser::State::readText() {
    return emitUnescaped(std::min(text_.find('<', position_), text_.size()));
}

// A tag that a "\0" cuts short is text in which references stay.
bool Parser::State::readStartTag() {
    switch (startTags_.scan(position_)) {
        case StartTagScanner::Outcome::startTag:
            return emitStartTag(false);
        case StartTagScanner::Outcome::selfClosingTag:
            return emitStartTag(true);
        case StartTagScanner::Outcome::incomplete:
            return readIncomplete();
        case StartTagScanner::Outcome::junk:
            break;
    }
    return emit(EventKind::data, text_.substr(position_, startTags_.end() - position_), startTags_.end());
}

// "</", a name and ">" make an end tag, whatever else stands before the ">". Without a name it is a comment.
bool Parser::State::readEndTag() {
    const std::size_t start = position_ + 2;
    if (const std::size_t end = regularEndTag(); end != npos) return emitEndTag(end);
    const std::size_t bracket = brackets_.find(text_, start);
    if (bracket == npos) return readIncomplete();
    if (!isIn(text_[start], HTMLCharacters::letter)) return skipTo(bracket + 1);
    const HTMLCharacters::Run run = HTMLCharacters::findRun(text_, start, HTMLCharacters::endOfTagName);
    endTagName_ = text_.substr(start, run.stop - start);
    endTagClasses_ = run.seen;
    return emitEndTag(bracket + 1);
}

// Offset behind the end tag at the position when it is regular: nothing but white space around the name. `npos`
// otherwise. The name goes to `endTagName_` and
// `endTagClasses_`.
std::size_t Parser::State::regularEndTag() {
    const std::size_t start = skipSpaces(text_, position_ + 2);
    std::size_t end = start;
    for (endTagClasses_ = 0; end < text_.size() && isIn(text_[end], HTMLCharacters::endTagName); ++end) {
        endTagClasses_ |= HTMLCharacters::classOf(text_[end]);
    }
    if (end == start || !isIn(text_[start], HTMLCharacters::letter)) return npos;
    endTagName_ = text_.substr(start, end - start);
    const std::size_t bracket = skipSpaces(text_, end);
    return bracket < text_.size() && text_[bracket] == '>' ? bracket + 1 : npos;
}

bool Parser::State::emitEndTag(std::size_t end) {
    return emit(EventKind::endTag, lowered(endTagName_, (endTagClasses_ & HTMLCharacters::mayLower) != 0), end);
}

bool Parser::State::readDeclaration() {
    const std::string_view rest = text_.substr(position_);
    if (rest.starts_with("<![")) return readMarkedSection();
    if (!rest.starts_with("<!--")) return skipPastBracket();
    const std::size_t end = commentEnd_.findEnd(text_, position_ + 4);
    return end == npos ? readIncomplete() : skipTo(end);
}

bool Parser::State::readMarkedSection() {
    const std::size_t start = position_ + 3;
    if (start == text_.size()) return readIncomplete();
    std::size_t end = start;
    std::string status;
    while (end < text_.size() && text_[end] != ':' &&
           isIn(text_[end], end == start ? HTMLCharacters::letter : HTMLCharacters::endTagName)) {
        status += loweredLetter(text_[end++]);
    }
    if (end > start && skipSpaces(text_, end) == text_.size()) return readIncomplete();
    const bool isStandard = isOneOf(status, standardStatuses);
    if (!isStandard && !isOneOf(status, conditionalStatuses)) {
        failed_ = true;
        return skipTo(text_.size());
    }
    const std::size_t sectionEnd = (isStandard ? sectionEnd_ : conditionalEnd_).findEnd(text_, start);
    return sectionEnd == npos ? readIncomplete() : skipTo(sectionEnd);
}

bool Parser::State::readIncomplete() {
    const std::size_t bracket = brackets_.find(text_, position_ + 1);
    if (bracket != npos) return emitUnescaped(bracket + 1);
    const std::size_t next = text_.find('<', position_ + 1);
    return emitUnescaped(next == npos ? position_ + 1 : next);
}

// Data up to what looks like the element's end tag, and then that tag. One that holds other letters than ASCII's looks
// like it, but is data too.
bool Parser::State::readRawText() {
    std::size_t start = position_;
    std::size_t end = 0;
    for (; start != npos; start = text_.find('<', start + 1)) {
        end = matchRawEndTag(start);
        if (end != 0) break;
    }
    if (start == npos) return skipTo(text_.size());
    if (start > position_) return emit(EventKind::data, text_.substr(position_, start - position_), start);
    if (regularEndTag() == npos) return emit(EventKind::data, text_.substr(start, end - start), end);
    rawElement_ = {};
    return emitEndTag(end);
}

// Offset behind the open raw-text element's end tag when it stands at the offset, otherwise 0.
std::size_t Parser::State::matchRawEndTag(std::size_t offset) const {
    if (!text_.substr(offset).starts_with("</")) return 0;
    offset = skipSpaces(text_, offset + 2);
    for (const char letter : rawElement_) {
        const std::size_t length = matchLetter(text_, offset, letter);
        if (length == 0) return 0;
        offset += length;
    }
    offset = skipSpaces(text_, offset);
    return text_.substr(offset).starts_with('>') ? offset + 1 : 0;
}

bool Parser::State::skipTo(std::size_t end) {
    position_ = end;
    return false;
}

bool Parser::State::skipPastBracket() {
    const std::size_t bracket = brackets_.find(text_, position_ + 2);
    return bracket == npos ? readIncomplete() : skipTo(bracket + 1);
}

bool Parser::State::emit(EventKind kind, std::string_view text, std::size_t end) {
    event_.kind = kind;
    event_.text = text;
    event_.attributes = {};
    event_.source = text_.substr(position_, end - position_);
    position_ = end;
    scratchUsed_ = 0;
    return true;
}

bool Parser::State::emitUnescaped(std::size_t end) {
    return emit(EventKind::data, unescaped(text_.substr(position_, end - position_)), end);
}

bool Parser::State::emitStartTag(bool selfClosing) {
    attributes_.clear();
    for (const StartTagScanner::RawAttribute& raw : startTags_.attributes()) {
        Attribute& attribute = attributes_.emplace_back();
        attribute.name = lowered(raw.name, raw.mayLower);
        if (raw.hasValue) attribute.value = unescaped(raw.value);
    }
    emit(selfClosing ? EventKind::selfClosingTag : EventKind::startTag,
         lowered(startTags_.name(), startTags_.mayLowerName()), startTags_.end());
    event_.attributes = attributes_;
    if (selfClosing) return true;
    const auto element = std::find(rawText_.begin(), rawText_.end(), event_.text);
    if (element != rawText_.end()) rawElement_ = *element;
    return true;
}

// `mayLower` spares the look at a name that is known to be lower-case ASCII.
std::string_view Parser::State::lowered(std::string_view name, bool mayLower) {
    if (!mayLower) return name;
    std::string& result = scratch();
    if (UTF8::isASCII(name)) {
        std::transform(name.begin(), name.end(), std::back_inserter(result), loweredLetter);
    } else {
        result = UnicodeCase::lower(name);
    }
    return result;
}

std::string_view Parser::State::unescaped(std::string_view text) {
    if (text.find('&') == npos) return text;
    std::string& result = scratch();
    HTMLEntities::appendUnescaped(result, text);
    return result;
}

// An empty string that stays where it is until the next event.
std::string& Parser::State::scratch() {
    if (scratchUsed_ == scratch_.size()) scratch_.push_back(std::make_unique<std::string>());
    std::string& result = *scratch_[scratchUsed_++];
    result.clear();
    return result;
}

Parser::Parser(std::string_view html, std::span<const std::string_view> rawText)
    : state_(std::make_unique<State>(html, rawText)) {}

Parser::Parser(Parser&&) noexcept = default;
Parser& Parser::operator=(Parser&&) noexcept = default;
Parser::~Parser() = default;

const Event* Parser::next() {
    return state_->next();
}

bool Parser::failed() const {
    return state_->failed();
}

std::string_view Parser::text() const {
    return state_->text();
}

}  // namespace vellark::PythonHTMLTitle
