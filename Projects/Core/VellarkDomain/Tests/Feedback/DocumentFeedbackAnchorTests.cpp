#include "Feedback/PlainRelocation.hpp"
#include "Support/RandomInput.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace vellark {
namespace {

using namespace DocumentFeedbackAnchor;
using Lines = std::vector<std::string_view>;

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

// A note on lines of a text, as it is made when somebody writes it.
DocumentFeedbackNote noteOn(std::string_view text, std::int64_t startLine, std::int64_t endLine) {
    return {.id = "n",
            .documentID = "d",
            .revisionID = "old",
            .startLine = startLine,
            .endLine = endLine,
            .anchor = fingerprint(text, startLine, endLine).value_or(""),
            .text = "?",
            .createdAt = {1},
            .updatedAt = {2}};
}

TEST(DocumentFeedbackAnchorTests, linesEndWithFeeds) {
    const std::pair<std::string_view, Lines> rows[] = {
        {"", {""}},
        {"a", {"a"}},
        {"a\n", {"a", ""}},
        {"\r\n\n", {"", "", ""}},
        {"a\r\r\nb\rc", {"a\r", "b\rc"}},
        {"a\r", {"a\r"}},
        {"a\u2028b\u0085\v\f", {"a\u2028b\u0085\v\f"}},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(lines(text), expected) << text;
}

TEST(DocumentFeedbackAnchorTests, hashesAreThoseOfTheDefinition) {
    // The test values that the hash's authors publish.
    EXPECT_EQ(FeedbackHash::ofLine(""), 0xCBF29CE484222325U);
    EXPECT_EQ(FeedbackHash::ofLine("a"), 0xAF63DC4C8601EC8CU);
    EXPECT_EQ(FeedbackHash::ofLine("foobar"), 0x85944171F73967E8U);
    EXPECT_EQ(fingerprint(Lines{}), "cbf29ce484222325");
    EXPECT_EQ(fingerprint(Lines{""}), "f4ed18ebf16aa5cc");
    EXPECT_EQ(FeedbackHash::text(0xA), "000000000000000a");
}

TEST(DocumentFeedbackAnchorTests, onlyBlanksAtTheEndAreLeftOut) {
    EXPECT_EQ(FeedbackHash::ofLine("a \t "), FeedbackHash::ofLine("a"));
    EXPECT_EQ(FeedbackHash::ofLine(" \t"), FeedbackHash::ofLine(""));
    EXPECT_NE(FeedbackHash::ofLine(" a"), FeedbackHash::ofLine("a"));
    EXPECT_NE(FeedbackHash::ofLine("a\u00A0"), FeedbackHash::ofLine("a"));
    EXPECT_NE(FeedbackHash::ofLine("a\r"), FeedbackHash::ofLine("a"));
    EXPECT_EQ(FeedbackHash::ofLine("a\xE2\x82"), FeedbackHash::ofLine("a\uFFFD"));
    EXPECT_EQ(fingerprint("b\n\xFF\xFF\n", 2, 2), fingerprint("\uFFFD\uFFFD", 1, 1));
}

TEST(DocumentFeedbackAnchorTests, fingerprintsAreOfLinesInTheText) {
    constexpr std::string_view text = "a\r\nb\nc\n";
    EXPECT_EQ(fingerprint(text, 1, 4), fingerprint(Lines{"a", "b", "c", ""}));
    EXPECT_EQ(fingerprint(text, 2, 3), fingerprint(std::vector<std::string>{"b", "c"}));
    EXPECT_EQ(fingerprint("", 1, 1), fingerprint(Lines{""}));
    for (const auto& [start, end] :
         {std::pair<std::int64_t, std::int64_t>{0, 1}, {2, 1}, {1, 5}, {5, 5}, {least, most}, {1, most}, {most, most}})
        EXPECT_EQ(fingerprint(text, start, end), std::nullopt) << start << " " << end;
}

struct PlaceRow {
    const char* name;
    std::string_view text;
    std::optional<std::int64_t> startLine;  // of the note when it is fresh
};

TEST(DocumentFeedbackAnchorTests, notesFollowTheirLines) {
    const DocumentFeedbackNote note = noteOn("1\n2\n3\n4\n5", 2, 3);
    const PlaceRow rows[] = {
        {"unchanged", "1\n2\n3\n4\n5", 2},
        {"CR LF", "1\r\n2\r\n3\r\n4", 2},
        {"blanks at ends", "1\n2  \n3\t\n4", 2},
        {"lines above", "0\n0\n0\n1\n2\n3", 5},
        {"lines away above", "2\n3", 1},
        {"two as near: the earlier", "2\n3\n2\n2\n3", 1},
        {"the nearer one, later", "2\n3\n0\n0\n0\n0\n0\n2\n3", 1},
        {"in its place, and elsewhere", "2\n2\n3\n2\n3", 2},
        {"overlapping", "2\n3\n2\n3", 1},
        {"indented", "1\n 2\n3", std::nullopt},
        {"changed inside", "1\n2\nx\n4", std::nullopt},
        {"torn", "1\n2\n\n3", std::nullopt},
        {"too short", "2", std::nullopt},
        {"empty", "", std::nullopt},
    };
    for (const PlaceRow& row : rows) {
        DocumentFeedbackNote expected = note;
        if (row.startLine) {
            expected.revisionID = "new";
            expected.startLine = *row.startLine;
            expected.endLine = *row.startLine + 1;
        }
        expected.isStale = !row.startLine;
        EXPECT_EQ(relocate(note, "new", row.text), expected) << row.name;
        DocumentFeedbackNote stale = note;
        stale.isStale = true;
        EXPECT_EQ(relocate(stale, "new", row.text), expected) << row.name << ", stale before";
    }
}

TEST(DocumentFeedbackAnchorTests, anchorsAreHexadecimalNumbers) {
    const std::string text = "a";
    const std::string anchor = *fingerprint(text, 1, 1);
    std::string capitals = anchor;
    for (char& digit : capitals)
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    const std::pair<std::string, bool> rows[] = {
        {anchor, true},
        {"+" + anchor, true},
        {capitals, true},
        {"000" + anchor, true},
        {"", false},
        {"+", false},
        {"++" + anchor, false},
        {"-" + anchor, false},
        {"0x" + anchor, false},
        {" " + anchor, false},
        {anchor + " ", false},
        {anchor + "\n", false},
        {"g" + anchor, false},
        {"1" + anchor, false},
        {anchor + "0", false},
        {std::string("\0", 1) + anchor, false},
    };
    for (const auto& [written, isFound] : rows) {
        DocumentFeedbackNote note = noteOn(text, 1, 1);
        note.anchor = written;
        EXPECT_EQ(relocate(note, "new", text).isStale, !isFound) << written;
    }
}

TEST(DocumentFeedbackAnchorTests, startLinesOutsideTheTextAreSearchedFor) {
    const std::string text = "a\nb\na";
    const std::string anchor = *fingerprint(text, 1, 1);
    const std::tuple<std::int64_t, std::int64_t, std::optional<std::int64_t>> rows[] = {
        {0, 0, 1},         {-7, -7, 1},    {least, least, 1}, {9, 9, 3},  {most, most, 3},   {most - 1, most, {}},
        {least, most, {}}, {-1, most, {}}, {least, -1, {}},   {2, 1, {}}, {most, least, {}}, {2, 2, 1},
        {4, 4, 3},         {1, 4, {}},
    };
    for (const auto& [start, end, expected] : rows) {
        DocumentFeedbackNote note = noteOn(text, 1, 1);
        note.startLine = start;
        note.endLine = end;
        const DocumentFeedbackNote relocated = relocate(note, "new", text);
        EXPECT_EQ(relocated.isStale, !expected) << start << " " << end;
        EXPECT_EQ(relocated.startLine, expected.value_or(start));
        EXPECT_EQ(relocated.endLine, expected ? *expected : end);
    }
}

TEST(DocumentFeedbackAnchorTests, textsAreSearchedUpToALimit) {
    std::string text(maximumLineCount - 1, '\n');
    const DocumentFeedbackNote note = noteOn(text, 7, 9);
    EXPECT_FALSE(relocate(note, "new", text).isStale);
    text += '\n';
    EXPECT_TRUE(relocate(note, "new", text).isStale);
    EXPECT_EQ(relocate(note, "new", text).revisionID, "old");
}

// Both ways over texts of few different lines, where most stretches stand in several places, and over hashes that share
// their low bits with many.
TEST(DocumentFeedbackAnchorTests, theSearchFindsWhatThePlainLoopFinds) {
    testing::RandomNumbers random(5);
    for (std::size_t lineCount : {1U, 2U, 63U, 64U, 65U, 127U, 128U, 129U, 400U, 1000U}) {
        for (const std::size_t vocabulary : {1U, 2U, 5U}) {
            std::string text;
            for (std::size_t line = 1; line < lineCount; ++line)
                text += std::string(random.below(vocabulary), 'x') + "\n";
            const FeedbackLineIndex index(text);
            const testing::PlainRelocation plain(text);
            ASSERT_EQ(index.lineCount(), lineCount);
            for (int round = 0; round < 25; ++round) {
                const std::size_t span = 1 + random.below(std::min<std::size_t>(lineCount, round % 2 == 0 ? 4 : 400));
                const std::size_t start = random.below(lineCount - span + 1);
                const std::size_t from = random.below(2 * lineCount);
                std::uint64_t hash = plain.stretchHash(start, span);
                if (round % 5 == 0) hash ^= std::uint64_t{1} << (16 + random.below(48));
                EXPECT_EQ(index.stretchHash(start, span), plain.stretchHash(start, span));
                EXPECT_EQ(index.nearestStretch(hash, span, from), plain.nearestStretch(hash, span, from))
                    << lineCount << " lines, " << span << " from " << from;
            }
        }
    }
}

}  // namespace
}  // namespace vellark
