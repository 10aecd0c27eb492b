// Look-up of messages beside gettext and ICU's message formats, and recognition of finished sentences beside a plain
// loop over ICU expressions, with catalogues of made-up words: 13 languages, 400 keys, 80 of them external.

#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>
#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>
#include <VellarkLocalization/LocalizationController.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>

#include <benchmark/benchmark.h>
#include <libintl.h>
#include <unicode/msgfmt.h>
#include <unicode/reldatefmt.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using vellark::CatalogLibrary;
using vellark::LocalizationCatalog;

constexpr int keyCount = 400;
constexpr int externalCount = 80;

// Words of about the length and bytes of real ones, another for each language and number.
std::string word(std::size_t language, int number) {
    static const std::vector<std::vector<std::string>> syllables = {
        {"가", "나", "다", "문", "서", "기", "록", "보"},
        {"do", "cu", "ment", "re", "view", "la", "ter", "list"},
        {"文", "書", "を", "編", "集", "件", "の", "後"},
        {"до", "ку", "мен", "то", "ва", "ние", "ре", "ли"}};
    const auto& set = syllables[language % syllables.size()];
    std::string text;
    auto seed = static_cast<unsigned>(number) * 2'654'435'761U + static_cast<unsigned>(language) * 40'503U;
    for (int index = 0; index < 4; ++index) {
        text += set[(seed >> (3 * index + 5)) % set.size()];
    }
    return text;
}

std::string keyOf(int number) {
    const std::string text = word(0, number) + " " + word(0, number + 1'000) + std::to_string(number);
    return number < externalCount ? text + " {0}개 " + word(0, number + 2'000) : text;
}

std::string messageOf(std::size_t language, int number) {
    if (language == 0) return keyOf(number);
    const std::string text = word(language, number) + std::to_string(language) + std::to_string(number);
    if (number >= externalCount) return text + " " + word(language, number + 1'000);
    if (number % 3 == 0) return "{0} " + text + " " + word(language, number + 2'000);
    return text + " {0} " + word(language, number + 2'000);
}

std::vector<LocalizationCatalog> makeCatalogs() {
    std::vector<LocalizationCatalog> catalogs;
    for (const std::string_view code : vellark::AppLanguages::supportedCodes()) {
        LocalizationCatalog catalog{.language = std::string(code)};
        for (int number = 0; number < keyCount; ++number) {
            catalog.messages.emplace(keyOf(number), messageOf(catalogs.size(), number));
            if (number < externalCount) catalog.externalKeys.push_back(keyOf(number));
        }
        catalogs.push_back(std::move(catalog));
    }
    return catalogs;
}

const CatalogLibrary& library() {
    static const CatalogLibrary shared(makeCatalogs());
    return shared;
}

// Lines of a shelf that no message made, about 60 characters each: half of them begin as some message does.
const std::vector<std::string>& foreignTexts() {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made;
        for (int number = 0; number < 256; ++number) {
            const auto language = static_cast<std::size_t>(number) % 13;
            std::string text = number % 2 == 0 ? messageOf(language, number % keyCount).substr(0, 12) : "";
            while (vellark::UTF8::scalarCount(text) < 60)
                text += word(language, number + 7'000) + " ";
            made.push_back(vellark::UTF8::replacingInvalid(text));
        }
        return made;
    }();
    return texts;
}

const std::vector<std::string>& finishedTexts() {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made;
        for (int number = 0; number < 256; ++number) {
            const std::vector<std::string> arguments = {std::to_string(number)};
            const auto codes = vellark::AppLanguages::supportedCodes();
            made.push_back(library().text(keyOf(number % externalCount), arguments, {},
                                          codes[static_cast<std::size_t>(number) % codes.size()]));
        }
        return made;
    }();
    return texts;
}

// The plain way: each expression in its turn, until one matches.
class ExpressionLoop {
public:
    ExpressionLoop() {
        for (const auto& pattern : library().patterns().list()) {
            std::string expression = "^";
            for (std::size_t index = 0; index < pattern.literals.size(); ++index) {
                if (index > 0) expression += "(.{0,2048}?)";
                expression += pattern.literals[index];  // made of letters, digits and blanks
            }
            expressions_.emplace_back(expression + "$");
        }
    }

    [[nodiscard]] std::optional<std::string> key(const std::string& text) const {
        const vellark::RegexText prepared(text);
        for (std::size_t number = 0; number < expressions_.size(); ++number) {
            vellark::RegexMatcher matcher(expressions_[number], prepared);
            if (matcher.find() == vellark::RegexOutcome::match) return library().patterns().list()[number].key;
        }
        return std::nullopt;
    }

private:
    std::vector<vellark::Regex> expressions_;
};

const ExpressionLoop& expressionLoop() {
    static const ExpressionLoop loop;
    return loop;
}

// A catalogue in gettext's binary form: a header, tables of lengths and offsets, the texts (sorted by key).
std::string gettextFile(const LocalizationCatalog& catalog) {
    std::string file;
    const auto put = [&](std::size_t value) {
        const auto word = static_cast<std::uint32_t>(value);
        file.append(reinterpret_cast<const char*>(&word), sizeof word);
    };
    const std::string header = "Content-Type: text/plain; charset=UTF-8\n";
    std::vector<std::pair<std::string, std::string>> entries = {{"", header}};
    entries.insert(entries.end(), catalog.messages.begin(), catalog.messages.end());
    const std::size_t tables = 28;
    std::size_t offset = tables + 16 * entries.size();
    std::string texts;
    for (const std::size_t word : {std::size_t{0x950412DE}, std::size_t{0}, entries.size(), tables,
                                   tables + 8 * entries.size(), std::size_t{0}, std::size_t{0}}) {
        put(word);
    }
    const auto table = [&](auto member) {
        for (const auto& entry : entries) {
            put((entry.*member).size());
            put(offset);
            offset += (entry.*member).size() + 1;
            texts.append(entry.*member).append(1, '\0');
        }
    };
    table(&std::pair<std::string, std::string>::first);
    table(&std::pair<std::string, std::string>::second);
    return file + texts;
}

// Puts the made catalogues where both sides look for theirs: our bundle, gettext's English.
class Files {
public:
    Files() : root_(std::filesystem::temp_directory_path() / ("vellark-benchmark-" + std::to_string(::getpid()))) {
        const auto catalogs = makeCatalogs();
        std::filesystem::create_directories(root_ / "bundle" / "Resources");
        std::filesystem::create_directories(root_ / "en" / "LC_MESSAGES");
        std::ofstream(root_ / "en/LC_MESSAGES/vellark.mo", std::ios::binary) << gettextFile(catalogs[1]);
        for (const LocalizationCatalog& catalog : catalogs) {
            std::ofstream(root_ / "bundle/Resources" / (catalog.language + ".json"), std::ios::binary)
                << vellark::writeRecord(catalog).value();
        }
        vellark::LocalizationBundle::setDirectory((root_ / "bundle").string());
        vellark::LocalizationController::shared().apply("en");
        std::setlocale(LC_ALL, "C.UTF-8");
        ::setenv("LANGUAGE", "en", 1);
        ::bindtextdomain("vellark", root_.c_str());
        ::bind_textdomain_codeset("vellark", "UTF-8");
    }
    ~Files() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }

private:
    std::filesystem::path root_;
};

// Runs an operation over the values of a list in turn.
template <class Values, class Operation>
void over(benchmark::State& state, const Values& values, Operation operation) {
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(operation(values[index]));
        if (++index == values.size()) index = 0;
    }
    state.SetItemsProcessed(state.iterations());
}

std::vector<std::string> plainKeys() {
    std::vector<std::string> keys;
    for (int number = externalCount; number < keyCount; ++number) {
        keys.push_back(keyOf(number));
    }
    return keys;
}

void oursText(benchmark::State& state) {
    over(state, plainKeys(), [](const std::string& key) { return vellark::L10n::text(key); });
}

void peerGettext(benchmark::State& state) {
    over(state, plainKeys(), [](const std::string& key) { return std::string(::dgettext("vellark", key.c_str())); });
}

void oursTextWithArgument(benchmark::State& state) {
    const std::string key = keyOf(1);
    over(state, std::vector{12, 345, 6'789}, [&](int count) {
        return vellark::L10n::text(key, {.arguments = {vellark::L10n::argument(count)}, .count = count});
    });
}

void peerMessageFormat(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const auto pattern =
        icu::UnicodeString::fromUTF8("re view {0, plural, one {# document} other {# documents}} later");
    const icu::MessageFormat format(pattern, icu::Locale("en"), status);
    over(state, std::vector{12, 345, 6'789}, [&](int count) {
        const icu::Formattable argument(count);
        icu::UnicodeString text;
        icu::FieldPosition position;
        format.format(&argument, 1, text, position, status);
        std::string result;
        return text.toUTF8String(result);
    });
}

void oursDisplayForeign(benchmark::State& state) {
    over(state, foreignTexts(), [](const std::string& text) { return vellark::L10n::display(text); });
}

void peerLoopForeign(benchmark::State& state) {
    over(state, foreignTexts(), [](const std::string& text) { return expressionLoop().key(text); });
}

void oursDisplayFinished(benchmark::State& state) {
    over(state, finishedTexts(), [](const std::string& text) { return vellark::L10n::display(text); });
}

void peerLoopFinished(benchmark::State& state) {
    over(state, finishedTexts(), [](const std::string& text) { return expressionLoop().key(text); });
}

void oursShortRelative(benchmark::State& state) {
    over(state, std::vector{5, 300, 7'200},
         [](int ago) { return vellark::L10n::shortRelative(vellark::Date{1e9 - ago}, vellark::Date{1e9}, "en"); });
}

void peerRelativeFormatter(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::RelativeDateTimeFormatter formatter(icu::Locale("en"), nullptr, UDAT_STYLE_SHORT,
                                                   UDISPCTX_CAPITALIZATION_NONE, status);
    over(state, std::vector{5, 5, 2}, [&](int ago) {
        icu::UnicodeString text;
        formatter.format(-ago, UDAT_REL_UNIT_MINUTE, text, status);
        std::string result;
        return text.toUTF8String(result);
    });
}

// Both sides must give the same before the clock starts.
void check() {
    bool isRight = true;
    for (const std::string& key : plainKeys()) {
        isRight = isRight && vellark::L10n::text(key) == ::dgettext("vellark", key.c_str());
    }
    for (const auto* texts : {&foreignTexts(), &finishedTexts()}) {
        for (const std::string& text : *texts) {
            const auto match = library().patterns().firstMatch(text);
            const auto key = expressionLoop().key(text);
            isRight = isRight && match.has_value() == key.has_value() && (!key || match->key == *key);
            isRight = isRight && key.has_value() == (texts == &finishedTexts());
        }
    }
    if (isRight) return;
    std::cerr << "the sides of the comparison differ\n";
    std::exit(1);
}

BENCHMARK(oursText)->Name("ours/text");
BENCHMARK(peerGettext)->Name("peer/gettext/text");
BENCHMARK(oursTextWithArgument)->Name("ours/textWithArgument");
BENCHMARK(peerMessageFormat)->Name("peer/icu/textWithArgument");
BENCHMARK(oursDisplayForeign)->Name("ours/displayForeign");
BENCHMARK(peerLoopForeign)->Name("peer/icu/displayForeign");
BENCHMARK(oursDisplayFinished)->Name("ours/displayFinished");
BENCHMARK(peerLoopFinished)->Name("peer/icu/displayFinished");
BENCHMARK(oursShortRelative)->Name("ours/shortRelative");
BENCHMARK(peerRelativeFormatter)->Name("peer/icu/shortRelative");

}  // namespace

int main(int argumentCount, char** arguments) {
    const Files files;
    check();
    benchmark::AddCustomContext("patterns", std::to_string(library().patterns().list().size()));
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
