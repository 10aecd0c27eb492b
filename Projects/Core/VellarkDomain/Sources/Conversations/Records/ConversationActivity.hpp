#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What an agent did between two messages.
struct ConversationActivity {
    std::vector<std::string> editedFiles;                   ///< in order of first edit, without repeats
    std::optional<std::vector<std::string>> documentPaths;  ///< the documents among them
    std::int64_t commands = 0;                              ///< shell commands
    std::int64_t commits = 0;
    std::int64_t pushes = 0;
    std::vector<std::int64_t> createdPullRequests;  ///< numbers, without repeats
    std::int64_t createdPullRequestCount = 0;       ///< with those whose number is not known
    std::vector<std::int64_t> mergedPullRequests;   ///< numbers, without repeats
    std::int64_t mergedPullRequestCount = 0;        ///< with those whose number is not known
    std::int64_t ciChecks = 0;
    std::int64_t testRuns = 0;
    std::int64_t otherTools = 0;
    std::int64_t agentMessages = 0;  ///< messages between agents

    /// Takes the other's work in: list entries that are lacking are added in the other's order, counts are added. A
    /// count beyond 64 bits is a mistake of the program and ends it.
    void merge(const ConversationActivity& other);

    /// What a shell command line does, read word by word and without an eye for quotes: one command, and the commits,
    /// pushes, pull requests, checks and test runs in its segments.
    ///
    ///     command("git add -A && git commit -m x").commits     1
    [[nodiscard]] static ConversationActivity command(std::string_view line);

    /// An edit of a file.
    [[nodiscard]] static ConversationActivity edit(std::string_view path);

    /// Any other use of a tool.
    [[nodiscard]] static ConversationActivity tool();

    /// The number in the first address of a pull request in a tool's output, ".../pull/42".
    [[nodiscard]] static std::optional<std::int64_t> pullRequestNumber(std::string_view output);

    /// Whether the command line creates a pull request.
    [[nodiscard]] static bool createsPullRequest(std::string_view line);

    /// The work in one line, in the user's language; empty when there is nothing to tell.
    [[nodiscard]] std::string summary() const;

    bool operator==(const ConversationActivity&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConversationActivity& activity) {
    fields.required("editedFiles", activity.editedFiles);
    fields.optional("documentPaths", activity.documentPaths);
    fields.required("commands", activity.commands);
    fields.required("commits", activity.commits);
    fields.required("pushes", activity.pushes);
    fields.required("createdPullRequests", activity.createdPullRequests);
    fields.required("createdPullRequestCount", activity.createdPullRequestCount);
    fields.required("mergedPullRequests", activity.mergedPullRequests);
    fields.required("mergedPullRequestCount", activity.mergedPullRequestCount);
    fields.required("ciChecks", activity.ciChecks);
    fields.required("testRuns", activity.testRuns);
    fields.required("otherTools", activity.otherTools);
    fields.required("agentMessages", activity.agentMessages);
}

/// Merges a run of activities into one at a cost linear in their sizes, where one merge after the other would look
/// through the growing lists again and again.
class ConversationActivityFold {
public:
    /// `target` must outlive the fold and is changed by nobody else meanwhile.
    explicit ConversationActivityFold(ConversationActivity& target);
    ~ConversationActivityFold();
    ConversationActivityFold(const ConversationActivityFold&) = delete;
    ConversationActivityFold& operator=(const ConversationActivityFold&) = delete;

    void merge(const ConversationActivity& other);

private:
    struct Seen;

    ConversationActivity& target_;
    std::unique_ptr<Seen> seen_;
};

}  // namespace vellark
