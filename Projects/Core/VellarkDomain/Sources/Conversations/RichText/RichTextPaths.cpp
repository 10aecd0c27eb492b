// Paths are found word by word: what stands between white space and begins with "/" or "~/" is one, without the
// punctuation behind it.

#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextLine.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <iterator>
#include <type_traits>
#include <utility>

namespace vellark {

namespace {

using Run = ConversationRichText::Run;

/// Longest path that is shown whole, in characters.
constexpr std::size_t shownPathCharacters = 40;

constexpr std::size_t leadingPieces = 3;
constexpr std::size_t trailingPieces = 2;

bool isTrailingPunctuation(std::string_view character) {
    return character.size() == 1 && std::string_view(".,;:)]}\"'").find(character[0]) != std::string_view::npos;
}

// The word without the punctuation at its end.
std::string_view coreOf(std::string_view word) {
    std::size_t end = 0;
    for (std::size_t start = 0; start < word.size();) {
        const std::size_t next = GraphemeBreak::next(word, start);
        if (!isTrailingPunctuation(word.substr(start, next - start))) end = next;
        start = next;
    }
    return word.substr(0, end);
}

bool beginsLikePath(std::string_view word) {
    return RichTextLine::beginsWith(word, '/') || GraphemeBreak::startsWith(word, "~/");
}

// Cuts one run into plain text and shortened paths.
class PathSplitter {
public:
    PathSplitter(const Run& run, std::vector<Run>& output) : run_(run), output_(output) {}

    void split() {
        const std::string_view text = run_.text;
        std::size_t wordStart = 0;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t next = GraphemeBreak::next(text, start);
            if (CharacterClass::isWhitespace(text.substr(start, next - start))) {
                flush(text.substr(wordStart, start - wordStart));
                pending_ += text.substr(start, next - start);
                wordStart = next;
            }
            start = next;
        }
        flush(text.substr(wordStart));
        emitPending();
    }

private:
    void flush(std::string_view word) {
        const std::string_view core = beginsLikePath(word) ? coreOf(word) : std::string_view();
        std::string shortened = ConversationRichText::shortenedPath(core, shownPathCharacters);
        if (shortened == core) {
            pending_ += word;
            return;
        }
        emitPending();
        constexpr auto traits = Run::Traits::code | Run::Traits::path;
        output_.push_back(
            {.text = std::move(shortened), .traits = {run_.traits.rawValue | traits}, .full = std::string(core)});
        pending_ = word.substr(core.size());
    }

    void emitPending() {
        if (!pending_.empty()) output_.push_back({.text = std::move(pending_), .traits = run_.traits});
        pending_.clear();
    }

    const Run& run_;
    std::vector<Run>& output_;
    std::string pending_;
};

template <class Content>
void shortenIn(Content& content) {
    using Rich = ConversationRichText;
    if constexpr (std::is_same_v<Content, Rich::Paragraph> || std::is_same_v<Content, Rich::Heading>) {
        content.runs = Rich::shorteningPaths(std::move(content.runs));
    } else if constexpr (std::is_same_v<Content, Rich::List>) {
        for (auto& item : content.items)
            item.content = Rich::shorteningPaths(std::move(item.content));
    } else if constexpr (std::is_same_v<Content, Rich::Quote>) {
        for (auto& block : content.blocks)
            block = Rich::shorteningPaths(std::move(block));
    } else if constexpr (std::is_same_v<Content, Rich::Table>) {
        for (auto& cell : content.header)
            cell = Rich::shorteningPaths(std::move(cell));
        for (auto& row : content.rows) {
            for (auto& cell : row)
                cell = Rich::shorteningPaths(std::move(cell));
        }
    }
}

}  // namespace

std::string ConversationRichText::shortenedPath(std::string_view path, std::size_t limit) {
    if (!GraphemeBreak::exceeds(path, limit)) return std::string(path);
    std::vector<std::size_t> slashes;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t next = GraphemeBreak::next(path, start);
        if (next == start + 1 && path[start] == '/') slashes.push_back(start);
        start = next;
    }
    if (slashes.size() + 1 <= leadingPieces + trailingPieces) return std::string(path);
    std::string result(path.substr(0, slashes[leadingPieces - 1] + 1));
    result += "…";
    result += path.substr(slashes[slashes.size() - trailingPieces]);
    return result;
}

std::vector<Run> ConversationRichText::shorteningPaths(std::vector<Run> runs) {
    std::vector<Run> result;
    result.reserve(runs.size());
    for (Run& run : runs) {
        if (run.link || run.text.find('/') == std::string::npos) {
            result.push_back(std::move(run));
        } else {
            PathSplitter(run, result).split();
        }
    }
    return result;
}

ConversationRichText::Block ConversationRichText::shorteningPaths(Block block) {
    std::visit([](auto& content) { shortenIn(content); }, block.content);
    return block;
}

}  // namespace vellark
