#include "FuzzTarget.hpp"
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>

// Any text may be shown; one that no message made comes back as it was, but for ill-formed bytes.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using vellark::CatalogLibrary;
    static const CatalogLibrary library({
        {"ko", {{"가 {0}개와 {1} 그리고 {2}", "가 {0}개와 {1} 그리고 {2}"}, {"{1}: 나 {0}", "{1}: 나 {0}"}}, {}, {}},
        {"en",
         {{"가 {0}개와 {1} 그리고 {2}", "{0} as, {1} and {2} too"}, {"{1}: 나 {0}", "{0} by {1}"}},
         {{"{1}: 나 {0}", {{"one", "{0} one by {1}"}, {"other", "{0} by {1}"}}}},
         {"가 {0}개와 {1} 그리고 {2}", "{1}: 나 {0}"}},
    });
    const std::string_view text = vellark::fuzz::text(data, size);
    const std::string valid = vellark::UTF8::replacingInvalid(text);
    const std::string shown = library.display(text, "ko");
    vellark::fuzz::require(vellark::UTF8::isValid(shown), "what is shown is UTF-8");
    const bool isRecognised = library.patterns().firstMatch(valid).has_value();
    const bool isLooked = valid.find('{') != std::string::npos;  // a template itself may be looked up
    vellark::fuzz::require(isRecognised || isLooked || shown == valid, "an unknown text stays");
    return 0;
}
