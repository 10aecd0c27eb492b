#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkShelf/Commands/Commands.hpp>

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace vellark {

namespace {

constexpr std::size_t readSize = 1 << 20;

bool readAll(int descriptor, std::string& text) {
    for (;;) {
        const std::size_t used = text.size();
        text.resize(used + readSize);
        const auto count = FileTransfer::read(descriptor, text.data() + used, readSize);
        text.resize(used + count.value_or(0));
        if (!count) return false;
        if (*count == 0) return true;
    }
}

}  // namespace

int Commands::redact() {
    std::string text;
    if (!readAll(STDIN_FILENO, text)) {
        std::fprintf(stderr, "vellark: standard input cannot be read: %s\n", std::strerror(errno));
        return 1;
    }
    const std::string clean = Redaction::redact(text);
    if (std::fwrite(clean.data(), 1, clean.size(), stdout) != clean.size() || std::fflush(stdout) != 0) {
        std::fprintf(stderr, "vellark: standard output cannot be written: %s\n", std::strerror(errno));
        return 1;
    }
    return 0;
}

}  // namespace vellark
