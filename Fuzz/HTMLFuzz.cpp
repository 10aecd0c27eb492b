#include "FuzzTarget.hpp"
#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

using namespace vellark;

// Any bytes make a page: its events stand inside it, one behind another, and give well-formed text.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view page = fuzz::text(data, size);
    PythonHTMLTitle::Parser parser(page);
    const char* last = parser.text().data();
    while (const auto* event = parser.next()) {
        fuzz::require(!event->source.empty() && event->source.data() >= last, "events are in order");
        last = event->source.data() + event->source.size();
        fuzz::require(UTF8::isValid(event->text), "an event's text is UTF-8");
    }
    fuzz::require(last <= parser.text().data() + parser.text().size(), "events stand inside the page");
    (void)CaptureRules::htmlResourceReferences(page);
    (void)CaptureRules::previewHelperHTML(page, "gallery.html");
    return 0;
}
