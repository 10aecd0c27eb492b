// Gemini's records: one JSON object, {"sessionId", "startTime", "messages": [{"type", "timestamp", "content",
// "toolCalls"}]}. It is written anew as a whole at each turn. The messages are read one at a time, so that a record of
// any length fits into the memory of a command; of one that breaks off, those before the break count.

#include <VellarkFoundation/JSON/JSONWindow.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/ToolActivity.hpp>

#include <algorithm>

namespace vellark::SessionReaders {

namespace {

// Twice as long as a message that is read: a longer one is passed over.
constexpr std::size_t largestWindow = 2 * RecordFile::longestLine;

// A content is a text, or a list of parts with texts.
std::string contentOf(const JSONObject& message) {
    if (const std::string* text = stringIn(message, "content")) return *text;
    std::string joined;
    const JSONArray* parts = arrayIn(message, "content");
    for (std::size_t place = 0; parts != nullptr && place < parts->size(); ++place) {
        const JSONObject* part = parts->at(place).object();
        if (part != nullptr) joined += std::string(textIn(*part, "text"));
    }
    return joined;
}

class MessageReader {
public:
    explicit MessageReader(const SessionEventSink& sink) : sink_(sink) {}

    void read(const JSONObject& message, std::int64_t number) {
        time_ = momentIn(message, "timestamp");
        offset_ = number;
        part_ = 0;
        const std::string_view type = textIn(message, "type");
        std::string text = contentOf(message);
        if (type == "user") send(SessionEvent::UserTurn{std::move(text)});
        if (type == "error") send(SessionEvent::Outcome{SessionEvent::Outcome::State::failed});
        if (type != "gemini") return;
        if (!text.empty()) send(SessionEvent::AgentText{std::move(text)});
        const JSONArray* calls = arrayIn(message, "toolCalls");
        for (std::size_t place = 0; calls != nullptr && place < calls->size(); ++place) {
            const JSONObject* call = calls->at(place).object();
            const JSONObject* input = call != nullptr ? objectIn(*call, "args") : nullptr;
            if (input != nullptr) send(ToolActivity::ofCall(textIn(*call, "name"), *input));
        }
        if (calls == nullptr || calls->empty()) {
            send(SessionEvent::Outcome{SessionEvent::Outcome::State::finished});
        }
    }

private:
    void send(SessionEvent::Kind kind) {
        sink_({.kind = std::move(kind), .time = time_, .offset = offset_, .part = part_++});
    }

    const SessionEventSink& sink_;
    std::optional<Date> time_;
    std::int64_t offset_ = 0;
    std::int64_t part_ = 0;
};

// The length of the object that a text begins with, by its brackets alone: programs in JavaScript write half
// characters, which no strict reader passes over, and one such message must not hide those behind it. Nothing when it
// is cut.
std::optional<std::size_t> objectLength(std::string_view text) {
    std::size_t depth = 0;
    bool inString = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char character = text[place];
        if (inString) {
            if (character == '\\') ++place;
            inString = character != '"';
        } else if (character == '"') {
            inString = true;
        } else if (character == '{' || character == '[') {
            ++depth;
        } else if ((character == '}' || character == ']') && --depth == 0) {
            return place + 1;
        }
    }
    return std::nullopt;
}

/// Walks through the one object of a file.
class RecordWalk {
public:
    RecordWalk(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink)
        : file_(file), reading_(reading), sink_(sink) {}

    void run() {
        if (!window_.take([](JSONCursor& cursor) { return cursor.open('{'); })) return;
        while (window_.take([this](JSONCursor& cursor) { return takeMember(cursor); }) && !isAtEnd_) {
            if (inMessages_ && !readMessages()) break;
        }
        sink_({.kind = SessionEvent::Header{.thread = session_}, .time = momentOf(startTime_)});
    }

private:
    // Goes into the messages, and over all else.
    bool takeMember(JSONCursor& cursor) {
        isAtEnd_ = cursor.isAt('}');
        if (isAtEnd_) return true;
        std::string key;
        if (!cursor.takeAnyKey(key)) return false;
        inMessages_ = key == "messages" && cursor.isAt('[');
        if (inMessages_) return cursor.open('[');
        std::string* const field = key == "sessionId" ? &session_ : key == "startTime" ? &startTime_ : nullptr;
        const bool isText = field != nullptr && cursor.isAt('"');
        if (!(isText ? cursor.string(*field) : cursor.skipValue())) return false;
        return cursor.endMember();
    }

    // False when the file breaks off, or no more is wanted.
    bool readMessages() {
        MessageReader reader(sink_);
        for (std::int64_t number = 0;; ++number) {
            std::string_view message;
            bool isBehind = false;
            const auto next = [&](JSONCursor& cursor) {
                isBehind = cursor.isAt(']');
                return isBehind ? cursor.close(']') && cursor.endMember() : takeElement(cursor, message);
            };
            if (!window_.take(next)) return false;
            if (isBehind) return true;
            if (reading_.single && number > reading_.from) return false;
            const bool isWanted = reading_.single ? number == reading_.from : number >= reading_.from;
            if (!isWanted || message.empty() || message.size() > RecordFile::longestLine) continue;
            const auto value = readRecordLine(message);
            if (const JSONObject* object = value ? value->object() : nullptr) reader.read(*object, number);
        }
    }

    // The text of a message stays until the next step.
    static bool takeElement(JSONCursor& cursor, std::string_view& message) {
        if (!cursor.isAt('{')) return cursor.skipValue() && cursor.endElement();
        const std::string_view rest = cursor.rest();
        const auto length = objectLength(rest);
        if (!length) return false;
        message = rest.substr(0, *length);
        const std::size_t behind = std::min(rest.find_first_not_of(" \t\r\n", *length), rest.size());
        cursor.returnTo(cursor.offset() + behind, cursor.depth());
        return cursor.endElement();
    }

    const RecordFile& file_;
    const SessionReading& reading_;
    const SessionEventSink& sink_;
    std::int64_t position_ = 0;
    JSONWindow window_{[this](char* place, std::size_t room) -> std::optional<std::size_t> {
                           const std::size_t count = file_.read(position_, place, room);
                           position_ += static_cast<std::int64_t>(count);
                           return count;
                       },
                       {.maximumBytes = largestWindow}};
    std::string session_;
    std::string startTime_;
    bool inMessages_ = false;
    bool isAtEnd_ = false;
};

}  // namespace

void readGemini(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink) {
    RecordWalk(file, reading, sink).run();
}

}  // namespace vellark::SessionReaders
