#include <VellarkShelf/Collect/DirectoryWatch.hpp>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#ifdef __linux__
#include <sys/inotify.h>
#else
#include <sys/event.h>
#endif

namespace vellark {

namespace {

// A signal that comes between two waits must end the next one: its handler writes into a pipe, which the wait reads.
std::array<int, 2> endPipe = {-1, -1};

void askForEnd(int) {
    const int code = errno;
    (void)!::write(endPipe[1], "x", 1);
    errno = code;
}

bool prepareEnd() {
    if (endPipe[0] >= 0) return true;
    if (::pipe(endPipe.data()) != 0) return false;
    for (const int end : endPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    struct sigaction action {};
    action.sa_handler = askForEnd;
    return ::sigaction(SIGINT, &action, nullptr) == 0 && ::sigaction(SIGTERM, &action, nullptr) == 0;
}

#ifdef __linux__

FileDescriptor watched(const std::string& directory, FileDescriptor&) {
    FileDescriptor events(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    // The helper moves finished signals in; other programs may write in place.
    if (events.isOpen() && ::inotify_add_watch(events.get(), directory.c_str(), IN_MOVED_TO | IN_CLOSE_WRITE) < 0) {
        events.close();
    }
    return events;
}

void drain(int events) {
    std::array<char, 16'384> buffer;
    while (::read(events, buffer.data(), buffer.size()) > 0) {
    }
}

#else

FileDescriptor watched(const std::string& directory, FileDescriptor& folder) {
    folder = FileDescriptor(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    FileDescriptor events(::kqueue());
    struct kevent change {};
    EV_SET(&change, folder.get(), EVFILT_VNODE, EV_ADD | EV_CLEAR, NOTE_WRITE, 0, nullptr);
    if (events.isOpen() && ::kevent(events.get(), &change, 1, nullptr, 0, nullptr) < 0) events.close();
    return events;
}

void drain(int events) {
    const timespec none{};
    struct kevent event {};
    while (::kevent(events, nullptr, 0, &event, 1, &none) > 0) {
    }
}

#endif

}  // namespace

std::optional<DirectoryWatch> DirectoryWatch::start(const std::string& directory) {
    if (::mkdir(directory.c_str(), 0700) != 0 && errno != EEXIST) return std::nullopt;
    FileDescriptor folder;
    FileDescriptor events = watched(directory, folder);
    if (!events.isOpen() || !prepareEnd()) return std::nullopt;
    return DirectoryWatch(std::move(events), std::move(folder));
}

bool DirectoryWatch::wait() {
    for (;;) {
        std::array<pollfd, 2> descriptors = {pollfd{events_.get(), POLLIN, 0}, pollfd{endPipe[0], POLLIN, 0}};
        if (::poll(descriptors.data(), descriptors.size(), -1) < 0 && errno != EINTR) return false;
        if (descriptors[1].revents != 0) return false;
        if (descriptors[0].revents == 0) continue;
        drain(events_.get());
        return true;
    }
}

}  // namespace vellark
