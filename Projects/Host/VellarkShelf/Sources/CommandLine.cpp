#include <VellarkShelf/CommandLine.hpp>
#include <VellarkShelf/Commands/Commands.hpp>

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <functional>

namespace vellark {

namespace {

// Runs one command; what escapes it is told, not thrown at the user.
int guarded(const std::function<int()>& command) {
    try {
        return command();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vellark: %s\n", error.what());
        return 1;
    }
}

}  // namespace

int CommandLine::run(int argumentCount, const char* const* arguments) {
    CLI::App app("The shelf of the documents that your agents write.", "vellark");
    app.require_subcommand(1);
    int status = 0;

    app.add_subcommand("redact", "Copy standard input to standard output with every secret blanked")->callback([&] {
        status = guarded(Commands::redact);
    });

    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    return status;
}

}  // namespace vellark
