#pragma once

#include "Support/RandomInput.hpp"
#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vellark::testing {

/// A conversation as agents leave it in their records, with all that goes wrong there: a root, continuations, subagents
/// of subagents, retries under one name, sessions of one thread, parents that nobody read, loops, chains that are too
/// deep, equal times, messages between agents, to-do lists. Names and identifiers come from small sets, so that they
/// often meet.
class RandomConversation {
public:
    explicit RandomConversation(std::uint64_t seed) : random_(seed) {
        const bool isDeep = random_.below(20) == 0;
        const std::size_t count = isDeep ? 14 + random_.below(12) : 1 + random_.below(9);
        for (std::size_t index = 0; index < count; ++index)
            parts_.push_back(part(index, isDeep));
        if (random_.below(3) == 0) std::reverse(parts_.begin(), parts_.end());
    }

    static constexpr double now = 2'000'000;

    [[nodiscard]] std::vector<ConversationSession> sessions() const {
        std::vector<ConversationSession> result;
        for (const auto& part : parts_)
            result.push_back(part.session);
        return result;
    }

    [[nodiscard]] const std::vector<ConversationAssembly::Part>& parts() const { return parts_; }

    /// The same numbers go on for what a test draws beside the conversation.
    [[nodiscard]] RandomNumbers& random() { return random_; }

private:
    using Entry = ConversationEntry;
    using Text = std::optional<std::string>;

    [[nodiscard]] bool chance(std::size_t percent) { return random_.below(100) < percent; }

    [[nodiscard]] Text maybe(std::size_t percent, const std::vector<std::string>& texts) {
        return chance(percent) ? Text(random_.oneOf(texts)) : std::nullopt;
    }

    [[nodiscard]] std::string number(std::string text, std::size_t below) {
        return text += std::to_string(random_.below(below));
    }

    [[nodiscard]] static std::string thread(std::size_t index) {
        return (index % 3 == 2 ? "root/sub/t" : "t") + std::to_string(index);
    }

    [[nodiscard]] Text parent(std::size_t index, bool isDeep) {
        if (isDeep && index > 0 && !chance(4)) return thread(index - 1);
        const std::size_t choice = random_.below(index == 0 ? 300 : 100);
        if (choice < 65 && index > 0) return thread(random_.below(index));
        if (choice < 72) return "lost";
        if (choice < 82) return thread(random_.below(10));  // itself, one to come, a loop
        return std::nullopt;
    }

    [[nodiscard]] Date moment() {
        if (chance(3)) return {now + static_cast<double>(random_.below(1000))};
        if (chance(20)) return {now - 600'000 - static_cast<double>(random_.below(3)) * 4'800};  // about the cut-off
        return {now - static_cast<double>(random_.below(6)) * 40};
    }

    ConversationAssembly::Part part(std::size_t index, bool isDeep) {
        ConversationSession session{.id = "s" + std::to_string(index)};
        session.agent = chance(85) ? "claude" : "codex";
        session.threadID = chance(88) ? thread(index) : thread(random_.below(index + 1));
        session.parentThreadID = parent(index, isDeep);
        session.name = maybe(75, names_);
        session.role = maybe(50, {"build", "review"});
        session.task = maybe(40, {"Read `/a/b/c/d/e/f/g/h/i/j/k/l/m/n/o/p/q/r/s/t/u`", " \n", "Count\nthe  tables"});
        session.delegationID = chance(50) ? Text(number("call", 6)) : std::nullopt;
        session.path = number("/r/", index + 2);
        session.cwd = maybe(60, {"/work/shelf", "/work/shelf/", "/", ""});
        session.startedAt = moment();
        session.updatedAt = moment();
        session.instruction = maybe(60, {"", "Fix the list", "## Tidy **this**\nand that", "---", longText()});
        session.instructionLocation = location(session);
        session.afterCompaction = chance(20);
        session.preview = maybe(60, {"", "Done.", "Reading"});
        if (chance(60)) session.previewAuthor = author();
        session.finished = chance(50);
        session.failed = chance(15);
        session.interrupted = chance(15);
        for (std::size_t count = random_.below(3); count > 0; --count)
            session.documentSessions.push_back(number("d", 5));
        session.configHome = maybe(20, {"/home/u/.claude-work"});
        session.parentPath = maybe(40, {"/r/parent"});
        session.continuation = chance(25);
        ConversationAssembly::Part result{.session = session, .entries = {}, .isRoot = index == 0};
        for (std::size_t count = random_.below(7); count > 0; --count)
            result.entries.push_back(entry(session));
        return result;
    }

    [[nodiscard]] static std::string longText() {
        std::string text;
        for (int word = 0; word < 30; ++word)
            text += "글자 ";
        return text;
    }

    std::optional<ConversationTextLocation> location(const ConversationSession& session) {
        if (chance(30)) return std::nullopt;
        const std::string path = chance(80) ? session.path : number("/r/", 8);
        return ConversationTextLocation{
            .agent = session.agent, .path = path, .session = chance(30) ? Text(session.threadID) : std::nullopt};
    }

    ConversationAuthor author() {
        const std::size_t choice = random_.below(10);
        if (choice < 2) return ConversationAuthor::user();
        return choice < 4 ? ConversationAuthor::main() : ConversationAuthor::subagent(random_.oneOf(names_));
    }

    // By which a subagent is meant: its name, its thread, or the end of its thread.
    std::string address() {
        const std::size_t choice = random_.below(10);
        if (choice < 6) return random_.oneOf(names_);
        return choice < 8 ? thread(random_.below(8)) : number("t", 8);
    }

    Entry::Kind kind() {
        switch (random_.below(8)) {
            case 0:
            case 1:
                return Entry::Delegation{address()};
            case 2:
            case 3:
                return Entry::AgentMessage{chance(20) ? "main" : address()};
            case 4:
                return ConversationActivity{.commands = 1};
            case 5:
                return Entry::Report();
            case 6:
                return Entry::Compaction();
            default:
                return Entry::Message();
        }
    }

    Entry entry(const ConversationSession& session) {
        Entry result{.id = "e" + std::to_string(entries_++), .kind = kind(), .author = author()};
        if (chance(70)) result.time = moment();
        result.text = random_.oneOf(texts_);
        result.location = location(session);
        if (chance(50)) result.topic = session.name && chance(60) ? *session.name : address();
        if (chance(25)) result.callID = number("call", 6);
        for (std::size_t count = random_.below(3); count > 0; --count)
            result.todos.push_back(update());
        return result;
    }

    ConversationTodoUpdate update() {
        using Update = ConversationTodoUpdate;
        const auto status = static_cast<ConversationTodo::Status>(random_.below(3));
        const std::size_t choice = random_.below(10);
        if (choice < 2) {
            Update::Snapshot snapshot;
            for (std::size_t count = random_.below(4); count > 0; --count)
                snapshot.todos.push_back({number("item ", 9), status});
            return {snapshot};
        }
        if (choice < 6) return {Update::Created{chance(50) ? Text(number("", 5)) : std::nullopt, number("item ", 9)}};
        return {Update::Updated{number("", 5), chance(20) ? std::nullopt : std::optional(status)}};
    }

    RandomNumbers random_;
    std::vector<ConversationAssembly::Part> parts_;
    std::size_t entries_ = 0;
    std::vector<std::string> names_ = {"scout", "writer", "번역가", "A", "A", "t3", ""};
    std::vector<std::string> texts_ = {"", "\n \nRead ~/a/b/c/d/e/f/g/h/i/j/k/l/m/n/o/p/q/r/s/t/u  twice\nmore",
                                       "# Head\nbody", "***", "Look at /etc/hosts"};
};

}  // namespace vellark::testing
