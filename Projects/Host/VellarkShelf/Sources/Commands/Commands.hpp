#pragma once

#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// What each command of `vellark` does. Every one writes to standard output, tells what went wrong on standard error,
/// and gives the exit status.
namespace Commands {

/// What all commands know.
struct Context {
    DataDirectory directory;
    Environment environment;
    bool json = false;  ///< one JSON value in place of text for people
};

struct CollectOptions {
    bool watch = false;  ///< go on until interrupted
    bool quiet = false;  ///< tell of problems only
};

/// Brings the documents of all pending signals into the library.
[[nodiscard]] int collect(const Context& context, const CollectOptions& options);

struct ListOptions {
    std::optional<std::string> kind;     ///< raw value
    std::optional<std::string> project;  ///< name or root
    std::optional<std::size_t> limit;
};

/// The documents, the latest first.
[[nodiscard]] int list(const Context& context, const ListOptions& options);

/// One document: what is known of it, and its digest. The identifier may be cut to any length that tells it apart.
[[nodiscard]] int show(const Context& context, const std::string& id);

struct PagesOptions {
    std::string id;
    std::optional<std::int64_t> page;  ///< from 1; without it, all of them are listed
};

/// The text of a document in pages.
[[nodiscard]] int pages(const Context& context, const PagesOptions& options);

/// Files and folders judged as if an agent had just written them, without a look at the library.
[[nodiscard]] int inspect(const Context& context, const std::vector<std::string>& paths);

/// The conversations with agents of the last seven days, the latest first.
[[nodiscard]] int conversations(const Context& context);

struct ConversationOptions {
    std::string id;         ///< of the conversation or of its thread, or the beginning of either
    bool markdown = false;  ///< as a document, in place of a view
};

/// One conversation: its tasks and what was said. Secrets are blanked.
[[nodiscard]] int conversation(const Context& context, const ConversationOptions& options);

/// The hook definition with which an agent runs the helper, and where it goes. Changes no file.
[[nodiscard]] int hooks(const Context& context, const std::string& source);

/// What is connected, what is missing, what waits, what is wrong.
[[nodiscard]] int doctor(const Context& context);

/// Standard input to standard output, every secret blanked. The whole input is held in memory: a secret such as a
/// private key may run over any number of lines.
[[nodiscard]] int redact();

}  // namespace Commands

}  // namespace vellark
