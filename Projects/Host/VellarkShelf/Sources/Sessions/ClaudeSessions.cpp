// Claude's records: one JSON object a line. A line has "type" ("user", "assistant", "system", "summary" and others),
// "timestamp", "sessionId", "cwd", and for the first two a "message" whose content is a text or a list of blocks: text,
// tool_use, tool_result, and others that are passed over.
//
// The list of conversations needs little of a record: its beginning up to the first instruction, its last lines, and in
// between the lines that hand work to subagents. All other lines are told from those by a search for a few words, and
// never parsed.

#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/ToolActivity.hpp>

#include <array>
#include <cstring>
#include <deque>

namespace vellark::SessionReaders {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t lastLines = 12;  // how things stand is told in one of these

constexpr std::array tellingWords = {"\"agentId\""sv, "\"name\":\"Task\""sv, "\"name\":\"Agent\""sv};

bool contains(std::string_view line, std::string_view word) {
    return ::memmem(line.data(), line.size(), word.data(), word.size()) != nullptr;
}

bool tellsOfSubagents(std::string_view line) {
    for (const std::string_view word : tellingWords) {
        if (contains(line, word)) return true;
    }
    return false;
}

class LineReader {
public:
    explicit LineReader(const SessionEventSink& sink) : sink_(sink) {}

    [[nodiscard]] bool hasInstruction() const { return hasInstruction_; }

    void read(const RecordFile::Line& line) {
        const auto json = readRecordLine(line.text);
        const JSONObject* object = json ? json->object() : nullptr;
        if (object == nullptr) return;
        time_ = momentIn(*object, "timestamp");
        offset_ = line.offset;
        part_ = 0;
        sendHeader(*object);
        const std::string_view type = textIn(*object, "type");
        const JSONObject* message = objectIn(*object, "message");
        if (type == "system" && textIn(*object, "subtype") == "compact_boundary") send(SessionEvent::Compaction());
        if (message == nullptr || isTrueIn(*object, "isMeta")) return;
        // Older records hold their subagents' turns inside; the caller's own lines tell of their work.
        if (isTrueIn(*object, "isSidechain") && textIn(*object, "agentId").empty()) return;
        if (type == "user") readUser(*object, *message);
        if (type == "assistant") readAssistant(*object, *message);
    }

private:
    void send(SessionEvent::Kind kind) {
        sink_({.kind = std::move(kind), .time = time_, .offset = offset_, .part = part_++});
    }

    void sendHeader(const JSONObject& line) {
        SessionEvent::Header header{.cwd = std::string(textIn(line, "cwd"))};
        const std::string session(textIn(line, "sessionId"));
        const std::string agent(textIn(line, "agentId"));
        const bool isSubagents = isTrueIn(line, "isSidechain") && !agent.empty();
        header.thread = isSubagents ? session + "/" + agent : session;
        if (isSubagents) header.parentThread = session;
        sink_({.kind = std::move(header), .time = time_, .offset = offset_});
    }

    void readUser(const JSONObject& line, const JSONObject& message) {
        if (const std::string* text = stringIn(message, "content")) return readUserText(*text);
        const JSONArray* blocks = arrayIn(message, "content");
        for (std::size_t place = 0; blocks != nullptr && place < blocks->size(); ++place) {
            const JSONObject* block = blocks->at(place).object();
            if (block == nullptr) continue;
            const std::string_view type = textIn(*block, "type");
            if (type == "text") readUserText(textIn(*block, "text"));
            if (type == "tool_result") readResult(line, *block);
        }
    }

    void readUserText(std::string_view text) {
        if (text.starts_with("[Request interrupted by user")) {
            return send(SessionEvent::Outcome{SessionEvent::Outcome::State::interrupted});
        }
        if (ConversationText::isCompactionSummary(text)) return send(SessionEvent::Compaction());
        hasInstruction_ = hasInstruction_ || ConversationText::instruction(text);
        send(SessionEvent::UserTurn{std::string(text)});
    }

    void readResult(const JSONObject& line, const JSONObject& block) {
        SessionEvent::DelegationResult result{.callID = std::string(textIn(block, "tool_use_id")),
                                              .text = textOf(block),
                                              .failed = isTrueIn(block, "is_error")};
        if (const JSONObject* details = objectIn(line, "toolUseResult")) {
            const std::string_view agent = textIn(*details, "agentId");
            if (!agent.empty()) result.thread = std::string(textIn(line, "sessionId")) + "/" + std::string(agent);
            result.isStart = textIn(*details, "status") == "async_launched";
        }
        send(std::move(result));
    }

    // The texts of a tool's result, which is a text or a list of blocks.
    static std::string textOf(const JSONObject& block) {
        if (const std::string* text = stringIn(block, "content")) return *text;
        std::string joined;
        const JSONArray* parts = arrayIn(block, "content");
        for (std::size_t place = 0; parts != nullptr && place < parts->size(); ++place) {
            const JSONObject* part = parts->at(place).object();
            if (part != nullptr) joined += (joined.empty() ? "" : "\n") + std::string(textIn(*part, "text"));
        }
        return joined;
    }

    void readAssistant(const JSONObject& line, const JSONObject& message) {
        const JSONArray* blocks = arrayIn(message, "content");
        for (std::size_t place = 0; blocks != nullptr && place < blocks->size(); ++place) {
            const JSONObject* block = blocks->at(place).object();
            if (block == nullptr) continue;
            const std::string_view type = textIn(*block, "type");
            if (type == "text") send(SessionEvent::AgentText{std::string(textIn(*block, "text"))});
            if (type == "tool_use") readCall(*block);
        }
        if (isTrueIn(line, "isApiErrorMessage"))
            return send(SessionEvent::Outcome{SessionEvent::Outcome::State::failed});
        const std::string_view reason = textIn(message, "stop_reason");
        if (!reason.empty() && reason != "tool_use") {
            send(SessionEvent::Outcome{SessionEvent::Outcome::State::finished});
        }
    }

    void readCall(const JSONObject& block) {
        const std::string_view tool = textIn(block, "name");
        const JSONObject* found = objectIn(block, "input");
        const JSONObject input = found != nullptr ? *found : JSONObject();
        if (tool == "Task" || tool == "Agent") {
            return send(SessionEvent::Delegation{.callID = std::string(textIn(block, "id")),
                                                 .name = firstTextIn(input, "name"),
                                                 .type = firstTextIn(input, "subagent_type"),
                                                 .task = firstTextIn(input, "description"),
                                                 .prompt = firstTextIn(input, "prompt")});
        }
        if (tool == "SendMessage") {
            return send(SessionEvent::AgentMessage{.to = firstTextIn(input, "to", "recipient"),
                                                   .text = firstTextIn(input, "message", "content")});
        }
        const auto activity = ToolActivity::ofCall(tool, input);
        send(activity);
    }

    const SessionEventSink& sink_;
    std::optional<Date> time_;
    std::int64_t offset_ = 0;
    std::int64_t part_ = 0;
    bool hasInstruction_ = false;
};

void readSummary(const RecordFile& file, const SessionReading& reading, LineReader& reader) {
    struct Kept {
        std::string text;
        std::int64_t offset;
    };
    std::deque<Kept> latest;  // lines that were not parsed yet
    Kept words;               // the latest line with words, however many calls of tools stand behind it
    file.walk(reading.from, [&](const RecordFile::Line& line) {
        if (!reader.hasInstruction() || tellsOfSubagents(line.text)) {
            reader.read(line);
            return true;
        }
        if (contains(line.text, "\"type\":\"text\"")) {
            words.text.assign(line.text);
            words.offset = line.offset;
        }
        if (latest.size() < lastLines) {
            latest.push_back({std::string(line.text), line.offset});
        } else {
            // The oldest one's memory is used again.
            Kept oldest = std::move(latest.front());
            latest.pop_front();
            oldest.text.assign(line.text);
            oldest.offset = line.offset;
            latest.push_back(std::move(oldest));
        }
        return true;
    });
    const bool isAmongLatest = !latest.empty() && words.offset >= latest.front().offset;
    if (!words.text.empty() && !isAmongLatest) reader.read({words.text, words.offset});
    for (const Kept& line : latest) {
        reader.read({line.text, line.offset});
    }
}

}  // namespace

void readClaude(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink) {
    LineReader reader(sink);
    if (reading.detail == SessionDetail::summary) return readSummary(file, reading, reader);
    file.walk(reading.from, [&](const RecordFile::Line& line) {
        reader.read(line);
        return !reading.single;
    });
}

}  // namespace vellark::SessionReaders
