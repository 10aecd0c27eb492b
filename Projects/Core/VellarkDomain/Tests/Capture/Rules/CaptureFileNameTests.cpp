#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(CaptureFileName, isTheFoldedNameOfThePath) {
    const std::vector<std::string> pieces = {"/", "/",      ".",      ".",      "..",   "a",        "A",  "B.C",
                                             "é", "\u017F", "\u0130", "\uFB01", "\xff", "\xE2\x80", "\n", " "};
    for (const std::string& text : testing::randomTexts(41, 100'000, 9, pieces)) {
        const PythonPath path(text);
        const CaptureFileName file(text);
        const std::string suffix = PythonText::casefold(path.suffix());
        ASSERT_EQ(file.name(), PythonText::casefold(path.name())) << ::testing::PrintToString(text);
        ASSERT_EQ(file.suffix(), suffix) << ::testing::PrintToString(text);
        ASSERT_EQ(file.extension(), suffix.empty() ? "" : suffix.substr(1)) << ::testing::PrintToString(text);
        ASSERT_EQ(std::string(file.stem()) + suffix, file.name()) << ::testing::PrintToString(text);
    }
}

}  // namespace
}  // namespace vellark
