#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationController.hpp>
#include <VellarkLocalization/NotificationCenter.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

namespace vellark {
namespace {

// Puts the system's language back for the tests that follow.
class LocalizationControllerTests : public ::testing::Test {
protected:
    void SetUp() override { restore(); }
    void TearDown() override { restore(); }

    LocalizationController& controller = LocalizationController::shared();

private:
    void restore() {
        ::setenv("LANG", "en_US.UTF-8", 1);
        controller.apply("");
    }
};

TEST_F(LocalizationControllerTests, announcesEachChangeOnce) {
    int calls = 0;
    std::string textAtCall;
    const auto observer = NotificationCenter::shared().addObserver(vellarkLanguageChanged, [&] {
        ++calls;
        textAtCall = L10n::text("나중에 볼 것");
    });
    const std::int64_t revision = controller.revision();

    controller.apply("");
    EXPECT_EQ(calls, 0);
    controller.apply("de");
    controller.apply("de");
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(textAtCall, "Später prüfen");
    EXPECT_EQ(controller.selection(), "de");
    EXPECT_EQ(controller.language(), "de");
    EXPECT_EQ(controller.locale(), "de_US");
    controller.apply("de", true);
    EXPECT_EQ(calls, 2);
    controller.apply("pt");  // another selection, though both give a language
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(controller.language(), "en");
    EXPECT_EQ(controller.revision(), revision + 3);

    NotificationCenter::shared().removeObserver(observer);
    controller.apply("ko");
    EXPECT_EQ(calls, 3);
}

TEST_F(LocalizationControllerTests, readsTheEnvironmentAnew) {
    const std::int64_t revision = controller.revision();
    ::setenv("LANG", "zh_HK.UTF-8", 1);
    controller.apply("");
    EXPECT_EQ(controller.language(), "zh-HK");
    EXPECT_EQ(controller.locale(), "zh_Hant_HK");
    EXPECT_EQ(controller.revision(), revision + 1);
    ::setenv("LANG", "de_CH.UTF-8", 1);
    controller.apply("ko");
    EXPECT_EQ(controller.locale(), "ko_CH");
    EXPECT_EQ(L10n::number(1234567), "1,234,567");
}

TEST_F(LocalizationControllerTests, observesTheSystemLocaleOnce) {
    controller.startObservingSystemLocale();
    const std::int64_t revision = controller.revision();
    controller.startObservingSystemLocale();
    EXPECT_TRUE(controller.isObservingSystemLocale());
    EXPECT_EQ(controller.revision(), revision);
}

TEST(NotificationCenter, callsInOrderOfRegistration) {
    NotificationCenter center;
    std::string calls;
    NotificationCenter::Observer second{};
    center.addObserver("a", [&] {
        calls += '1';
        center.removeObserver(second);
        center.addObserver("a", [&] { calls += '4'; });
    });
    second = center.addObserver("a", [&] { calls += '2'; });
    center.addObserver("a", [&] { calls += '3'; });
    center.addObserver("b", [&] { calls += 'b'; });
    center.post("a");
    EXPECT_EQ(calls, "13");
    center.post("c");
    center.post("b");
    EXPECT_EQ(calls, "13b");
    center.removeObserver(second);
    center.removeObserver(NotificationCenter::Observer{999});
}

TEST_F(LocalizationControllerTests, textsFromManyThreadsWhileLanguagesChange) {
    constexpr int threadCount = 10;
    std::atomic<bool> isOver = false;
    std::atomic<int> strangeCount = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([&, number] {
            for (int round = 0; !isOver; ++round) {
                const std::string mark = L10n::text("나중에 볼 것");
                const std::string shown = L10n::display("Edited " + std::to_string(number) + " files");
                const std::string ago = L10n::shortRelative(Date{1000}, Date{1000.0 + round % 90'000});
                const std::string when = L10n::dateTime(Date{1000.0 * round}) + L10n::argument(round);
                const std::string length = L10n::duration(round % 100);
                const bool isMark = mark == "Review later" || mark == "Später prüfen" || mark == "나중에 볼 것";
                if (!isMark || shown.empty() || ago.empty() || when.empty() || length.empty()) ++strangeCount;
            }
        });
    }
    for (int round = 0; round < 200; ++round) {
        controller.apply(round % 3 == 0 ? "ko" : round % 3 == 1 ? "de" : "en");
        std::this_thread::yield();
    }
    isOver = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(strangeCount, 0);
}

}  // namespace
}  // namespace vellark
