#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Any text may be shown; one that no message made comes back as it was, but for ill-formed bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using vellark::CatalogLibrary;
    static const CatalogLibrary library({
        {"ko", {{"가 {0}개와 {1} 그리고 {2}", "가 {0}개와 {1} 그리고 {2}"}, {"{1}: 나 {0}", "{1}: 나 {0}"}}, {}, {}},
        {"en",
         {{"가 {0}개와 {1} 그리고 {2}", "{0} as, {1} and {2} too"}, {"{1}: 나 {0}", "{0} by {1}"}},
         {{"{1}: 나 {0}", {{"one", "{0} one by {1}"}, {"other", "{0} by {1}"}}}},
         {"가 {0}개와 {1} 그리고 {2}", "{1}: 나 {0}"}},
    });
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string valid = vellark::UTF8::replacingInvalid(text);
    const std::string shown = library.display(text, "ko");
    if (!vellark::UTF8::isValid(shown)) std::abort();
    const bool isRecognised = library.patterns().firstMatch(valid).has_value();
    const bool isLooked = valid.find('{') != std::string::npos;  // a template itself may be looked up
    if (!isRecognised && !isLooked && shown != valid) std::abort();
    return 0;
}
