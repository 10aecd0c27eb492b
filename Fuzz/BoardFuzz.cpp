#include "FuzzTarget.hpp"
#include <VellarkDomain/Board/DocumentBoardArchive.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Any bytes may stand in the file of boards. What is read is written, and read again as the same; an archive that is
// valid passes unchanged.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto archive = readRecord<DocumentBoardArchive>(fuzz::text(data, size));
    if (!archive) return 0;
    const auto written = writeRecord(*archive);
    fuzz::require(written.has_value(), "what was read can be written");
    fuzz::require(readRecord<DocumentBoardArchive>(std::string_view(*written)) == *archive,
                  "what was written reads as the same");
    const auto validated = archive->validated();
    fuzz::require(!validated || *validated == *archive, "validation changes nothing");
    return 0;
}
