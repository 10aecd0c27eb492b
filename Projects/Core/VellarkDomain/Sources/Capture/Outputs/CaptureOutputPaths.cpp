#include <VellarkDomain/Capture/Outputs/CaptureOutputPaths.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>

// Where the agents put what, below the watched root ("*" is any folder):
//
//     claudeCowork           */*/local_<session>/outputs/...      the session with its "local_"
//     codexImages            <session>/...
//     codexVisualizations    */*/*/<session>/...
//     manus                  <year-month-day>/<session>/...

namespace vellark::CaptureOutputs {

namespace {

constexpr std::array<std::string_view, 3> unfinishedEndings = {".crdownload", ".download", ".part"};

bool isHidden(std::string_view name) {
    return name.starts_with('.');
}

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isTokenByte(char byte) {
    return isDigit(byte) || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '-' || byte == '_';
}

bool isSessionToken(std::string_view text, std::size_t leastLength) {
    return text.size() >= leastLength && std::ranges::all_of(text, isTokenByte);
}

// Four digits, two digits and two digits with "-" between them; the calendar is not asked.
bool isDateFolder(std::string_view text) {
    constexpr std::string_view form = "0000-00-00";
    return std::ranges::equal(text, form,
                              [](char byte, char formed) { return formed == '0' ? isDigit(byte) : byte == '-'; });
}

bool walksCowork(PathParts parents) {
    if (parents.size() < 3) return true;
    if (!parents[2].starts_with("local_")) return false;
    return parents.size() == 3 || parents[3] == "outputs";
}

bool walksManus(PathParts parents) {
    if (parents.empty()) return true;
    if (!isDateFolder(parents[0])) return false;
    return parents.size() == 1 || isSessionToken(parents[1], leastManusSessionLength);
}

OutputFile inSession(std::string_view name) {
    return {std::string(name)};
}

OutputFile inSessionIfToken(std::string_view name) {
    return isSessionToken(name, leastSessionLength) ? inSession(name) : OutputFile();
}

bool isUnfinished(std::string_view name) {
    const std::string lowered = UnicodeCase::lower(name);
    return std::ranges::any_of(unfinishedEndings, [&](std::string_view ending) { return lowered.ends_with(ending); });
}

}  // namespace

bool walks(CaptureOutput output, PathParts parents) {
    if (std::ranges::any_of(parents, isHidden)) return false;
    switch (output) {
        case CaptureOutput::codexImages:
        case CaptureOutput::codexVisualizations:
            return true;
        case CaptureOutput::manus:
            return walksManus(parents);
        case CaptureOutput::claudeCowork:
            return walksCowork(parents);
        case CaptureOutput::downloadsInbox:
        case CaptureOutput::downloadsDocuments:
        case CaptureOutput::downloadsPDFs:
        case CaptureOutput::downloadsOffice:
        case CaptureOutput::downloadsImages:
            break;
    }
    return parents.empty();
}

std::optional<OutputFile> session(CaptureOutput output, PathParts parts) {
    if (parts.empty() || isHidden(parts.back()) || !walks(output, parts.first(parts.size() - 1))) return std::nullopt;
    switch (output) {
        case CaptureOutput::claudeCowork:
            if (parts.size() < 5) return std::nullopt;
            return inSession(parts[2]);
        case CaptureOutput::codexImages:
            if (parts.size() == 1) return OutputFile();
            return inSessionIfToken(parts[0]);
        case CaptureOutput::codexVisualizations:
            if (parts.size() < 5) return OutputFile();
            return inSessionIfToken(parts[3]);
        case CaptureOutput::manus:
            if (parts.size() < 3) return std::nullopt;
            return inSession(parts[1]);
        case CaptureOutput::downloadsInbox:
            if (isUnfinished(parts[0])) return std::nullopt;
            return OutputFile();
        case CaptureOutput::downloadsDocuments:
        case CaptureOutput::downloadsPDFs:
        case CaptureOutput::downloadsOffice:
        case CaptureOutput::downloadsImages:
            break;
    }
    return std::nullopt;
}

}  // namespace vellark::CaptureOutputs
