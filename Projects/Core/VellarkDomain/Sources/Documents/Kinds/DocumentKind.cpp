#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentKinds {

namespace {

struct Row {
    DocumentKind kind;
    std::string_view titleKey;
    std::optional<DocumentKindGroup> group;
    std::optional<std::string_view> symbol;
};

using enum DocumentKindGroup;

// In the order of the cases.
constexpr std::array rows = std::to_array<Row>({
    {DocumentKind::prd, "기획서", planning, "list.clipboard"},
    {DocumentKind::spec, "명세서", planning, "doc.badge.gearshape"},
    {DocumentKind::plan, "계획", planning, "map"},
    {DocumentKind::userStories, "사용자 스토리", planning, "person.text.rectangle"},
    {DocumentKind::meetingNotes, "회의록", planning, "person.3"},
    {DocumentKind::report, "보고서", planning, "chart.bar.doc.horizontal"},
    {DocumentKind::research, "조사", planning, "magnifyingglass"},
    {DocumentKind::retrospective, "회고", planning, "arrow.counterclockwise"},
    {DocumentKind::checklist, "체크리스트", planning, "checklist"},
    {DocumentKind::proposal, "제안서", planning, "lightbulb"},
    {DocumentKind::memo, "메모", planning, "note.text"},
    {DocumentKind::presentation, "발표 자료", planning, "play.rectangle"},
    {DocumentKind::designDoc, "설계 문서", development, "square.stack.3d.up"},
    {DocumentKind::apiDoc, "API 문서", development, "curlybraces"},
    {DocumentKind::testPlan, "테스트 계획", development, "checkmark.seal"},
    {DocumentKind::bugReport, "버그 리포트", development, "ladybug"},
    {DocumentKind::codeReview, "코드 리뷰", development, "text.magnifyingglass"},
    {DocumentKind::postmortem, "장애 보고서", development, "exclamationmark.triangle"},
    {DocumentKind::changelog, "변경 이력", development, "clock.arrow.circlepath"},
    {DocumentKind::guide, "가이드", development, "book"},
    {DocumentKind::data, "데이터", development, "tablecells"},
    {DocumentKind::prompt, "프롬프트", development, "text.bubble"},
    {DocumentKind::design, "디자인", design, "paintpalette"},
    {DocumentKind::designSystem, "디자인 시스템", design, "square.grid.2x2"},
    {DocumentKind::marketingCopy, "마케팅 문구", marketing, "megaphone"},
    {DocumentKind::sales, "영업 자료", marketing, "cart"},
    {DocumentKind::pressRelease, "보도자료", marketing, "newspaper"},
    {DocumentKind::newsletter, "뉴스레터", marketing, "envelope.open"},
    {DocumentKind::socialPost, "소셜 게시물", marketing, "bubble.left.and.bubble.right"},
    {DocumentKind::businessPlan, "사업계획서", management, "briefcase"},
    {DocumentKind::finance, "재무", management, "banknote"},
    {DocumentKind::legal, "계약·법률", management, "building.columns"},
    {DocumentKind::policy, "규정", management, "shield"},
    {DocumentKind::notice, "공지", management, "bell"},
    {DocumentKind::jobPosting, "채용 공고", management, "person.badge.plus"},
    {DocumentKind::email, "이메일", management, "envelope"},
    {DocumentKind::faq, "자주 묻는 질문", management, "questionmark.circle"},
    {DocumentKind::blogPost, "블로그 글", content, "text.alignleft"},
    {DocumentKind::script, "대본", content, "film"},
    {DocumentKind::essay, "에세이", content, "pencil.and.outline"},
    {DocumentKind::story, "소설·이야기", content, "books.vertical"},
    {DocumentKind::translation, "번역", content, "character.bubble"},
    {DocumentKind::learning, "학습 자료", learning, "graduationcap"},
    {DocumentKind::lectureNotes, "강의 노트", learning, "person.wave.2"},
    {DocumentKind::studyNotes, "공부 노트", learning, "pencil"},
    {DocumentKind::readingNotes, "독서 노트", learning, "book.closed"},
    {DocumentKind::exercises, "문제집", learning, "square.and.pencil"},
    {DocumentKind::solutions, "풀이", learning, "checkmark.circle"},
    {DocumentKind::quiz, "시험·퀴즈", learning, "questionmark.square"},
    {DocumentKind::errorNotes, "오답 노트", learning, "xmark.circle"},
    {DocumentKind::paper, "논문", learning, "scroll"},
    {DocumentKind::journal, "일기", personal, "calendar"},
    {DocumentKind::resume, "이력서", personal, "person.crop.rectangle"},
    {DocumentKind::travelPlan, "여행 계획", personal, "airplane"},
    {DocumentKind::recipe, "레시피", personal, "fork.knife"},
    {DocumentKind::conversation, "대화", std::nullopt, "bubble.left.and.bubble.right.fill"},
    {DocumentKind::other, "기타", std::nullopt, std::nullopt},
});

constexpr bool standsInOrder() {
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (rows[index].kind != static_cast<DocumentKind>(index)) return false;
    }
    return rows.size() == caseTable<DocumentKind>.size();
}
static_assert(standsInOrder());

constexpr const Row& row(DocumentKind kind) {
    return rows[static_cast<std::size_t>(kind)];
}

constexpr auto groupTitleKeys = std::to_array<std::string_view>(
    {"개발", "기획", "디자인", "마케팅·영업", "경영·재무·법무", "콘텐츠", "학습", "개인"});
static_assert(groupTitleKeys.size() == caseTable<DocumentKindGroup>.size());

}  // namespace

std::string_view titleKey(DocumentKind kind) {
    return row(kind).titleKey;
}

std::string_view titleKey(DocumentKindGroup group) {
    return groupTitleKeys[static_cast<std::size_t>(group)];
}

std::string title(DocumentKind kind) {
    return L10n::text(titleKey(kind));
}

std::string title(DocumentKindGroup group) {
    return L10n::text(titleKey(group));
}

std::optional<DocumentKindGroup> group(DocumentKind kind) {
    return row(kind).group;
}

std::optional<std::string_view> symbol(DocumentKind kind) {
    return row(kind).symbol;
}

std::span<const DocumentKind> modelChoices() {
    static constexpr auto choices = [] {
        std::array<DocumentKind, rows.size() - 1> kinds{};
        std::ranges::copy_if(allCases<DocumentKind>(), kinds.begin(),
                             [](DocumentKind kind) { return kind != DocumentKind::conversation; });
        return kinds;
    }();
    return choices;
}

}  // namespace vellark::DocumentKinds
