// Any bytes make a page: its events stand inside it, one behind another, and give well-formed text.

#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view page(reinterpret_cast<const char*>(data), size);
    vellark::PythonHTMLTitle::Parser parser(page);
    const char* last = parser.text().data();
    while (const auto* event = parser.next()) {
        if (event->source.empty() || event->source.data() < last) std::abort();
        last = event->source.data() + event->source.size();
        if (!vellark::UTF8::isValid(event->text)) std::abort();
    }
    if (last > parser.text().data() + parser.text().size()) std::abort();
    (void)vellark::CaptureRules::htmlResourceReferences(page);
    (void)vellark::CaptureRules::previewHelperHTML(page, "gallery.html");
    return 0;
}
