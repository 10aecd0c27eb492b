#include "Support/SampleBundle.hpp"
#include "Support/TemporaryDirectory.hpp"
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Arguments = std::vector<std::string>;

TEST(CatalogLibrary, textFallsBackStepByStep) {
    const CatalogLibrary library({
        {.language = "en",
         .messages = {{"가", "a-en"}, {"나", "b-en"}, {"수", "n-en"}},
         .plurals = {{"수", {{"one", "{0} one-en"}, {"other", "{0} other-en"}}}},
         .externalKeys = {}},
        {.language = "ru",
         .messages = {{"가", "a-ru"}, {"형", "plain-ru"}},
         .plurals = {{"수", {{"one", "{0} one-ru"}, {"other", "{0} other-ru"}}}, {"형", {{"one", "x"}}}, {"무", {}}},
         .externalKeys = {}},
    });
    struct Row {
        const char* key;
        std::optional<std::int64_t> count;
        const char* language;
        const char* text;
    };
    const Row rows[] = {
        {"가", {}, "ru", "a-ru"},         {"나", {}, "ru", "b-en"},
        {"다", {}, "ru", "다"},           {"가", {}, "pt", "a-en"},
        {"가", 1, "ru", "a-ru"},  // a count for a key without forms
        {"나", 1, "ru", "b-en"},          {"수", 21, "ru", "5 one-ru"},
        {"수", 5, "ru", "5 other-ru"},  // "many" is missing
        {"수", {}, "ru", "n-en"},         {"수", 1, "en", "5 one-en"},
        {"수", 1, "pt", "5 other-en"},  // the catalogue is English, the rule that of the language asked for
        {"형", 5, "ru", "plain-ru"},      {"무", 5, "ru", "무"},
        {"다{0}{1}", {}, "ru", "다5{1}"}, {"\xFF{0}", {}, "en", "\uFFFD5"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(library.text(row.key, Arguments{"5"}, row.count, row.language), row.text) << row.key << row.language;
    }
    EXPECT_EQ(CatalogLibrary({}).text("키 {0}", Arguments{"1"}, 1, "ko"), "키 1");
    EXPECT_EQ(CatalogLibrary({}).display("키 {0}", "ko"), "키 {0}");
}

TEST(CatalogLibrary, displayFindsTheKeyOfATextMadeEarlier) {
    const CatalogLibrary library(CatalogLibrary::read(testing::sampleBundle));
    struct Row {
        const char* text;
        const char* language;
        const char* shown;
    };
    const Row rows[] = {
        {"나중에 볼 것", "de", "Später prüfen"},
        {"Review later", "ja", "後で見る"},
        {"À revoir", "ko", "나중에 볼 것"},
        {"Edited {0} files", "ko", "파일 {0}개 수정"},
        {"Edited 1,234 files", "ko", "파일 1,234개 수정"},
        {"Edited 1,234 files", "de", "1,234 Dateien bearbeitet"},
        {"Edited 1 file", "fr", "1 fichier modifié"},
        {"Edited 0 files", "fr", "0 fichier modifié"},
        {"Edited 21 files", "ru", "Изменён 21 файл"},
        {"파일 2개 수정", "ru", "Изменено 2 файла"},
        {"파일 2000000개 수정", "es", "2000000 de archivos editados"},
        {"파일 2개 수정\n", "en", "Edited 2 files"},  // an expression's end stands before a last line end too
        {"파일 두개 수정", "en", "파일 두개 수정"},
        {"Edited  files", "ko", "Edited  files"},
        {"Edited 99999999999999999999 files", "ko", "Edited 99999999999999999999 files"},
        {"3 commits · 4 commits", "ko", "3 commits · 4 commits"},
        {"Marked 2 items as “Review later”", "ko", "2개를 ‘나중에 볼 것’으로 분류했습니다"},
        {"2개를 ‘Nicht nötig’으로 분류했습니다", "en", "Marked 2 items as “No need to review”"},
        {"Marked 2 items as “mine”", "ko", "2개를 ‘mine’으로 분류했습니다"},
        {"Ton Ruhiges Glas abgespielt", "ja", "静かなガラスのサウンドを再生しました"},
        {"Ton Später prüfen abgespielt", "en", "Played the Später prüfen sound"},  // not a value of this key
        {"Edited\n5 files", "ko", "Edited\n5 files"},
        {"", "ko", ""},
        {"\xFFof no kind", "ko", "\uFFFDof no kind"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(library.display(row.text, row.language), row.shown) << row.text << " " << row.language;
    }
}

TEST(CatalogLibrary, displayPassesOverAPatternWithoutItsQuantity) {
    const CatalogLibrary library(
        {{.language = "en",
          .messages = {{"긴 열쇠 {0}개", "Took {0} out"}, {"열쇠 {0}", "Took {0}"}},
          .plurals = {},
          .externalKeys = {"긴 열쇠 {0}개", "열쇠 {0}"}},
         {.language = "ko", .messages = {{"열쇠 {0}", "열쇠 {0}"}}, .plurals = {}, .externalKeys = {}}});
    EXPECT_EQ(library.display("Took 7 out", "ko"), "Took 7 out");  // Korean lacks the key, so the English form
    EXPECT_EQ(library.display("Took it out", "ko"), "열쇠 it out");
}

TEST(CatalogLibrary, displayLooksUpLongTextsButMatchesThemOnlyToALimit) {
    const std::string longKey(20'000, 'k');
    const std::string key = "{0}{1}{2}{3}{4} 끝끝";
    const CatalogLibrary library({
        {.language = "ko", .messages = {{key, key}}, .plurals = {}, .externalKeys = {}},
        {.language = "en",
         .messages = {{longKey, "short"}, {key, "{0}-{1}-{2}-{3}-{4} end"}},
         .plurals = {},
         .externalKeys = {key}},
    });
    EXPECT_EQ(library.display(longKey, "en"), "short");
    const auto sentence = [](std::size_t bytes) {
        const std::string most(1999, 'x');
        const std::string head = most + "-" + most + "-" + most + "-" + most + "-";
        return head + std::string(bytes - head.size() - 4, 'x') + " end";
    };
    EXPECT_EQ(library.display(sentence(8192), "ko"), std::string(8192 - 8, 'x') + " 끝끝");
    EXPECT_EQ(library.display(sentence(8193), "ko"), sentence(8193));
}

TEST(CatalogLibrary, firstOfEqualTranslationsWins) {
    const CatalogLibrary library({
        {.language = "ko", .messages = {{"계획", "계획"}, {"플랜", "플랜"}}, .plurals = {}, .externalKeys = {}},
        {.language = "en",
         .messages = {{"계획", "Plan"}, {"플랜", "Plan"}, {"종", "Kind"}, {"Plano", "Flat"}},
         .plurals = {{"종", {{"one", "Sort"}}}, {"고아", {{"one", "Orphan"}}}},
         .externalKeys = {}},
        {.language = "de", .messages = {{"플랜", "Kind"}, {"계획", "Plano"}}, .plurals = {}, .externalKeys = {}},
    });
    EXPECT_EQ(library.display("Plan", "ko"), "계획");
    EXPECT_EQ(library.display("Kind", "de"), "Kind");      // English comes before German
    EXPECT_EQ(library.display("Sort", "ko"), "Kind");      // a plural form leads to its key, too
    EXPECT_EQ(library.display("Plano", "en"), "Flat");     // an English key before any translation
    EXPECT_EQ(library.display("Orphan", "ko"), "Orphan");  // a key without a message is not reversed
}

TEST(CatalogLibrary, brokenFilesLeaveTheirLanguageOut) {
    const testing::TemporaryDirectory bundle;
    const std::pair<const char*, std::string> files[] = {
        {"ko", R"({"language":"ko","messages":{"가":"가"},"plurals":{},"externalKeys":[]})"},
        {"en", R"({"language":"en","messages":{"가":"a"},"plurals":{},"externalKeys":[]})"},
        {"ja", R"({"language":"ja","messages":{"가":"a"},"plurals":{}})"},
        {"es", R"({"language":"es","messages":{"가":1},"plurals":{},"externalKeys":[]})"},
        {"de", R"({"language":"de","messages":{"가":"a"},"plurals":{},"externalKeys":[]} x)"},
        {"fr", "{\"language\":\"fr\",\"messages\":{\"가\":\"\xFF\"},\"plurals\":{},\"externalKeys\":[]}"},
        {"ru", ""},
        {"mn", R"([])"},
        {"pt", R"({"language":"pt","messages":{},"plurals":{},"externalKeys":[]})"},  // no language of ours
        {"vi", R"({"language":"xx","messages":{"가":"x"},"plurals":{},"externalKeys":[]})"},
    };
    for (const auto& [code, content] : files) {
        testing::writeFile(bundle.path() / "Resources" / (std::string(code) + ".json"), content);
    }
    std::filesystem::create_directory(bundle.path() / "Resources" / "th.json");
    const CatalogLibrary library(CatalogLibrary::read(bundle.string()));
    EXPECT_EQ(library.languages(), (std::vector<std::string>{"en", "ko", "xx"}));
    EXPECT_EQ(library.text("가", {}, {}, "de"), "a");
    EXPECT_EQ(library.text("가", {}, {}, "xx"), "x");
    EXPECT_EQ(library.catalog("de"), nullptr);
    EXPECT_EQ(CatalogLibrary(CatalogLibrary::read((bundle / "none").string())).languages(), std::vector<std::string>());
}

}  // namespace
}  // namespace vellark
