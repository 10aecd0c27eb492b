// German words that point at a document's kind. Each noun also matches as the end of a compound ("bericht" in
// "Projektbericht"), so only compounds that mean another kind than their head need entries. Plurals are entries of
// their own; words that English shares must have the same kind there.
//
// These nouns name a document wherever no complement stands before them. That is right for English nouns that many
// languages use, too ("code review", "newsletter"): such a noun stands here and not in the English list, whose nouns
// must end the phrase.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

namespace vellark::KindWords {

namespace {

constexpr Layered words[] = {
    {.kind = DocumentKind::prd,
     .nouns = "konzept, produktanforderungen, projektskizze, produktanforderungsdokument, produktbriefing, prd",
     .weak = ""},
    {.kind = DocumentKind::spec,
     .nouns = "spezifikation, pflichtenheft, lastenheft, anforderungen, anforderungskatalog, "
              "leistungsbeschreibung, funktionsbeschreibung, fachkonzept, leistungsverzeichnis, datenblatt, "
              "anforderungsdokument, spezifikationen, anforderungsliste",
     .weak = ""},
    {.kind = DocumentKind::plan,
     .nouns = "plan, zeitplan, terminplan, projektplan, maßnahmenplan, wochenplan, dienstplan, planung, strategie, "
              "roadmap, schichtplan, migrationsplan, okr, planning, umsetzungsplan",
     .weak = ""},
    {.kind = DocumentKind::userStories,
     .nouns = "user story, user stories, anwendungsfall, anwendungsfälle, akzeptanzkriterien, "
              "nutzergeschichten, use case, use cases, anwendergeschichten, user storys",
     .weak = ""},
    {.kind = DocumentKind::meetingNotes,
     .nouns = "protokoll, besprechungsnotiz, besprechungsnotizen, gesprächsnotiz, tagesordnung, meeting-notizen, "
              "agenda, meeting notes, meeting minutes, protokolle",
     .weak = ""},
    {.kind = DocumentKind::report,
     .nouns = "bericht, report, analyse, auswertung, gutachten, versuchsprotokoll, berichte, audit",
     .weak = ""},
    {.kind = DocumentKind::research,
     .nouns = "recherche, marktforschung, marktanalyse, wettbewerbsanalyse, umfrage, studie, befragung, "
              "fragebogen, literaturübersicht, umfrageergebnisse, interviewauswertung, zielgruppenanalyse, "
              "vergleich, nutzerinterviews",
     .weak = ""},
    {.kind = DocumentKind::retrospective,
     .nouns = "retrospektive, rückblick, lessons learned, retro, retrospective",
     .weak = ""},
    {.kind = DocumentKind::checklist,
     .nouns = "checkliste, aufgabenliste, to-do-liste, einkaufsliste, packliste, prüfliste, checklist, "
              "einkaufszettel",
     .weak = "aufgaben"},
    {.kind = DocumentKind::proposal, .nouns = "vorschlag, antrag, ausschreibung", .weak = ""},
    {.kind = DocumentKind::memo,
     .nouns = "notiz, notizen, vermerk, memo an, notizzettel, ideensammlung, memo",
     .weak = ""},
    {.kind = DocumentKind::presentation,
     .nouns = "präsentation, folien, vortrag, referat, foliensatz, slide, slides",
     .weak = ""},
    {.kind = DocumentKind::designDoc,
     .nouns = "architektur, architekturkonzept, architekturentscheidung, technisches konzept, feinkonzept, "
              "systementwurf, datenmodell, architekturentwurf, architekturdokument, technisches design, "
              "ablaufdiagramm, grobkonzept, architekturübersicht, schema",
     .weak = ""},
    {.kind = DocumentKind::apiDoc,
     .nouns = "api-dokumentation, api-referenz, api-spezifikation, schnittstellenbeschreibung, "
              "schnittstellendokumentation, schnittstellenreferenz",
     .weak = ""},
    {.kind = DocumentKind::testPlan,
     .nouns = "testplan, testkonzept, testfall, testfälle, teststrategie, testprotokoll, prüfplan, "
              "abnahmetest, testszenarien, test cases",
     .weak = ""},
    {.kind = DocumentKind::bugReport,
     .nouns = "fehlerbericht, fehlermeldung, bugreport, fehlerliste, bug report, bugmeldung",
     .weak = ""},
    {.kind = DocumentKind::codeReview, .nouns = "code review, codedurchsicht, codeprüfung", .weak = ""},
    {.kind = DocumentKind::postmortem,
     .nouns = "postmortem, störungsbericht, ausfallbericht, incident-bericht, ursachenanalyse, fehleranalyse, "
              "unfallbericht, vorfallanalyse, post mortem, incident report",
     .weak = ""},
    {.kind = DocumentKind::changelog,
     .nouns = "changelog, release notes, änderungsprotokoll, änderungshistorie, versionshinweise, "
              "versionshistorie, neuerungen",
     .weak = ""},
    {.kind = DocumentKind::guide,
     .nouns = "anleitung, handbuch, leitfaden, guide, einführung, dokumentation, tutorial, ratgeber, "
              "gebrauchsanweisung, arbeitsanweisung, erste schritte, einarbeitungsplan, verfahrensanweisung, "
              "prozessbeschreibung, anleitungen, schritt-für-schritt-anleitung, runbook",
     .weak = ""},
    {.kind = DocumentKind::data,
     .nouns = "daten, datensatz, tabelle, statistik, kennzahlen, messwerte, liste, inventar, zahlen",
     .weak = ""},
    {.kind = DocumentKind::prompt, .nouns = "prompt, prompts, systemprompt, prompt-vorlage", .weak = ""},
    {.kind = DocumentKind::design,
     .nouns = "designentwurf, wireframe, wireframes, mockup, mockups, prototyp, logoentwurf, skizze, entwürfe, "
              "ui-entwurf, persona, personas",
     .weak = ""},
    {.kind = DocumentKind::designSystem,
     .nouns = "designsystem, design system, styleguide, gestaltungsrichtlinien, markenhandbuch, "
              "design-handbuch, style guide, design tokens, markenrichtlinien",
     .weak = ""},
    {.kind = DocumentKind::marketingCopy,
     .nouns = "werbetext, werbetexte, anzeigentext, slogan, produktbeschreibung, broschüre, flyer, landingpage, "
              "anzeigentexte, faltblatt, verkaufstext, slogans",
     .weak = ""},
    {.kind = DocumentKind::sales,
     .nouns = "angebot, verkaufsunterlagen, vertriebsunterlagen, vertriebspräsentation, verkaufspräsentation, "
              "produktkatalog, preisliste, katalog, angebote, verkaufsleitfaden",
     .weak = ""},
    {.kind = DocumentKind::pressRelease,
     .nouns = "pressemitteilung, pressemeldung, presseinformation, pressetext, pressemappe, presseerklärung, "
              "presseinfo",
     .weak = ""},
    {.kind = DocumentKind::newsletter,
     .nouns = "newsletter, rundbrief, infobrief, mitarbeiterzeitung, gemeindebrief, vereinsnachrichten",
     .weak = ""},
    {.kind = DocumentKind::socialPost,
     .nouns = "social-media-beiträge, social-media-post, linkedin-beitrag, linkedin-post, instagram-beitrag, "
              "instagram-post, tweet, facebook-beitrag, linkedin post",
     .weak = ""},
    {.kind = DocumentKind::businessPlan,
     .nouns = "geschäftsplan, businessplan, business plan, geschäftsmodell, gründungskonzept",
     .weak = ""},
    {.kind = DocumentKind::finance,
     .nouns = "budget, budgetplan, finanzplan, kostenplan, haushaltsplan, rechnung, rechnungen, abrechnung, "
              "kostenvoranschlag, jahresabschluss, bilanz, kalkulation, finanzbericht, haushaltsbuch, steuererklärung, "
              "quittung, kostenaufstellung, budgetplanung, mahnung, lieferschein, kontoauszug, gutschrift, bestellung, "
              "finanzen, kassenbuch",
     .weak = ""},
    {.kind = DocumentKind::legal,
     .nouns = "vertrag, vereinbarung, agb, allgemeine geschäftsbedingungen, nutzungsbedingungen, vollmacht, kündigung, "
              "lizenz, satzung, klage, einverständniserklärung, widerspruch, übergabeprotokoll, impressum, "
              "bescheinigung, abmahnung, patientenverfügung, bürgschaft, verträge, klageschrift",
     .weak = ""},
    {.kind = DocumentKind::policy,
     .nouns = "richtlinie, richtlinien, leitlinien, regelung, regeln, vorschriften, betriebsvereinbarung, "
              "verhaltenskodex, dienstanweisung, regelwerk, datenschutzerklärung, ordnung",
     .weak = ""},
    {.kind = DocumentKind::notice,
     .nouns = "mitteilung, bekanntmachung, ankündigung, rundschreiben, einladung, hinweis, hinweise, aushang, "
              "elternbrief, merkblatt, benachrichtigung, elterninformation",
     .weak = ""},
    {.kind = DocumentKind::jobPosting,
     .nouns = "stellenanzeige, stellenausschreibung, stellenangebot, stellenbeschreibung, jobprofil, "
              "stellenanzeigen",
     .weak = ""},
    {.kind = DocumentKind::email,
     .nouns = "begleitschreiben, dankschreiben, kündigungsschreiben, antwortschreiben, beschwerdebrief, "
              "rundmail, willkommensmail, mail an, anfrage, antwortmail, e-mail-entwurf, anschreiben, "
              "antwort auf",
     .weak = "mail, mails, e-mail"},
    {.kind = DocumentKind::faq,
     .nouns = "häufige fragen, häufig gestellte fragen, faq, fragen und antworten, q a, faqs",
     .weak = ""},
    {.kind = DocumentKind::blogPost,
     .nouns = "blogbeitrag, blogpost, gastbeitrag, artikel, erfahrungsbericht, reisebericht, blog post",
     .weak = ""},
    {.kind = DocumentKind::script,
     .nouns = "drehbuch, rede, videoskript, theaterstück, untertitel, ansprache, podcast-skript, hörspiel, "
              "moderationstext, sprechertext",
     .weak = ""},
    {.kind = DocumentKind::essay,
     .nouns = "essay, aufsatz, kolumne, kommentar, rezension, leitartikel, erörterung, filmkritik, buchbesprechung, "
              "stellungnahme, glosse, leserbrief",
     .weak = ""},
    {.kind = DocumentKind::story,
     .nouns = "kurzgeschichte, roman, märchen, erzählung, gedicht, fabel, liedtext",
     .weak = ""},
    {.kind = DocumentKind::translation, .nouns = "übersetzung", .weak = ""},
    {.kind = DocumentKind::learning,
     .nouns = "lehrplan, unterrichtsmaterial, unterrichtsmaterialien, unterrichtsentwurf, unterrichtsplanung, "
              "schulungsunterlagen, kursunterlagen, modulhandbuch, stoffverteilungsplan, seminarplan, "
              "arbeitsheft, lernplan, schulungskonzept, syllabus, kursplan",
     .weak = ""},
    {.kind = DocumentKind::lectureNotes,
     .nouns = "mitschrift, vorlesungsnotizen, vorlesungsskript, lecture notes, vorlesungsmitschrift",
     .weak = ""},
    {.kind = DocumentKind::studyNotes,
     .nouns = "lernzettel, karteikarten, prüfungsvorbereitung, vokabelliste, vokabeln, formelsammlung, "
              "lernkarten, spickzettel, zusammenfassung",
     .weak = ""},
    {.kind = DocumentKind::readingNotes,
     .nouns = "lesenotizen, buchzusammenfassung, lesetagebuch, exzerpt, inhaltsangabe, leseprotokoll, lektürenotizen",
     .weak = ""},
    {.kind = DocumentKind::exercises,
     .nouns = "übungsaufgabe, übungsaufgaben, übung, übungen, übungsblatt, übungsblätter, arbeitsblatt, "
              "arbeitsblätter, aufgabenblatt, hausaufgabe, hausaufgaben, aufgabensammlung",
     .weak = ""},
    {.kind = DocumentKind::solutions,
     .nouns = "musterlösung, lösungen, lösungsblatt, lösungsweg, erwartungshorizont, lösungsheft, antworten",
     .weak = ""},
    {.kind = DocumentKind::quiz,
     .nouns = "klausur, klassenarbeit, prüfungsfragen, abschlussprüfung, vokabeltest, quizfragen, "
              "einstufungstest, klausuren",
     .weak = "prüfung, prüfungen, quiz"},
    {.kind = DocumentKind::paper,
     .nouns = "abschlussarbeit, bachelorarbeit, masterarbeit, dissertation, doktorarbeit, hausarbeit, "
              "seminararbeit, facharbeit, diplomarbeit, forschungsarbeit",
     .weak = ""},
    {.kind = DocumentKind::journal, .nouns = "tagebuch, tagebucheintrag, logbuch", .weak = ""},
    {.kind = DocumentKind::resume,
     .nouns = "lebenslauf, bewerbung, bewerbungsschreiben, motivationsschreiben, empfehlungsschreiben, arbeitszeugnis, "
              "bewerbungsanschreiben",
     .weak = ""},
    {.kind = DocumentKind::travelPlan,
     .nouns = "reiseplan, reiseplanung, reiseroute, reiseprogramm, urlaubsplan, urlaubsplanung",
     .weak = ""},
    {.kind = DocumentKind::recipe, .nouns = "rezept, rezepte, kochbuch, speiseplan, rezeptsammlung, menü", .weak = ""},
};

}  // namespace

std::span<const Layered> german() {
    return words;
}

}  // namespace vellark::KindWords
