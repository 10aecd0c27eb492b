#include "FuzzTarget.hpp"
#include <VellarkDomain/Board/DocumentBoardArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of boards. What is read is judged the same twice, and what is accepted is written and
// read again as the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto archive = readRecord<DocumentBoardArchive>(fuzz::text(data, size));
    if (!archive) return 0;
    const auto accepted = archive->validated();
    fuzz::require(accepted.has_value() == !archive->firstViolation(), "one judgement");
    if (!accepted) return 0;
    const auto written = writeRecord(*accepted);
    fuzz::require(written.has_value(), "what was accepted can be written");
    fuzz::require(readRecord<DocumentBoardArchive>(*written) == *accepted, "what was written reads as the same");
    return 0;
}
