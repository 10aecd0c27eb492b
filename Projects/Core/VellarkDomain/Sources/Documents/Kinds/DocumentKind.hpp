#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentIconPreset.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// What a document is for. The order is that in which kinds are listed everywhere.
enum class DocumentKind {
    prd,
    spec,
    plan,
    userStories,
    meetingNotes,
    report,
    research,
    retrospective,
    checklist,
    proposal,
    memo,
    presentation,
    designDoc,
    apiDoc,
    testPlan,
    bugReport,
    codeReview,
    postmortem,
    changelog,
    guide,
    data,
    prompt,
    design,
    designSystem,
    marketingCopy,
    sales,
    pressRelease,
    newsletter,
    socialPost,
    businessPlan,
    finance,
    legal,
    policy,
    notice,
    jobPosting,
    email,
    faq,
    blogPost,
    script,
    essay,
    story,
    translation,
    learning,
    lectureNotes,
    studyNotes,
    readingNotes,
    exercises,
    solutions,
    quiz,
    errorNotes,
    paper,
    journal,
    resume,
    travelPlan,
    recipe,
    conversation,
    other,
};

template <>
inline constexpr auto caseTable<DocumentKind> = std::to_array<CaseName<DocumentKind>>({
    {DocumentKind::prd, "prd"},
    {DocumentKind::spec, "spec"},
    {DocumentKind::plan, "plan"},
    {DocumentKind::userStories, "user-stories"},
    {DocumentKind::meetingNotes, "meeting-notes"},
    {DocumentKind::report, "report"},
    {DocumentKind::research, "research"},
    {DocumentKind::retrospective, "retrospective"},
    {DocumentKind::checklist, "checklist"},
    {DocumentKind::proposal, "proposal"},
    {DocumentKind::memo, "memo"},
    {DocumentKind::presentation, "presentation"},
    {DocumentKind::designDoc, "design-doc"},
    {DocumentKind::apiDoc, "api-doc"},
    {DocumentKind::testPlan, "test-plan"},
    {DocumentKind::bugReport, "bug-report"},
    {DocumentKind::codeReview, "code-review"},
    {DocumentKind::postmortem, "postmortem"},
    {DocumentKind::changelog, "changelog"},
    {DocumentKind::guide, "guide"},
    {DocumentKind::data, "data"},
    {DocumentKind::prompt, "prompt"},
    {DocumentKind::design, "design"},
    {DocumentKind::designSystem, "design-system"},
    {DocumentKind::marketingCopy, "marketing-copy"},
    {DocumentKind::sales, "sales"},
    {DocumentKind::pressRelease, "press-release"},
    {DocumentKind::newsletter, "newsletter"},
    {DocumentKind::socialPost, "social-post"},
    {DocumentKind::businessPlan, "business-plan"},
    {DocumentKind::finance, "finance"},
    {DocumentKind::legal, "legal"},
    {DocumentKind::policy, "policy"},
    {DocumentKind::notice, "notice"},
    {DocumentKind::jobPosting, "job-posting"},
    {DocumentKind::email, "email"},
    {DocumentKind::faq, "faq"},
    {DocumentKind::blogPost, "blog-post"},
    {DocumentKind::script, "script"},
    {DocumentKind::essay, "essay"},
    {DocumentKind::story, "story"},
    {DocumentKind::translation, "translation"},
    {DocumentKind::learning, "learning"},
    {DocumentKind::lectureNotes, "lecture-notes"},
    {DocumentKind::studyNotes, "study-notes"},
    {DocumentKind::readingNotes, "reading-notes"},
    {DocumentKind::exercises, "exercises"},
    {DocumentKind::solutions, "solutions"},
    {DocumentKind::quiz, "quiz"},
    {DocumentKind::errorNotes, "error-notes"},
    {DocumentKind::paper, "paper"},
    {DocumentKind::journal, "journal"},
    {DocumentKind::resume, "resume"},
    {DocumentKind::travelPlan, "travel-plan"},
    {DocumentKind::recipe, "recipe"},
    {DocumentKind::conversation, "conversation"},
    {DocumentKind::other, "other"},
});

/// Where a kind belongs.
enum class DocumentKindGroup { development, planning, design, marketing, management, content, learning, personal };

template <>
inline constexpr auto caseTable<DocumentKindGroup> = std::to_array<CaseName<DocumentKindGroup>>({
    {DocumentKindGroup::development, "development"},
    {DocumentKindGroup::planning, "planning"},
    {DocumentKindGroup::design, "design"},
    {DocumentKindGroup::marketing, "marketing"},
    {DocumentKindGroup::management, "management"},
    {DocumentKindGroup::content, "content"},
    {DocumentKindGroup::learning, "learning"},
    {DocumentKindGroup::personal, "personal"},
});

/// What is known of the kinds and their groups. The raw value is the identifier of both.
namespace DocumentKinds {

/// What the interface shows, a key of the catalogues.
[[nodiscard]] std::string_view titleKey(DocumentKind kind);
[[nodiscard]] std::string_view titleKey(DocumentKindGroup group);

/// The same in the language of the user.
[[nodiscard]] std::string title(DocumentKind kind);
[[nodiscard]] std::string title(DocumentKindGroup group);

[[nodiscard]] constexpr std::string_view id(DocumentKind kind) {
    return rawValue(kind);
}
[[nodiscard]] constexpr std::string_view id(DocumentKindGroup group) {
    return rawValue(group);
}

/// Nothing for `conversation` and `other`.
[[nodiscard]] std::optional<DocumentKindGroup> group(DocumentKind kind);

/// The name of the kind's picture; nothing for `other`.
[[nodiscard]] std::optional<std::string_view> symbol(DocumentKind kind);

/// The icon of documents of the kind, where it has one of its own.
[[nodiscard]] constexpr std::optional<DocumentIconPreset> preset(DocumentKind kind) {
    return kind == DocumentKind::plan ? std::optional(DocumentIconPreset::plan) : std::nullopt;
}

/// The kinds among which a model may be asked to choose, in their order: all but `conversation`.
[[nodiscard]] std::span<const DocumentKind> modelChoices();

}  // namespace DocumentKinds

}  // namespace vellark
