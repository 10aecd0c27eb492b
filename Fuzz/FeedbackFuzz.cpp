#include "FuzzTarget.hpp"
#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>
#include <VellarkDomain/Feedback/DocumentFeedbackArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of feedback, and in the text that a note looks for its lines in. What is read is
// written, and read again as the same; what was kept once is kept again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const auto archive = readRecord<DocumentFeedbackArchive>(text);
    if (!archive) return 0;
    const auto written = writeRecord(*archive);
    fuzz::require(written.has_value(), "what was read can be written");
    fuzz::require(readRecord<DocumentFeedbackArchive>(std::string_view(*written)) == *archive,
                  "what was written reads as the same");
    const DocumentFeedbackArchive validated = archive->validated();
    fuzz::require(validated.validated() == validated, "what was kept is kept again");
    for (const DocumentFeedbackNote& note : archive->notes) {
        const auto moved = DocumentFeedbackAnchor::relocate(note, "new", note.text);
        fuzz::require(moved.isStale || moved.revisionID == "new", "a fresh note names the new revision");
    }
    return 0;
}
