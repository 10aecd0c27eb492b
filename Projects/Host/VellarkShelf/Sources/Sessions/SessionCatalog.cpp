#include <VellarkFoundation/Concurrency/ParallelLoop.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkShelf/Sessions/SessionCache.hpp>
#include <VellarkShelf/Sessions/SessionCatalog.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/SessionTranscript.hpp>

#include <algorithm>
#include <filesystem>
#include <unordered_map>

namespace vellark::SessionCatalog {

namespace {

namespace fs = std::filesystem;

struct Record {
    const SessionAgent* agent = nullptr;
    std::string path;
    std::optional<std::string> configHome;
};

// The record files below a home, sorted. Symbolic links are not followed, so neither a loop nor a way out is taken.
void addRecords(const Home& home, std::vector<Record>& records) {
    const SessionAgent* agent = SessionReaders::of(home.agent);
    if (agent == nullptr) return;
    const std::string root = home.path + "/" + std::string(agent->folder) + "/";
    std::error_code error;
    fs::recursive_directory_iterator entry(root, fs::directory_options::skip_permission_denied, error);
    const std::size_t first = records.size();
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const auto status = entry->symlink_status(ignored);
        if (fs::is_directory(status) && static_cast<std::size_t>(entry.depth()) >= agent->deepest) {
            entry.disable_recursion_pending();
        }
        if (!fs::is_regular_file(status)) continue;
        std::string path = entry->path().string();
        if (!agent->isRecord(std::string_view(path).substr(std::min(path.size(), root.size())))) continue;
        records.push_back({agent, std::move(path), home.isDefault ? std::nullopt : std::optional(home.path)});
    }
    std::sort(records.begin() + static_cast<std::ptrdiff_t>(first), records.end(),
              [](const Record& left, const Record& right) { return left.path < right.path; });
}

struct Summaries {
    std::vector<SessionSummary> all;
    bool isNews = false;  // the cache does not hold them
};

// Files are opened one at a time on each core: a process may hold far fewer open than there are records.
Summaries readAll(const std::vector<Record>& records, SessionCache& cache) {
    std::vector<std::optional<SessionSummary>> read(records.size());
    std::vector<std::size_t> unknown;
    for (std::size_t place = 0; place < records.size(); ++place) {
        const auto fingerprint = RecordFile::fingerprintOf(records[place].path);
        if (!fingerprint) continue;
        read[place] = cache.take(records[place].path, *fingerprint);
        if (!read[place]) unknown.push_back(place);
    }
    ParallelLoop::run(unknown.size(), [&](std::size_t index) {
        const Record& record = records[unknown[index]];
        const auto file = RecordFile::open(record.path);
        if (file) read[unknown[index]] = SessionSummary::read(*record.agent, record.path, record.configHome, *file);
    });
    Summaries summaries{.all = {}, .isNews = !unknown.empty() || cache.remaining() > 0};
    for (auto& summary : read) {
        if (summary) summaries.all.push_back(*std::move(summary));
    }
    return summaries;
}

void addDelegation(const SessionDelegation& delegation, ConversationSession& session) {
    session.delegationID = delegation.callID;
    session.name = delegation.name;
    session.role = delegation.role;
    if (!delegation.task.empty()) session.task = delegation.task;
    if (session.interrupted) return;
    session.finished = session.finished || delegation.isBack;
    session.failed = session.failed || delegation.failed;
}

// Tells each subagent's session what its caller's record knows of it.
void connect(const std::vector<SessionSummary>& summaries, std::vector<ConversationSession>& sessions) {
    std::unordered_map<std::string_view, const SessionDelegation*> calls;  // by the subagent's thread
    std::unordered_map<std::string_view, std::string_view> paths;          // by thread
    for (const SessionSummary& summary : summaries) {
        if (summary.session) paths.emplace(summary.session->threadID, summary.path);
        for (const SessionDelegation& delegation : summary.delegations) {
            if (!delegation.threadID.empty()) calls.emplace(delegation.threadID, &delegation);
        }
    }
    for (ConversationSession& session : sessions) {
        if (!session.parentThreadID) continue;
        if (const auto parent = paths.find(*session.parentThreadID); parent != paths.end()) {
            session.parentPath = std::string(parent->second);
        }
        if (session.continuation) continue;
        const auto call = calls.find(session.threadID);
        if (call != calls.end()) addDelegation(*call->second, session);
        // In a subagent's record the one who answers is the subagent, and the one who asks its caller.
        if (session.previewAuthor) {
            const bool isAnswer = session.previewAuthor->role == ConversationAuthor::Role::main;
            session.previewAuthor =
                isAnswer ? ConversationAuthor::subagent(session.name.value_or("")) : ConversationAuthor::main();
        }
    }
}

}  // namespace

std::vector<Home> homes(const Environment& environment, const std::map<std::string, std::string, std::less<>>& chosen) {
    std::vector<Home> result;
    for (const SessionAgent& agent : SessionReaders::all()) {
        Home home{.agent = std::string(agent.key),
                  .path = HomeDirectory::current(environment) + "/" + std::string(agent.defaultHome),
                  .isDefault = true};
        const auto setting = chosen.find(agent.key);
        std::string other = setting == chosen.end() ? "" : HomeDirectory::expandingTilde(setting->second, environment);
        if (!other.starts_with('/')) {
            const auto variable = environment.value(agent.homeVariable);
            other = variable ? HomeDirectory::expandingTilde(*variable, environment) : "";
            if (!other.empty()) other += agent.homeSuffix;
        }
        if (other.starts_with('/') && other != home.path) {
            home.path = std::move(other);
            home.isDefault = false;
        }
        result.push_back(std::move(home));
    }
    return result;
}

std::vector<ConversationSession> sessions(std::span<const Home> homes, const std::string& dataFolder) {
    std::vector<Record> records;
    for (const Home& home : homes) {
        addRecords(home, records);
    }
    const std::string cachePath = dataFolder + "/sessions.json";
    SessionCache cache = dataFolder.empty() ? SessionCache() : SessionCache::read(cachePath);
    Summaries summaries = readAll(records, cache);
    std::vector<ConversationSession> result;
    for (const SessionSummary& summary : summaries.all) {
        if (summary.session) result.push_back(*summary.session);
    }
    connect(summaries.all, result);
    if (summaries.isNews && !dataFolder.empty()) (void)SessionCache::write(cachePath, std::move(summaries.all));
    return result;
}

Story story(const AgentConversation& conversation, std::span<const ConversationSession> sessions) {
    SessionTranscript::SubagentCalls subagents;
    std::unordered_map<std::string_view, bool> isRun;  // by thread
    for (const ConversationRun& run : conversation.runs) {
        isRun.emplace(run.threadID, true);
        if (run.delegationID) subagents.emplace(*run.delegationID, run.name);
    }
    Story story;
    const auto add = [&](const ConversationSession& session, bool isRoot) {
        auto transcript = SessionTranscript::read(session, subagents);
        story.omittedEarlier = story.omittedEarlier || transcript.omittedEarlier;
        story.isPartial = story.isPartial || transcript.isPartial;
        story.parts.push_back({.session = session, .entries = std::move(transcript.entries), .isRoot = isRoot});
    };
    const auto isMember = [&](const ConversationSession& session) {
        return session.agent == conversation.agent &&
               std::find(conversation.documentSessions.begin(), conversation.documentSessions.end(),
                         session.threadID) != conversation.documentSessions.end();
    };
    for (const bool runs : {false, true}) {
        for (const ConversationSession& session : sessions) {
            if (isMember(session) && isRun.contains(session.threadID) == runs) add(session, !runs);
        }
    }
    return story;
}

std::optional<std::string> wholeText(const ConversationTextLocation& location) {
    return SessionTranscript::wholeText(location);
}

}  // namespace vellark::SessionCatalog
