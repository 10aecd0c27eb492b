#include <VellarkDomain/Conversations/Export/ConversationExport.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkFoundation/Unicode/Calendar.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace vellark::ConversationExport {

namespace {

using Entry = ConversationEntry;

constexpr std::string_view markdownSymbols = "\\`*_[]<>|~!";

std::string withoutNUL(std::string_view text) {
    std::string result(text);
    std::erase(result, '\0');
    return result;
}

// On one line, with a backslash before whatever could be markup.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char byte : ConversationText::oneLine(withoutNUL(text))) {
        if (markdownSymbols.find(byte) != std::string_view::npos) result += '\\';
        result += byte;
    }
    return result;
}

std::string redacted(std::string_view text) {
    return ConversationText::redact(withoutNUL(text));
}

std::string quoted(std::string_view text) {
    std::string result = "> ";
    for (std::size_t index = 0; index < text.size(); ++index) {
        result += text[index];
        const bool isLineFeed = text[index] == '\n' && (index == 0 || text[index - 1] != '\r');
        if (isLineFeed) result += "> ";
    }
    return result;
}

// Days and times as files write them, in one time zone.
class Clock {
public:
    explicit Clock(std::string_view timeZone) : calendar_(timeZone) {}

    [[nodiscard]] std::string day(Date date) const {
        const auto reading = calendar_.reading(date);
        if (!reading) return "";
        return padded(reading->year, 4) + "-" + padded(reading->month, 2) + "-" + padded(reading->dayOfMonth, 2);
    }

    [[nodiscard]] std::string time(Date date) const {
        const auto reading = calendar_.reading(date);
        if (!reading) return "";
        return padded(reading->minute / 60, 2) + ":" + padded(reading->minute % 60, 2);
    }

private:
    static std::string padded(std::int64_t number, std::size_t width) {
        std::string digits = std::to_string(number);
        if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
        return digits;
    }

    Calendar calendar_;
};

class Writer {
public:
    explicit Writer(const Request& request)
        : request_(request), clock_(request.timeZone), agentName_(escaped(request.agentName)) {}

    std::string write() {
        writeHead();
        writeInstruction();
        text_ += "\n## " + L10n::text("대화") + "\n";
        for (const Entry& entry : request_.entries) {
            if (!add(entry)) break;
        }
        return std::move(text_);
    }

private:
    void writeHead() {
        const AgentConversation& conversation = request_.conversation;
        text_ = escaped(conversation.title) + "\n\n";
        text_ += L10n::text("에이전트 대화 내보내기") + " · " + agentName_ + " · " + clock_.day(request_.exportedAt) +
                 " " + clock_.time(request_.exportedAt) + "\n";
        if (!conversation.subagents.empty()) {
            std::string names;
            for (const ConversationParticipant& subagent : conversation.subagents) {
                if (!names.empty()) names += ", ";
                names += escaped(subagent.name);
            }
            text_ += L10n::text("서브에이전트") + ": " + names + "\n";
        }
        if (conversation.cwd) text_ += escaped(*conversation.cwd) + "\n";
        if (request_.omittedEarlier) text_ += L10n::text("기록이 길어 앞부분은 생략했어요") + "\n";
    }

    void writeInstruction() {
        text_ += "\n## " + L10n::text("최초 지시");
        if (request_.conversation.afterCompaction) text_ += " (" + L10n::text("요약 이후") + ")";
        text_ += "\n\n" + redacted(request_.instruction) + "\n\n";
    }

    // Adds the entry with its day's heading; false when it does not fit any more.
    bool add(const Entry& entry) {
        const std::string body = bodyOf(entry);
        if (body.empty()) return true;
        std::string heading;
        const std::string day = entry.time ? clock_.day(*entry.time) : lastDay_;
        if (day != lastDay_) heading = "\n### " + day + "\n";
        if (text_.size() + heading.size() + body.size() > maximumBytes) {
            text_ += "\n*" + L10n::text("이후 대화는 길어서 생략했어요.") + "*\n";
            return false;
        }
        lastDay_ = day;
        text_ += heading;
        text_ += body;
        return true;
    }

    [[nodiscard]] std::string bodyOf(const Entry& entry) const {
        const std::string tail = entry.time ? " · " + clock_.time(*entry.time) : "";
        if (const auto* activity = std::get_if<ConversationActivity>(&entry.kind)) {
            return remark(activity->summary(), tail);
        }
        if (entry.is<Entry::Compaction>()) return remark(L10n::text("이전 대화를 요약했어요"), tail);
        std::string speaker = who(entry.author);
        if (entry.is<Entry::Report>()) speaker += " · " + L10n::text("보고");
        if (const auto* message = std::get_if<Entry::AgentMessage>(&entry.kind))
            speaker += " → " + escaped(message->to);
        const std::string text = redacted(entry.text);
        if (const auto* delegation = std::get_if<Entry::Delegation>(&entry.kind)) {
            speaker += " → " + escaped(delegation->to) + " · " + L10n::text("일 맡김");
            return speech(speaker, tail, quoted(text));
        }
        return speech(speaker, tail, text);
    }

    static std::string remark(const std::string& text, const std::string& tail) {
        return text.empty() ? "" : "\n*" + text + "*" + tail + "\n";
    }

    static std::string speech(const std::string& speaker, const std::string& tail, const std::string& text) {
        return "\n**" + speaker + "**" + tail + "\n\n" + text + "\n";
    }

    [[nodiscard]] std::string who(const ConversationAuthor& author) const {
        switch (author.role) {
            case ConversationAuthor::Role::user:
                return L10n::text("나");
            case ConversationAuthor::Role::main:
                return agentName_;
            case ConversationAuthor::Role::subagent:
                break;
        }
        return escaped(author.name);
    }

    const Request& request_;
    Clock clock_;
    std::string agentName_;
    std::string text_;
    std::string lastDay_;
};

}  // namespace

std::string markdown(const Request& request) {
    return Writer(request).write();
}

}  // namespace vellark::ConversationExport
