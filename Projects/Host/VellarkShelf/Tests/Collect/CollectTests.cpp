#include "Support/ShelfFixture.hpp"
#include <VellarkShelf/Collect/CaptureVerdict.hpp>

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <thread>

namespace vellark {
namespace {

using testing::ShelfFixture;

class CollectTests : public ShelfFixture {
protected:
    // The verdict on the one file that the only pending signal names.
    [[nodiscard]] std::string verdict() const {
        const JSONValue collected = json({"collect"});
        const JSONArray* leftOut = arrayIn(*collected.object(), "leftOut");
        if (leftOut == nullptr || leftOut->empty()) return "captured";
        return *stringIn(*leftOut->front().object(), "verdict");
    }

    void settings(std::string_view json) const { testing::writeFile(data() + "/settings.json", json); }
};

TEST_F(CollectTests, aDocumentGrowsByItsChanges) {
    const std::string file = write("docs/plan.md", "# Launch plan\n\nWe start in May.\n");
    hook("Write", file);
    hook("Edit", file);
    EXPECT_EQ(vellark({"collect"}).status, 0);
    EXPECT_TRUE(pending().empty());
    CaptureLibrary library = this->library();
    ASSERT_EQ(library.documents.size(), 1U);
    EXPECT_EQ(library.documents[0].title, "Launch plan");
    EXPECT_EQ(library.documents[0].sourcePath, file);
    ASSERT_EQ(library.documents[0].revisions.size(), 1U) << "nothing changed between the two calls";
    const std::string copy = library.documents[0].revisions[0].snapshotPath;
    EXPECT_EQ(testing::readFile(copy), "# Launch plan\n\nWe start in May.\n");

    write("docs/plan.md", "# Launch plan\n\nWe start in June.\n");
    hook("Edit", file);
    EXPECT_EQ(vellark({"collect"}).status, 0);
    library = this->library();
    ASSERT_EQ(library.documents.size(), 1U);
    EXPECT_EQ(library.documents[0].revisions.size(), 2U);
    EXPECT_EQ(testing::readFile(copy), "# Launch plan\n\nWe start in May.\n");
}

TEST_F(CollectTests, rulesKeepFilesAway) {
    std::filesystem::create_directories(path("folder.md"));
    ASSERT_EQ(::mkfifo(path("pipe.md").c_str(), 0600), 0);
    std::filesystem::create_directories(home() + "/elsewhere");
    testing::writeFile(home() + "/elsewhere/a.md", "# Elsewhere\n");
    testing::writeFile(home() + "/.ssh/id_rsa", "key");
    std::filesystem::create_symlink(home() + "/elsewhere/a.md", path("outside.md"));
    std::filesystem::create_symlink(home() + "/.ssh/id_rsa", path("key.md"));
    std::filesystem::create_symlink("loop.md", path("loop.md"));
    const std::pair<std::string, std::string> rows[] = {
        {write("a.md", "# A\n"), "captured"},
        {write("a/b/../c.html", "<title>C</title>"), "captured"},
        {write("secrets.json", "{}"), "excluded-path"},
        {write(".env", "A=b"), "excluded-path"},
        {write(".hidden/a.md", "# A"), "hidden-folder"},
        {write(".claude/plans/a.md", "# A plan"), "captured"},
        {write("run.py", "print()"), "type-not-chosen"},
        {write("note.md", "<!-- vellark:internal -->\nfor myself"), "internal-note"},
        {path("none.md"), "missing"},
        {path("folder.md"), "not-a-file"},
        {path("pipe.md"), "not-a-file"},
        {path("outside.md"), "link-outside"},
        {path("key.md"), "excluded-path"},
        {path("loop.md"), "unreadable"},
    };
    for (const auto& [file, expected] : rows) {
        hook("Write", file);
        EXPECT_EQ(verdict(), expected) << file;
        EXPECT_TRUE(pending().empty()) << file;
    }
}

TEST_F(CollectTests, settingsAreFollowed) {
    const std::string file = write("docs/a.md", "# A\n");
    const std::pair<std::string, std::string> rows[] = {
        {R"({"capture": {"enabled": false}})", "type-not-chosen"},
        {R"({"capture": {"types": {"documents": false}}})", "type-not-chosen"},
        {R"({"watchRoots": ["/somewhere"]})", "project-not-selected"},
        {R"({"excludedProjectRoots": [")" + project() + R"("]})", "project-excluded"},
        {R"({"captureMode": "allAgentProjects", "captureAllSince": "2999-01-01T00:00:00Z"})", "project-not-selected"},
        {R"({"capture": 5})", "captured"},  // a damaged file counts as absent
        {R"({"watchRoots": [")" + project() + R"("]})", "captured"},
    };
    for (const auto& [text, expected] : rows) {
        settings(text);
        hook("Write", file);
        EXPECT_EQ(verdict(), expected) << text;
    }
    hook("Write", write("b.md", "# B\n"), {{"isSidechain", true}});
    EXPECT_EQ(verdict(), "subagent");
    EXPECT_EQ(vellark({"inspect", file}).status, 0);
}

TEST_F(CollectTests, answersArePassedOnWhereTheUserWantsThem) {
    settings(R"({"capture": {"includeAssistantResponses": true}})");
    ASSERT_EQ(vellark({"collect"}).status, 0);  // publishes the policy that the helper reads
    for (int time = 0; time < 2; ++time) {
        hook("", "", {{"hook_event_name", "Stop"}, {"last_assistant_message", "# Release notes\n\n- One change\n"}});
    }
    ASSERT_EQ(vellark({"collect"}).status, 0);
    const CaptureLibrary library = this->library();
    ASSERT_EQ(library.documents.size(), 1U);
    EXPECT_EQ(library.documents[0].kind, "candidate");
    EXPECT_EQ(library.documents[0].title, "Release notes");
    EXPECT_EQ(library.documents[0].revisions.size(), 1U);
}

TEST_F(CollectTests, patchesAndReadingTools) {
    write("new.md", "# New\n");
    write("moved.md", "# Moved\n");
    write("read.md", "# Read\n");
    JSONObject input;
    input.set(
        "input",
        "*** Begin Patch\n*** Add File: new.md\n+# New\n*** Update File: old.md\n*** Move to: moved.md\n*** End Patch");
    hook("apply_patch", "", {{"tool_input", std::move(input)}});
    hook("Read", path("read.md"));
    JSONObject response;
    response.set("success", false);
    hook("Write", path("read.md"), {{"tool_response", std::move(response)}});
    ASSERT_EQ(vellark({"collect"}).status, 0);
    std::set<std::string> titles;
    for (const DocumentRecord& document : library().documents) {
        titles.insert(document.title);
    }
    EXPECT_EQ(titles, (std::set<std::string>{"Moved", "New"}));
}

TEST_F(CollectTests, foreignAndDamagedSignals) {
    testing::writeFile(data() + "/signals/1.000000-a.json", R"({"version": 2, "source": "claude", "payload": {}})");
    testing::writeFile(data() + "/signals/2.000000-b.json", "{\"version\": 1");
    testing::writeFile(data() + "/signals/3.000000-c.txt", "mine");
    hook("Write", write("a.md", "# A\n"));
    ASSERT_EQ(vellark({"collect"}).status, 0);
    EXPECT_EQ(library().documents.size(), 1U);
    const auto left = pending();
    EXPECT_EQ(std::set(left.begin(), left.end()),
              (std::set<std::string>{"1.000000-a.json", ".damaged-2.000000-b.json", "3.000000-c.txt"}));
    const auto doctor = vellark({"doctor"});
    EXPECT_NE(doctor.output.find("1.000000-a.json"), std::string::npos) << doctor.output;
}

TEST_F(CollectTests, aDamagedLibraryIsLeftAlone) {
    testing::writeFile(data() + "/library.json", "{\"version\": 1, \"documents\": [");
    hook("Write", write("a.md", "# A\n"));
    EXPECT_EQ(vellark({"collect"}).status, 1);
    EXPECT_EQ(pending().size(), 1U) << "the signal waits";
    EXPECT_EQ(testing::readFile(data() + "/library.json"), "{\"version\": 1, \"documents\": [");
    EXPECT_EQ(vellark({"list"}).status, 1);
}

// Killed again and again, at moments that nobody chose: in the end each document is there, and once.
TEST_F(CollectTests, deathCostsNothing) {
    constexpr int documentCount = 60;
    std::mt19937_64 random(11);
    for (int number = 0; number < documentCount; ++number) {
        const std::string name = "note-" + std::to_string(number) + ".md";
        hook("Write", write(name, "# Note " + std::to_string(number) + "\n"));
        if (number % 6 != 5) continue;
        const auto collector =
            testing::Process::start({.arguments = {VELLARK_PROGRAM, "collect"}, .environment = environment()});
        ASSERT_TRUE(collector);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 60'000));
        collector->kill(SIGKILL);
        (void)collector->wait();
    }
    ASSERT_EQ(vellark({"collect"}).status, 0);
    EXPECT_TRUE(pending().empty());
    std::set<std::string> revisions;
    std::size_t count = 0;
    for (const DocumentRecord& document : library().documents) {
        for (const DocumentRevision& revision : document.revisions) {
            revisions.insert(revision.id);
            ++count;
        }
    }
    EXPECT_EQ(library().documents.size(), std::size_t{documentCount});
    EXPECT_EQ(count, std::size_t{documentCount});
    EXPECT_EQ(revisions.size(), count);
}

TEST_F(CollectTests, twoAtOnceDoNoHarm) {
    for (int number = 0; number < 40; ++number) {
        hook("Write", write("note-" + std::to_string(number) + ".md", "# Note\n"));
    }
    std::vector<testing::Process> collectors;
    for (int number = 0; number < 4; ++number) {
        auto collector =
            testing::Process::start({.arguments = {VELLARK_PROGRAM, "collect"}, .environment = environment()});
        ASSERT_TRUE(collector);
        collectors.push_back(*std::move(collector));
    }
    for (const auto& collector : collectors) {
        EXPECT_EQ(collector.wait().status, 0);
    }
    EXPECT_EQ(library().documents.size(), 40U);
}

TEST_F(CollectTests, watchingWakesForEachSignal) {
    const auto watcher =
        testing::Process::start({.arguments = {VELLARK_PROGRAM, "collect", "--watch"}, .environment = environment()});
    ASSERT_TRUE(watcher);
    const auto waitFor = [this](std::size_t count) {
        for (int attempt = 0; attempt < 500; ++attempt) {
            std::error_code error;
            if (std::filesystem::exists(data() + "/library.json", error) && library().documents.size() == count)
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return false;
    };
    hook("Write", write("a.md", "# A\n"));
    EXPECT_TRUE(waitFor(1));
    hook("Write", write("b.md", "# B\n"));
    EXPECT_TRUE(waitFor(2));
    watcher->kill(SIGTERM);
    EXPECT_EQ(watcher->wait().status, 0);
}

}  // namespace
}  // namespace vellark
