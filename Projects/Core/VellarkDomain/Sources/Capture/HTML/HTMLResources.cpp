#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>

#include <algorithm>
#include <array>

namespace vellark::CaptureRules {

namespace {

constexpr std::array<std::string_view, 4> rawTextElements = {"script", "template", "noscript", "textarea"};

struct ReferenceAttribute {
    std::string_view tag;
    std::string_view attribute;
};

constexpr std::array<ReferenceAttribute, 12> referenceAttributes = {{
    {"img", "src"},
    {"script", "src"},
    {"iframe", "src"},
    {"embed", "src"},
    {"source", "src"},
    {"track", "src"},
    {"audio", "src"},
    {"video", "src"},
    {"input", "src"},
    {"link", "href"},
    {"video", "poster"},
    {"object", "data"},
}};

bool isReference(std::string_view tag, std::string_view attribute) {
    return std::any_of(referenceAttributes.begin(), referenceAttributes.end(),
                       [&](const ReferenceAttribute& row) { return row.attribute == attribute && row.tag == tag; });
}

struct ReferenceCollector {
    std::vector<HTMLResourceReference> references;

    void startTag(std::string_view name, std::span<const PythonHTMLTitle::Attribute> attributes) {
        for (const PythonHTMLTitle::Attribute& attribute : attributes) {
            if (!attribute.value || !isReference(name, attribute.name)) continue;
            const std::string_view reference = PythonText::strip(*attribute.value);
            if (!reference.empty()) references.push_back({std::string(reference), std::string(name)});
        }
    }

    void selfClosingTag(std::string_view name, std::span<const PythonHTMLTitle::Attribute> attributes) {
        startTag(name, attributes);
    }

    void endTag(std::string_view) {}
    void data(std::string_view) {}
};

}  // namespace

std::vector<HTMLResourceReference> htmlResourceReferences(std::string_view html) {
    ReferenceCollector collector;
    PythonHTMLTitle::Parser(html, rawTextElements).run(collector);
    return std::move(collector.references);
}

}  // namespace vellark::CaptureRules
