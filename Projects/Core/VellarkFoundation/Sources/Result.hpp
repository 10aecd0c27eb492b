#pragma once

#include <tl/expected.hpp>

#include <utility>

namespace vellark {

/// The value of an operation, or the error that took its place. An alias, so that `std::expected` can step in later
/// without a change at any caller.
template <class Value, class Error>
using Result = tl::expected<Value, Error>;

/// Makes the error of a Result: `return failure(JSONError{...});`
template <class Error>
[[nodiscard]] constexpr tl::unexpected<std::decay_t<Error>> failure(Error&& error) {
    return tl::unexpected<std::decay_t<Error>>(std::forward<Error>(error));
}

}  // namespace vellark
