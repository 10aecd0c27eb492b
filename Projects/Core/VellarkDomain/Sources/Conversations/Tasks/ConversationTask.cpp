#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkFoundation/Text/LineBreaks.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>

namespace vellark {

namespace {

using Entry = ConversationEntry;

constexpr std::string_view mainAgent = "main";
constexpr std::size_t shownPathCharacters = 40;

std::optional<std::string_view> view(const std::optional<std::string>& text) {
    return text ? std::optional<std::string_view>(*text) : std::nullopt;
}

bool isRunning(const ConversationTask& task, Date now) {
    return task.isOpen() && task.lastActivity &&
           now.secondsSince1970 - task.lastActivity->secondsSince1970 < ConversationTask::quietWindow;
}

bool isBlank(std::string_view line) {
    for (std::size_t start = 0; start < line.size();) {
        const std::size_t next = GraphemeBreak::next(line, start);
        if (!CharacterClass::isWhitespace(line.substr(start, next - start))) return false;
        start = next;
    }
    return true;
}

// Empty when all lines are blank.
std::string_view firstWrittenLine(std::string_view text) {
    for (const std::string_view line : LineBreaks::split(text)) {
        if (!isBlank(line)) return line;
    }
    return {};
}

std::string shorteningPath(std::string_view word) {
    const bool isPath = GraphemeBreak::startsWith(word, "/") || GraphemeBreak::startsWith(word, "~/");
    return isPath ? ConversationRichText::shortenedPath(word, shownPathCharacters) : std::string(word);
}

// The line with each word that is a long path shortened. A blank that carries a combining mark ends no word.
std::string shorteningPaths(std::string_view line) {
    if (line.find('/') == std::string_view::npos) return std::string(line);
    std::string result;
    std::size_t wordStart = 0;
    for (std::size_t start = 0; start < line.size();) {
        const std::size_t next = GraphemeBreak::next(line, start);
        if (line.substr(start, next - start) == " ") {
            result += shorteningPath(line.substr(wordStart, start - wordStart));
            result += ' ';
            wordStart = next;
        }
        start = next;
    }
    return result + shorteningPath(line.substr(wordStart));
}

}  // namespace

std::optional<std::string_view> ConversationTask::owner(const Entry& entry) {
    const bool isSubagents = entry.author.role == ConversationAuthor::Role::subagent;
    if (const auto* delegation = std::get_if<Entry::Delegation>(&entry.kind)) return delegation->to;
    if (const auto* message = std::get_if<Entry::AgentMessage>(&entry.kind)) {
        if (isSubagents) return entry.topic ? *entry.topic : entry.author.name;
        const bool isForSubagent = !message->to.empty() && message->to != mainAgent;
        return isForSubagent ? message->to : view(entry.topic);
    }
    if (entry.topic || !isSubagents || entry.author.name.empty()) return view(entry.topic);
    return entry.author.name;
}

std::string ConversationTask::titleOf(const TitleSource& source) {
    if (source.task) {
        std::string line = ConversationText::oneLine(*source.task);
        if (!line.empty()) return ConversationText::clipped(line, ConversationText::titleLimit).text;
    }
    if (source.prompt) {
        std::string line = ConversationText::title(shorteningPaths(firstWrittenLine(*source.prompt)));
        if (!line.empty()) return line;
    }
    return std::string(source.name);
}

ConversationTask::Status ConversationTask::status(Date now) const {
    switch (outcome) {
        case Outcome::done:
            return Status::done;
        case Outcome::failed:
            return Status::failed;
        case Outcome::interrupted:
            return Status::stopped;
        case Outcome::open:
            break;
    }
    return isRunning(*this, now) ? Status::running : Status::quiet;
}

std::optional<Date> ConversationTask::end(Date now) const {
    if (isRunning(*this, now)) return std::nullopt;
    return report && report->time ? report->time : lastActivity;
}

std::optional<double> ConversationTask::duration(Date now) const {
    if (!startedAt) return std::nullopt;
    const Date last = end(now).value_or(now);
    return std::max(0.0, last.secondsSince1970 - startedAt->secondsSince1970);
}

}  // namespace vellark
