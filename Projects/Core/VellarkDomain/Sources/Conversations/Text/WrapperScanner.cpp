// The same as two regular expressions, written by hand: a lazy search for a closing tag with a back reference looks
// through the rest of the text for every tag that is never closed, and a leading "\s*" does so for every blank line.
//
//     <(NAME)(?:\s[^>]*)?>.*?</\1\s*>            whole elements, "." matching line ends too
//     ^\s*</?NAME(?:\s[^>]*)?/?>\s*$             dangling tags, "^" and "$" at every line
//
// where NAME is one of the names below, or "codex_apps_" or "external_codex_apps_" and letters, digits and "_".

#include <VellarkDomain/Conversations/Text/WrapperScanner.hpp>
#include <VellarkFoundation/Text/LineBreaks.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

namespace vellark::WrapperScanner {

namespace {

using namespace std::string_view_literals;

constexpr std::array names = {
    "system-reminder"sv,
    "command-name"sv,
    "command-message"sv,
    "command-args"sv,
    "command-contents"sv,
    "local-command-stdout"sv,
    "local-command-stderr"sv,
    "local-command-caveat"sv,
    "task-notification"sv,
    "artifact-view-context"sv,
    "artifact-content-authored-by-others"sv,
    "user-prompt-submit-hook"sv,
    "ide_opened_file"sv,
    "ide_selection"sv,
    "ide_diagnostics"sv,
    "bash-input"sv,
    "bash-stdout"sv,
    "bash-stderr"sv,
    "scheduled-task"sv,
    "ci-monitor-event"sv,
    "environment_context"sv,
    "user_instructions"sv,
    "permissions"sv,
    "skills_instructions"sv,
    "collaboration_mode"sv,
    "in-app-browser-context"sv,
    "image_resize_notice"sv,
    "model_switch"sv,
    "turn_aborted"sv,
    "hook_prompt"sv,
    "recommended_plugins"sv,
};

// Names that begin so and go on with at least one letter, digit or "_".
constexpr std::array openNames = {"codex_apps_"sv, "external_codex_apps_"sv};

bool isNameByte(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           byte == '_' || byte == '-';
}

std::size_t nameEnd(std::string_view text, std::size_t position) {
    while (position < text.size() && isNameByte(text[position]))
        ++position;
    return position;
}

bool isSpaceAt(std::string_view text, std::size_t position) {
    return position < text.size() && CharacterClass::isWhitespace(UTF8::decode(text, position).scalar);
}

std::size_t spaceEnd(std::string_view text, std::size_t position) {
    return text.size() - CharacterClass::trimmedStart(text.substr(position)).size();
}

// Where the tag ends whose name ends at the position: behind attributes, if there are any, and ">".
std::size_t tagEnd(std::string_view text, std::size_t position, bool mayCloseItself) {
    constexpr std::size_t none = std::string_view::npos;
    if (isSpaceAt(text, position)) {
        const std::size_t bracket = text.find('>', position);
        return bracket == none ? none : bracket + 1;
    }
    if (mayCloseItself && position < text.size() && text[position] == '/') ++position;
    return position < text.size() && text[position] == '>' ? position + 1 : none;
}

// The closing tags of a text: by name, the start and the end of each in ascending order.
class ClosingTags {
public:
    explicit ClosingTags(std::string_view text) {
        for (std::size_t start = text.find("</"); start != std::string_view::npos; start = text.find("</", start + 2)) {
            const std::size_t end = nameEnd(text, start + 2);
            const std::string_view name = text.substr(start + 2, end - start - 2);
            if (!isWrapperName(name)) continue;
            const std::size_t bracket = spaceEnd(text, end);
            if (bracket < text.size() && text[bracket] == '>') tags_[name].places.push_back({start, bracket + 1});
        }
    }

    /// End of the first one that begins at the position or behind it; questions come in ascending order.
    std::size_t endOfNext(std::string_view name, std::size_t position) {
        const auto found = tags_.find(name);
        if (found == tags_.end()) return std::string_view::npos;
        Tags& tags = found->second;
        while (tags.next < tags.places.size() && tags.places[tags.next].start < position)
            ++tags.next;
        return tags.next < tags.places.size() ? tags.places[tags.next].end : std::string_view::npos;
    }

private:
    struct Place {
        std::size_t start;
        std::size_t end;
    };
    struct Tags {
        std::vector<Place> places;
        std::size_t next = 0;
    };

    std::unordered_map<std::string_view, Tags> tags_;
};

// Where the expression's "^\s*" begins that reaches the position: the first line start among the white space before it.
std::size_t lineStartBefore(std::string_view text, std::size_t position, std::size_t bound) {
    std::size_t start = std::string_view::npos;
    for (;;) {
        if (position == 0) return 0;
        const std::size_t before = UTF8::previousOffset(text, position);
        const std::size_t ending = LineBreaks::length(text, before);
        const bool isInsidePair = text[before] == '\r' && position < text.size() && text[position] == '\n';
        if (ending > 0 && !isInsidePair) start = position;
        if (position <= bound || !CharacterClass::isWhitespace(UTF8::decode(text, before).scalar)) return start;
        position = before;
    }
}

// Where the expression's "\s*$" ends that begins at the position.
std::size_t lineEndBehind(std::string_view text, std::size_t position) {
    std::size_t last = std::string_view::npos;
    while (position < text.size()) {
        const auto decoded = UTF8::decode(text, position);
        if (!CharacterClass::isWhitespace(decoded.scalar)) return last;
        const std::size_t ending = LineBreaks::length(text, position);
        if (ending > 0) last = position;
        position += std::max<std::size_t>(ending, decoded.byteCount);
    }
    return text.size();
}

}  // namespace

bool isWrapperName(std::string_view name) {
    if (std::find(names.begin(), names.end(), name) != names.end()) return true;
    return std::any_of(openNames.begin(), openNames.end(), [name](std::string_view start) {
        return name.size() > start.size() && name.starts_with(start) && name.find('-') == std::string_view::npos;
    });
}

std::optional<std::string> withoutElements(std::string_view text) {
    std::optional<ClosingTags> closing;
    std::string result;
    std::size_t done = 0;
    for (std::size_t start = text.find('<'); start != std::string_view::npos;) {
        const std::size_t end = nameEnd(text, start + 1);
        const std::string_view name = text.substr(start + 1, end - start - 1);
        std::size_t stop = std::string_view::npos;
        if (isWrapperName(name)) {
            const std::size_t opened = tagEnd(text, end, false);
            if (opened != std::string_view::npos) {
                if (!closing) closing.emplace(text);
                stop = closing->endOfNext(name, opened);
            }
        }
        if (stop != std::string_view::npos) {
            result += text.substr(done, start - done);
            done = stop;
        }
        start = text.find('<', stop != std::string_view::npos ? stop : start + 1);
    }
    if (done == 0) return std::nullopt;
    result += text.substr(done);
    return result;
}

std::optional<std::string> withoutDanglingTags(std::string_view text) {
    std::string result;
    std::size_t done = 0;
    bool hasChanged = false;
    for (std::size_t bracket = text.find('<', done); bracket != std::string_view::npos;
         bracket = text.find('<', std::max(bracket + 1, done))) {
        const std::size_t name = bracket + 1 < text.size() && text[bracket + 1] == '/' ? bracket + 2 : bracket + 1;
        const std::size_t end = nameEnd(text, name);
        if (!isWrapperName(text.substr(name, end - name))) continue;
        const std::size_t closed = tagEnd(text, end, true);
        if (closed == std::string_view::npos) continue;
        const std::size_t start = lineStartBefore(text, bracket, done);
        const std::size_t stop = lineEndBehind(text, closed);
        if (start == std::string_view::npos || start < done || stop == std::string_view::npos) continue;
        result += text.substr(done, start - done);
        done = stop;
        hasChanged = true;
    }
    if (!hasChanged) return std::nullopt;
    result += text.substr(done);
    return result;
}

}  // namespace vellark::WrapperScanner
