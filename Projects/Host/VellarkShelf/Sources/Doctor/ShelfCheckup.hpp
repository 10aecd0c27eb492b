#pragma once

#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace vellark {

/// How the shelf is doing on this machine: what is connected, what waits, what is wrong.
struct ShelfCheckup {
    struct Agent {
        std::string source;
        std::string home;
        bool isInstalled = false;  ///< its folder is there
        bool isConnected = false;  ///< its hooks run the helper
        bool isEnabled = false;    ///< the user has not switched it off
    };

    std::string directory;
    std::string helper;
    std::int64_t documents = 0;
    std::int64_t pendingSignals = 0;
    std::int64_t maximumPending = 0;  ///< beyond these the helper drops events
    std::vector<Agent> agents;        ///< those that are installed or connected
    std::vector<std::string> problems;

    [[nodiscard]] static ShelfCheckup make(const DataDirectory& directory, const Environment& environment);
};

template <class Fields>
void describe(Fields& fields, ShelfCheckup::Agent& agent) {
    fields.required("source", agent.source);
    fields.required("home", agent.home);
    fields.required("isInstalled", agent.isInstalled);
    fields.required("isConnected", agent.isConnected);
    fields.required("isEnabled", agent.isEnabled);
}

template <class Fields>
void describe(Fields& fields, ShelfCheckup& checkup) {
    fields.required("directory", checkup.directory);
    fields.required("helper", checkup.helper);
    fields.required("documents", checkup.documents);
    fields.required("pendingSignals", checkup.pendingSignals);
    fields.required("maximumPending", checkup.maximumPending);
    fields.required("agents", checkup.agents);
    fields.required("problems", checkup.problems);
}

}  // namespace vellark
