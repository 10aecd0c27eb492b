#include "FuzzTarget.hpp"
#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>
#include <VellarkDomain/Feedback/DocumentFeedbackArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of notes, and in the text in which a note looks for its lines. What is read is
// written, and read again as the same, but for moments that an offset takes out of the years 1 to 9999.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto archive = readRecord<DocumentFeedbackArchive>(fuzz::text(data, size));
    if (!archive) return 0;
    const DocumentFeedbackArchive valid = archive->validated();
    fuzz::require(valid.validated() == valid, "what is valid stays so");
    for (const DocumentFeedbackNote& note : archive->notes) {
        const auto moved = DocumentFeedbackAnchor::relocate(note, "new", note.text);
        fuzz::require(moved.isStale || moved.revisionID == "new", "a fresh note names the new revision");
    }
    const auto written = writeRecord(*archive);
    fuzz::require(written || written.error().path.ends_with("At"), "all but a moment can be written");
    if (!written) return 0;
    fuzz::require(readRecord<DocumentFeedbackArchive>(std::string_view(*written)) == *archive,
                  "what was written reads as the same");
    return 0;
}
