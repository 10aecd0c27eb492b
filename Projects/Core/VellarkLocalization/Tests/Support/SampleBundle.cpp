#include "Support/SampleBundle.hpp"

#include <VellarkLocalization/LocalizationBundle.hpp>

#include <gtest/gtest.h>

#include <cstdlib>

namespace vellark::testing {
namespace {

// Before any test: texts come from the sample bundle, the system speaks English. A test that runs this program again
// to see where it looks for its bundle sets the variable.
class SampleSetting : public ::testing::Environment {
    void SetUp() override {
        if (std::getenv("VELLARK_TEST_SEARCHES_BUNDLE") == nullptr) LocalizationBundle::setDirectory(sampleBundle);
        for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_TIME"}) {
            ::unsetenv(name);
        }
        ::setenv("LANG", "en_US.UTF-8", 1);
    }
};

const auto* const setting = ::testing::AddGlobalTestEnvironment(new SampleSetting);

}  // namespace
}  // namespace vellark::testing
