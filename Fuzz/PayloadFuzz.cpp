#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

// Whatever an agent sends, a signal is printable ASCII, JSON, and within its limit, and the reader that drops members
// while it reads gives the same signal as the one that reads all.

namespace {

using namespace vellark;

void check(std::string_view source, std::string_view text, std::span<const JSONSelection> keep, bool isHook) {
    const auto signalOf = [&](const auto& value) -> std::optional<std::string> {
        if (!value || value->object() == nullptr) return std::nullopt;
        const auto payload = isHook ? HookNormalizer::normalize(source, *value->object()) : *value->object();
        if (!payload) return std::nullopt;
        return CaptureSignal::encode(source, *payload, {.includesResponses = true, .sortKeys = true});
    };
    const auto signal = signalOf(JSONReader::read(text, {.keep = keep}));
    if (signal != signalOf(JSONReader::read(text))) std::abort();
    if (!signal) return;
    const auto isPrintable = [](char character) { return character >= ' ' && character <= '~'; };
    if (signal->size() > CaptureSignal::maximumBytes || !std::ranges::all_of(*signal, isPrintable)) std::abort();
    if (!JSONReader::read(*signal)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    check("claude", text, CaptureSignal::payloadSelection(), false);
    for (const auto& row : HookNormalizer::events()) {
        check(row.source, text, HookNormalizer::payloadSelection(), true);
    }
    return 0;
}
