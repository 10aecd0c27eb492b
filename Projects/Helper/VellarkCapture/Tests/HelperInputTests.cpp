#include "HelperFixture.hpp"
#include <VellarkFoundation/Files/FileDescriptor.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace vellark::testing {
namespace {

class HelperInput : public HelperFixture {
protected:
    using Clock = std::chrono::steady_clock;

    struct Pipe {
        FileDescriptor reader;
        FileDescriptor writer;
    };

    static Pipe makePipe() {
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    }

    [[nodiscard]] std::optional<Process> startReading(const Pipe& pipe) const {
        auto reading = options({"--source", "claude"});
        reading.inputDescriptor = pipe.reader.get();
        return Process::start(reading);
    }

    static void write(const Pipe& pipe, std::string_view text) {
        ASSERT_EQ(::write(pipe.writer.get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
};

TEST_F(HelperInput, fourMebibytesAndNoMore) {
    const std::string start = R"({"cwd": "/w", "tool_output": ")";
    const std::string end = "\"}";
    const std::size_t filling = 4'194'304 - start.size() - end.size();
    run({"--source", "claude"}, start + std::string(filling, 'x') + end);
    EXPECT_EQ(spoolNames().size(), 1U);
    std::filesystem::remove_all(spool());
    run({"--source", "claude"}, start + std::string(filling + 1, 'x') + end);
    EXPECT_TRUE(spoolNames().empty());
}

TEST_F(HelperInput, thatNeverClosesEndsTheRunInTime) {
    Pipe pipe = makePipe();
    write(pipe, plainPayload);
    const auto start = Clock::now();
    const auto process = startReading(pipe);
    ASSERT_TRUE(process.has_value());
    const auto result = process->wait();
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5)) << "far more than 1.5 seconds, for busy machines";
    EXPECT_EQ(result.output, "{}\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(spoolNames().empty()) << "half an input is no input";
}

TEST_F(HelperInput, thatDripsIsReadToItsEnd) {
    Pipe pipe = makePipe();
    const auto process = startReading(pipe);
    ASSERT_TRUE(process.has_value());
    const std::string_view text = plainPayload;
    for (std::size_t offset = 0; offset < text.size(); offset += 6) {
        write(pipe, text.substr(offset, 6));
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    pipe.writer.close();
    EXPECT_EQ(process->wait().output, "{}\n");
    EXPECT_EQ(spoolNames().size(), 1U);
}

TEST_F(HelperInput, ofADisabledSourceIsStillReadToItsEnd) {
    writeFile(data() + "/settings.json", R"({"disabledConnectors": ["claude"]})");
    Pipe pipe = makePipe();
    const auto process = startReading(pipe);
    ASSERT_TRUE(process.has_value());
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    write(pipe, plainPayload);  // would fail if the helper had gone
    pipe.writer.close();
    EXPECT_EQ(process->wait().status, 0);
    EXPECT_TRUE(spoolNames().empty());
}

TEST_F(HelperInput, isNotReadWithoutNeed) {
    Pipe pipe = makePipe();
    auto unacceptable = options({"--unknown"});
    unacceptable.inputDescriptor = pipe.reader.get();
    EXPECT_EQ(runProcess(unacceptable)->output, "{}\n");
    auto file = options({"--source", "claude", "--file", "a.md"});
    file.inputDescriptor = pipe.reader.get();
    EXPECT_EQ(runProcess(file)->output, "{}\n");
    EXPECT_EQ(spoolNames().size(), 1U);
}

TEST_F(HelperInput, manyHelpersAtOnceLeaveOneSignalEach) {
    std::vector<Process> processes;
    for (int index = 0; index < 64; ++index) {
        auto process = Process::start(options({"--source", "claude"}, plainPayload));
        ASSERT_TRUE(process.has_value());
        processes.push_back(std::move(*process));
    }
    for (const Process& process : processes) {
        EXPECT_EQ(process.wait().output, "{}\n");
    }
    const auto names = spoolNames();
    EXPECT_EQ(names.size(), 64U);
    for (const std::string& name : names) {
        EXPECT_TRUE(JSONReader::read(readFile(spool() + "/" + name)).has_value()) << name;
    }
}

TEST_F(HelperInput, killedHelpersLeaveNoHalfSignal) {
    std::string input = R"({"cwd": "/w", "model": ")" + std::string(60'000, 'x') + "\"}";
    const auto start = Clock::now();
    run({"--source", "claude"}, input);
    const auto whole = Clock::now() - start;
    for (int moment = 0; moment < 60; ++moment) {  // from the start of a run to somewhat behind its end
        const auto process = Process::start(options({"--source", "claude"}, input));
        ASSERT_TRUE(process.has_value());
        std::this_thread::sleep_for(whole * moment / 50);
        process->kill(SIGKILL);
        process->wait();
    }
    for (const std::string& name : spoolNames()) {
        if (!name.ends_with(".json")) continue;
        EXPECT_TRUE(JSONReader::read(readFile(spool() + "/" + name)).has_value()) << name;
    }
}

}  // namespace
}  // namespace vellark::testing
