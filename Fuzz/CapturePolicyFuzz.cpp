#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>

using namespace vellark;

// Any JSON value is a policy. What is written of it reads back as the same, unless a moment is infinite.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto json = JSONReader::read(fuzz::text(data, size));
    if (!json) return 0;
    const auto policy = ResolvedCapturePolicy::fromJSON(*json);
    fuzz::require(json->object() != nullptr || policy == ResolvedCapturePolicy(), "what is no object captures nothing");
    const auto written = policy.json();
    if (!written) return 0;
    const auto again = JSONReader::read(*written);
    fuzz::require(again && ResolvedCapturePolicy::fromJSON(*again) == policy, "what was written reads back");
    return 0;
}
