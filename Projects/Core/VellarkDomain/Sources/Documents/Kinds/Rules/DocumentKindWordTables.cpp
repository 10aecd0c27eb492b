#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>
#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <algorithm>
#include <array>

// The word lists stand in one file for each language, so that each can be read and mended by who speaks it. Here they
// are put together kind by kind, in the order Korean, English, Japanese, Chinese.

namespace vellark::DocumentKindRules {

namespace {

using Vocabulary = DocumentKindVocabulary;

void appendWords(Words& words, std::string_view list) {
    constexpr std::string_view separator = ", ";
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(separator), list.size());
        words.push_back(list.substr(0, end));
        list.remove_prefix(std::min(end + separator.size(), list.size()));
    }
}

Words split(std::string_view list) {
    Words words;
    appendWords(words, list);
    return words;
}

// The words of one kind in all base languages, of the list that the member names.
Words baseWords(DocumentKind kind, std::string_view KindWords::Base::*list) {
    Words words;
    for (const auto rows : {KindWords::korean(), KindWords::english(), KindWords::japanese(), KindWords::chinese()}) {
        for (const KindWords::Base& row : rows) {
            if (row.kind == kind) appendWords(words, row.*list);
        }
    }
    return words;
}

std::vector<Vocabulary::WordRow> baseRows(std::string_view KindWords::Base::*list) {
    std::vector<Vocabulary::WordRow> rows;
    for (const DocumentKind kind : allCases<DocumentKind>()) {
        Words words = baseWords(kind, list);
        if (!words.empty()) rows.push_back({kind, std::move(words)});
    }
    return rows;
}

std::span<const KindWords::Layered> layered(DocumentKindLanguage language) {
    switch (language) {
        case DocumentKindLanguage::fr:
            return KindWords::french();
        case DocumentKindLanguage::es:
            return KindWords::spanish();
        case DocumentKindLanguage::de:
            return KindWords::german();
        case DocumentKindLanguage::ru:
            return KindWords::russian();
        case DocumentKindLanguage::mn:
            return KindWords::mongolian();
        case DocumentKindLanguage::vi:
            return KindWords::vietnamese();
        case DocumentKindLanguage::th:
            return KindWords::thai();
    }
    return {};
}

}  // namespace

const std::vector<Vocabulary::KindRow>& table() {
    static const auto rows = [] {
        std::vector<Vocabulary::KindRow> result;
        for (const DocumentKind kind : allCases<DocumentKind>()) {
            if (kind == DocumentKind::other) continue;
            result.push_back({.kind = kind,
                              .symbol = DocumentKinds::symbol(kind),
                              .names = baseWords(kind, &KindWords::Base::names),
                              .cues = baseWords(kind, &KindWords::Base::cues)});
        }
        return result;
    }();
    return rows;
}

const std::vector<Vocabulary::SharedRow>& shared() {
    static const auto rows = [] {
        std::vector<Vocabulary::SharedRow> result;
        for (const KindWords::Shared& row : KindWords::shared()) {
            result.push_back({.kinds = {row.kinds.begin(), row.kinds.end()},
                              .names = split(row.names),
                              .generics = split(row.generics),
                              .cues = split(row.cues)});
        }
        return result;
    }();
    return rows;
}

const std::vector<Vocabulary::WordRow>& weak() {
    static const auto rows = baseRows(&KindWords::Base::weak);
    return rows;
}

const std::vector<Vocabulary::WordRow>& markers() {
    static const auto rows = baseRows(&KindWords::Base::markers);
    return rows;
}

const std::map<DocumentKind, std::string_view>& symbols() {
    static const auto result = [] {
        std::map<DocumentKind, std::string_view> symbols;
        for (const Vocabulary::KindRow& row : table()) {
            if (row.symbol) symbols.emplace(row.kind, *row.symbol);
        }
        return symbols;
    }();
    return result;
}

const std::vector<Vocabulary::LanguageRow>& words(DocumentKindLanguage language) {
    using Rows = std::vector<Vocabulary::LanguageRow>;
    static const auto tables = [] {
        std::array<Rows, caseTable<DocumentKindLanguage>.size()> result;
        for (const DocumentKindLanguage one : allCases<DocumentKindLanguage>()) {
            Rows& rows = result[static_cast<std::size_t>(one)];
            for (const KindWords::Layered& row : layered(one)) {
                rows.push_back({row.kind, split(row.nouns), split(row.weak)});
            }
            std::ranges::stable_sort(rows, {}, &Vocabulary::LanguageRow::kind);
        }
        return result;
    }();
    return tables[static_cast<std::size_t>(language)];
}

const Vocabulary& vocabulary() {
    static const auto result = [] {
        Vocabulary all = {.shared = shared(),
                          .table = table(),
                          .weak = weak(),
                          .markers = markers(),
                          .blocked = blocked(),
                          .prepositions = prepositions()};
        for (const DocumentKindLanguage language : allCases<DocumentKindLanguage>()) {
            all.languages.push_back({language, words(language), complements(language), exclusions(language)});
        }
        return all;
    }();
    return result;
}

}  // namespace vellark::DocumentKindRules
