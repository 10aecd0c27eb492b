#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {
namespace {

const CaptureTemporaryScope atHome{.temporaryDirectory = std::nullopt,
                                   .resolvedTemporaryDirectory = std::nullopt,
                                   .dataFolderParent = "/home/ann/.local/share"};

CaptureTemporaryScope withDirectory(std::optional<std::string> directory, std::optional<std::string> resolved) {
    return {std::move(directory), std::move(resolved), "/home/ann"};
}

TEST(CaptureTemporaryScope, listsItsRootsInOrder) {
    const std::vector<std::string> common = {"/tmp",         "/private/tmp",        "/var/tmp", "/private/var/tmp",
                                             "/var/folders", "/private/var/folders"};
    const auto followedBy = [&](std::initializer_list<std::string> own) {
        std::vector<std::string> all = common;
        all.insert(all.end(), own);
        return all;
    };
    EXPECT_EQ(atHome.roots(), common);
    EXPECT_EQ(withDirectory("/scratch/./a/../t/", "/disk/t").roots(), followedBy({"/scratch/t", "/disk/t"}));
    EXPECT_EQ(withDirectory("/scratch", std::nullopt).roots(), followedBy({"/scratch"}));
    EXPECT_EQ(withDirectory("scratch", "/disk/t").roots(), common);
    EXPECT_EQ(withDirectory("", "/disk/t").roots(), common);
    EXPECT_EQ(withDirectory(std::nullopt, "/disk/t").roots(), common);
}

TEST(CaptureTemporaryScope, holdsWhatLiesWithinItsRoots) {
    const CaptureTemporaryScope scopes[] = {atHome, withDirectory("/a/./b", "/b"), withDirectory("/", "/tmp/a/"),
                                            withDirectory("b", "/a")};
    for (const std::string& text : testing::randomTexts(
             51, 20'000, 4, {"/", "/a", "/b", "/tmp", "/var", "/private", "/folders", "/tmpx", "a", "/."})) {
        const std::string path = PythonText::normpath(text);
        for (const CaptureTemporaryScope& scope : scopes) {
            const auto roots = scope.roots();
            const bool isWithin = std::ranges::any_of(
                roots, [&](const std::string& root) { return path == root || path.starts_with(root + "/"); });
            ASSERT_EQ(scope.holds(path), isWithin) << path;
        }
    }
}

TEST(CaptureTemporaryScope, tellsTemporaryLocations) {
    const CaptureTemporaryScope onTrial{std::nullopt, std::nullopt, "/private/tmp/trial"};
    const CaptureTemporaryScope inRoot{std::nullopt, std::nullopt, "/tmp"};
    const CaptureTemporaryScope own = withDirectory("/scratch/ann/", "/disk/ann");
    struct Row {
        const char* name;
        std::string_view path;
        const CaptureTemporaryScope& scope;
        bool expected;
    };
    const Row rows[] = {
        {"below a root", "/tmp/a.md", atHome, true},
        {"a root itself", "/var/folders", atHome, true},
        {"beside a root", "/tmpfile/a.md", atHome, false},
        {"out of a root", "/tmp/../p/a.md", atHome, false},
        {"into a root", "/p/../tmp/a.md", atHome, true},
        {"two slashes make another root", "//tmp/a.md", atHome, false},
        {"three slashes make one", "///tmp/a.md", atHome, true},
        {"relative", "tmp/a.md", atHome, false},
        {"capitals", "/TMP/a.md", atHome, false},
        {"own directory", "/scratch/ann/x", own, true},
        {"own directory, resolved", "/disk/ann/x", own, true},
        {"beside the own directory", "/scratch/bob/x", own, false},
        {"beside the data folder", "/private/tmp/trial/a.md", onTrial, false},
        {"the data folder's parent", "/private/tmp/trial", onTrial, false},
        {"outside the data folder's parent", "/private/tmp/trials/a.md", onTrial, true},
        {"in another root", "/tmp/trial/a.md", onTrial, true},
        {"data folder right in a root", "/tmp/a.md", inRoot, true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CaptureRules::temporaryLocation(row.path, row.scope), row.expected) << row.name;
}

TEST(CaptureTemporaryScope, tellsDocumentFolders) {
    for (const auto* const path :
         {"/tmp/a.md", "/private/var/tmp/x/y", "/var/tmp", "/tmp/./a.md", "/tmp/.x/../a.md", "/tmp/a.b/c"}) {
        EXPECT_TRUE(CaptureRules::temporaryDocumentFolder(path)) << path;
    }
    for (const auto* const path : {"/tmp/.a.md", "/tmp/.cache/a.md", "/tmp/a/.x/b", "/var/folders/ab/a.md", "/p/a.md",
                                   "/tmp/../p/a.md", "tmp/a.md", ""}) {
        EXPECT_FALSE(CaptureRules::temporaryDocumentFolder(path)) << path;
    }
}

TEST(CaptureTemporaryScope, tellsTextsForMachines) {
    for (const auto* const path : {"/p/CMakeLists.txt", "robots.TXT", "/p/build.log.txt", "/p/requirements-dev.txt",
                                   "constraints.txt", "LICENSE.txt", "/p/licenses.txt", "copying.v3.txt",
                                   "/p/logs/a.txt", "/p/Log/x/a.txt", "log/a.txt", "/p/LOG\u017F/./a.txt"}) {
        EXPECT_TRUE(CaptureRules::nonDocumentText(path)) << path;
    }
    for (const auto* const path : {"/p/notes.txt", "/p/requirements.md", "/p/my-requirements.txt", "/p/log.txt",
                                   "/p/catalogs/a.txt", "/p/a.txt/b", "/logs/robots", "txt", ""}) {
        EXPECT_FALSE(CaptureRules::nonDocumentText(path)) << path;
    }
}

TEST(CaptureTemporaryScope, tellsTemporaryDocuments) {
    for (const auto* const path : {"/tmp/a.md", "/tmp/A.QMD", "/tmp/a.xhtml", "/tmp/a.pdf", "/var/tmp/n/a.txt"})
        EXPECT_TRUE(CaptureRules::temporaryDocument(path)) << path;
    for (const auto* const path :
         {"/tmp/a.py", "/tmp/a", "/tmp/.a.md", "/tmp/logs/a.txt", "/p/a.md", "/tmp/a.\u212Ad", "/tmp/a.md."}) {
        EXPECT_FALSE(CaptureRules::temporaryDocument(path)) << path;
    }
}

}  // namespace
}  // namespace vellark
