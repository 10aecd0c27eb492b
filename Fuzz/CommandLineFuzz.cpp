#include "FuzzTarget.hpp"
#include <VellarkCapture/CaptureInvocation.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

using namespace vellark;

// Arguments are separated by zero bytes. What is accepted names a known source, and a file never comes with a hook.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto arguments = PythonText::components(fuzz::text(data, size), U'\0');
    const auto invocation = CaptureInvocation::make(arguments, {{"HOME", "/h"}}, "/w");
    if (!invocation) return 0;
    fuzz::require(CaptureSignal::isSource(invocation->source), "the source is known");
    fuzz::require(!invocation->hook || (HookNormalizer::isHooked(invocation->source) && !invocation->file),
                  "a hook has a row of events, and no file");
    fuzz::require(UTF8::isValid(fuzz::text(data, size)), "arguments are UTF-8");
    if (!invocation->file) return 0;
    const auto payload = invocation->payload([] { return std::nullopt; });
    fuzz::require(payload && stringIn(*payload, "cwd")->starts_with('/'), "a file has a payload with a folder");
    return 0;
}
