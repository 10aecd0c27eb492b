#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentKindRules {

namespace {

using enum DocumentKind;

// Phrases in which a word that names a kind elsewhere means something else.
constexpr auto blockedPhrases = std::to_array<std::string_view>({"部署脚本",
                                                                 "迁移脚本",
                                                                 "安装脚本",
                                                                 "构建脚本",
                                                                 "测试脚本",
                                                                 "启动脚本",
                                                                 "自动化脚本",
                                                                 "脚本文件",
                                                                 "노트북",
                                                                 "ノートパソコン",
                                                                 "ノートpc",
                                                                 "메모리",
                                                                 "メモリ",
                                                                 "일기예보",
                                                                 "계약직",
                                                                 "데이터통신",
                                                                 "주차장",
                                                                 "주차권",
                                                                 "copy of",
                                                                 "사본",
                                                                 "문구점",
                                                                 "문구류",
                                                                 "영업일",
                                                                 "영업시간",
                                                                 "사업자",
                                                                 "회의적",
                                                                 "문제점",
                                                                 "문제 해결",
                                                                 "보고 싶",
                                                                 "핵심과제",
                                                                 "추진과제",
                                                                 "중점과제",
                                                                 "국정과제",
                                                                 "플랜트",
                                                                 "드릴게",
                                                                 "드릴까",
                                                                 "자바스크립트",
                                                                 "타입스크립트",
                                                                 "아시안",
                                                                 "러시안",
                                                                 "페르시안",
                                                                 "지원서비스",
                                                                 "방문안내",
                                                                 "주문안내",
                                                                 "되풀이",
                                                                 "경조사",
                                                                 "제조사",
                                                                 "pricing plan",
                                                                 "free plan",
                                                                 "pro plan",
                                                                 "paid plan",
                                                                 "billing plan",
                                                                 "subscription plan",
                                                                 "data plan",
                                                                 "team plan",
                                                                 "enterprise plan",
                                                                 "starter plan",
                                                                 "plan tier",
                                                                 "plan limit",
                                                                 "요금 플랜",
                                                                 "무료 플랜",
                                                                 "유료 플랜",
                                                                 "料金プラン",
                                                                 "有料プラン",
                                                                 "無料プラン",
                                                                 "할 일 앱",
                                                                 "할일 앱",
                                                                 "투두 앱",
                                                                 "todo app"});

constexpr auto prepositionWords =
    std::to_array<std::string_view>({"for", "of", "on", "about", "from", "to", "with", "in", "regarding", "re", "vs",
                                     "versus", "per", "via", "into", "at", "by"});

// Words that may follow a head: states of a document, counters, and what numbering leaves without its digits.
constexpr auto baseTails = std::to_array<std::string_view>(
    {"초안",    "최종",     "최종본",  "수정본", "개정판", "개정",    "버전",     "템플릿",       "양식",     "서식",
     "예시",    "샘플",     "공유본",  "완성본", "작성",   "원고",    "아카이브", "모음",         "보관함",   "폴더",
     "draft",   "final",    "wip",     "v",      "ver",    "version", "template", "sample",       "example",  "outline",
     "rev",     "revised",  "updated", "new",    "old",    "copy",    "doc",      "docs",         "document", "es",
     "archive", "archives", "folder",  "案",     "最終",   "最終版",  "改訂版",   "テンプレート", "下書き",   "版",
     "原稿",    "회",       "회차",    "일차",   "주차",   "편",      "권",       "부",           "강",       "차",
     "월",      "일",       "년",      "분기",   "개",     "번",      "호",       "day",          "week",     "part",
     "vol",     "no",       "第回",    "第章",   "第話",   "年度",    "年月",     "月",           "日",       "週",
     "号",      "年"});

constexpr auto mongolianTails = std::to_array<std::string_view>(
    {"төсөл",  "ноорог", "хувилбар", "загвар", "жишээ", "эцсийн", "шинэчилсэн", "хэсэг", "бүлэг", "р",
     "дугаар", "дахь",   "дэх",      "он",     "сар",   "улирал", "долоо",      "хоног", "өдөр",  "нь"});

constexpr auto labelTexts = std::to_array<std::string_view>({"adr", "rfc", "how to", "howto"});

constexpr auto homographs = std::to_array<std::string_view>(
    {"these", "theses", "plane", "planes", "scenario", "scenarios", "do an", "on tap", "tribune"});

constexpr auto frenchComplements = std::to_array<std::string_view>(
    {"de",  "du",   "des",    "pour",  "sur",   "au",     "aux",     "à",      "avec",  "en",
     "par", "dans", "sans",   "sous",  "chez",  "vers",   "entre",   "contre", "selon", "concernant",
     "via", "vs",   "versus", "après", "avant", "depuis", "pendant", "envers", "auprès"});

constexpr auto spanishComplements = std::to_array<std::string_view>(
    {"de",       "del",     "para",  "sobre", "al",    "por",    "con",   "sin",  "en",
     "entre",    "hacia",   "hasta", "desde", "según", "contra", "ante",  "bajo", "tras",
     "mediante", "durante", "vía",   "via",   "vs",    "versus", "acerca"});

constexpr auto germanComplements = std::to_array<std::string_view>(
    {"für",   "von",      "zur",  "zum", "über",      "fuer",   "vom",   "zu",    "ueber", "mit", "aus",
     "bei",   "beim",     "nach", "im",  "in",        "am",     "auf",   "gegen", "ohne",  "um",  "unter",
     "durch", "zwischen", "der",  "des", "bezüglich", "zwecks", "gemäß", "laut",  "vor",   "seit"});

constexpr auto russianComplements = std::to_array<std::string_view>(
    {"для",   "о",   "об",  "по",    "к",      "обо",   "на",     "с",      "со",        "из",
     "ко",    "от",  "про", "в",     "во",     "при",   "без",    "до",     "за",        "между",
     "через", "под", "над", "перед", "вокруг", "после", "насчёт", "насчет", "касательно"});

constexpr auto vietnameseComplements =
    std::to_array<std::string_view>({"của", "cho", "về", "dành cho", "về việc", "đối với", "trong", "với", "đến", "tới",
                                     "bằng", "theo", "trên", "tại", "qua", "để"});

constexpr auto thaiComplements =
    std::to_array<std::string_view>({"ของ", "สำหรับ", "เกี่ยวกับ", "ว่าด้วย", "เรื่อง", "จาก", "โดย", "ด้วย"});

constexpr auto frenchExclusions =
    std::to_array<std::string_view>({"plan gratuit", "plan d'accès", "plan premium", "plan tarifaire", "plan du site",
                                     "plan de salle", "rapport building"});

constexpr auto spanishExclusions =
    std::to_array<std::string_view>({"plan gratuito", "plan premium", "plan de precios", "plan de pago"});

constexpr auto frenchArticles = std::to_array<std::u32string_view>({U"le", U"la", U"les", U"l", U"un", U"une"});

constexpr auto spanishArticles = std::to_array<std::u32string_view>({U"el", U"la", U"los", U"las", U"un", U"una"});

constexpr auto germanArticles = std::to_array<std::u32string_view>(
    {U"der", U"die", U"das", U"den", U"dem", U"des", U"ein", U"eine", U"einen", U"einem", U"einer"});

constexpr auto refinableKinds =
    std::to_array<DocumentKind>({spec, meetingNotes, report, research, retrospective, postmortem, apiDoc, changelog,
                                 guide, learning, lectureNotes, studyNotes, readingNotes});

// The syllables that end the names of documents: writing, record, table, collection, sheet, journal, text, plan, copy.
constexpr std::u32string_view suffixSyllables = U"서록표집장지문안본";
constexpr std::u32string_view applicationForm = U"지원서";  // ends "지원 서비스" written in one

struct NamedKind {
    std::string_view name;
    DocumentKind kind;
};

constexpr auto stems = std::to_array<NamedKind>({
    {"readme", guide},
    {"changelog", changelog},
    {"history", changelog},
    {"news", changelog},
    {"notice", legal},
    {"copying", legal},
    {"security", guide},
    {"code of conduct", guide},
    {"authors", guide},
    {"install", guide},
    {"setup", guide},
    {"todo", checklist},
    {"license", legal},
    {"licence", legal},
    {"agents", guide},
    {"claude", guide},
    {"gemini", guide},
});

constexpr auto extensions = std::to_array<NamedKind>({
    {"srt", script},
    {"vtt", script},
    {"ass", script},
    {"ssa", script},
    {"sbv", script},
    {"eml", email},
    {"emlx", email},
    {"msg", email},
    {"bib", paper},
});

constexpr auto innerExtensions = std::to_array<NamedKind>({
    {"prd", prd},
    {"spec", spec},
    {"adr", designDoc},
    {"rfc", designDoc},
});

constexpr auto paths = std::to_array<PathPattern>({
    {"specs/*/spec.md", spec},
    {"specs/*/plan.md", plan},
    {"specs/*/tasks.md", checklist},
    {"specs/*/research.md", research},
    {"specs/*/data-model.md", designDoc},
    {"specs/*/quickstart.md", guide},
    {"specs/*/contracts/*", apiDoc},
    {".kiro/specs/*/requirements.md", prd},
    {".kiro/specs/*/design.md", designDoc},
    {".kiro/specs/*/tasks.md", checklist},
    {"docs/superpowers/plans/*.md", plan},
    {"docs/plans/*.md", plan},
    {"docs/superpowers/specs/*.md", designDoc},
    {".claude/plans/*.md", plan},
    {".gemini/plans/*.md", plan},
    {".gemini/tmp/*/plans/*.md", plan},
    {"docs/stories/#.#.*.md", userStories},
    {"docs/epics/*.md", userStories},
});

// The normalised forms of words, for look-ups by the tokens of a normalised text.
class NormalizedWords {
public:
    explicit NormalizedWords(std::initializer_list<std::span<const std::string_view>> lists) {
        for (const auto list : lists) {
            for (const std::string_view word : list) {
                words_.push_back(DocumentKindMatcher::normalize(word));
                longest_ = std::max(longest_, words_.back().size());
            }
        }
        std::ranges::sort(words_);
    }

    [[nodiscard]] bool contains(std::u32string_view word) const {
        return word.size() <= longest_ && std::ranges::binary_search(words_, word, std::less<>());
    }

private:
    std::vector<std::u32string> words_;
    std::size_t longest_ = 0;
};

std::optional<DocumentKind> kindOf(std::span<const NamedKind> rows, std::string_view name) {
    const auto found = std::ranges::find(rows, name, &NamedKind::name);
    return found == rows.end() ? std::nullopt : std::optional(found->kind);
}

}  // namespace

std::span<const std::string_view> blocked() {
    return blockedPhrases;
}

std::span<const std::string_view> prepositions() {
    return prepositionWords;
}

std::span<const std::string_view> complements(DocumentKindLanguage language) {
    switch (language) {
        case DocumentKindLanguage::fr:
            return frenchComplements;
        case DocumentKindLanguage::es:
            return spanishComplements;
        case DocumentKindLanguage::de:
            return germanComplements;
        case DocumentKindLanguage::ru:
            return russianComplements;
        case DocumentKindLanguage::mn:
            return {};
        case DocumentKindLanguage::vi:
            return vietnameseComplements;
        case DocumentKindLanguage::th:
            return thaiComplements;
    }
    return {};
}

std::span<const std::string_view> exclusions(DocumentKindLanguage language) {
    if (language == DocumentKindLanguage::fr) return frenchExclusions;
    if (language == DocumentKindLanguage::es) return spanishExclusions;
    return {};
}

std::span<const std::string_view> tailWords() {
    return baseTails;
}

std::span<const std::string_view> mongolianTailWords() {
    return mongolianTails;
}

bool isTail(std::u32string_view normalized) {
    static const NormalizedWords tails({baseTails, mongolianTails});
    return tails.contains(normalized);
}

std::span<const std::string_view> labelWords() {
    return labelTexts;
}

bool isLabel(std::u32string_view normalized) {
    static const NormalizedWords labels({labelTexts});
    return labels.contains(normalized);
}

bool isArticle(std::u32string_view normalized, DocumentKindLanguage language) {
    const auto isOf = [&](std::span<const std::u32string_view> articles) {
        return std::ranges::find(articles, normalized) != articles.end();
    };
    switch (language) {
        case DocumentKindLanguage::fr:
            return isOf(frenchArticles);
        case DocumentKindLanguage::es:
            return isOf(spanishArticles);
        case DocumentKindLanguage::de:
            return isOf(germanArticles);
        default:
            return false;
    }
}

bool isEnglishHomograph(std::u32string_view normalized) {
    static const NormalizedWords words({homographs});
    return words.contains(normalized);
}

bool isSuffixHead(std::u32string_view normalized) {
    constexpr std::size_t leastSyllables = 3;
    return normalized.size() >= leastSyllables && suffixSyllables.find(normalized.back()) != suffixSyllables.npos &&
           normalized != applicationForm && std::ranges::all_of(normalized, ScalarClasses::isHangulSyllable);
}

std::span<const DocumentKind> refinable() {
    return refinableKinds;
}

bool isRefinable(DocumentKind kind) {
    return std::ranges::find(refinableKinds, kind) != refinableKinds.end();
}

std::optional<DocumentKind> kindOfStem(std::u32string_view normalized) {
    constexpr std::size_t longest =
        std::ranges::max(stems, {}, [](const NamedKind& row) { return row.name.size(); }).name.size();
    if (normalized.size() > longest) return std::nullopt;
    return kindOf(stems, DocumentKindMatcher::normalizedText(normalized));
}

std::optional<DocumentKind> kindOfExtension(std::string_view extension) {
    return kindOf(extensions, extension);
}

std::optional<DocumentKind> kindOfInnerExtension(std::string_view extension) {
    return kindOf(innerExtensions, extension);
}

std::span<const PathPattern> pathPatterns() {
    return paths;
}

}  // namespace vellark::DocumentKindRules
