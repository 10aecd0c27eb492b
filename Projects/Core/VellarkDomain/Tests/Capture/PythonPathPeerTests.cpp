#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/PythonPath.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

// Two paths in a case, with a zero byte between them. Of a name that begins or ends with points pathlib's releases
// think differently about the suffix; such names have rows in PythonPathTests.
constexpr const char* model = R"(
import os, pathlib
def answer(case):
    first, second = (pathlib.PurePosixPath(os.fsdecode(part)) for part in case.split(b'\0'))
    try: below = str(second.relative_to(first))
    except ValueError: below = ''
    odd = first.name[:1] == '.' or first.name[-1:] == '.'
    fields = [str(first), first.root, first.name, str(first.parent), '?' if odd else first.suffix,
              str(first / second), str(below != ''), below]
    return b'\xfe'.join(map(os.fsencode, [*fields, *first.parts, *map(str, first.parents)])))";

std::string described(std::string_view firstText, std::string_view secondText) {
    const PythonPath first(firstText);
    const PythonPath second(secondText);
    const std::string_view name = first.name();
    const bool isOdd = name.starts_with('.') || name.ends_with('.');
    std::string below;
    if (const auto parts = second.relativeParts(first)) {
        for (const std::string_view part : *parts) {
            below += (below.empty() ? "" : "/") + std::string(part);
        }
        if (below.empty()) below = ".";
    }
    std::string text(first.string());
    const auto add = [&](std::string_view field) { text.append("\xfe").append(field); };
    add(first.root());
    add(name);
    add(first.parent().string());
    add(isOdd ? "?" : first.suffix());
    add(first.appending(secondText).string());
    add(first.contains(second) ? "True" : "False");
    add(below);
    for (const std::string_view part : first.parts()) {
        add(part);
    }
    for (const PythonPath& parent : first.parents()) {
        add(parent.string());
    }
    return text;
}

TEST(PythonPathPeer, agreesWithPathlib) {
    const std::vector<std::string> pieces = {"/", "/",  "/",   "//", ".", "..",   "a",
                                             "b", ".c", "a.b", "é",  " ", "/a/b", "\xff"};
    auto firsts = testing::randomTexts(21, 100'000, 8, pieces);
    const auto seconds = testing::randomTexts(22, 100'000, 8, pieces);
    std::vector<std::string> cases;
    for (std::size_t index = 0; index < firsts.size(); ++index) {
        // Every other second path begins as the first does, so that many lie below.
        cases.push_back(firsts[index] + '\0' + (index % 2 == 0 ? firsts[index] + "/" : "") + seconds[index]);
    }
    const auto answers = testing::PythonPeer::answers(model, cases);
    if (!answers) GTEST_SKIP() << "no python3";
    for (std::size_t index = 0; index < cases.size(); ++index) {
        const std::string_view both = cases[index];
        const std::size_t middle = both.find('\0');
        ASSERT_EQ(described(both.substr(0, middle), both.substr(middle + 1)), (*answers)[index])
            << testing::PythonPeer::hexadecimal(both);
    }
}

}  // namespace
}  // namespace vellark
