#include "HelperFixture.hpp"

#include <elf.h>
#include <unistd.h>

#include <cstring>

namespace vellark::testing {
namespace {

class HelperProgram : public HelperFixture {};

TEST_F(HelperProgram, needsNoLoaderAndNoICU) {
    const std::string program = readFile(VELLARK_CAPTURE_PROGRAM);
    EXPECT_EQ(program.find("libicu"), std::string::npos);
#ifdef VELLARK_CAPTURE_IS_STATIC
    ASSERT_GT(program.size(), sizeof(Elf64_Ehdr));
    Elf64_Ehdr header;
    std::memcpy(&header, program.data(), sizeof header);
    for (std::size_t index = 0; index < header.e_phnum; ++index) {
        Elf64_Phdr segment;
        std::memcpy(&segment, program.data() + header.e_phoff + index * header.e_phentsize, sizeof segment);
        EXPECT_NE(segment.p_type, static_cast<Elf64_Word>(PT_INTERP));
    }
#endif
}

TEST_F(HelperProgram, servesAUserWhomTheSystemDoesNotKnow) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
    std::filesystem::permissions(root(), std::filesystem::perms::all);
    std::filesystem::permissions(data(), std::filesystem::perms::all);
    auto asStranger = options({"--source", "claude", "--file", "~/a"});
    // Without HOME the user's directory would have to come from the list of users.
    asStranger.environment.clear();
    const char* path = std::getenv("PATH");
    asStranger.environment["PATH"] = path == nullptr ? "" : path;
    asStranger.arguments.insert(asStranger.arguments.begin(),
                                {"setpriv", "--reuid", "54321", "--regid", "54321", "--clear-groups"});
    const auto result = runProcess(asStranger);
    if (!result || result->status == 127 || result->status == 126) GTEST_SKIP() << "no setpriv, or an unreadable build";
    EXPECT_EQ(result->status, 0) << result->errors;
    EXPECT_EQ(result->output, "{}\n");
    EXPECT_EQ(spoolNames().size(), 1U);
}

}  // namespace
}  // namespace vellark::testing
