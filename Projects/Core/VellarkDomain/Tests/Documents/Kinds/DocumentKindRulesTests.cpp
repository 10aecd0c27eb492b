#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

namespace vellark {
namespace {

using V = DocumentKindVocabulary;
using Lists = std::vector<V::Words>;

std::size_t countOf(const auto& rows, V::Words std::remove_cvref_t<decltype(rows.front())>::*list) {
    std::size_t count = 0;
    for (const auto& row : rows) {
        count += (row.*list).size();
    }
    return count;
}

TEST(DocumentKindRules, haveTheSizesOfTheVocabulary) {
    EXPECT_EQ(DocumentKindRules::table().size(), 56U);
    EXPECT_EQ(DocumentKindRules::symbols().size(), 56U);
    EXPECT_EQ(DocumentKindRules::shared().size(), 19U);
    EXPECT_EQ(DocumentKindRules::weak().size(), 35U);
    EXPECT_EQ(DocumentKindRules::markers().size(), 47U);
    EXPECT_EQ(countOf(DocumentKindRules::table(), &V::KindRow::names), 1'672U);
    EXPECT_EQ(countOf(DocumentKindRules::table(), &V::KindRow::cues), 482U);
    EXPECT_EQ(countOf(DocumentKindRules::table(), &V::KindRow::generics), 0U);
    EXPECT_EQ(countOf(DocumentKindRules::table(), &V::KindRow::exclusions), 0U);
    EXPECT_EQ(countOf(DocumentKindRules::weak(), &V::WordRow::words), 152U);
    EXPECT_EQ(countOf(DocumentKindRules::markers(), &V::WordRow::words), 298U);
    using enum DocumentKind;
    for (const auto& [kind, names, cues] : {std::tuple(prd, 30U, 2U), {plan, 35U, 16U}, {meetingNotes, 30U, 20U}}) {
        const auto row = std::ranges::find(DocumentKindRules::table(), kind, &V::KindRow::kind);
        EXPECT_EQ(row->names.size(), names) << rawValue(kind);
        EXPECT_EQ(row->cues.size(), cues) << rawValue(kind);
    }
    EXPECT_EQ(DocumentKindRules::blocked().size(), 69U);
    EXPECT_EQ(DocumentKindRules::tailWords().size(), 82U);
    EXPECT_EQ(DocumentKindRules::mongolianTailWords().size(), 20U);
    EXPECT_EQ(DocumentKindRules::refinable().size(), 13U);
    EXPECT_EQ(DocumentKindRules::pathPatterns().size(), 18U);

    struct Row {
        DocumentKindLanguage language;
        std::size_t kinds;
        std::size_t nouns;
        std::size_t weak;
    };
    using enum DocumentKindLanguage;
    const Row rows[] = {{fr, 55, 625, 21}, {es, 55, 680, 17}, {de, 54, 488, 7}, {ru, 55, 483, 17},
                        {mn, 55, 323, 12}, {vi, 55, 456, 1},  {th, 54, 335, 1}};
    for (const Row& row : rows) {
        const auto& words = DocumentKindRules::words(row.language);
        EXPECT_EQ(words.size(), row.kinds) << rawValue(row.language);
        EXPECT_EQ(countOf(words, &V::LanguageRow::nouns), row.nouns) << rawValue(row.language);
        EXPECT_EQ(countOf(words, &V::LanguageRow::weak), row.weak) << rawValue(row.language);
    }
}

TEST(DocumentKindRules, haveRowsOfTheRightShape) {
    using enum DocumentKind;
    for (const V::KindRow& row : DocumentKindRules::table()) {
        const bool isSilent = row.kind == conversation;
        const bool hasNoTopics =
            isSilent || row.kind == exercises || row.kind == solutions || row.kind == errorNotes || row.kind == journal;
        EXPECT_EQ(row.names.empty(), isSilent) << rawValue(row.kind);
        EXPECT_EQ(row.cues.empty(), hasNoTopics) << rawValue(row.kind);
    }
    for (const V::SharedRow& row : DocumentKindRules::shared()) {
        EXPECT_GE(row.kinds.size(), 2U);
        EXPECT_TRUE(row.exclusions.empty());
    }
    for (const DocumentKindLanguage language : allCases<DocumentKindLanguage>()) {
        std::set<DocumentKind> kinds;
        for (const V::LanguageRow& row : DocumentKindRules::words(language)) {
            EXPECT_TRUE(kinds.insert(row.kind).second) << rawValue(language) << ' ' << rawValue(row.kind);
        }
        EXPECT_FALSE(kinds.contains(conversation) || kinds.contains(other)) << rawValue(language);
    }
}

// A word that two kinds claim belongs into a row of `shared`.
TEST(DocumentKindRules, haveNoWordTwice) {
    std::string duplicates;
    for (const std::string& word : DocumentKindLexicon::shared().duplicates()) {
        duplicates += word + ", ";
    }
    EXPECT_EQ(duplicates, "");
}

TEST(DocumentKindRules, knowWordsByTheirNormalisedForm) {
    const auto known = [](std::string_view text, auto test) { return test(DocumentKindMatcher::normalize(text)); };
    EXPECT_TRUE(known("Draft", DocumentKindRules::isTail));
    EXPECT_TRUE(known("v2", DocumentKindRules::isTail));
    EXPECT_TRUE(known("第3回", DocumentKindRules::isTail));
    EXPECT_TRUE(known("ноорог", DocumentKindRules::isTail));
    EXPECT_FALSE(known("plan", DocumentKindRules::isTail));
    EXPECT_TRUE(known("How-To", DocumentKindRules::isLabel));
    EXPECT_TRUE(known("on tap", DocumentKindRules::isEnglishHomograph));
    EXPECT_TRUE(DocumentKindRules::isArticle(U"la", DocumentKindLanguage::es));
    EXPECT_FALSE(DocumentKindRules::isArticle(U"la", DocumentKindLanguage::de));
    EXPECT_EQ(known("CODE-OF-CONDUCT", DocumentKindRules::kindOfStem), DocumentKind::guide);
    EXPECT_EQ(known("Readme first", DocumentKindRules::kindOfStem), std::nullopt);
}

TEST(DocumentKinds, areDescribed) {
    using enum DocumentKind;
    EXPECT_EQ(fromRawValue<DocumentKind>("meeting-notes"), meetingNotes);
    EXPECT_EQ(fromRawValue<DocumentKind>("meetingNotes"), std::nullopt);
    EXPECT_EQ(DocumentKinds::titleKey(meetingNotes), "회의록");
    EXPECT_EQ(DocumentKinds::titleKey(DocumentKindGroup::marketing), "마케팅·영업");
    EXPECT_EQ(DocumentKinds::group(conversation), std::nullopt);
    EXPECT_EQ(DocumentKinds::group(recipe), DocumentKindGroup::personal);
    EXPECT_EQ(DocumentKinds::symbol(other), std::nullopt);
    const auto choices = DocumentKinds::modelChoices();
    EXPECT_EQ(choices.size(), 56U);
    EXPECT_EQ(choices.back(), other);
    EXPECT_EQ(std::ranges::count(choices, conversation), 0);
    EXPECT_EQ(DocumentKinds::id(testPlan), "test-plan");
}

}  // namespace
}  // namespace vellark
