#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentLanguages.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>

namespace vellark {

namespace {

std::string_view pathOf(const DocumentRecord& document, const DocumentRevision* revision) {
    if (document.sourcePath) return *document.sourcePath;
    if (revision != nullptr) return revision->snapshotPath;
    return document.title;
}

bool isDockerfile(std::string_view name) {
    return name == "dockerfile" || name.starts_with("dockerfile.");
}

bool isMakefile(std::string_view name) {
    return name == "makefile" || name == "gnumakefile" || name == "bsdmakefile";
}

}  // namespace

DocumentContentFormat DocumentContentFormat::resolve(const DocumentRecord& document, const DocumentRevision* revision) {
    const std::string_view path = pathOf(document, revision);
    const std::string extension = UnicodeCase::lower(FilePath::pathExtension(path));
    const std::string name = UnicodeCase::lower(FilePath::lastComponent(path));

    if (document.kind == "html" || ArtifactCategories::isHTMLExtension(extension)) return html();
    if (ArtifactCategories::isMarkdownExtension(extension)) return markdown();
    if (name == "cmakelists.txt") return code("cmake");
    if (extension == "txt" || extension == "text") return code("plaintext");
    if (document.kind != "text" && document.category() != ArtifactCategory::code) return markdown();
    if (isDockerfile(name)) return code("dockerfile");
    if (isMakefile(name)) return code("makefile");
    if (extension.empty()) return code(std::nullopt);
    return code(std::string(DocumentLanguages::language(extension)));
}

bool DocumentContentFormat::isProse() const {
    const auto* code = std::get_if<Code>(&value);
    return code == nullptr || (code->language && isPlainTextLanguage(*code->language));
}

bool isPlainTextLanguage(std::string_view language) {
    return std::ranges::find(plainTextLanguages, language) != plainTextLanguages.end();
}

}  // namespace vellark
