#include <VellarkFoundation/Files/HomeDirectory.hpp>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace vellark {
namespace {

TEST(HomeDirectory, findsUsersInAList) {
    constexpr const char* passwd =
        "# comment\n"
        "root:x:0:0:root:/root:/bin/sh\n"
        "\n"
        "short:x:7:7:/five\n"
        "bare:x:8:8::/bare\n"
        "ann:x:1000:1000:Ann,,,:/home/ann:/bin/sh\n"
        "ann:x:1001:1001::/second:/bin/sh\n"
        "twin:x:1000:1000::/twin:/bin/sh\n"
        "odd:x:12x:1::/odd:/bin/sh\n"
        "huge:x:99999999999:1::/huge:/bin/sh\n"
        "homeless:x:9:9:::/bin/sh\n"
        "last:x:4294967294:1::/last:/bin/sh";
    struct Row {
        const char* name;
        HomeDirectory::PasswdKey wanted;
        std::optional<std::string> directory;
    };
    const Row rows[] = {
        {"first line", {.name = "root", .userID = {}}, "/root"},
        {"number zero", {.name = {}, .userID = 0}, "/root"},
        {"too few fields", {.name = "short", .userID = {}}, std::nullopt},
        {"no shell", {.name = "bare", .userID = {}}, "/bare"},
        {"first of equal names", {.name = "ann", .userID = {}}, "/home/ann"},
        {"first of equal numbers", {.name = {}, .userID = 1000}, "/home/ann"},
        {"last line, without its end", {.name = {}, .userID = 4294967294}, "/last"},
        {"a number with letters", {.name = {}, .userID = 12}, std::nullopt},
        {"a number that would wrap around", {.name = {}, .userID = 1215752191}, std::nullopt},
        {"empty directory", {.name = "homeless", .userID = {}}, ""},
        {"case counts", {.name = "Ann", .userID = {}}, std::nullopt},
        {"the start of a name", {.name = "an", .userID = {}}, std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(HomeDirectory::fromPasswd(passwd, row.wanted), row.directory) << row.name;
    }
    EXPECT_EQ(HomeDirectory::fromPasswd("", {.name = "", .userID = {}}), std::nullopt);
}

TEST(HomeDirectory, replacesALeadingTilde) {
    struct Row {
        std::string home;
        std::string path;
        std::string expanded;
    };
    const Row rows[] = {
        {"/h", "~", "/h"},         {"/h", "~/", "/h"},
        {"/h", "~/a/b", "/h/a/b"}, {"/h", "~/a//", "/h/a"},
        {"/h", "~//a", "/h//a"},   {"/h", "~/./a", "/h/./a"},
        {"/h", "/a/~", "/a/~"},    {"/h", " ~/a", " ~/a"},
        {"/h", "a/", "a/"},        {"/h", "", ""},
        {"/h/", "~/a", "/h/a"},    {"/h/", "~", "/h"},
        {"/", "~", "/"},           {"/", "~/", "/"},
        {"/", "~/a", "/a"},        {"/h", "~no such user/a/", "~no such user/a/"},
        {"/h", "~~", "~~"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(HomeDirectory::expandingTilde(row.path, {{"HOME", row.home}}), row.expanded) << row.path;
    }
}

TEST(HomeDirectory, knowsTheSystemsUsers) {
    const passwd* user = getpwuid(getuid());
    if (user == nullptr || user->pw_dir[0] != '/') GTEST_SKIP() << "this user has no entry";
    const std::string directory = user->pw_dir;
    EXPECT_EQ(HomeDirectory::ofUser(user->pw_name), directory);
    EXPECT_EQ(HomeDirectory::expandingTilde("~" + std::string(user->pw_name) + "/a/", {}), directory + "/a");
    EXPECT_EQ(HomeDirectory::current({}), directory);
    EXPECT_EQ(HomeDirectory::current({{"HOME", ""}}), directory);
    EXPECT_EQ(HomeDirectory::current({{"HOME", "relative"}}), directory);
    EXPECT_EQ(HomeDirectory::current({{"HOME", "/set"}}), "/set");
}

}  // namespace
}  // namespace vellark
