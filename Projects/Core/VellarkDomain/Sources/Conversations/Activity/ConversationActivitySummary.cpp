#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>
#include <VellarkLocalization/L10n.hpp>

namespace vellark {

namespace {

/// Commands that no other part tells of are left out behind other parts up to this number.
constexpr std::int64_t fewestToldCommands = 3;

// The parts of the line.
class SummaryLine {
public:
    void add(const std::string& part) {
        if (!line_.empty()) line_ += " · ";
        line_ += part;
    }

    void addWhen(bool holds, std::string_view key) {
        if (holds) add(L10n::text(key));
    }

    void addCount(std::string_view key, std::int64_t count) {
        add(L10n::text(key, {.arguments = {std::to_string(count)}, .count = count}));
    }

    [[nodiscard]] bool isEmpty() const { return line_.empty(); }
    [[nodiscard]] std::string take() { return std::move(line_); }

private:
    std::string line_;
};

}  // namespace

std::string ConversationActivity::summary() const {
    SummaryLine line;
    if (!editedFiles.empty()) line.addCount("파일 {0}개 수정", static_cast<std::int64_t>(editedFiles.size()));
    if (commits >= 1) line.addCount("커밋 {0}", commits);
    line.addWhen(pushes >= 1, "푸시");
    for (const std::int64_t number : createdPullRequests) {
        line.add(L10n::text("PR #{0} 생성", {.arguments = {std::to_string(number)}}));
    }
    line.addWhen(createdPullRequests.empty() && createdPullRequestCount >= 1, "PR 생성");
    line.addWhen(mergedPullRequestCount >= 1, "병합");
    line.addWhen(ciChecks >= 1, "CI 확인");
    line.addWhen(testRuns >= 1, "테스트 실행");
    const std::int64_t rest =
        commands - commits - pushes - createdPullRequestCount - mergedPullRequestCount - ciChecks - testRuns;
    if (rest >= fewestToldCommands || (rest >= 1 && line.isEmpty())) {
        line.addCount("명령 {0}개 실행", rest);
    } else if (rest < 1 && line.isEmpty() && otherTools >= 1) {
        line.addCount("도구 {0}회", otherTools);
    }
    if (agentMessages >= 1) line.addCount("에이전트끼리 메시지 {0}개", agentMessages);
    return line.take();
}

}  // namespace vellark
