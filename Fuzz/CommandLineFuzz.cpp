#include <VellarkCapture/CaptureInvocation.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>

#include <cstdint>
#include <cstdlib>

// A command line that is accepted names a known source, and one that has hooks where it says so; a file's payload is
// complete without any input. Arguments are separated by zero bytes.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vellark;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto arguments = PythonText::components(text, U'\0');
    const auto invocation = CaptureInvocation::make(arguments, {{"HOME", "/h"}}, "/w");
    if (!invocation) return 0;
    if (!CaptureSignal::isSource(invocation->source)) std::abort();
    if (invocation->hook && (invocation->file || !HookNormalizer::isHooked(invocation->source))) std::abort();
    const auto payload = invocation->payload([]() -> std::optional<InputBuffer> { return std::nullopt; });
    if (payload.has_value() != invocation->file.has_value()) std::abort();
    if (payload && stringIn(*payload, "cwd") == nullptr) std::abort();
    return 0;
}
