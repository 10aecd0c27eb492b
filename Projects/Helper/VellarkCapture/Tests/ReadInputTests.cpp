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

TEST(ReadInput, givesAllOrNothing) {
    const auto lengthOf = [](int descriptor) {
        const auto input = CaptureHelperMain::readInput(descriptor, 100, std::chrono::milliseconds(50));
        return input ? std::optional(input->length()) : std::nullopt;
    };
    EXPECT_EQ(lengthOf(FileDescriptor(::open("/dev/null", O_RDONLY)).get()), 0U);
    EXPECT_EQ(lengthOf(FileDescriptor(::open("/", O_RDONLY)).get()), std::nullopt) << "a directory cannot be read";

    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    FileDescriptor reader(ends[0]);
    FileDescriptor writer(ends[1]);
    ASSERT_EQ(::fcntl(reader.get(), F_SETFL, O_NONBLOCK), 0);
    ASSERT_EQ(::write(writer.get(), "{}", 2), 2);
    EXPECT_EQ(lengthOf(reader.get()), std::nullopt) << "the writer is still there when time is up";
    ASSERT_EQ(::write(writer.get(), "{}", 2), 2);
    writer.close();
    EXPECT_EQ(lengthOf(reader.get()), 2U);
    const int closed = reader.get();
    reader.close();
    EXPECT_EQ(lengthOf(closed), std::nullopt);
}

}  // namespace
}  // namespace vellark
