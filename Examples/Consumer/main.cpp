#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>

#include <cstdio>
#include <string>

// What a host sees of an event: the signal that the helper would leave, and a word in the user's language.
//
//     consumer BUNDLE
int main(int argumentCount, char** arguments) {
    using namespace vellark;
    if (argumentCount != 2) return 2;
    LocalizationBundle::setDirectory(arguments[1]);

    const auto event = JSONReader::read(
        R"({"hook_event_name": "afterFileEdit", "conversation_id": "c-7", "file_path": "/home/ann/plan.md"})");
    const auto payload = HookNormalizer::normalize("cursor", *event->object());
    const auto signal = CaptureSignal::encode("cursor", *payload, {.includesResponses = false, .sortKeys = true});
    if (!signal) return 1;
    std::printf("%s: %s\n", L10n::text("문서", {.language = "en"}).c_str(), signal->c_str());
    return 0;
}
