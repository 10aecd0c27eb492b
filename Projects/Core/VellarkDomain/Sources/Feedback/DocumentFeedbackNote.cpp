#include <VellarkDomain/Feedback/DocumentFeedbackNote.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

namespace vellark {

bool DocumentFeedbackNote::isValid() const {
    if (id.empty() || documentID.empty() || revisionID.empty()) return false;
    if (startLine < 1 || endLine < startLine || endLine - startLine >= maximumLineSpan) return false;
    return !GraphemeBreak::exceeds(text, maximumTextLength) && !GraphemeBreak::exceeds(anchor, maximumAnchorLength);
}

}  // namespace vellark
