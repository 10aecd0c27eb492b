#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>
#include <VellarkLocalization/PluralCategory.hpp>

#include <algorithm>

namespace vellark {

namespace {

using Messages = std::unordered_map<std::string_view, std::string_view>;

std::optional<std::string_view> valueIn(const Messages& messages, std::string_view key) {
    const auto found = messages.find(key);
    if (found == messages.end()) return std::nullopt;
    return found->second;
}

// Arguments that are themselves one of a few texts of ours, and so are translated with their sentence.
struct EnumeratedArgument {
    std::string_view key;
    std::size_t argument;
    std::span<const std::string_view> values;
};

constexpr std::string_view reviewMarks[] = {"나중에 볼 것", "안 봐도 됨"};
constexpr std::string_view sounds[] = {"잔잔한 유리", "부드러운 완료", "가벼운 알림", "투명한 울림", "또렷한 신호"};

constexpr EnumeratedArgument enumeratedArguments[] = {
    {"{0}개를 ‘{1}’으로 분류했습니다", 1, reviewMarks},
    {"{0} 사운드를 재생했습니다", 0, sounds},
};

}  // namespace

CatalogLibrary::CatalogLibrary(std::vector<LocalizationCatalog> catalogs) {
    for (LocalizationCatalog& catalog : catalogs) {
        std::erase_if(entries_, [&](const auto& entry) { return entry->catalog.language == catalog.language; });
        auto entry = std::make_unique<Entry>();
        entry->catalog = std::move(catalog);
        entry->messages.insert(entry->catalog.messages.begin(), entry->catalog.messages.end());
        entries_.push_back(std::move(entry));
    }
    english_ = entry("en");
}

std::vector<LocalizationCatalog> CatalogLibrary::read(std::string_view bundle) {
    std::vector<LocalizationCatalog> catalogs;
    for (const std::string_view code : AppLanguages::supportedCodes()) {
        const auto file = LocalizationBundle::resource(bundle, std::string(code) + ".json");
        if (!file) continue;
        auto catalog = readRecord<LocalizationCatalog>(*file);
        if (catalog) catalogs.push_back(*std::move(catalog));
    }
    return catalogs;
}

const CatalogLibrary::Entry* CatalogLibrary::entry(std::string_view language) const {
    for (const auto& entry : entries_) {
        if (entry->catalog.language == language) return entry.get();
    }
    return nullptr;
}

const LocalizationCatalog* CatalogLibrary::catalog(std::string_view language) const {
    const Entry* found = entry(language);
    return found == nullptr ? nullptr : &found->catalog;
}

std::vector<std::string> CatalogLibrary::languages() const {
    std::vector<std::string> languages;
    for (const auto& entry : entries_) {
        languages.push_back(entry->catalog.language);
    }
    std::ranges::sort(languages);
    return languages;
}

std::string_view CatalogLibrary::templateOf(std::string_view key, std::optional<std::int64_t> count,
                                            std::string_view language) const {
    const Entry* chosen = entry(language);
    if (chosen == nullptr) chosen = english_;
    if (chosen == nullptr) return key;
    if (count) {
        const auto& plurals = chosen->catalog.plurals;
        if (const auto forms = plurals.find(key); forms != plurals.end()) {
            auto form = forms->second.find(rawValue(PluralCategories::cardinal(*count, language)));
            if (form == forms->second.end()) form = forms->second.find(rawValue(PluralCategory::other));
            if (form != forms->second.end()) return form->second;
            return valueIn(chosen->messages, key).value_or(key);
        }
    }
    if (const auto message = valueIn(chosen->messages, key)) return *message;
    if (english_ != nullptr) return valueIn(english_->messages, key).value_or(key);
    return key;
}

std::string CatalogLibrary::text(std::string_view key, std::span<const std::string> arguments,
                                 std::optional<std::int64_t> count, std::string_view language) const {
    const std::string_view found = templateOf(key, count, language);
    // Only the key itself, when nothing was found, can be ill-formed: catalogues are read strictly.
    if (found.data() == key.data() && !UTF8::isValid(key)) {
        return text(UTF8::replacingInvalid(key), arguments, count, language);
    }
    return MessageTemplate::filled(found, arguments);
}

std::vector<const LocalizationCatalog*> CatalogLibrary::supportedCatalogs() const {
    std::vector<const LocalizationCatalog*> catalogs;
    for (const std::string_view code : AppLanguages::supportedCodes()) {
        if (const LocalizationCatalog* found = catalog(code)) catalogs.push_back(found);
    }
    return catalogs;
}

CatalogLibrary::Reverse CatalogLibrary::makeReverse() const {
    Reverse reverse;
    const std::vector<const LocalizationCatalog*> catalogs = supportedCatalogs();
    if (english_ != nullptr) {
        for (const auto& [key, message] : english_->catalog.messages) {
            reverse.keys.emplace(key, key);  // a source text stands for itself, whatever it means elsewhere
        }
        reverse.patterns = MessagePatterns::make(english_->catalog, catalogs);
    }
    for (const LocalizationCatalog* catalog : catalogs) {
        for (const auto& [key, message] : catalog->messages) {
            reverse.keys.emplace(message, key);
            const auto plurals = catalog->plurals.find(key);
            if (plurals == catalog->plurals.end()) continue;
            for (const auto& [category, form] : plurals->second) {
                reverse.keys.emplace(form, key);
            }
        }
    }
    return reverse;
}

const CatalogLibrary::Reverse& CatalogLibrary::reverse() const {
    std::call_once(reverseMade_, [this] { reverse_ = makeReverse(); });
    return reverse_;
}

bool CatalogLibrary::isTextOf(std::string_view key, std::string_view text) const {
    return text == key || std::ranges::any_of(supportedCatalogs(), [&](const LocalizationCatalog* catalog) {
               const auto message = catalog->messages.find(key);
               return message != catalog->messages.end() && message->second == text;
           });
}

void CatalogLibrary::translateEnumerated(MessagePatterns::Match& match, std::string_view language) const {
    for (const EnumeratedArgument& row : enumeratedArguments) {
        if (row.key != match.key || row.argument >= match.arguments.size()) continue;
        std::string& argument = match.arguments[row.argument];
        const auto value =
            std::ranges::find_if(row.values, [&](std::string_view source) { return isTextOf(source, argument); });
        if (value != row.values.end()) argument = text(*value, {}, {}, language);
    }
}

std::string CatalogLibrary::display(std::string_view text, std::string_view language) const {
    if (!UTF8::isValid(text)) return display(UTF8::replacingInvalid(text), language);
    const Reverse& back = reverse();
    if (const auto key = valueIn(back.keys, text)) return this->text(*key, {}, {}, language);
    if (text.size() > maximumPatternTextBytes) return std::string(text);
    auto match = back.patterns.firstMatch(text);
    if (!match) return std::string(text);
    translateEnumerated(*match, language);
    return this->text(match->key, match->arguments, match->count, language);
}

}  // namespace vellark
