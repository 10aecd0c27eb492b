#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkShelf/Terminal/TerminalOutput.hpp>

#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace vellark {

namespace {

constexpr std::size_t pieceSize = 1 << 16;

// In seconds.
constexpr double quietStart = 0.3;
constexpr double betweenShows = 0.1;

double secondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::size_t columnsOf(int descriptor) {
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return 80;
    return size.ws_col;
}

}  // namespace

TerminalOutput::TerminalOutput(const Environment& environment) : isTerminal_(::isatty(STDOUT_FILENO) == 1) {
    if (!isTerminal_) return;
    width_ = columnsOf(STDOUT_FILENO);
    hasColors_ = environment.value("NO_COLOR").value_or("").empty() && environment.value("TERM").value_or("") != "dumb";
}

void TerminalOutput::write(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= pieceSize) flush();
}

bool TerminalOutput::flush() {
    failed_ = failed_ || !FileTransfer::write(STDOUT_FILENO, buffer_);
    buffer_.clear();
    return !failed_;
}

std::string TerminalOutput::styled(std::string_view code, std::string_view text) const {
    if (!hasColors_ || text.empty()) return std::string(text);
    return "\x1B[" + std::string(code) + "m" + std::string(text) + "\x1B[0m";
}

ProgressBar::ProgressBar(std::string_view label)
    : label_(label), isTerminal_(::isatty(STDERR_FILENO) == 1), startedAt_(secondsNow()) {}

ProgressBar::~ProgressBar() {
    if (shownAt_ > 0) std::fputs("\r\x1B[K", stderr);
}

void ProgressBar::show(std::size_t done, std::size_t all) {
    if (!isTerminal_ || all == 0) return;
    const double now = secondsNow();
    if (now - startedAt_ < quietStart || now - shownAt_ < betweenShows) return;
    shownAt_ = now;
    constexpr std::size_t cells = 30;
    std::string bar;
    for (std::size_t cell = 0; cell < cells; ++cell) {
        bar += cell * all < done * cells ? "█" : "░";
    }
    std::fprintf(stderr, "\r%s %s %zu/%zu\x1B[K", label_.c_str(), bar.c_str(), done, all);
    std::fflush(stderr);
}

}  // namespace vellark
