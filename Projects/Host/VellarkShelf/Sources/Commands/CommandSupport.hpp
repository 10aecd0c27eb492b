#pragma once

#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkFoundation/Time/Date.hpp>
#include <VellarkShelf/Commands/Commands.hpp>
#include <VellarkShelf/Terminal/TerminalOutput.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark::Commands {

inline constexpr int success = 0;
inline constexpr int failed = 1;

/// Tells on standard error what went wrong; gives `failed`.
int problem(std::string_view text);

/// The library; an empty one where there is no file yet. Tells what is wrong with a file that cannot be read.
[[nodiscard]] std::optional<CaptureLibrary> readLibrary(const Context& context);

/// The one document whose identifier begins so. Tells when there is none, or more than one.
[[nodiscard]] const DocumentRecord* findDocument(const CaptureLibrary& library, std::string_view id);

/// The content of the latest revision: its copy, or the file that it points to. Nothing when that is gone.
[[nodiscard]] std::optional<std::string> readContent(const DocumentRecord& document, std::size_t maximumBytes);

[[nodiscard]] Date now();

/// Writes a record, or a list of them, as one line of JSON. Gives the exit status.
template <class Record>
int writeJSON(TerminalOutput& output, const Record& record) {
    const auto text = writeRecord(record);
    if (!text) return problem("a value at " + text.error().path + " cannot be written as JSON");
    output.line(*text);
    return output.flush() ? success : failed;
}

/// The exit status behind the last line.
[[nodiscard]] inline int finish(TerminalOutput& output) {
    return output.flush() ? success : failed;
}

}  // namespace vellark::Commands
