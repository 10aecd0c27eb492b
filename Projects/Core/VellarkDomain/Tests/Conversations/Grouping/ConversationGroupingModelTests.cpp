// Grouping beside its plain reading, which looks for everything again each time it needs it.

#include "Conversations/Support/RandomConversation.hpp"
#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace vellark {
namespace {

using Session = ConversationSession;
using Sessions = std::vector<Session>;

class Model {
public:
    Model(const Sessions& sessions, const ConversationGrouping::Context& context) : context_(context) {
        for (const Session& session : sessions) {
            const std::string key = session.agent + ":" + session.threadID;
            if (!threads_.contains(key)) keys_.push_back(key);
            threads_[key].push_back(session);
        }
    }

    std::vector<AgentConversation> conversations() {
        std::map<std::string, Sessions> groups;
        const auto add = [&groups](const std::string& key, const Sessions& sessions) {
            groups[key].insert(groups[key].end(), sessions.begin(), sessions.end());
        };
        for (const std::string& key : keys_) {
            const auto line = walk(key);
            const std::string& root = line.back();
            add(root, threads_[key]);
            if (!context_.showsSubagents) continue;
            for (const std::string& current : line) {
                if (current != root) add(current, threads_[key]);
            }
        }
        std::vector<AgentConversation> result;
        for (const auto& [key, members] : groups) {
            if (auto found = conversation(key, members)) result.push_back(*found);
        }
        std::stable_sort(result.begin(), result.end(), [](const auto& left, const auto& right) {
            if (left.updatedAt != right.updatedAt) return left.updatedAt > right.updatedAt;
            return left.id < right.id;
        });
        return result;
    }

private:
    // All keys from the thread up to its root.
    std::vector<std::string> walk(std::string key) {
        std::set<std::string> seen = {key};
        std::vector<std::string> line = {key};
        for (int step = 0; step < 16; ++step) {
            if (!threads_.contains(key)) break;
            std::vector<std::string> parents;
            for (const Session& session : threads_[key]) {
                if (session.parentThreadID) parents.push_back(*session.parentThreadID);
            }
            if (parents.empty()) break;
            const std::string candidate = threads_[key].front().agent + ":" + parents.front();
            if (!threads_.contains(candidate) || seen.contains(candidate)) break;
            seen.insert(candidate);
            line.push_back(candidate);
            key = candidate;
        }
        return line;
    }

    static std::set<std::string> mainThreads(const std::string& root, const Sessions& members) {
        std::set<std::string> result = {root};
        Sessions candidates;
        for (const Session& member : members) {
            if (member.continuation) candidates.push_back(member);
        }
        for (;;) {
            const auto found = std::find_if(candidates.begin(), candidates.end(), [&result](const Session& candidate) {
                return candidate.parentThreadID && result.contains(*candidate.parentThreadID);
            });
            if (found == candidates.end()) return result;
            result.insert(found->threadID);
            candidates.erase(found);
        }
    }

    static Sessions byStart(Sessions sessions) {
        std::stable_sort(sessions.begin(), sessions.end(),
                         [](const Session& left, const Session& right) { return left.startedAt < right.startedAt; });
        return sessions;
    }

    static std::string name(const Session& session) {
        if (session.name) return *session.name;
        const Graphemes text(session.threadID);
        return std::string(text.slice(text.count() < 8 ? 0 : text.count() - 8, text.count()));
    }

    std::optional<AgentConversation> conversation(const std::string& key, const Sessions& members) {
        if (members.empty()) return std::nullopt;
        AgentConversation result{.id = key, .startedAt = members[0].startedAt, .updatedAt = members[0].updatedAt};
        for (const Session& member : members) {
            result.startedAt = std::min(result.startedAt, member.startedAt);
            result.updatedAt = std::max(result.updatedAt, member.updatedAt);
        }
        if (result.updatedAt.secondsSince1970 < context_.now.secondsSince1970 - 604'800) return std::nullopt;
        const std::string rootThread = threads_[key].front().threadID;
        const auto main = mainThreads(rootThread, members);
        Sessions mains;
        Sessions others;
        for (const Session& member : byStart(members))
            (main.contains(member.threadID) ? mains : others).push_back(member);
        const auto root = std::find_if(mains.begin(), mains.end(),
                                       [&](const Session& session) { return session.threadID == rootThread; });
        if (root == mains.end()) return std::nullopt;
        result.agent = root->agent;
        result.threadID = rootThread;
        result.configHome = root->configHome;
        setFolder(result, mains, members);
        result.title = result.cwd ? std::string(FilePath::lastComponent(*result.cwd)) : root->agent;
        setInstruction(result, mains);
        setPreview(result, main, members);
        for (const Session& other : others)
            addSubagent(result, other);
        for (const Session& member : members) {
            for (const std::string& id : member.documentSessions) {
                auto& list = result.documentSessions;
                if (std::find(list.begin(), list.end(), id) == list.end()) list.push_back(id);
            }
            const double age = context_.now.secondsSince1970 - member.updatedAt.secondsSince1970;
            if (!member.finished && age < 120) result.isRunning = true;
        }
        const auto viewed = context_.viewed.find(key);
        result.isUnread = result.updatedAt > (viewed == context_.viewed.end() ? context_.baseline : viewed->second);
        if (const auto pin = context_.pinned.find(key); pin != context_.pinned.end())
            result.pinnedDocumentID = pin->second;
        const bool byParent = root->agent == "claude" && root->parentThreadID;
        result.resumeID = byParent ? *root->parentThreadID : mains.back().threadID;
        result.resumePath = byParent ? root->parentPath : std::optional(mains.back().path);
        return result;
    }

    static void setFolder(AgentConversation& result, const Sessions& mains, const Sessions& members) {
        Sessions all = mains;
        all.insert(all.end(), members.begin(), members.end());
        for (const Session& session : all) {
            if (!result.cwd) result.cwd = session.cwd;
        }
        result.cwdForResume = result.cwd;
    }

    static void setInstruction(AgentConversation& result, const Sessions& mains) {
        for (const Session& session : mains) {
            if (session.instruction.value_or("").empty()) continue;
            result.instruction = *session.instruction;
            result.instructionLocation = session.instructionLocation;
            result.afterCompaction = session.afterCompaction;
            result.title = ConversationText::title(result.instruction);
            return;
        }
    }

    static void setPreview(AgentConversation& result, const std::set<std::string>& main, const Sessions& members) {
        std::optional<Session> source;
        for (const Session& member : members) {
            if (member.preview.value_or("").empty()) continue;
            if (!source || member.updatedAt > source->updatedAt) source = member;
        }
        if (!source) return;
        result.preview = *source->preview;
        result.previewAuthor = source->previewAuthor;
        const bool isUsers = result.previewAuthor && result.previewAuthor->role == ConversationAuthor::Role::user;
        if (!main.contains(source->threadID) && !isUsers)
            result.previewAuthor = ConversationAuthor::subagent(name(*source));
    }

    static void addSubagent(AgentConversation& result, const Session& session) {
        std::optional<std::string> resume = session.threadID;
        if (session.agent == "claude" && session.parentThreadID) resume.reset();
        const auto found = std::find_if(result.subagents.begin(), result.subagents.end(),
                                        [&](const auto& participant) { return participant.name == name(session); });
        if (found == result.subagents.end()) {
            ConversationParticipant participant{.name = name(session), .role = session.role, .resumeID = resume};
            if (resume) participant.resumePath = session.path;
            if (resume) participant.cwd = session.cwd;
            result.subagents.push_back(participant);
        } else if (resume) {
            found->resumeID = resume;
            found->resumePath = session.path;
            found->cwd = session.cwd;
        }
        result.runs.push_back({name(session), session.role, session.task, session.threadID, session.path,
                               session.documentSessions, session.delegationID, session.parentThreadID,
                               session.startedAt, session.updatedAt, session.finished, session.failed,
                               session.interrupted});
    }

    ConversationGrouping::Context context_;
    std::vector<std::string> keys_;
    std::map<std::string, Sessions> threads_;
};

TEST(ConversationGroupingModelTests, groupingIsItsPlainReading) {
    std::size_t shown = 0;
    std::size_t withSubagents = 0;
    std::size_t continued = 0;
    for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
        testing::RandomConversation input(seed);
        ConversationGrouping::Context context{.now = {input.now}, .baseline = {input.now - 80}};
        context.showsSubagents = input.random().below(2) == 0;
        context.viewed["claude:t0"] = {input.now - 40};
        context.pinned["claude:t0"] = "document";
        const Sessions sessions = input.sessions();
        const auto conversations = ConversationGrouping::conversations(sessions, context);
        ASSERT_TRUE(conversations == Model(sessions, context).conversations()) << "seed " << seed;
        for (const auto& conversation : conversations) {
            ++shown;
            if (!conversation.subagents.empty()) ++withSubagents;
            if (conversation.resumeID != conversation.threadID) ++continued;
        }
    }
    EXPECT_GT(shown, 10'000U);
    EXPECT_GT(withSubagents, 5'000U);
    EXPECT_GT(continued, 1'000U);
}

}  // namespace
}  // namespace vellark
