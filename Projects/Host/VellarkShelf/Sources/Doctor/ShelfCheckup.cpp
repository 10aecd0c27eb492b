#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkShelf/Collect/PendingSignal.hpp>
#include <VellarkShelf/Data/LibraryProblem.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>
#include <VellarkShelf/Doctor/ShelfCheckup.hpp>
#include <VellarkShelf/Hooks/HookDefinition.hpp>

#include <sys/stat.h>
#include <unistd.h>

namespace vellark {

namespace {

constexpr mode_t othersBits = 0077;

void checkDirectory(ShelfCheckup& checkup, const DataDirectory& directory) {
    struct stat status {};
    if (::stat(directory.path.c_str(), &status) != 0) {
        checkup.problems.push_back("there is no data directory yet; `vellark collect` makes it");
        return;
    }
    if (!S_ISDIR(status.st_mode)) {
        checkup.problems.push_back("the data directory is no directory");
    } else if (::access(directory.path.c_str(), R_OK | W_OK | X_OK) != 0) {
        checkup.problems.push_back("the data directory cannot be read and written");
    } else if ((status.st_mode & othersBits) != 0) {
        checkup.problems.push_back("other users may look into the data directory; `chmod 700` shuts them out");
    }
}

void checkSpool(ShelfCheckup& checkup, const DataDirectory& directory) {
    struct stat status {};
    const std::string folder = directory.signals();
    if (::lstat(folder.c_str(), &status) == 0 && !S_ISDIR(status.st_mode)) {
        checkup.problems.push_back("the helper writes nothing: " + folder + " is no directory of its own");
        return;
    }
    const auto listing = PendingSignals::read(folder);
    const std::size_t count = listing.signals.size() + listing.unknown.size() + listing.damaged.size();
    checkup.pendingSignals = static_cast<std::int64_t>(count);
    if (count >= CaptureSignal::maximumPending) {
        checkup.problems.push_back("the spool is full, events are being lost; run `vellark collect`");
    }
    for (const std::string& path : listing.unknown) {
        checkup.problems.push_back("a signal of another version is left where it is: " + path);
    }
    for (const std::string& path : listing.damaged) {
        checkup.problems.push_back("a file among the signals is none: " + path);
    }
    for (const std::string& path : listing.unfinished) {
        checkup.problems.push_back("a helper died over a signal: " + path);
    }
}

void checkLibrary(ShelfCheckup& checkup, const DataDirectory& directory) {
    const auto library = LibraryFile::read(directory.library());
    if (library) {
        checkup.documents = static_cast<std::int64_t>(library->library.documents.size());
    } else if (library.error().reason != LibraryFileError::Reason::notFound) {
        checkup.problems.push_back(libraryProblem(library.error()));
    }
    if (const auto problem = ShelfSettings::read(directory).problem) {
        checkup.problems.push_back("settings.json counts as absent: " + *problem);
    }
}

void checkAgents(ShelfCheckup& checkup, const DataDirectory& directory, const Environment& environment) {
    const SignalSpool spool{.data = directory.path, .environment = environment};
    for (const CaptureSignal::Source& source : CaptureSignal::sources) {
        const auto hook = HookDefinitions::make(source.identifier, checkup.helper, directory, environment);
        ShelfCheckup::Agent agent{.source = std::string(source.identifier),
                                  .home = spool.agentRoot(source.identifier),
                                  .isConnected = hook && HookDefinitions::isConnected(*hook),
                                  .isEnabled = spool.sourceEnabled(source.identifier)};
        struct stat status {};
        agent.isInstalled = ::stat(agent.home.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
        if (agent.isInstalled || agent.isConnected) checkup.agents.push_back(std::move(agent));
    }
}

}  // namespace

ShelfCheckup ShelfCheckup::make(const DataDirectory& directory, const Environment& environment) {
    ShelfCheckup checkup{.directory = directory.path,
                         .helper = HookDefinitions::helperPath(),
                         .maximumPending = CaptureSignal::maximumPending};
    if (checkup.helper.find('/') == std::string::npos) {
        checkup.problems.push_back("the helper VellarkCapture does not lie beside vellark");
    }
    checkDirectory(checkup, directory);
    checkSpool(checkup, directory);
    checkLibrary(checkup, directory);
    checkAgents(checkup, directory, environment);
    return checkup;
}

}  // namespace vellark
