#include <VellarkDomain/Capture/HTML/HTMLEntities.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark::PythonHTMLTitle {

std::string unescape(std::string_view text) {
    std::string repaired = UTF8::replacingInvalid(text);
    if (repaired.find('&') == std::string::npos) return repaired;
    std::string result;
    result.reserve(repaired.size());
    HTMLEntities::appendUnescaped(result, repaired);
    return result;
}

std::string titleText(std::string_view html) {
    constexpr std::string_view title = "title";
    std::string result;
    bool inside = false;
    Parser parser(html);
    while (const Event* event = parser.next()) {
        if (event->kind == EventKind::startTag && event->text == title) inside = true;
        if (event->kind == EventKind::endTag && event->text == title && inside) break;
        if (event->kind == EventKind::data && inside) result += event->text;
    }
    return result;
}

}  // namespace vellark::PythonHTMLTitle
