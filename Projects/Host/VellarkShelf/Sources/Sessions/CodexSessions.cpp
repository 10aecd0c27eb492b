// Codex's records: one JSON object a line, {"timestamp", "type", "payload"}. "session_meta" opens a record;
// "response_item" holds messages and calls of tools, "event_msg" how a turn ended, "compacted" a cut of the context.

#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/ToolActivity.hpp>

namespace vellark::SessionReaders {

namespace {

using State = SessionEvent::Outcome::State;

class LineReader {
public:
    explicit LineReader(const SessionEventSink& sink) : sink_(sink) {}

    void read(const RecordFile::Line& line) {
        const auto json = readRecordLine(line.text);
        const JSONObject* object = json ? json->object() : nullptr;
        const JSONObject* payload = object != nullptr ? objectIn(*object, "payload") : nullptr;
        if (payload == nullptr) return;
        time_ = momentIn(*object, "timestamp");
        offset_ = line.offset;
        part_ = 0;
        const std::string_view type = textIn(*object, "type");
        if (type == "session_meta") readMeta(*payload);
        if (type == "turn_context") send(SessionEvent::Header{.cwd = firstTextIn(*payload, "cwd")});
        if (type == "compacted") send(SessionEvent::Compaction());
        if (type == "event_msg") readEvent(*payload);
        if (type == "response_item") readItem(*payload);
    }

private:
    void send(SessionEvent::Kind kind) {
        sink_({.kind = std::move(kind), .time = time_, .offset = offset_, .part = part_++});
    }

    // A record may begin with a copy of its parent's head; its own comes first.
    void readMeta(const JSONObject& meta) {
        if (hasMeta_) return;
        hasMeta_ = true;
        SessionEvent::Header header{.thread = firstTextIn(meta, "id"),
                                    .parentThread = firstTextIn(meta, "forked_from_id", "forked_from"),
                                    .cwd = firstTextIn(meta, "cwd")};
        header.continuation = !header.parentThread.empty();
        const JSONObject* source = objectIn(meta, "source");
        const JSONObject* subagent = source != nullptr ? objectIn(*source, "subagent") : nullptr;
        const JSONObject* spawn = subagent != nullptr ? objectIn(*subagent, "thread_spawn") : nullptr;
        if (spawn != nullptr) {
            header.parentThread = firstTextIn(*spawn, "parent_thread_id");
            header.continuation = false;
            header.name = firstTextIn(meta, "agent_nickname");
            if (header.name.empty()) header.name = firstTextIn(*spawn, "agent_nickname", "agent_role");
            header.type = firstTextIn(*spawn, "agent_role");
        }
        send(std::move(header));
    }

    void readEvent(const JSONObject& event) {
        const std::string_view type = textIn(event, "type");
        if (type == "task_complete" || type == "turn_complete") send(SessionEvent::Outcome{State::finished});
        if (type == "turn_aborted") send(SessionEvent::Outcome{State::interrupted});
        if (type == "error") send(SessionEvent::Outcome{State::failed});
    }

    void readItem(const JSONObject& item) {
        const std::string_view type = textIn(item, "type");
        if (type == "message") readMessage(item);
        if (type == "function_call") readCall(item);
        if (type == "function_call_output") readOutput(item);
        if (type == "custom_tool_call") {
            JSONObject input;
            input.set("input", firstTextIn(item, "input"));
            send(ToolActivity::ofCall(textIn(item, "name"), input));
        }
        if (type == "local_shell_call") {
            const JSONObject* action = objectIn(item, "action");
            if (action != nullptr) send(ToolActivity::ofCall("local_shell", *action));
        }
    }

    void readMessage(const JSONObject& item) {
        const JSONArray* blocks = arrayIn(item, "content");
        for (std::size_t place = 0; blocks != nullptr && place < blocks->size(); ++place) {
            const JSONObject* block = blocks->at(place).object();
            std::string text = block != nullptr ? firstTextIn(*block, "text") : "";
            if (text.empty()) continue;
            if (textIn(item, "role") == "user")
                send(SessionEvent::UserTurn{std::move(text)});
            else if (textIn(item, "role") == "assistant")
                send(SessionEvent::AgentText{std::move(text)});
        }
    }

    void readCall(const JSONObject& item) {
        const std::string_view tool = textIn(item, "name");
        const auto arguments = JSONReader::read(textIn(item, "arguments"));
        const JSONObject input = arguments && arguments->object() != nullptr ? *arguments->object() : JSONObject();
        if (tool == "spawn_agent") {
            return send(SessionEvent::Delegation{.callID = firstTextIn(item, "call_id"),
                                                 .name = firstTextIn(input, "name", "nickname"),
                                                 .type = firstTextIn(input, "agent_type", "role"),
                                                 .task = {},
                                                 .prompt = firstTextIn(input, "message", "prompt")});
        }
        if (tool == "send_input") {
            return send(SessionEvent::AgentMessage{.to = firstTextIn(input, "name", "id"),
                                                   .text = firstTextIn(input, "message")});
        }
        send(ToolActivity::ofCall(tool, input));
    }

    // The answer to a spawn names the subagent's thread.
    void readOutput(const JSONObject& item) {
        const auto output = JSONReader::read(textIn(item, "output"));
        const JSONObject* object = output ? output->object() : nullptr;
        const std::string thread = object != nullptr ? firstTextIn(*object, "agent_id", "thread_id") : "";
        if (thread.empty()) return;
        send(SessionEvent::DelegationResult{
            .callID = firstTextIn(item, "call_id"), .thread = thread, .text = {}, .isStart = true});
    }

    const SessionEventSink& sink_;
    std::optional<Date> time_;
    std::int64_t offset_ = 0;
    std::int64_t part_ = 0;
    bool hasMeta_ = false;
};

}  // namespace

void readCodex(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink) {
    LineReader reader(sink);
    file.walk(reading.from, [&](const RecordFile::Line& line) {
        reader.read(line);
        return !reading.single;
    });
}

}  // namespace vellark::SessionReaders
