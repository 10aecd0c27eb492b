#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

using namespace vellark;

// Whatever an agent sends: its signal is short, ASCII, and JSON, and reading only what matters makes the same one.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto whole = JSONReader::read(fuzz::text(data, size));
    const auto selected = JSONReader::read(fuzz::text(data, size), {.keep = HookNormalizer::payloadSelection()});
    fuzz::require(whole.has_value() == selected.has_value(), "a selection refuses what the whole is refused for");
    if (!whole || whole->object() == nullptr) return 0;
    for (const auto& row : HookNormalizer::events()) {
        const auto signal = [&](const JSONObject& payload) {
            const auto common = HookNormalizer::normalize(row.source, payload);
            return common ? CaptureSignal::encode(row.source, *common, {.includesResponses = true}) : std::nullopt;
        };
        const auto text = signal(*whole->object());
        fuzz::require(text == signal(*selected->object()), "a selection changes no signal");
        if (!text) continue;
        fuzz::require(text->size() <= CaptureSignal::maximumBytes && UTF8::isASCII(*text), "a signal is short ASCII");
        fuzz::require(JSONReader::read(*text).has_value(), "a signal is JSON");
    }
    return 0;
}
