#include "Support/SampleBundle.hpp"
#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/Formats/LocaleFormats.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>
#include <VellarkLocalization/PluralCategory.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

// What holds for any set of catalogues that belongs together: for the module's own, and for the sample of the tests.

namespace vellark {
namespace {

using Categories = std::set<std::string>;

struct CatalogSet {
    const char* name;
    std::string bundle;
    bool isComplete;  // has every language
};

void PrintTo(const CatalogSet& set, std::ostream* stream) {
    *stream << set.name;
}

class CatalogFiles : public ::testing::TestWithParam<CatalogSet> {
protected:
    void SetUp() override {
        if (library.languages().empty()) GTEST_SKIP() << "no catalogues in " << GetParam().bundle;
    }

    [[nodiscard]] std::vector<std::string> languages() const {
        std::vector<std::string> present;
        for (const std::string_view code : AppLanguages::supportedCodes()) {
            if (library.catalog(code) != nullptr) present.emplace_back(code);
        }
        return present;
    }

    [[nodiscard]] const LocalizationCatalog& korean() const { return *library.catalog("ko"); }
    [[nodiscard]] const LocalizationCatalog& english() const { return *library.catalog("en"); }

    const CatalogLibrary library{CatalogLibrary::read(GetParam().bundle)};
};

// All that must be the same in a text and its translation: "{0}" by number and "%.0f" by form.
std::vector<std::string> placeholdersOf(std::string_view text) {
    std::vector<std::string> found;
    for (const std::size_t argument : MessageTemplate::parse(text).arguments) {
        found.push_back(std::to_string(argument));
    }
    for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
        found.emplace_back(text.substr(at, 4));
    }
    std::ranges::sort(found);
    return found;
}

// Every category that some whole number has in the language.
Categories categoriesOf(std::string_view language) {
    Categories categories;
    for (std::int64_t count = 0; count <= 200; ++count) {
        categories.emplace(rawValue(PluralCategories::cardinal(count, language)));
        categories.emplace(rawValue(PluralCategories::cardinal(1'000'000 * count, language)));
    }
    return categories;
}

// The argument of a key that is a quantity, as the translators' notes have it: the one before a Korean counter, or the
// first one of a key with plural forms.
std::optional<std::size_t> countArgumentOf(const std::string& key, const LocalizationCatalog& english) {
    for (std::size_t argument = 0; argument < 10; ++argument) {
        for (const char* counter : {"개", "명", "일"}) {
            if (key.find("{" + std::to_string(argument) + "}" + counter) != std::string::npos) return argument;
        }
    }
    if (english.plurals.contains(key)) return 0;
    return std::nullopt;
}

TEST_P(CatalogFiles, everyLanguageHasEveryKey) {
    if (GetParam().isComplete) {
        const auto codes = AppLanguages::supportedCodes();
        EXPECT_EQ(languages(), std::vector<std::string>(codes.begin(), codes.end()));
    }
    for (const std::string& language : languages()) {
        const LocalizationCatalog& catalog = *library.catalog(language);
        for (const auto& [key, text] : korean().messages) {
            EXPECT_TRUE(catalog.messages.contains(key)) << language << " lacks " << key;
        }
        for (const auto& [key, text] : catalog.messages) {
            EXPECT_TRUE(korean().messages.contains(key)) << language << " has a key of its own: " << key;
            EXPECT_FALSE(text.empty()) << language << " " << key;
        }
        EXPECT_EQ(catalog.externalKeys, korean().externalKeys) << language;
    }
    for (const auto& [key, text] : korean().messages) {
        EXPECT_EQ(key, text) << "Korean texts are their own keys";
    }
    for (const std::string& key : korean().externalKeys) {
        EXPECT_TRUE(korean().messages.contains(key)) << key;
    }
}

TEST_P(CatalogFiles, placeholdersAgree) {
    for (const std::string& language : languages()) {
        const LocalizationCatalog& catalog = *library.catalog(language);
        for (const auto& [key, text] : catalog.messages) {
            EXPECT_EQ(placeholdersOf(text), placeholdersOf(key)) << language << " " << key;
        }
        for (const auto& [key, forms] : catalog.plurals) {
            for (const auto& [category, form] : forms) {
                EXPECT_EQ(placeholdersOf(form), placeholdersOf(key)) << language << " " << key << " " << category;
            }
        }
    }
}

TEST_P(CatalogFiles, pluralFormsAreThoseOfTheLanguage) {
    for (const std::string& language : languages()) {
        const LocalizationCatalog& catalog = *library.catalog(language);
        const Categories categories = categoriesOf(language);
        for (const auto& [key, forms] : catalog.plurals) {
            EXPECT_TRUE(catalog.messages.contains(key)) << language << " " << key;
            Categories present;
            for (const auto& [category, form] : forms) {
                present.insert(category);
            }
            EXPECT_EQ(present, categories) << language << " " << key;
        }
        if (categories.size() == 1) continue;
        for (const auto& [key, forms] : english().plurals) {
            EXPECT_TRUE(catalog.plurals.contains(key)) << language << " has no plural forms of " << key;
        }
    }
}

TEST_P(CatalogFiles, noTextOfALanguageStandsForTwoKeys) {
    for (const std::string& language : languages()) {
        std::map<std::string, std::string> keys;
        for (const auto& [key, text] : library.catalog(language)->messages) {
            const auto [known, isNew] = keys.emplace(text, key);
            EXPECT_TRUE(isNew) << language << ": " << text << " means " << known->second << " and " << key;
        }
    }
}

// One finished sentence, told in any language with the same words and numbers put in.
struct Sentence {
    std::string key;
    std::vector<std::string> keysOrTexts;  // an argument that is a key is put in as its translation
    std::optional<std::int64_t> count;
};

std::vector<Sentence> sentencesOf(const LocalizationCatalog& english, const std::string& writer) {
    static const std::map<std::string, std::pair<std::size_t, std::string>> enumerated = {
        {"{0}개를 ‘{1}’으로 분류했습니다", {1, "나중에 볼 것"}}, {"{0} 사운드를 재생했습니다", {0, "잔잔한 유리"}}};
    std::vector<Sentence> sentences;
    for (const std::string& key : english.externalKeys) {
        const auto countArgument = countArgumentOf(key, english);
        const auto placeholders = MessageTemplate::parse(key).arguments;
        const std::size_t argumentCount = placeholders.empty() ? 0 : std::ranges::max(placeholders) + 1;
        for (const std::int64_t number : {0, 1, 2, 5, 11, 21, 1234, 1'000'000, 1'234'567}) {
            Sentence sentence{.key = key, .keysOrTexts = {}, .count = {}};
            for (std::size_t argument = 0; argument < argumentCount; ++argument) {
                sentence.keysOrTexts.push_back("Beispiel " + std::to_string(argument) + " 예");
            }
            if (const auto row = enumerated.find(key); row != enumerated.end()) {
                sentence.keysOrTexts[row->second.first] = row->second.second;
            }
            if (countArgument) {
                sentence.count = number;
                sentence.keysOrTexts[*countArgument] = LocaleFormats::number(number, writer);
            }
            sentences.push_back(std::move(sentence));
            if (!countArgument) break;
        }
    }
    return sentences;
}

TEST_P(CatalogFiles, finishedSentencesComeBackInEveryLanguage) {
    const auto told = [&](const Sentence& sentence, const std::string& language) {
        std::vector<std::string> arguments;
        for (const std::string& argument : sentence.keysOrTexts) {
            arguments.push_back(library.text(argument, {}, {}, language));
        }
        return library.text(sentence.key, arguments, sentence.count, language);
    };
    for (const std::string& writer : languages()) {
        for (const Sentence& sentence : sentencesOf(english(), writer)) {
            for (const std::string& reader : languages()) {
                EXPECT_EQ(library.display(told(sentence, writer), reader), told(sentence, reader))
                    << writer << " to " << reader << ": " << told(sentence, writer);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sets, CatalogFiles,
                         ::testing::Values(CatalogSet{"Sample", testing::sampleBundle, false},
                                           CatalogSet{"Resources", VELLARK_CATALOGS, true}),
                         [](const auto& set) { return std::string(set.param.name); });

}  // namespace
}  // namespace vellark
