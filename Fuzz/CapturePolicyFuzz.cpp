#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>

using namespace vellark;

// Any JSON value is a policy, and what is written of it reads back as the same: JSON text holds finite numbers alone.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto json = JSONReader::read(fuzz::text(data, size), {.fragments = true});
    if (!json) return 0;
    const auto policy = ResolvedCapturePolicy::fromJSON(*json);
    fuzz::require(json->object() != nullptr || policy == ResolvedCapturePolicy(), "what is no object captures nothing");
    const auto written = policy.json();
    fuzz::require(written.has_value(), "it can be written");
    const auto again = JSONReader::read(*written);
    fuzz::require(again && ResolvedCapturePolicy::fromJSON(*again) == policy, "what was written reads back");
    return 0;
}
