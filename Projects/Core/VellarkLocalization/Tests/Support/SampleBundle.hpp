#pragma once

#include <string>

namespace vellark::testing {

/// A small bundle with some keys in seven languages, which the tests of shared state run with.
inline const std::string sampleBundle = VELLARK_TEST_DATA "/Sample.bundle";

}  // namespace vellark::testing
