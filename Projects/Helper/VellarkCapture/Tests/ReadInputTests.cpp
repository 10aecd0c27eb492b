#include "Support/TemporaryDirectory.hpp"
#include <VellarkCapture/CaptureHelperMain.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellark {
namespace {

TEST(ReadInput, limitIsExact) {
    const testing::TemporaryDirectory directory;
    const auto path = directory / "input";
    testing::writeFile(path, std::string(100'000, 'x'));
    const auto read = [&](std::size_t limit) {
        const FileDescriptor file(::open(path.c_str(), O_RDONLY));
        const auto input = CaptureHelperMain::readInput(file.get(), limit, std::chrono::milliseconds(1000));
        return input ? std::optional(std::string(input->bytes())) : std::nullopt;
    };
    EXPECT_EQ(read(100'000), std::string(100'000, 'x'));
    EXPECT_EQ(read(99'999), std::nullopt);
}

}  // namespace
}  // namespace vellark
