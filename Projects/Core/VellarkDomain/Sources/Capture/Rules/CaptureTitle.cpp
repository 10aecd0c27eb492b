#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTitle.hpp>

namespace vellark::CaptureRules {

namespace {

std::string pageTitle(std::string_view html) {
    const std::string text = PythonHTMLTitle::titleText(html);
    std::string title;
    for (const std::string_view word : PythonText::split(text)) {
        if (!title.empty()) title += ' ';
        title += word;
    }
    return title;
}

std::string cut(std::string_view title) {
    return std::string(PythonText::prefix(title, maximumTitleScalars));
}

}  // namespace

std::string contentTitle(std::string_view content, const ContentTitleContext& context) {
    if (context.kind == "html") {
        const std::string title = pageTitle(content);
        if (!title.empty()) return cut(title);
    }
    return cut(HeadingScanner(content).next().value_or(context.fallback));
}

}  // namespace vellark::CaptureRules
