// German words that point at a document's kind. Each noun also matches as the end of a compound ("bericht" in
// "Projektbericht"), so only compounds that mean another kind than their head need entries. Plurals are entries of
// their own; words that English shares must have the same kind there.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

namespace vellark::KindWords {

namespace {

constexpr Layered words[] = {
    {.kind = DocumentKind::prd,
     .nouns = "konzept, produktanforderungen, projektskizze, produktanforderungsdokument, produktbriefing",
     .weak = ""},
    {.kind = DocumentKind::spec,
     .nouns = "spezifikation, spezifikationen, pflichtenheft, lastenheft, anforderungen, "
              "anforderungskatalog, anforderungsanalyse, leistungsbeschreibung, funktionsbeschreibung, "
              "fachkonzept, leistungsverzeichnis, datenblatt, anforderungsdokument",
     .weak = ""},
    {.kind = DocumentKind::plan,
     .nouns = "plan, pläne, zeitplan, terminplan, projektplan, aktionsplan, maßnahmenplan, wochenplan, "
              "dienstplan, planung, strategie, roadmap, schichtplan, migrationsplan",
     .weak = ""},
    {.kind = DocumentKind::userStories,
     .nouns = "user story, user stories, nutzergeschichte, nutzergeschichten, anwendungsfall, anwendungsfälle, "
              "akzeptanzkriterien",
     .weak = ""},
    {.kind = DocumentKind::meetingNotes,
     .nouns = "protokoll, protokolle, besprechungsnotiz, besprechungsnotizen, gesprächsnotiz, "
              "gesprächsnotizen, niederschrift, tagesordnung, meeting-notizen",
     .weak = ""},
    {.kind = DocumentKind::report,
     .nouns = "bericht, berichte, report, analyse, analysen, auswertung, auswertungen, gutachten, sachstand, "
              "versuchsprotokoll",
     .weak = ""},
    {.kind = DocumentKind::research,
     .nouns = "recherche, marktforschung, marktanalyse, wettbewerbsanalyse, umfrage, umfragen, studie, "
              "studien, befragung, fragebogen, literaturübersicht, umfrageergebnisse",
     .weak = ""},
    {.kind = DocumentKind::retrospective,
     .nouns = "retrospektive, retrospektiven, rückblick, lessons learned, reflexion",
     .weak = ""},
    {.kind = DocumentKind::checklist,
     .nouns = "checkliste, checklisten, aufgabenliste, to-do-liste, todoliste, einkaufsliste, "
              "packliste, wunschliste",
     .weak = "aufgaben"},
    {.kind = DocumentKind::proposal,
     .nouns = "vorschlag, vorschläge, antrag, anträge, empfehlung, empfehlungen, entscheidungsvorlage, "
              "beschlussvorlage",
     .weak = ""},
    {.kind = DocumentKind::memo, .nouns = "notiz, notizen, vermerk, memo an, notizzettel, ideensammlung", .weak = ""},
    {.kind = DocumentKind::presentation,
     .nouns = "präsentation, präsentationen, folien, vortrag, vorträge, referat, foliensatz",
     .weak = ""},
    {.kind = DocumentKind::designDoc,
     .nouns = "architektur, architekturkonzept, architekturentscheidung, technisches konzept, "
              "feinkonzept, systementwurf, datenbankentwurf, datenmodell, datenbankschema, "
              "klassendiagramm, berechtigungskonzept, architekturentwurf, architekturdokument, "
              "technisches design, entwurfsdokument",
     .weak = ""},
    {.kind = DocumentKind::apiDoc,
     .nouns = "api-dokumentation, api-referenz, api-spezifikation, schnittstellenbeschreibung, "
              "schnittstellendokumentation, schnittstellenspezifikation",
     .weak = ""},
    {.kind = DocumentKind::testPlan,
     .nouns = "testplan, testpläne, testkonzept, testfall, testfälle, teststrategie, testprotokoll, "
              "testszenario, prüfplan",
     .weak = ""},
    {.kind = DocumentKind::bugReport,
     .nouns = "fehlerbericht, fehlermeldung, fehlerbeschreibung, bugreport, störungsmeldung",
     .weak = ""},
    {.kind = DocumentKind::codeReview, .nouns = "code review, code-überprüfung", .weak = ""},
    {.kind = DocumentKind::postmortem,
     .nouns = "postmortem, störungsbericht, vorfallsbericht, ausfallbericht, incident-bericht, ursachenanalyse, "
              "fehleranalyse",
     .weak = ""},
    {.kind = DocumentKind::changelog,
     .nouns = "changelog, release notes, änderungsprotokoll, änderungsverlauf, änderungshistorie, "
              "versionshinweise, versionshistorie, neuerungen",
     .weak = ""},
    {.kind = DocumentKind::guide,
     .nouns = "anleitung, anleitungen, handbuch, handbücher, leitfaden, leitfäden, guide, einführung, "
              "dokumentation, tutorial, tutorials, ratgeber, gebrauchsanweisung, arbeitsanweisung, "
              "erste schritte, einarbeitungsplan",
     .weak = ""},
    {.kind = DocumentKind::data,
     .nouns = "daten, datensatz, datensätze, tabelle, tabellen, statistik, statistiken, kennzahlen, "
              "messprotokoll, messwerte, liste",
     .weak = ""},
    {.kind = DocumentKind::prompt, .nouns = "prompt, prompts, systemprompt, prompt-vorlage", .weak = ""},
    {.kind = DocumentKind::design,
     .nouns = "designentwurf, wireframe, wireframes, mockup, mockups, prototyp, logoentwurf, skizze",
     .weak = ""},
    {.kind = DocumentKind::designSystem,
     .nouns = "designsystem, design system, styleguide, gestaltungsrichtlinie, gestaltungsrichtlinien, "
              "designrichtlinien, markenhandbuch",
     .weak = ""},
    {.kind = DocumentKind::marketingCopy,
     .nouns = "werbetext, werbetexte, anzeigentext, slogan, produktbeschreibung, produkttext, "
              "broschüre, broschüren, flyer, landingpage, anzeigentexte",
     .weak = ""},
    {.kind = DocumentKind::sales,
     .nouns = "angebot, angebote, verkaufsunterlagen, vertriebsunterlagen, vertriebspräsentation, "
              "verkaufspräsentation, unternehmenspräsentation, produktkatalog, preisliste",
     .weak = ""},
    {.kind = DocumentKind::pressRelease,
     .nouns = "pressemitteilung, pressemitteilungen, pressemeldung, presseinformation, pressetext, "
              "medienmitteilung, pressemappe, presseerklärung",
     .weak = ""},
    {.kind = DocumentKind::newsletter,
     .nouns = "newsletter, rundbrief, infobrief, mitarbeiterzeitung, gemeindebrief",
     .weak = ""},
    {.kind = DocumentKind::socialPost,
     .nouns = "social-media-beitrag, social-media-beiträge, social-media-post, linkedin-beitrag, "
              "linkedin-post, instagram-beitrag, instagram-post, tweet, facebook-beitrag",
     .weak = ""},
    {.kind = DocumentKind::businessPlan,
     .nouns = "geschäftsplan, businessplan, business plan, geschäftsmodell, geschäftskonzept, geschäftsidee",
     .weak = ""},
    {.kind = DocumentKind::finance,
     .nouns = "budget, budgetplan, finanzplan, kostenplan, haushaltsplan, rechnung, rechnungen, "
              "abrechnung, kostenvoranschlag, jahresabschluss, bilanz, kalkulation, finanzbericht, "
              "haushaltsbuch, steuererklärung, quittung, kostenaufstellung, budgetplanung, mahnung, "
              "lieferschein",
     .weak = ""},
    {.kind = DocumentKind::legal,
     .nouns = "vertrag, verträge, vereinbarung, vereinbarungen, agb, allgemeine geschäftsbedingungen, "
              "nutzungsbedingungen, datenschutzerklärung, vollmacht, kündigung, lizenz, satzung, klage, "
              "einverständniserklärung, widerspruch, übergabeprotokoll, abnahmeprotokoll, impressum, "
              "bescheinigung",
     .weak = ""},
    {.kind = DocumentKind::policy,
     .nouns = "richtlinie, richtlinien, leitlinie, leitlinien, regelung, regelungen, regeln, vorschrift, "
              "vorschriften, hausordnung, geschäftsordnung, betriebsvereinbarung, verhaltenskodex, dienstanweisung, "
              "leitbild, sicherheitskonzept, datenschutzkonzept, prüfungsordnung, schulordnung, verordnung, "
              "hygienekonzept",
     .weak = ""},
    {.kind = DocumentKind::notice,
     .nouns = "mitteilung, mitteilungen, bekanntmachung, ankündigung, rundschreiben, einladung, "
              "einladungen, hinweis, hinweise, aushang, elternbrief, merkblatt, informationsschreiben, "
              "infoschreiben",
     .weak = ""},
    {.kind = DocumentKind::jobPosting,
     .nouns = "stellenanzeige, stellenanzeigen, stellenausschreibung, stellenangebot, stellenangebote, "
              "stellenbeschreibung, anforderungsprofil",
     .weak = ""},
    {.kind = DocumentKind::email,
     .nouns = "geschäftsbrief, begleitschreiben, dankschreiben, kündigungsschreiben, antwortschreiben, "
              "beschwerdebrief, dankesmail, erinnerungsmail, einladungsmail, rundmail, willkommensmail, "
              "mail an, dankesschreiben",
     .weak = "mail, mails, e-mail"},
    {.kind = DocumentKind::faq,
     .nouns = "häufige fragen, häufig gestellte fragen, faq, faqs, fragen und antworten, fragenkatalog",
     .weak = ""},
    {.kind = DocumentKind::blogPost,
     .nouns = "blogbeitrag, blogbeiträge, blogeintrag, blogpost, gastbeitrag, artikel, erfahrungsbericht, "
              "reisebericht, reportage",
     .weak = ""},
    {.kind = DocumentKind::script,
     .nouns = "drehbuch, rede, reden, sprechtext, videoskript, theaterstück, untertitel, ansprache, laudatio, "
              "grußwort, podcast-skript",
     .weak = ""},
    {.kind = DocumentKind::essay,
     .nouns = "essay, aufsatz, aufsätze, kolumne, kommentar, rezension, leitartikel, erörterung, filmkritik, "
              "gedichtinterpretation, buchbesprechung",
     .weak = ""},
    {.kind = DocumentKind::story,
     .nouns = "kurzgeschichte, roman, märchen, erzählung, gedicht, gedichte, novelle, fabel, liedtext",
     .weak = ""},
    {.kind = DocumentKind::translation,
     .nouns = "übersetzung, übersetzungen, deutsche fassung, englische fassung, lokalisierung",
     .weak = ""},
    {.kind = DocumentKind::learning,
     .nouns = "lehrplan, lehrpläne, lehrmaterial, lehrmaterialien, lernmaterial, unterrichtsmaterial, "
              "unterrichtsmaterialien, unterrichtsentwurf, unterrichtsplanung, stundenentwurf, "
              "schulungsunterlagen, kursunterlagen, lehrbuch, modulhandbuch",
     .weak = ""},
    {.kind = DocumentKind::lectureNotes,
     .nouns = "mitschrift, mitschriften, vorlesungsnotizen, vorlesungsskript",
     .weak = ""},
    {.kind = DocumentKind::studyNotes,
     .nouns = "lernzettel, karteikarten, prüfungsvorbereitung, klausurvorbereitung, vokabelliste, "
              "vokabeln, formelsammlung, lernkarten, spickzettel, zusammenfassung",
     .weak = ""},
    {.kind = DocumentKind::readingNotes,
     .nouns = "lesenotizen, buchzusammenfassung, lesetagebuch, exzerpt, inhaltsangabe, buchvorstellung, "
              "leseprotokoll",
     .weak = ""},
    {.kind = DocumentKind::exercises,
     .nouns = "übungsaufgabe, übungsaufgaben, übung, übungen, übungsblatt, übungsblätter, arbeitsblatt, "
              "arbeitsblätter, aufgabenblatt, hausaufgabe, hausaufgaben",
     .weak = ""},
    {.kind = DocumentKind::solutions,
     .nouns = "musterlösung, lösungen, lösungsblatt, lösungsweg, lösungsvorschlag, erwartungshorizont, "
              "lösungsheft",
     .weak = ""},
    {.kind = DocumentKind::quiz,
     .nouns = "klausur, klausuren, klassenarbeit, prüfungsfragen, abschlussprüfung, vokabeltest",
     .weak = "prüfung, prüfungen, quiz"},
    {.kind = DocumentKind::paper,
     .nouns = "abschlussarbeit, bachelorarbeit, masterarbeit, dissertation, doktorarbeit, hausarbeit, "
              "seminararbeit, facharbeit, projektarbeit",
     .weak = ""},
    {.kind = DocumentKind::journal, .nouns = "tagebuch, tagebucheintrag, tagebucheinträge", .weak = ""},
    {.kind = DocumentKind::resume,
     .nouns = "lebenslauf, bewerbung, bewerbungen, bewerbungsschreiben, anschreiben, "
              "motivationsschreiben, bewerbungsunterlagen, empfehlungsschreiben, arbeitszeugnis",
     .weak = ""},
    {.kind = DocumentKind::travelPlan,
     .nouns = "reiseplan, reiseplanung, reiseroute, reiseverlauf, reiseprogramm, urlaubsplan, urlaubsplanung",
     .weak = ""},
    {.kind = DocumentKind::recipe,
     .nouns = "rezept, rezepte, kochbuch, speiseplan, essensplan, rezeptsammlung",
     .weak = ""},
};

}  // namespace

std::span<const Layered> german() {
    return words;
}

}  // namespace vellark::KindWords
