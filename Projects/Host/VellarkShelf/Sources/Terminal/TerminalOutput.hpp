#pragma once

#include <VellarkFoundation/Files/Environment.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace vellark {

/// Standard output as a person or another program reads it. A terminal gets colours and lines that fit its width; a
/// pipe or a file gets plain text, uncut. What is written is collected and handed over in large pieces.
class TerminalOutput {
public:
    /// Colours are left out where `NO_COLOR` is set or the terminal is a "dumb" one.
    explicit TerminalOutput(const Environment& environment);
    ~TerminalOutput() { flush(); }
    TerminalOutput(const TerminalOutput&) = delete;
    TerminalOutput& operator=(const TerminalOutput&) = delete;

    [[nodiscard]] bool isTerminal() const { return isTerminal_; }

    /// Columns of the terminal; 80 where it does not tell.
    [[nodiscard]] std::size_t width() const { return width_; }

    void write(std::string_view text);
    void line(std::string_view text = {}) {
        write(text);
        write("\n");
    }

    /// False when something could not be written.
    bool flush();

    // The text in a colour or weight, where there are colours.
    [[nodiscard]] std::string bold(std::string_view text) const { return styled("1", text); }
    [[nodiscard]] std::string dim(std::string_view text) const { return styled("2", text); }
    [[nodiscard]] std::string accent(std::string_view text) const { return styled("36", text); }

private:
    [[nodiscard]] std::string styled(std::string_view code, std::string_view text) const;

    bool isTerminal_ = false;
    bool hasColors_ = false;
    bool failed_ = false;
    std::size_t width_ = 80;
    std::string buffer_;
};

/// A bar on standard error that shows how far long work has come. Nothing is shown where that is no terminal, and
/// nothing for work of less than a moment.
class ProgressBar {
public:
    explicit ProgressBar(std::string_view label);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(std::size_t done, std::size_t all);

private:
    std::string label_;
    bool isTerminal_ = false;
    double startedAt_ = 0;
    double shownAt_ = 0;
};

}  // namespace vellark
