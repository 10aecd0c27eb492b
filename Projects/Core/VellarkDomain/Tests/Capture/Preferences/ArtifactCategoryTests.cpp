#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using enum ArtifactCategory;

TEST(ArtifactCategory, knowsEachExtension) {
    struct Row {
        const char* extension;
        ArtifactCategory category;
        std::optional<ArtifactCategory> safeText;
        bool opensOriginal;
        std::optional<std::string_view> quickLook;
    };
    const Row rows[] = {
        {"md", documents, documents, true, {}},
        {"MD", other, documents, true, {}},
        {"qmd", documents, documents, true, {}},
        {"xhtml", documents, documents, true, {}},
        {"mdx", code, code, false, {}},
        {"svg", images, {}, true, {}},
        {"webm", videos, {}, true, {}},
        {"PDF", other, {}, true, {}},
        {"txt", code, code, true, {}},
        {"json", code, code, true, {}},
        {"jsonc", code, code, false, {}},
        {"zsh", code, code, false, {}},
        {"docx", other, {}, true, "Word"},
        {"DOCX", other, {}, true, {}},
        {"xlsm", other, {}, true, "Excel"},
        {"pptm", other, {}, true, "PowerPoint"},
        {"numbers", other, {}, true, "Numbers"},
        {"pages", other, {}, true, "Pages"},
        {"key", other, {}, true, "Keynote"},
        {"", other, {}, false, {}},
        {".md", other, {}, false, {}},
        {"m\u212Av", other, {}, true, {}},
        {"m\u212Ad", other, documents, true, {}},
        {"zip", other, {}, false, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ArtifactCategories::category(row.extension), row.category) << row.extension;
        EXPECT_EQ(ArtifactCategories::safeTextCategory(row.extension), row.safeText) << row.extension;
        EXPECT_EQ(ArtifactCategories::opensOriginal(row.extension), row.opensOriginal) << row.extension;
        EXPECT_EQ(ArtifactCategories::quickLookTitle(row.extension), row.quickLook) << row.extension;
    }
}

TEST(ArtifactCategory, ownsItsExtensionsAlone) {
    for (const ArtifactCategory category : allCases<ArtifactCategory>()) {
        for (const std::string_view extension : ArtifactCategories::fileExtensions(category)) {
            EXPECT_EQ(ArtifactCategories::category(extension), category == plans ? documents : category) << extension;
        }
    }
}

}  // namespace
}  // namespace vellark
