#include "FuzzTarget.hpp"
#include <VellarkDomain/Documents/Library/CaptureLibrary.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

// Whatever a library file holds: both ways of reading it agree, and what was read is written in a form that reads the
// same and is written the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const auto library = readRecord<CaptureLibrary>(text);
    const auto document = JSONDocument::parse(text);
    fuzz::require(document.has_value() || !library, "what is no JSON is no library");
    if (document) fuzz::require(library == readRecord<CaptureLibrary>(document->root()), "both ways agree");
    if (!library) return 0;
    const auto written = writeRecord(*library);
    fuzz::require(written.has_value(), "what was read can be written");
    const auto again = readRecord<CaptureLibrary>(std::string_view(*written));
    fuzz::require(again == library, "a library reads as it was written");
    fuzz::require(writeRecord(*again) == written, "equal libraries have equal bytes");
    return 0;
}
