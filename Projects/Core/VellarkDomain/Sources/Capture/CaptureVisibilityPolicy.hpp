#pragma once

#include <array>
#include <string_view>

namespace vellark {

/// What is visible of the places in which agents keep their data.
struct CaptureVisibilityPolicy {
    /// A directory of an agent, relative to the user's home.
    struct AgentHome {
        std::string_view source;
        std::string_view directory;
    };

    /// Older directories, which count where the present one does not exist.
    static constexpr std::array<AgentHome, 1> agentHomeFallbacks{{{"deepseek", ".deepseek"}}};
};

}  // namespace vellark
