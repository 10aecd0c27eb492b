#include "FuzzTarget.hpp"
#include <VellarkDomain/Conversations/Grouping/ConversationHierarchy.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

using namespace vellark;
using Entry = ConversationEntry;

namespace {

// Three letters for each entry or run: what it is, who wrote it, whom it concerns.
struct Records {
    std::vector<Entry> feed;
    std::vector<ConversationRun> runs;

    explicit Records(std::string_view letters) {
        for (; letters.size() >= 3; letters.remove_prefix(3)) {
            const std::string writer(1, letters[1]);
            const std::string other(1, letters[2]);
            const auto author = ConversationAuthor::subagent(writer);
            if (letters[0] == 'r') {
                runs.push_back({.name = writer, .threadID = other, .delegationID = writer, .parentThreadID = writer});
            } else if (letters[0] == 'd') {
                feed.push_back({.id = writer, .kind = Entry::Delegation{other}, .author = author, .callID = other});
            } else if (letters[0] == 'm') {
                feed.push_back({.id = other, .kind = Entry::AgentMessage{other}, .author = author});
            } else {
                feed.push_back({.id = writer, .author = author, .text = other, .topic = other});
            }
        }
    }
};

}  // namespace

// Every entry that belongs to somebody stands in one thread, and a hand-over in the parent's too. A task stands in the
// tree once, whatever loops and repeats the identifiers make.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Records records(fuzz::text(data, size));
    std::size_t places = 0;
    for (const Entry& entry : records.feed)
        places += ConversationTask::owner(entry).has_value();
    const auto tasks = ConversationTask::tasks(records.feed, records.runs);
    std::size_t stand = 0;
    for (const ConversationTask& task : tasks) {
        stand += task.thread.size();
        places += task.parentTaskID.has_value();
    }
    fuzz::require(stand == places, "no entry is lost or doubled");
    const ConversationHierarchy tree(tasks);
    fuzz::require(tree.order.size() <= tree.known.size(), "no task stands twice in the order");
    std::size_t rows = 0;
    for (const auto& column : tree.layout(std::nullopt, true, 0))
        rows += column.rows.size();
    fuzz::require(rows <= tasks.size(), "no task stands twice in the columns");
    return 0;
}
