#include "FuzzTarget.hpp"
#include <VellarkDomain/Agents/AgentActivitySummary.hpp>
#include <VellarkDomain/Settings/AppSettings.hpp>
#include <VellarkDomain/Settings/ConnectorStatus.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

using namespace vellark;

namespace {

// What is read is written, and read again as the same.
template <class Record>
void readWriteRead(std::string_view text) {
    const auto record = readRecord<Record>(text);
    if (!record) return;
    const auto written = writeRecord(*record);
    fuzz::require(written.has_value(), "what was read can be written");
    fuzz::require(readRecord<Record>(*written) == *record, "what was written reads as the same");
}

}  // namespace

// Any bytes may stand in the settings, in the file of live sessions and in what describes a connector.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    readWriteRead<AppSettings>(text);
    readWriteRead<AgentActivitySummary>(text);
    readWriteRead<AgentTerminalLocation>(text);
    readWriteRead<ConnectorStatus>(text);
    return 0;
}
