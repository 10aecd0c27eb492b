#include "FuzzTarget.hpp"
#include <VellarkDomain/Board/DocumentBoardArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of boards. What is read is written, and read again as the same, but for moments that
// an offset takes out of the years 1 to 9999; an archive is judged the same twice and passes unchanged.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto archive = readRecord<DocumentBoardArchive>(fuzz::text(data, size));
    if (!archive) return 0;
    const auto validated = archive->validated();
    fuzz::require(validated.has_value() == !archive->firstViolation(), "one judgement");
    fuzz::require(!validated || *validated == *archive, "validation changes nothing");
    const auto written = writeRecord(*archive);
    fuzz::require(written || written.error().path.ends_with(".updatedAt"), "all but a moment can be written");
    if (!written) return 0;
    fuzz::require(readRecord<DocumentBoardArchive>(std::string_view(*written)) == *archive,
                  "what was written reads as the same");
    return 0;
}
