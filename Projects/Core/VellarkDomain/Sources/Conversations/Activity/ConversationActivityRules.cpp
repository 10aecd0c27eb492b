// What a tool call counts for. A command line is cut at its separators and blanks, and each segment's first words are
// looked up: a light reading, by which a miscount is harmless.

#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace vellark {

namespace {

using namespace std::string_view_literals;

// Programs that only run another one.
constexpr std::array prefixPrograms = {"nice"sv, "env"sv, "time"sv, "caffeinate"sv, "command"sv};

constexpr std::array programsWithTestArgument = {"swift"sv, "cargo"sv, "go"sv,  "npm"sv,
                                                 "pnpm"sv,  "yarn"sv,  "bun"sv, "xcodebuild"sv};
constexpr std::array testPrograms = {"pytest"sv, "jest"sv, "vitest"sv};
constexpr std::array shells = {"bash"sv, "sh"sv, "zsh"sv};
constexpr std::array pythons = {"python3"sv, "python"sv};

using Words = std::span<const std::string_view>;

template <class List>
bool holds(const List& list, std::string_view text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

bool contains(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

// An optional sign and ASCII digits that fit 64 bits.
std::optional<std::int64_t> integer(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// Pieces of a text between any of the separators, each a whole character; empty pieces are left out.
std::vector<std::string_view> pieces(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> result;
    std::size_t pieceStart = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = GraphemeBreak::next(text, start);
        if (end == start + 1 && contains(separators, text.substr(start, 1))) {
            if (start > pieceStart) result.push_back(text.substr(pieceStart, start - pieceStart));
            pieceStart = end;
        }
        start = end;
    }
    if (pieceStart < text.size()) result.push_back(text.substr(pieceStart));
    return result;
}

Words withoutPrefixPrograms(Words words) {
    while (!words.empty() && holds(prefixPrograms, words.front())) {
        words = words.subspan(1);
        while (!words.empty() &&
               (words.front().starts_with('-') || contains(words.front(), "=") || integer(words.front()))) {
            words = words.subspan(1);
        }
    }
    return words;
}

bool isTestCommand(std::string_view name, Words arguments) {
    if (holds(programsWithTestArgument, name)) return holds(arguments, "test");
    if (holds(testPrograms, name)) return true;
    if (holds(shells, name)) {
        const auto script = std::find_if(arguments.begin(), arguments.end(),
                                         [](std::string_view argument) { return contains(argument, "test"); });
        return script != arguments.end() && script->ends_with(".sh");
    }
    if (holds(pythons, name)) {
        return std::any_of(arguments.begin(), arguments.end(), [](std::string_view argument) {
            return argument == "unittest" || argument == "pytest" || contains(argument, "test_");
        });
    }
    return name.ends_with("test.sh");
}

void countGit(ConversationActivity& activity, Words arguments) {
    const auto verb = std::find_if(arguments.begin(), arguments.end(),
                                   [](std::string_view argument) { return !argument.starts_with('-'); });
    if (verb == arguments.end()) return;
    if (*verb == "commit") ++activity.commits;
    if (*verb == "push") ++activity.pushes;
}

void countMerge(ConversationActivity& activity, Words arguments) {
    ++activity.mergedPullRequestCount;
    for (std::string_view argument : arguments) {
        while (argument.starts_with('#'))
            argument.remove_prefix(1);
        while (argument.ends_with('#'))
            argument.remove_suffix(1);
        if (const auto number = integer(argument)) {
            auto& merged = activity.mergedPullRequests;
            if (std::find(merged.begin(), merged.end(), *number) == merged.end()) merged.push_back(*number);
            return;
        }
    }
}

void countPullRequest(ConversationActivity& activity, Words arguments) {
    if (arguments[1] == "create") ++activity.createdPullRequestCount;
    if (arguments[1] == "checks") ++activity.ciChecks;
    if (arguments[1] == "merge") countMerge(activity, arguments.subspan(2));
}

void countSegment(ConversationActivity& activity, std::string_view segment) {
    const auto all = pieces(segment, " ");
    const Words words = withoutPrefixPrograms(all);
    if (words.empty()) return;
    const std::string_view name = FilePath::lastComponent(words.front());
    const Words arguments = words.subspan(1);
    const auto begins = [arguments](std::string_view first) { return arguments.size() > 1 && arguments[0] == first; };
    if (name == "git") {
        countGit(activity, arguments);
    } else if (name == "gh" && begins("pr")) {
        countPullRequest(activity, arguments);
    } else if (name == "gh" && begins("run") && arguments[1] == "watch") {
        ++activity.ciChecks;
    } else if (isTestCommand(name, arguments)) {
        ++activity.testRuns;
    }
}

}  // namespace

ConversationActivity ConversationActivity::command(std::string_view line) {
    ConversationActivity activity{.commands = 1};
    for (const std::string_view piece : pieces(line, ";\n|&")) {
        countSegment(activity, Whitespace::trimmed(piece));
    }
    return activity;
}

ConversationActivity ConversationActivity::edit(std::string_view path) {
    return {.editedFiles = {std::string(path)}};
}

ConversationActivity ConversationActivity::tool() {
    return {.otherTools = 1};
}

std::optional<std::int64_t> ConversationActivity::pullRequestNumber(std::string_view output) {
    constexpr std::string_view path = "/pull/";
    for (std::size_t found = output.find(path); found != std::string_view::npos; found = output.find(path, found + 1)) {
        const std::size_t start = found + path.size();
        std::size_t end = start;
        while (end < output.size()) {
            const auto decoded = UTF8::decode(output, end);
            if (!CharacterClass::isDecimalDigit(decoded.scalar)) break;
            end += decoded.byteCount;
        }
        if (end > start) return integer(output.substr(start, end - start));
    }
    return std::nullopt;
}

bool ConversationActivity::createsPullRequest(std::string_view line) {
    static const Regex expression(R"((^|[\s;&|])gh\s+pr\s+create\b)");
    return contains(line, "create") && containsMatch(expression, line);
}

}  // namespace vellark
