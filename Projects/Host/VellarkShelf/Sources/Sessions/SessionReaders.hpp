#pragma once

#include <VellarkShelf/Sessions/SessionEvent.hpp>

#include <cstddef>
#include <span>
#include <string_view>

namespace vellark {

/// An agent whose session records can be read, and where they lie.
struct SessionAgent {
    std::string_view key;
    std::string_view homeVariable;  ///< environment variable that moves its home
    std::string_view homeSuffix;    ///< what stands behind the variable's value
    std::string_view defaultHome;   ///< its home below the user's
    std::string_view folder;        ///< of the records, below its home
    std::size_t deepest;            ///< folders between that one and a record, at most
    bool (*isRecord)(std::string_view relativePath);
    SessionReader read;
};

namespace SessionReaders {

/// projects/<folder>/<session>.jsonl; a subagent's beside it or in <session>/subagents, as agent-<id>.jsonl. Its thread
/// is "<session>/<id>".
void readClaude(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink);

/// sessions/<year>/<month>/<day>/rollout-<time>-<session>.jsonl
void readCodex(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink);

/// tmp/<project>/chats/session-<time>.json, one JSON object. Offsets are the numbers of its messages.
void readGemini(const RecordFile& file, const SessionReading& reading, const SessionEventSink& sink);

[[nodiscard]] std::span<const SessionAgent> all();

/// A null pointer for an agent whose records cannot be read.
[[nodiscard]] const SessionAgent* of(std::string_view key);

}  // namespace SessionReaders

}  // namespace vellark
