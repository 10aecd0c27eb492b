#pragma once

#include <VellarkFoundation/JSON/JSONCursor.hpp>

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

namespace vellark {

/// Walks through a JSON text of any length in the memory of its longest part. A window moves along the text, and the
/// reader takes one step after the other in it, each with a cursor.
///
///     JSONWindow window(source);
///     window.take([](JSONCursor& cursor) { return cursor.open('['); })
///     window.take([&](JSONCursor& cursor) { return readDirectly(cursor, document) && cursor.endElement(); })
///
/// A step that fails is tried again with more of the text, as long as there is more: so a step must fail where the text
/// ends too early, and must not keep what a failed try has found.
class JSONWindow {
public:
    /// Puts the next bytes of the text at a place, at most so many. Gives how many these were, 0 at the end of the
    /// text; nothing when they cannot be read.
    using Source = std::function<std::optional<std::size_t>(char* place, std::size_t room)>;

    struct Options {
        std::size_t firstBytes = std::size_t{1} << 20;                       ///< of the window
        std::size_t maximumBytes = std::numeric_limits<std::size_t>::max();  ///< that it may grow to
    };

    explicit JSONWindow(Source source) : JSONWindow(std::move(source), Options{}) {}
    JSONWindow(Source source, Options options);

    /// Takes a step, a function of a JSONCursor that says whether the text was as expected. False when it was not; when
    /// the text is not UTF-8, cannot be read, or the window would have to be larger than it may.
    template <class Step>
    bool take(Step step) {
        for (;;) {
            const std::size_t offset = cursor_.offset();
            const std::size_t depth = cursor_.depth();
            // At the edge of the window it is not known what follows.
            if (step(cursor_) && (!cursor_.isAtEnd() || hasEnded_)) return true;
            if (!advance(offset)) return false;
            cursor_.returnTo(0, depth);
        }
    }

private:
    [[nodiscard]] std::string_view text() const { return {bytes_.get() + start_, valid_ - start_}; }

    bool advance(std::size_t used);
    bool makeRoom();
    bool fill();
    bool validate();

    Source source_;
    Options options_;
    std::unique_ptr<char[]> bytes_;  // not filled beforehand, as a string would be
    std::size_t size_ = 0;
    std::size_t start_ = 0;
    std::size_t valid_ = 0;  // behind the last scalar that is known to be well-formed
    std::size_t end_ = 0;
    bool hasEnded_ = false;
    bool hasFailed_ = false;
    JSONCursor cursor_;
};

}  // namespace vellark
