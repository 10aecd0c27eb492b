#include "Support/Subprocess.hpp"

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(RedactCommandTests, secretsStayInside) {
    const auto run = testing::runProcess(
        {.arguments = {VELLARK_PROGRAM, "redact"}, .input = "export API_KEY=abc123def456\nplain\n"});
    ASSERT_TRUE(run);
    EXPECT_EQ(run->output, "export API_KEY=••••\nplain\n");
    EXPECT_EQ(run->status, 0);
}

}  // namespace
}  // namespace vellark
