#include <VellarkShelf/CommandLine.hpp>

int main(int argumentCount, char** arguments) {
    return vellark::CommandLine::run(argumentCount, arguments);
}
