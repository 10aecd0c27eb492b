#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkLocalization/LocalizationController.hpp>
#include <VellarkShelf/CommandLine.hpp>
#include <VellarkShelf/Commands/Commands.hpp>
#include <VellarkShelf/Completion/ShellCompletion.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>
#include <VellarkShelf/Terminal/TerminalOutput.hpp>

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <exception>
#include <functional>

namespace vellark {

namespace {

constexpr int usageError = 2;

// All that the arguments say, and which command is to run.
struct Request {
    std::optional<std::string> directory;
    bool json = false;
    Commands::CollectOptions collect;
    Commands::ListOptions list;
    Commands::PagesOptions pages;
    Commands::ConversationOptions conversation;
    std::string id;
    std::string source;
    std::string shell;
    std::vector<std::string> paths;
    std::function<int(const Commands::Context&)> command;
};

CLI::App* addCommand(CLI::App& app, Request& request, const char* name, const char* description,
                     std::function<int(const Commands::Context&)> command) {
    CLI::App* added = app.add_subcommand(name, description);
    added->add_flag("--json", request.json, "Write JSON");
    added->callback([&request, command = std::move(command)] { request.command = command; });
    return added;
}

void describeShelf(CLI::App& app, Request& request) {
    CLI::App* collect = addCommand(
        app, request, "collect", "Bring the documents of all pending signals into the library",
        [&request](const Commands::Context& context) { return Commands::collect(context, request.collect); });
    collect->add_flag("-w,--watch", request.collect.watch, "Go on until interrupted, asleep between signals");
    collect->add_flag("-q,--quiet", request.collect.quiet, "Tell of problems only");

    CLI::App* list =
        addCommand(app, request, "list", "List the documents, the latest first",
                   [&request](const Commands::Context& context) { return Commands::list(context, request.list); });
    list->add_option("-k,--kind", request.list.kind, "Documents of one kind, such as meeting-notes");
    list->add_option("-p,--project", request.list.project, "Documents of one project, by its name or root");
    list->add_option("-n,--limit", request.list.limit, "At most so many");

    CLI::App* show =
        addCommand(app, request, "show", "Show what is known of a document",
                   [&request](const Commands::Context& context) { return Commands::show(context, request.id); });
    show->add_option("ID", request.id, "The document's identifier, or its beginning")->required();

    CLI::App* pages =
        addCommand(app, request, "pages", "List the pages of a document's text, or print one",
                   [&request](const Commands::Context& context) { return Commands::pages(context, request.pages); });
    pages->add_option("ID", request.pages.id, "The document's identifier, or its beginning")->required();
    pages->add_option("-p,--page", request.pages.page, "The page to print, from 1");

    CLI::App* inspect =
        addCommand(app, request, "inspect", "Judge files and folders as if an agent had just written them",
                   [&request](const Commands::Context& context) { return Commands::inspect(context, request.paths); });
    inspect->add_option("FILE", request.paths, "Files and folders")->required();

    addCommand(app, request, "conversations", "List the conversations with agents, the latest first",
               Commands::conversations);

    CLI::App* conversation = addCommand(
        app, request, "conversation", "Show one conversation: its tasks and what was said",
        [&request](const Commands::Context& context) { return Commands::conversation(context, request.conversation); });
    conversation->add_option("ID", request.conversation.id, "The conversation's identifier, or its beginning")
        ->required();
    conversation->add_flag("-m,--markdown", request.conversation.markdown, "Write it as a Markdown document");

    CLI::App* hooks =
        addCommand(app, request, "hooks", "Print the hook definition with which an agent runs the helper",
                   [&request](const Commands::Context& context) { return Commands::hooks(context, request.source); });
    hooks->add_option("AGENT", request.source, "One of the agents, such as claude")->required();

    addCommand(app, request, "doctor", "Tell what is connected, what waits and what is wrong", Commands::doctor);

    app.add_subcommand("redact", "Copy standard input to standard output with every secret blanked")
        ->callback([&request] { request.command = [](const Commands::Context&) { return Commands::redact(); }; });
}

// The grammar itself tells what can be completed.
std::vector<ShellCompletion::Command> completions(const CLI::App& app) {
    std::vector<ShellCompletion::Command> result;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        ShellCompletion::Command entry{.name = command->get_name(), .description = command->get_description()};
        for (const CLI::Option* option : command->get_options()) {
            for (const std::string& name : option->get_lnames()) {
                entry.options.push_back("--" + name);
            }
        }
        if (entry.name == "hooks") {
            for (const CaptureSignal::Source& source : CaptureSignal::sources) {
                entry.values.emplace_back(source.identifier);
            }
        }
        if (entry.name == "completion") entry.values = {"bash", "zsh", "fish"};
        result.push_back(std::move(entry));
    }
    return result;
}

void describeCompletion(CLI::App& app, Request& request) {
    CLI::App* completion = app.add_subcommand("completion", "Print the script with which a shell completes commands");
    completion->add_option("SHELL", request.shell, "bash, zsh or fish")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}));
    completion->callback([&app, &request] {
        request.command = [&app, &request](const Commands::Context& context) {
            TerminalOutput output(context.environment);
            output.write(ShellCompletion::script(request.shell, completions(app)).value_or(""));
            return output.flush() ? 0 : 1;
        };
    });
}

// The language that the settings name, or else the system's.
void chooseLanguage(const Commands::Context& context) {
    const std::string language = ShelfSettings::read(context.directory).settings.language;
    if (!language.empty()) LocalizationController::shared().apply(language);
}

int runRequest(const Request& request) {
    const Environment environment = Environment::ofProcess();
    const Commands::Context context{.directory = DataDirectory::chosen(request.directory, environment),
                                    .environment = environment,
                                    .json = request.json};
    try {
        chooseLanguage(context);
        return request.command(context);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vellark: %s\n", error.what());
        return 1;
    }
}

}  // namespace

int CommandLine::run(int argumentCount, const char* const* arguments) {
    // A reader that has seen enough, such as `head`, is no reason to die without a word.
    std::signal(SIGPIPE, SIG_IGN);
    CLI::App app("The shelf of the documents that your agents write.", "vellark");
    app.require_subcommand(1);
    app.set_version_flag("--version", "vellark " VELLARK_VERSION);
    Request request;
    app.add_option("-d,--data", request.directory, "The data directory, in place of VELLARK_DATA_DIR");
    app.fallthrough();
    describeShelf(app, request);
    describeCompletion(app, request);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : usageError;
    }
    return runRequest(request);
}

}  // namespace vellark
