#include <VellarkDomain/Agents/AgentActivitySummary.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkLocalization/L10n.hpp>

namespace vellark {

std::string AgentSessionObservation::projectName() const {
    return std::string(FilePath::lastComponent(projectRoot));
}

std::string AgentSessionObservation::stateLabel() const {
    if (state == "running") return L10n::text("작업 중");
    if (state == "idle") return L10n::text("대기 중");
    if (state == "ended") return L10n::text("종료");
    return L10n::text("상태 미확인");
}

}  // namespace vellark
