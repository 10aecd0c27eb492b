// The English words that point at a kind of document, one row per kind in the order of the kinds. Regular plurals
// are matched by themselves; only irregular ones ("strategies") are listed.
// To mend a title that is read wrongly, add the noun that ends it to `names`, or its topic to `cues` of the kind that
// it should have. A noun that means several kinds belongs in KindWordsShared.cpp instead.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <array>

namespace vellark::KindWords {

namespace {

using enum DocumentKind;

constexpr auto rows = std::to_array<Base>({
    {.kind = prd,
     .names = "prd, product requirement, product brief, feature brief, feature requirement, business requirement, "
              "one pager, mrd, brd",
     .cues = "",
     .weak = "",
     .markers = "out of scope, non goals, success metrics, target user, open question"},
    {.kind = spec,
     .names = "specification, requirement, functional spec, technical spec, tech spec, product spec, srs",
     .cues = "feature, functional, format",
     .weak = "spec, specs",
     .markers = "functional requirements, non functional requirements, the system shall"},
    {.kind = plan,
     .names = "plan, roadmap, schedule, strategy, strategies, timeline, gantt chart, calendar, okr, "
              "work breakdown structure, wbs, project charter",
     .cues = "milestone, sprint, okr, go to market, roadmap, phase",
     .weak = "goal, objective, strategy, initiative",
     .markers = "milestone, deliverable, phase"},
    {.kind = userStories,
     .names = "user story, user stories, use case, user scenario, epic, acceptance criteria, product backlog",
     .cues = "acceptance, user",
     .weak = "ticket, stories",
     .markers = "as a user, so that i can, i want to, story point, acceptance criteria"},
    {.kind = meetingNotes,
     .names = "meeting note, meeting minute, minutes, agenda, meetings, meeting outcome, "
              "call transcript, discussion note",
     .cues = "meeting, standup, kickoff, call, one on one, sync, stand up",
     .weak = "discussion",
     .markers = "attendee, action item, decision, participant, agenda, next meeting"},
    {.kind = report,
     .names = "report, status update, weekly update, progress update, project update, project status, "
              "executive summary, dashboard, white paper, whitepaper, business review, qbr",
     .cues = "weekly, monthly, quarterly, annual, progress, status, kpi, performance",
     .weak = "update, snapshot",
     .markers = "this week, next week, blocker"},
    {.kind = research,
     .names = "research, survey, research report, survey report, competitive analysis, competitor analysis, "
              "market analysis, literature review, case study, comparison, feasibility study, user interview, "
              "questionnaire, swot analysis",
     .cues = "research, market, competitor, competitive, survey, interview, industry",
     .weak = "landscape, trend, findings",
     .markers = "respondent, sample size, survey, interview"},
    {.kind = retrospective,
     .names = "retrospective, retro, lessons learned, lesson learned, kpt, start stop continue, after action review, "
              "sprint review, project review, annual review",
     .cues = "retrospective, lessons, year in review",
     .weak = "year, learnings",
     .markers = "what went well, keep problem try, what didn't go well, what could"},
    {.kind = checklist,
     .names = "checklist, task list, todo list, to do list, shopping list, packing list, grocery list, bucket list",
     .cues = "daily, today, packing, list",
     .weak = "todo, to do, task list",
     .markers = ""},
    {.kind = proposal,
     .names = "proposal, rfp, rfq, bid, business case, grant application, concept note",
     .cues = "rfp, grant, sponsorship, request for proposal",
     .weak = "request, application, recommendation",
     .markers = ""},
    {.kind = memo,
     .names = "memo, memorandum, quick note, rough note, brainstorm, brainstorming, brain dump, idea",
     .cues = "quick, rough, random",
     .weak = "note, thoughts",
     .markers = ""},
    {.kind = presentation,
     .names = "presentation, deck, slide, powerpoint, ppt, keynote",
     .cues = "conference",
     .weak = "talk, demo",
     .markers = ""},
    {.kind = designDoc,
     .names = "design doc, design document, architecture, system design, technical design, tech design, "
              "software design, database design, api design, adr, rfc, data model, decision record, system overview, "
              "level design, schema, diagram, erd, threat model",
     .cues = "architecture, microservice, database, infrastructure, backend",
     .weak = "diagram, decision, model",
     .markers = "context, decision, consequences, alternative, alternatives considered, trade off"},
    {.kind = apiDoc,
     .names = "api, api doc, api documentation, api reference, api spec, api specification, api guide, api contract, "
              "endpoint, openapi, openapi spec, openapi specification, swagger, sdk reference, sdk documentation, "
              "graphql schema",
     .cues = "api, endpoint, graphql, webhook, sdk",
     .weak = "reference, contract",
     .markers = "request body, query parameter, endpoint, bearer, get v, post v"},
    {.kind = testPlan,
     .names = "test plan, test case, test scenario, test strategy, test suite, test spec, test specification, "
              "test checklist, test coverage, testing strategy, testing plan, acceptance test, qa plan, uat plan, "
              "validation plan, verification plan",
     .cues = "test, testing, qa, regression, end to end",
     .weak = "test plan, case, coverage",
     .markers = "expected result, precondition, test case, tc"},
    {.kind = bugReport,
     .names = "bug report, bug, defect, defect report, issue report, crash report, error report, bug list, "
              "known issue, bug analysis",
     .cues = "bug, crash, error, defect",
     .weak = "issue, triage",
     .markers = "steps to reproduce, to reproduce, expected behavior, actual behavior"},
    {.kind = codeReview,
     .names = "code review, pr review, pull request, merge request, pr description, code audit, code walkthrough, "
              "review comment, code analysis",
     .cues = "code, pr, refactoring, diff",
     .weak = "feedback",
     .markers = "lgtm, nit, pull request"},
    {.kind = postmortem,
     .names = "postmortem, post mortem, incident report, incident review, incident, root cause analysis, root cause, "
              "rca, outage report, incident analysis, outage analysis, failure analysis, incident timeline",
     .cues = "incident, outage, root cause, downtime",
     .weak = "timeline, whys",
     .markers = "root cause, timeline, impact, incident"},
    {.kind = changelog,
     .names = "changelog, change log, release note, patch note, version history, revision history, update note, "
              "update log, what's new, breaking change",
     .cues = "release, changes, patch",
     .weak = "history",
     .markers = "added, changed, fixed, bug fix, breaking change, new feature"},
    {.kind = guide,
     .names = "guide, manual, tutorial, how to, howto, readme, runbook, playbook, handbook, walkthrough, guideline, "
              "best practice, getting started, quickstart, quick start, instruction, onboarding, sop, procedure, "
              "troubleshooting, installation, handover, cheat sheet, cheatsheet",
     .cues = "setup, install, installation, deployment, how to, onboarding, step by step",
     .weak = "how, guide, steps, tips, setup",
     .markers = "prerequisite, troubleshooting, step"},
    {.kind = data,
     .names = "data, dataset, data set, statistics, spreadsheet, data dictionary, roster, inventory, metrics",
     .cues = "statistic",
     .weak = "table, figures",
     .markers = ""},
    {.kind = prompt,
     .names = "prompt, system prompt, prompt library, prompt engineering, system message, custom instruction, "
              "agent instruction",
     .cues = "llm, chatbot, agent",
     .weak = "",
     .markers = "you are a, you are an, your task, output format"},
    {.kind = design,
     .names = "mockup, wireframe, prototype, persona, moodboard, mood board, user flow, ui design, "
              "design brief, creative brief, sitemap, journey map, layout, logo design",
     .cues = "ui, ux, logo",
     .weak = "screen, flow",
     .markers = ""},
    {.kind = designSystem,
     .names = "design system, brand book, style guide, brand guide, brand guideline, design guideline, "
              "component library, component guideline, design token, color palette, ui kit",
     .cues = "brand, component",
     .weak = "",
     .markers = "typography"},
    {.kind = marketingCopy,
     .names = "ad copy, marketing copy, landing page copy, website copy, email copy, tagline, slogan, headline, "
              "product description, brochure, flyer, value proposition",
     .cues = "ad, marketing, campaign",
     .weak = "",
     .markers = ""},
    {.kind = sales,
     .names = "sales deck, sales pitch, sales script, sales proposal, sales playbook, sales presentation, "
              "price list, pricing, catalog, company profile, success story, success stories",
     .cues = "sales, customer",
     .weak = "pitch, leads",
     .markers = ""},
    {.kind = pressRelease,
     .names = "press release, media release, news release, press kit, for immediate release, media advisory",
     .cues = "press",
     .weak = "",
     .markers = "for immediate release, immediate release, media contact, announced"},
    {.kind = newsletter,
     .names = "newsletter, digest, bulletin, roundup",
     .cues = "digest",
     .weak = "",
     .markers = "unsubscribe, in this issue, subscriber"},
    {.kind = socialPost,
     .names = "social post, social media post, linkedin post, instagram post, facebook post, tweet, twitter thread, "
              "caption",
     .cues = "social media, linkedin, instagram, twitter",
     .weak = "",
     .markers = ""},
    {.kind = businessPlan,
     .names = "business plan, business model, business model canvas, lean canvas, business strategy, startup plan, "
              "investment memo, strategic plan, growth strategy, revenue model",
     .cues = "startup, investor",
     .weak = "",
     .markers = ""},
    {.kind = finance,
     .names = "budget, invoice, quote, estimate, financial statement, balance sheet, income statement, cash flow, "
              "profit and loss, p l, expense report, expense, receipt, purchase order, forecast, financial model, "
              "financial plan, payroll, ledger, cost breakdown",
     .cues = "financial, revenue, expense, tax",
     .weak = "bill",
     .markers = "subtotal, vat, total"},
    {.kind = legal,
     .names = "contract, agreement, nda, terms, terms and conditions, privacy policy, privacy notice, license, "
              "licence, lease, sla, msa, mou, sow, eula, disclaimer, patent, patent application, legal opinion, "
              "consent form",
     .cues = "legal, statement of work, patent, copyright",
     .weak = "conditions, statement",
     .markers = "governing law, confidentiality, termination, this agreement"},
    {.kind = policy,
     .names = "policy, policies, rule, regulation, governance, standard, working agreement, team agreement, "
              "employee handbook",
     .cues = "conduct, code of conduct, ethics, compliance",
     .weak = "code, charter",
     .markers = "this policy, policy applies, effective date, violation"},
    {.kind = notice,
     .names = "notice, announcement, invitation, advisory, reminder, save the date",
     .cues = "maintenance, event",
     .weak = "alert, invite",
     .markers = ""},
    {.kind = jobPosting,
     .names = "job posting, job post, job description, job ad, job listing, job opening, vacancy, vacancies, "
              "role description, position description",
     .cues = "hiring, job",
     .weak = "opening, position",
     .markers = "responsibilities, qualification, nice to have, how to apply, we offer, benefit"},
    {.kind = email,
     .names = "letter, reply, email draft, email reply, thank you note, outreach email, cold email",
     .cues = "welcome, follow up, thank you, outreach, apology, client, draft",
     .weak = "email, e mail, mail",
     .markers = "best regards, sincerely, dear, subject, let me know, thanks"},
    {.kind = faq,
     .names = "faq, q a, q and a, qna, question, help article, support article, "
              "questions and answers",
     .cues = "asked, support",
     .weak = "answers, help",
     .markers = "how do i, can i, do you, q"},
    {.kind = blogPost,
     .names = "blog post, blog, blog entry, article, listicle",
     .cues = "blog, seo",
     .weak = "",
     .markers = ""},
    {.kind = script,
     .names = "script, screenplay, speech, speeches, subtitle, voiceover, voice over, transcript, dialogue, "
              "talking point",
     .cues = "video, youtube, podcast",
     .weak = "lines, scene",
     .markers = "fade in, fade out, cut to, v o"},
    {.kind = essay,
     .names = "essay, op ed, opinion piece, editorial, critique, book review, movie review, film review, "
              "personal statement, memoir, opinion column",
     .cues = "film, movie",
     .weak = "",
     .markers = "in conclusion"},
    {.kind = story,
     .names = "novel, short story, short stories, fiction, poem, poetry, fairy tale, synopsis, lyrics, "
              "worldbuilding, character profile",
     .cues = "novel, fiction",
     .weak = "chapter",
     .markers = ""},
    {.kind = translation,
     .names = "translation, localization, translated version, english version, korean version",
     .cues = "translated",
     .weak = "",
     .markers = ""},
    {.kind = learning,
     .names = "lesson plan, unit plan, curriculum, curricula, syllabus, syllabi, course, course material, "
              "training material, study guide, study plan, textbook, lesson, workbook",
     .cues = "learning, training, course",
     .weak = "unit, module",
     .markers = "learning objective, homework, learning outcome, warm up"},
    {.kind = lectureNotes,
     .names = "lecture note, class note, course note, lecture, lecture transcript",
     .cues = "lecture, class, seminar, webinar",
     .weak = "",
     .markers = ""},
    {.kind = studyNotes,
     .names = "study note, revision note, learning log, summary note, til, today i learned, learning note, "
              "vocabulary list, formula sheet, exam review, study guide note",
     .cues = "study, revision, concept",
     .weak = "",
     .markers = ""},
    {.kind = readingNotes,
     .names = "reading note, reading log, reading journal, book note, book summary, book report, paper summary, "
              "paper note, paper review, literature note, article summary, reading list",
     .cues = "book, reading",
     .weak = "",
     .markers = ""},
    {.kind = exercises,
     .names = "exercise, worksheet, problem set, practice problem, practice question, homework, assignment, drill, "
              "question bank, review question",
     .cues = "",
     .weak = "",
     .markers = ""},
    {.kind = solutions,
     .names = "solution, answer key, answer sheet, answer, worked example, solution manual, marking scheme, "
              "solution guide",
     .cues = "",
     .weak = "",
     .markers = ""},
    {.kind = quiz,
     .names = "practice test, practice exam, mock exam, mock test, final exam, midterm exam, exam paper, test paper, "
              "examination, trivia, vocabulary test",
     .cues = "pop, trivia",
     .weak = "quiz, quizzes, exam, midterm, finals",
     .markers = "multiple choice, true or false, time allowed, point"},
    {.kind = errorNotes,
     .names = "error note, mistake log, wrong answer, mistake notebook, mistake, error notebook",
     .cues = "",
     .weak = "",
     .markers = ""},
    {.kind = paper,
     .names = "paper, thesis, dissertation, abstract, preprint, manuscript, journal article, research article, "
              "systematic review, meta analysis",
     .cues = "academic",
     .weak = "",
     .markers = "related work, abstract, reference"},
    {.kind = journal,
     .names = "journal, diary, diaries, journal entry, journal entries, diary entry, daily log",
     .cues = "",
     .weak = "",
     .markers = ""},
    {.kind = resume,
     .names = "curriculum vitae, résumé, cover letter, portfolio, job application, resumes, motivation letter, "
              "recommendation letter, reference letter, resume cv, candidate profile",
     .cues = "engineer, developer, designer, manager, career, professional, my",
     .weak = "resume, cv",
     .markers = "experience, education, skill"},
    {.kind = travelPlan,
     .names = "itinerary, travel plan, travel schedule, travel guide, trip plan, trip, vacation plan, "
              "travel checklist, travel budget",
     .cues = "travel, trip, vacation",
     .weak = "route",
     .markers = ""},
    {.kind = recipe,
     .names = "recipe, meal plan, menu, cookbook, recipe book, diet plan",
     .cues = "cooking, baking, ingredient",
     .weak = "",
     .markers = "tablespoon, teaspoon, tbsp, tsp, ingredient, serves"},
});

}  // namespace

std::span<const Base> english() {
    return rows;
}

}  // namespace vellark::KindWords
