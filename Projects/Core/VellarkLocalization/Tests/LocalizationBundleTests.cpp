#include "Support/SampleBundle.hpp"
#include "Support/Subprocess.hpp"
#include "Support/TemporaryDirectory.hpp"
#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryDirectory;

TEST(LocalizationBundle, filesAreSortedByName) {
    const TemporaryDirectory bundle;
    testing::writeFile(bundle / "Sounds/b", "2");
    testing::writeFile(bundle / "Sounds/B", "1");
    testing::writeFile(bundle / "Sounds/é", "3");
    testing::writeFile(bundle / "Sounds/folder/x", "no");
    EXPECT_EQ(LocalizationBundle::files(bundle.string(), "Sounds"), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(LocalizationBundle::files(bundle.string(), "None"), std::vector<std::string>());
    EXPECT_EQ(L10n::resourceFiles("Resources").size(), 7U);
}

// What the copies of this program below show of themselves.
TEST(LocalizationBundle, showsItsLanguages) {
    for (const std::string& language : L10n::availableCatalogLanguages()) {
        std::printf("<%s>", language.c_str());
    }
}

testing::ProcessResult showLanguages(const fs::path& program) {
    const char* libraries = std::getenv("LD_LIBRARY_PATH");
    const auto result = testing::runProcess(
        {.arguments = {program.string(), "--gtest_filter=LocalizationBundle.showsItsLanguages"},
         .input = {},
         .environment = {{"VELLARK_TEST_SEARCHES_BUNDLE", "1"}, {"LD_LIBRARY_PATH", libraries ? libraries : ""}}});
    return result.value_or(testing::ProcessResult());
}

TEST(LocalizationBundle, isFoundFromTheProgram) {
    const TemporaryDirectory root;
    fs::create_directory(root / "bin");
    const fs::path program = root / "bin/program";
    fs::copy_file("/proc/self/exe", program);
    fs::create_symlink(program, root / "link");
    const std::string name(LocalizationBundle::name);

    const auto none = showLanguages(program);
    EXPECT_EQ(none.status, 128 + SIGABRT);
    EXPECT_NE(none.errors.find("could not load resource bundle: from " + (root / "bin").string() + "/" + name + "\n"),
              std::string::npos)
        << none.errors;

    const auto write = [&](const fs::path& directory, const std::string& language) {
        testing::writeFile(directory / name / "Resources" / (language + ".json"),
                           R"({"language":")" + language + R"(","messages":{},"plurals":{},"externalKeys":[]})");
    };
    write(root / "bin", "th");
    EXPECT_NE(showLanguages(program).output.find("<th>"), std::string::npos);
    write(root / "share/vellark", "vi");
    EXPECT_NE(showLanguages(root / "link").output.find("<vi>"), std::string::npos);
    EXPECT_EQ(showLanguages(program).output.find("<th>"), std::string::npos);
}

TEST(LocalizationBundle, aSetDirectoryComesFirstWhenItExists) {
    const TemporaryDirectory root;
    fs::create_directories(root / "set");
    fs::create_directories(root / "bin" / LocalizationBundle::name);
    const std::string bin = (root / "bin").string();
    const auto firstOf = [&](const std::string& path) {
        return LocalizationBundle::firstExisting(LocalizationBundle::candidates(path, bin));
    };
    EXPECT_EQ(firstOf((root / "set").string()), (root / "set").string());
    EXPECT_EQ(firstOf((root / "gone").string()), bin + "/" + std::string(LocalizationBundle::name));
    EXPECT_TRUE(fs::is_directory(VELLARK_BUILT_BUNDLE "/Resources"));
}

}  // namespace
}  // namespace vellark
