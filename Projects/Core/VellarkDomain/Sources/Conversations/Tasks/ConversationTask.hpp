#pragma once

#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTodoProgress.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// One piece of work that was handed to a subagent. Its identifier is its identity in lists.
struct ConversationTask {
    /// How the work ended, as its record says it.
    enum class Outcome { open, done, failed, interrupted };

    /// How it stands at a moment.
    enum class Status { running, quiet, done, failed, stopped };

    /// After so many seconds without activity an open task no longer counts as running.
    static constexpr double quietWindow = 1'800;

    std::string id;                           ///< of the entry that opened the task
    std::string name;                         ///< of the subagent
    std::string title;                        ///< at most 80 characters
    std::optional<std::string> role;          ///< raw value of a ConversationRole
    std::optional<std::string> threadID;      ///< of its run
    std::optional<ConversationEntry> prompt;  ///< the delegation that opened it
    std::optional<ConversationEntry> report;  ///< its last report
    std::vector<ConversationEntry> thread;    ///< its entries in the order of the feed
    std::int64_t messages = 0;                ///< messages between agents in its thread
    std::optional<Date> startedAt;
    std::optional<Date> lastActivity;
    Outcome outcome = Outcome::open;
    std::optional<ConversationTodoProgress> todos;
    std::optional<std::string> parentTaskID;
    std::int64_t depth = 0;             ///< 0 at the top, below that one more than the parent's
    std::vector<std::string> children;  ///< identifiers of the tasks that it handed on, in their order

    /// All tasks of a conversation, in the order in which they were opened. `feed` is in the order of time, as
    /// ConversationAssembly::feed gives it; who needs it no longer moves it in, and no entry is copied but those that
    /// stand at two places. A task's parent stands before it. The cost is linear in both.
    [[nodiscard]] static std::vector<ConversationTask> tasks(std::vector<ConversationEntry> feed,
                                                             std::span<const ConversationRun> runs);

    /// To whom an entry belongs: a subagent's name, or what stands for it in the agent's record. Nothing for what
    /// passes between the user and the main agent. The text is the entry's.
    [[nodiscard]] static std::optional<std::string_view> owner(const ConversationEntry& entry);

    /// What a title can be made of.
    struct TitleSource {
        std::optional<std::string_view> task = {};    ///< what the run was asked to do
        std::optional<std::string_view> prompt = {};  ///< text of the delegation
        std::string_view name;                        ///< of the subagent
    };

    /// The task's text on one line, or the first line of the prompt with its long paths shortened, or the name: the
    /// first of them that says something.
    [[nodiscard]] static std::string titleOf(const TitleSource& source);

    [[nodiscard]] Status status(Date now) const;
    [[nodiscard]] bool isOpen() const { return outcome == Outcome::open; }

    /// When it ended: the time of its report, or of its last activity. Nothing while it runs, or when neither is known.
    [[nodiscard]] std::optional<Date> end(Date now) const;

    /// Seconds from its start to its end, or to now while it has none; never negative.
    [[nodiscard]] std::optional<double> duration(Date now) const;

    bool operator==(const ConversationTask&) const = default;
};

template <>
inline constexpr auto caseTable<ConversationTask::Outcome> = std::to_array<CaseName<ConversationTask::Outcome>>({
    {ConversationTask::Outcome::open, "open"},
    {ConversationTask::Outcome::done, "done"},
    {ConversationTask::Outcome::failed, "failed"},
    {ConversationTask::Outcome::interrupted, "interrupted"},
});

template <>
inline constexpr auto caseTable<ConversationTask::Status> = std::to_array<CaseName<ConversationTask::Status>>({
    {ConversationTask::Status::running, "running"},
    {ConversationTask::Status::quiet, "quiet"},
    {ConversationTask::Status::done, "done"},
    {ConversationTask::Status::failed, "failed"},
    {ConversationTask::Status::stopped, "stopped"},
});

}  // namespace vellark
