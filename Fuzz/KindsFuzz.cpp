#include "FuzzTarget.hpp"
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

using namespace vellark;

// Any bytes make a title, a path and a text: the first two lines and the rest. A guess has candidates, none twice, and
// what was read keeps its limits and is well-formed.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = fuzz::text(data, size);
    const auto line = [&] {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view result = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return std::string(result);
    };
    DocumentKindEvidence evidence = {.title = line(), .path = line()};
    evidence.read(rest, {.html = size % 2 == 0});
    fuzz::require(UTF8::isValid(evidence.body), "the body is UTF-8");
    fuzz::require(evidence.body.size() <= DocumentKindEvidence::bodyLimit, "the body keeps its limit");
    if (auto guess = DocumentKindClassifier::classify(evidence)) {
        auto& kinds = guess->candidates;
        fuzz::require(!kinds.empty(), "a guess has candidates");
        std::ranges::sort(kinds);
        fuzz::require(std::ranges::adjacent_find(kinds) == kinds.end(), "no candidate is there twice");
    }
    return 0;
}
