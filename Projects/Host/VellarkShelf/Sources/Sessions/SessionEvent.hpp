#pragma once

#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTodo.hpp>
#include <VellarkFoundation/Time/Date.hpp>
#include <VellarkShelf/Sessions/RecordFile.hpp>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellark {

/// What a session record tells, the same for all agents. Texts are raw: whoever keeps one cleans it first.
struct SessionEvent {
    /// What the record says of the session as a whole. Later ones add to earlier ones.
    struct Header {
        std::string thread = {};
        std::string parentThread = {};  ///< that spawned or preceded it
        bool continuation = false;      ///< it carries the parent on
        std::string name = {};          ///< of a subagent
        std::string type = {};          ///< of a subagent, as its caller declared it
        std::string cwd = {};
    };
    /// A turn of the user; of a subagent's session, what its caller told it.
    struct UserTurn {
        std::string text;
    };
    struct AgentText {
        std::string text;
    };
    /// Work is handed to a subagent.
    struct Delegation {
        std::string callID;
        std::string name;
        std::string type;
        std::string task;  ///< in a few words; may be empty
        std::string prompt;
    };
    /// A subagent's work came back to its caller.
    struct DelegationResult {
        std::string callID;
        std::string thread;  ///< of the subagent, where the record tells
        std::string text;
        bool failed = false;
        bool isStart = false;  ///< only says that the subagent is at work now
    };
    struct AgentMessage {
        std::string to;
        std::string text;
    };
    struct Activity {
        ConversationActivity activity;
        std::vector<ConversationTodoUpdate> todos = {};
    };
    struct Compaction {};
    /// How things stand; a later turn makes it void.
    struct Outcome {
        enum class State { finished, failed, interrupted };
        State state;
    };

    using Kind = std::variant<Header, UserTurn, AgentText, Delegation, DelegationResult, AgentMessage, Activity,
                              Compaction, Outcome>;

    Kind kind;
    std::optional<Date> time = {};
    std::int64_t offset = 0;  ///< of the record in the file
    std::int64_t part = 0;    ///< inside the record
};

using SessionEventSink = std::function<void(SessionEvent&& event)>;

/// How much of a record is wanted.
enum class SessionDetail {
    summary,  ///< how it began, how it stands, who was handed work
    whole,
};

/// Reads a record of one agent, from the offset of a record on, and only that one record if `single`. What it does not
/// know it passes over: formats grow.
struct SessionReading {
    SessionDetail detail = SessionDetail::whole;
    std::int64_t from = 0;
    bool single = false;
};
using SessionReader = void (*)(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink);

}  // namespace vellark
