#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

using namespace vellark;

// What has been brought into its final form stays as it is, for any bytes; and no byte gets lost on the way.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const std::string_view stripped = PythonText::strip(text);
    fuzz::require(PythonText::strip(stripped) == stripped, "a stripped text is stripped");
    for (const std::string_view line : PythonText::splitlines(text)) {
        fuzz::require(PythonText::splitlines(line).size() <= 1, "a line is one line");
    }
    const std::string folded = PythonText::casefold(text);
    fuzz::require(PythonText::casefold(folded) == folded && UTF8::isValid(folded), "a folded text is folded");
    const std::string normal = PythonText::normpath(text);
    fuzz::require(PythonText::normpath(normal) == normal, "a normal path is normal");
    const PythonPath path(text);
    fuzz::require(PythonPath(path.string()) == path, "a path reads back from its text");
    fuzz::require(path.tail().empty() || path.parent().appending(path.name()) == path, "a path is its parent and name");
    fuzz::require(path.parent().contains(path), "a path lies below its parent");
    return 0;
}
