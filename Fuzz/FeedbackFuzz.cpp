#include "FuzzTarget.hpp"
#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>
#include <VellarkDomain/Feedback/DocumentFeedbackArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of notes and in the document that they are on. What is valid stays so.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const auto archive = readRecord<DocumentFeedbackArchive>(text);
    if (!archive) return 0;
    const DocumentFeedbackArchive valid = archive->validated();
    fuzz::require(valid.validated() == valid, "what is valid stays so");
    const auto written = writeRecord(valid);
    fuzz::require(written.has_value(), "what is valid can be written");
    fuzz::require(readRecord<DocumentFeedbackArchive>(*written) == valid, "what was written reads as the same");
    return 0;
}
