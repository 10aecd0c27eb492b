#include "Support/ShelfFixture.hpp"

namespace vellark {
namespace {

class ShelfCommandTests : public testing::ShelfFixture {
protected:
    // The identifier of the document with this title.
    [[nodiscard]] std::string collected(std::string_view title) const {
        EXPECT_EQ(vellark({"collect", "--quiet"}).output, "");
        for (const DocumentRecord& document : library().documents) {
            if (document.title == title) return document.id;
        }
        return "none";
    }
};

TEST_F(ShelfCommandTests, listsKindTitleAndHeadline) {
    hook("Write", write("a.md", "# Weekly meeting notes\n\nWe agreed to ship the reader in May.\n"));
    hook("Write", write("b.md", "# 3월 회의록\n\n열람실을 밤 열 시까지 열기로 했다.\n"));
    hook("Write", write("c.md", "# \x1B[31mEvil\ttitle\n"));
    const std::string id = collected("Weekly meeting notes");
    const auto list = vellark({"list"});
    EXPECT_NE(
        list.output.find(id + "\tMeeting notes\tWeekly meeting notes\tWe agreed to ship the reader in May.\tClaude"),
        std::string::npos)
        << list.output;
    const JSONValue filtered = json({"list", "--kind", "meeting-notes", "--limit", "5"});
    EXPECT_EQ(filtered.array()->size(), 2U);
    EXPECT_EQ(vellark({"list", "--kind", "nonsense"}).status, 1);
    EXPECT_EQ(json({"list", "--project", "other"}).array()->size(), 0U);
}

TEST_F(ShelfCommandTests, showsADigestAndPages) {
    std::string text = "# Offer\n\nWe deliver twelve shelves.\n\n| Item | Price |\n|---|---|\n| Total | $71,280 |\n";
    for (int line = 0; line < 600; ++line) {
        text += "\nLine " + std::to_string(line) + "\n";
    }
    hook("Write", write("offer.md", text));
    const std::string id = collected("Offer");
    const auto shown = vellark({"show", id.substr(0, 6)});
    EXPECT_NE(shown.output.find("$71,280"), std::string::npos) << shown.output;
    EXPECT_EQ(vellark({"show", "zzz"}).status, 1);
    const JSONValue pages = json({"pages", id});
    ASSERT_EQ(pages.array()->size(), 3U);
    std::string joined;
    for (std::size_t page = 1; page <= 3; ++page) {
        joined += vellark({"pages", id, "--page", std::to_string(page)}).output;
    }
    EXPECT_EQ(joined, text);
    EXPECT_EQ(vellark({"pages", id, "--page", "4"}).status, 1);
}

TEST_F(ShelfCommandTests, inspectsWithoutALibrary) {
    write("docs/회의록.md", "# 운영위원회\n\n- 참석자: 세 사람\n");
    write("docs/secrets.json", R"({"key": "hunter2hunter2"})");
    const JSONValue inspected = json({"inspect", "docs"});
    ASSERT_EQ(inspected.array()->size(), 2U);
    const JSONObject& secret = *inspected.array()->at(0).object();
    EXPECT_EQ(*stringIn(secret, "verdict"), "excluded-path");
    EXPECT_EQ(*stringIn(secret, "title"), "");
    const JSONObject& notes = *inspected.array()->at(1).object();
    EXPECT_EQ(*stringIn(notes, "kind"), "meeting-notes");
    EXPECT_EQ(*stringIn(notes, "level"), "name");
    EXPECT_FALSE(std::filesystem::exists(data() + "/library.json"));
}

TEST_F(ShelfCommandTests, argumentsThatMakeNoCommand) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"nonsense"}, {"show"}, {"list", "--limit", "many"}, {"pages", "a", "-p", "x"}}) {
        EXPECT_EQ(vellark(arguments).status, 2);
    }
    EXPECT_EQ(vellark({"--help"}).status, 0);
}

}  // namespace
}  // namespace vellark
