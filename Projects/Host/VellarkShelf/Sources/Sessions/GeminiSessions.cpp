// Gemini's records: one JSON object, {"sessionId", "startTime", "messages": [{"type", "timestamp", "content",
// "toolCalls"}]}. It is written anew as a whole at each turn, so it is read as a whole.

#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkShelf/Sessions/JSONAccess.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/ToolActivity.hpp>

namespace vellark::SessionReaders {

namespace {

constexpr std::size_t maximumBytes = std::size_t{64} << 20;

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

}  // namespace

void readGemini(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink) {
    const auto text = file.content(maximumBytes);
    const auto json = text ? JSONReader::read(*text) : Result<JSONValue, JSONError>(JSONValue());
    const JSONObject* object = json ? json->object() : nullptr;
    if (object == nullptr) return;
    sink({.kind = SessionEvent::Header{.thread = firstTextIn(*object, "sessionId")},
          .time = momentIn(*object, "startTime")});
    MessageReader reader(sink);
    const JSONArray* messages = arrayIn(*object, "messages");
    for (std::size_t place = 0; messages != nullptr && place < messages->size(); ++place) {
        const auto number = static_cast<std::int64_t>(place);
        if (number < reading.from || (reading.single && number != reading.from)) continue;
        if (const JSONObject* message = messages->at(place).object()) reader.read(*message, number);
    }
}

}  // namespace vellark::SessionReaders
