#include "Support/ShelfFixture.hpp"

#include <sstream>

namespace vellark {
namespace {

class HooksCommandTests : public testing::ShelfFixture {};

// Every agent gets a definition with its own name in it, which is whole JSON where the agent's file is.
TEST_F(HooksCommandTests, everyAgentHasADefinition) {
    for (const CaptureSignal::Source& source : CaptureSignal::sources) {
        const std::string name(source.identifier);
        const JSONValue hook = json({"hooks", name});
        const std::string& definition = *stringIn(*hook.object(), "definition");
        EXPECT_NE(definition.find("--source " + name), std::string::npos) << definition;
        EXPECT_EQ(definition.find("{command}"), std::string::npos) << definition;
        const std::string& file = *stringIn(*hook.object(), "file");
        if (file.ends_with(".json")) {
            EXPECT_TRUE(JSONReader::read(definition)) << definition;
        }
        if (!file.empty()) {
            EXPECT_TRUE(file.starts_with(home() + "/")) << file;
        }
    }
    EXPECT_EQ(vellark({"hooks", "nobody"}).status, 1);
    EXPECT_TRUE(std::filesystem::is_empty(data())) << "hooks changes nothing";
}

TEST_F(HooksCommandTests, aDefinitionThatWasPutInItsPlaceConnects) {
    const auto stateOf = [this](std::string_view wanted) {
        const JSONValue checkup = json({"doctor"});
        for (const JSONValue& agent : *arrayIn(*checkup.object(), "agents")) {
            if (*stringIn(*agent.object(), "source") == wanted) return *agent.object()->find("isConnected")->boolean();
        }
        return false;
    };
    EXPECT_FALSE(stateOf("cursor"));
    const JSONValue hook = json({"hooks", "cursor"});
    testing::writeFile(*stringIn(*hook.object(), "file"), *stringIn(*hook.object(), "definition"));
    EXPECT_TRUE(stateOf("cursor"));
}

TEST_F(HooksCommandTests, doctorTellsWhatIsWrong) {
    const auto problems = [this] {
        std::string text;
        const JSONValue checkup = json({"doctor"});
        for (const JSONValue& problem : *arrayIn(*checkup.object(), "problems")) {
            text += *problem.string() + "\n";
        }
        return text;
    };
    std::filesystem::permissions(data(), std::filesystem::perms::owner_all);
    EXPECT_EQ(problems(), "");
    std::filesystem::permissions(data(), std::filesystem::perms::all);
    EXPECT_NE(problems().find("chmod 700"), std::string::npos);
    testing::writeFile(data() + "/settings.json", R"({"hoverDelay": "long"})");
    EXPECT_NE(problems().find("hoverDelay"), std::string::npos);
    testing::writeFile(data() + "/library.json", "{}");
    EXPECT_NE(problems().find("damaged"), std::string::npos);
    testing::writeFile(data() + "/signals", "a file");
    EXPECT_NE(problems().find("writes nothing"), std::string::npos);
}

TEST_F(HooksCommandTests, shellsReadTheirScripts) {
    const auto script = vellark({"completion", "bash"}).output;
    EXPECT_NE(script.find("inspect"), std::string::npos);
    const auto run = testing::runProcess(
        {.arguments = {"bash", "-c",
                       script + "\nCOMP_WORDS=(vellark hooks cla); COMP_CWORD=2; _vellark; echo ${COMPREPLY[0]}"},
         .environment = environment()});
    if (!run) GTEST_SKIP() << "no bash";
    EXPECT_EQ(run->output, "claude\n") << run->errors;
    EXPECT_EQ(vellark({"completion", "tcsh"}).status, 2);
    EXPECT_NE(vellark({"completion", "fish"}).output.find("-a collect"), std::string::npos);
}

// The manual names each command, and each of its options but for help.
TEST_F(HooksCommandTests, theManualIsWhole) {
    std::string manual = testing::readFile(VELLARK_MANUAL);
    std::erase(manual, '\\');
    std::istringstream lines(vellark({"completion", "fish"}).output);
    int count = 0;
    for (std::string line; std::getline(lines, line);) {
        for (const std::string_view mark : {" -f -a ", " -l "}) {
            const std::size_t place = line.find(mark);
            if (place == std::string::npos || line.find("-f -a '") != std::string::npos) continue;
            const std::string word =
                line.substr(place + mark.size(), line.find(' ', place + mark.size()) - place - mark.size());
            EXPECT_NE(manual.find(mark == " -l " ? "--" + word : word), std::string::npos) << line;
            ++count;
        }
    }
    EXPECT_GT(count, 20);
}

}  // namespace
}  // namespace vellark
