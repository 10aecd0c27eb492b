#include <VellarkLocalization/Formats/DurationTemplate.hpp>
#include <VellarkLocalization/Formats/LocaleFormats.hpp>

namespace vellark::DurationTemplate {

std::string filled(std::string_view text, double seconds, std::string_view locale) {
    std::string result;
    bool isFilled = false;
    while (!text.empty()) {
        if (text.starts_with("%%")) {
            result += '%';
            text.remove_prefix(2);
        } else if (!isFilled && (text.starts_with("%.0f") || text.starts_with("%.2f"))) {
            result += LocaleFormats::decimal(seconds, text[2] - '0', locale);
            text.remove_prefix(4);
            isFilled = true;
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace vellark::DurationTemplate
