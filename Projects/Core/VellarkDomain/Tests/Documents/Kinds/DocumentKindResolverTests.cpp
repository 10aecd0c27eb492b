#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindPurposes.hpp>
#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindResolver.hpp>
#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindRoleRule.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vellark {
namespace {

using Kind = DocumentKind;
using Level = DocumentKindGuess::Level;
using Role = ConversationRole;
using Source = DocumentKindSource;
using Voices = DocumentKindResolver::Voices;

DocumentKindGuess guess(std::vector<Kind> candidates, Level level, bool decided = true) {
    return {.candidates = std::move(candidates), .level = level, .decided = decided};
}

struct Row {
    std::string_view name;
    Voices voices;
    std::optional<DocumentKindDecision> expected;
};

TEST(DocumentKindResolverTests, theSurerVoiceIsHeard) {
    using Decision = DocumentKindDecision;
    const Row rows[] = {
        {"nobody speaks", {}, {}},
        {"user wants none", {.user = Kind::other, .structure = Kind::plan, .ai = Kind::legal}, {}},
        {"user over structure",
         {.user = Kind::plan, .structure = Kind::conversation},
         Decision{Kind::plan, Source::user}},
        {"structure over name",
         {.structure = Kind::plan, .keywords = guess({Kind::report}, Level::fileName)},
         Decision{Kind::plan, Source::structure}},
        {"name over model",
         {.role = Role::legal, .ai = Kind::prd, .keywords = guess({Kind::report}, Level::heading)},
         Decision{Kind::report, Source::keywords}},
        {"model over cue",
         {.ai = Kind::prd, .keywords = guess({Kind::report}, Level::cue)},
         Decision{Kind::prd, Source::ai}},
        {"open guess follows the purposes",
         {.keywords = guess({Kind::plan, Kind::recipe}, Level::name, false), .purposes = {DocumentKindGroup::personal}},
         Decision{Kind::recipe, Source::keywords}},
        {"model of the role's group", {.role = Role::plan, .ai = Kind::spec}, Decision{Kind::spec, Source::ai}},
        {"model of another group", {.role = Role::plan, .ai = Kind::legal}, Decision{Kind::prd, Source::subagent}},
        {"cue of the role's group",
         {.role = Role::plan, .ai = Kind::legal, .keywords = guess({Kind::memo}, Level::cue)},
         Decision{Kind::memo, Source::keywords}},
        {"body is no hint to a deciding role",
         {.role = Role::plan, .keywords = guess({Kind::memo}, Level::body)},
         Decision{Kind::prd, Source::subagent}},
        {"cue over fallback",
         {.role = Role::write, .keywords = guess({Kind::memo}, Level::body)},
         Decision{Kind::memo, Source::keywords}},
        {"fallback at last", {.role = Role::write}, Decision{Kind::guide, Source::subagent}},
        {"model's other is no answer",
         {.role = Role::write, .ai = Kind::other},
         Decision{Kind::guide, Source::subagent}},
        {"model's conversation is none", {.ai = Kind::conversation}, {}},
        {"guess of other says nothing", {.keywords = guess({Kind::other}, Level::name)}, {}},
        {"a role without a rule", {.role = Role::build}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(DocumentKindResolver::resolve(row.voices), row.expected) << row.name;
    }
}

TEST(DocumentKindResolverTests, everyRoleButTheManySidedHasARule) {
    std::string without;
    for (const Role role : allCases<Role>()) {
        if (!DocumentKindRoleRule::forRole(role)) without += std::string(rawValue(role)) + " ";
    }
    EXPECT_EQ(without, "build debug photo hr devops mobile web general ");
}

DocumentRecord record(std::string kind, std::string path, std::string category = "documents") {
    return {
        .id = "1", .title = "T", .sourcePath = std::move(path), .kind = std::move(kind), .artifactCategory = category};
}

TEST(DocumentKindResolverTests, whatCanHaveAKind) {
    struct {
        DocumentRecord document;
        bool applies, readsContent;
    } const rows[] = {
        {record("markdown", "/a/b.md"), true, true},
        {record("text", "/a/b.py", "code"), false, false},
        {record("candidate", ""), true, true},
        {record("pdf", "/a/b.pdf", "pdfs"), true, false},
        {record("file", "/a/b.xlsx"), true, false},
        {record("file", "/a/b.zzz", "other"), true, false},
        {record("image", "/a/b.png", "images"), false, false},
        {record("video", "/a/b.zzz", "videos"), false, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(DocumentKindResolver::applies(row.document, nullptr), row.applies) << *row.document.sourcePath;
        EXPECT_EQ(DocumentKindResolver::readsContent(row.document, nullptr), row.readsContent)
            << *row.document.sourcePath;
    }
    for (const std::string_view extension : {"md", "HTML", "pdf", "xlsx", "key", "plan", "txt", "rst", "zzz"}) {
        EXPECT_TRUE(DocumentKindResolver::appliesToExtension(extension)) << extension;
    }
    for (const std::string_view extension : {"log", "py", "json", "png", "zip", "-"}) {
        EXPECT_FALSE(DocumentKindResolver::appliesToExtension(extension)) << extension;
    }
}

TEST(DocumentKindResolverTests, structureAndCreator) {
    DocumentRecord document = record("markdown", " /a/b.md ");
    EXPECT_EQ(DocumentKindResolver::structure(document, nullptr), std::nullopt);
    EXPECT_EQ(DocumentKindResolver::evidence(document).path, "/a/b.md");
    document.mainProjectRoot = "/main";
    EXPECT_EQ(DocumentKindResolver::evidence(document).root, "/main");
    DocumentRevision revision = {.id = "r", .source = "agent-conversation"};
    revision.provenance = DocumentRevisionProvenance{.agentName = " Code Reviewer\n"};
    document.revisions = {revision};
    EXPECT_EQ(DocumentKindResolver::structure(document, nullptr), Kind::conversation);
    EXPECT_EQ(DocumentKindResolver::creatorSubagent(document), std::nullopt) << "nothing says that it was a subagent";
    document.isSubagent = true;
    EXPECT_EQ(DocumentKindResolver::creatorSubagent(document), "Code Reviewer");
    EXPECT_EQ(DocumentKindResolver::creatorRole(document), Role::review);
    document.revisions[0].source = "claude";
    document.revisions[0].originEvent = "plan-file:x";
    EXPECT_EQ(DocumentKindResolver::structure(document, nullptr), Kind::plan);
    EXPECT_EQ(DocumentKinds::preset(Kind::plan), DocumentIconPreset::plan);
}

TEST(DocumentKindPurposesTests, purposesNeedAShare) {
    using Group = DocumentKindGroup;
    using Groups = std::vector<Group>;
    using DocumentKindPurposes::inferred;
    EXPECT_EQ(inferred({{Kind::legal, 11}, {Kind::other, 50}, {Kind::conversation, 9}}), Groups());
    EXPECT_EQ(inferred({{Kind::legal, 12}}), Groups{Group::management});
    EXPECT_EQ(inferred({{Kind::prd, 6}, {Kind::guide, 6}, {Kind::recipe, 1}}),
              (Groups{Group::development, Group::planning}));
    const DocumentKindPurposes::Counts scattered = {{Kind::prd, 3},   {Kind::guide, 2}, {Kind::design, 2},
                                                    {Kind::sales, 2}, {Kind::essay, 2}, {Kind::recipe, 1}};
    EXPECT_EQ(inferred(scattered), Groups{Group::planning});
    const DocumentKindPurposes::Counts even = {{Kind::prd, 2},   {Kind::guide, 2},  {Kind::design, 2}, {Kind::sales, 2},
                                               {Kind::essay, 2}, {Kind::recipe, 2}, {Kind::quiz, 1}};
    EXPECT_EQ(inferred(even), Groups());
    EXPECT_EQ(DocumentKindPurposes::filterOrder({{Kind::prd, 1},
                                                 {Kind::guide, 5},
                                                 {Kind::recipe, 2},
                                                 {Kind::journal, 2},
                                                 {Kind::conversation, 90},
                                                 {Kind::other, 9},
                                                 {Kind::legal, 0}},
                                                {Group::personal}),
              (std::vector<Kind>{Kind::journal, Kind::recipe, Kind::guide, Kind::prd, Kind::conversation}));
}

}  // namespace
}  // namespace vellark
