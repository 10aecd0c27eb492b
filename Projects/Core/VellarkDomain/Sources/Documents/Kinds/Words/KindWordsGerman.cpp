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
     .nouns = "spezifikation, pflichtenheft, lastenheft, anforderungen, anforderungskatalog, "
              "anforderungsanalyse, leistungsbeschreibung, funktionsbeschreibung, fachkonzept, "
              "leistungsverzeichnis, datenblatt, anforderungsdokument, spezifikationen",
     .weak = ""},
    {.kind = DocumentKind::plan,
     .nouns = "plan, zeitplan, terminplan, projektplan, aktionsplan, maßnahmenplan, wochenplan, dienstplan, "
              "planung, strategie, roadmap, schichtplan, migrationsplan",
     .weak = ""},
    {.kind = DocumentKind::userStories,
     .nouns = "user story, user stories, nutzergeschichte, anwendungsfall, anwendungsfälle, "
              "akzeptanzkriterien, nutzergeschichten",
     .weak = ""},
    {.kind = DocumentKind::meetingNotes,
     .nouns = "protokoll, protokolle, besprechungsnotiz, besprechungsnotizen, gesprächsnotiz, niederschrift, "
              "tagesordnung, meeting-notizen",
     .weak = ""},
    {.kind = DocumentKind::report,
     .nouns = "bericht, report, analyse, auswertung, gutachten, versuchsprotokoll, berichte",
     .weak = ""},
    {.kind = DocumentKind::research,
     .nouns = "recherche, marktforschung, marktanalyse, wettbewerbsanalyse, umfrage, studie, befragung, "
              "fragebogen, literaturübersicht, umfrageergebnisse, interviewauswertung, zielgruppenanalyse, "
              "vergleich",
     .weak = ""},
    {.kind = DocumentKind::retrospective, .nouns = "retrospektive, rückblick, lessons learned, reflexion", .weak = ""},
    {.kind = DocumentKind::checklist,
     .nouns = "checkliste, aufgabenliste, to-do-liste, todoliste, einkaufsliste, packliste, prüfliste",
     .weak = "aufgaben"},
    {.kind = DocumentKind::proposal,
     .nouns = "vorschlag, antrag, empfehlung, entscheidungsvorlage, beschlussvorlage, ausschreibung",
     .weak = ""},
    {.kind = DocumentKind::memo, .nouns = "notiz, notizen, vermerk, memo an, notizzettel, ideensammlung", .weak = ""},
    {.kind = DocumentKind::presentation,
     .nouns = "präsentation, folien, vortrag, referat, foliensatz, präsentationen",
     .weak = ""},
    {.kind = DocumentKind::designDoc,
     .nouns = "architektur, architekturkonzept, architekturentscheidung, technisches konzept, feinkonzept, "
              "systementwurf, datenbankentwurf, datenmodell, datenbankschema, architekturentwurf, "
              "architekturdokument, technisches design, entwurfsdokument, ablaufdiagramm, grobkonzept",
     .weak = ""},
    {.kind = DocumentKind::apiDoc,
     .nouns = "api-dokumentation, api-referenz, api-spezifikation, schnittstellenbeschreibung, "
              "schnittstellendokumentation, schnittstellenspezifikation, schnittstellenreferenz",
     .weak = ""},
    {.kind = DocumentKind::testPlan,
     .nouns = "testplan, testkonzept, testfall, testfälle, teststrategie, testprotokoll, testszenario, "
              "prüfplan, abnahmetest, testszenarien",
     .weak = ""},
    {.kind = DocumentKind::bugReport,
     .nouns = "fehlerbericht, fehlermeldung, fehlerbeschreibung, bugreport, störungsmeldung, fehlerliste",
     .weak = ""},
    {.kind = DocumentKind::codeReview, .nouns = "code review, codedurchsicht", .weak = ""},
    {.kind = DocumentKind::postmortem,
     .nouns = "postmortem, störungsbericht, vorfallsbericht, ausfallbericht, incident-bericht, "
              "ursachenanalyse, fehleranalyse, unfallbericht, vorfallanalyse",
     .weak = ""},
    {.kind = DocumentKind::changelog,
     .nouns = "changelog, release notes, änderungsprotokoll, änderungsverlauf, änderungshistorie, "
              "versionshinweise, versionshistorie, neuerungen",
     .weak = ""},
    {.kind = DocumentKind::guide,
     .nouns = "anleitung, handbuch, leitfaden, guide, einführung, dokumentation, tutorial, ratgeber, "
              "gebrauchsanweisung, arbeitsanweisung, erste schritte, einarbeitungsplan, verfahrensanweisung, "
              "prozessbeschreibung, anleitungen, schritt-für-schritt-anleitung",
     .weak = ""},
    {.kind = DocumentKind::data,
     .nouns = "daten, datensatz, tabelle, statistik, statistiken, kennzahlen, messwerte, liste, inventar",
     .weak = ""},
    {.kind = DocumentKind::prompt, .nouns = "prompt, prompts, systemprompt, prompt-vorlage", .weak = ""},
    {.kind = DocumentKind::design,
     .nouns = "designentwurf, wireframe, wireframes, mockup, mockups, prototyp, logoentwurf, skizze, entwürfe, "
              "ui-entwurf",
     .weak = ""},
    {.kind = DocumentKind::designSystem,
     .nouns = "designsystem, design system, styleguide, gestaltungsrichtlinien, designrichtlinien, "
              "markenhandbuch, design-handbuch",
     .weak = ""},
    {.kind = DocumentKind::marketingCopy,
     .nouns = "werbetext, werbetexte, anzeigentext, slogan, produktbeschreibung, produkttext, broschüre, "
              "flyer, landingpage, anzeigentexte, faltblatt, verkaufstext",
     .weak = ""},
    {.kind = DocumentKind::sales,
     .nouns = "angebot, verkaufsunterlagen, vertriebsunterlagen, vertriebspräsentation, verkaufspräsentation, "
              "unternehmenspräsentation, produktkatalog, preisliste, katalog, angebote, verkaufsleitfaden",
     .weak = ""},
    {.kind = DocumentKind::pressRelease,
     .nouns = "pressemitteilung, pressemeldung, presseinformation, pressetext, medienmitteilung, pressemappe, "
              "presseerklärung, pressemitteilungen",
     .weak = ""},
    {.kind = DocumentKind::newsletter,
     .nouns = "newsletter, rundbrief, infobrief, mitarbeiterzeitung, gemeindebrief",
     .weak = ""},
    {.kind = DocumentKind::socialPost,
     .nouns = "social-media-beitrag, social-media-beiträge, social-media-post, linkedin-beitrag, "
              "linkedin-post, instagram-beitrag, instagram-post, tweet, facebook-beitrag",
     .weak = ""},
    {.kind = DocumentKind::businessPlan,
     .nouns = "geschäftsplan, businessplan, business plan, geschäftsmodell, geschäftskonzept, gründungskonzept",
     .weak = ""},
    {.kind = DocumentKind::finance,
     .nouns = "budget, budgetplan, finanzplan, kostenplan, haushaltsplan, rechnung, rechnungen, abrechnung, "
              "kostenvoranschlag, jahresabschluss, bilanz, kalkulation, finanzbericht, haushaltsbuch, "
              "steuererklärung, quittung, kostenaufstellung, budgetplanung, mahnung, lieferschein, "
              "kontoauszug, gutschrift, bestellung, kassenbuch",
     .weak = ""},
    {.kind = DocumentKind::legal,
     .nouns = "vertrag, vereinbarung, agb, allgemeine geschäftsbedingungen, nutzungsbedingungen, vollmacht, "
              "kündigung, lizenz, satzung, klage, einverständniserklärung, widerspruch, übergabeprotokoll, "
              "abnahmeprotokoll, impressum, bescheinigung, abmahnung, patientenverfügung, bürgschaft, "
              "verträge, klageschrift",
     .weak = ""},
    {.kind = DocumentKind::policy,
     .nouns = "richtlinie, richtlinien, leitlinie, leitlinien, regelung, regelungen, regeln, vorschrift, "
              "vorschriften, hausordnung, geschäftsordnung, betriebsvereinbarung, verhaltenskodex, "
              "dienstanweisung, leitbild, prüfungsordnung, schulordnung, regelwerk, datenschutzerklärung",
     .weak = ""},
    {.kind = DocumentKind::notice,
     .nouns = "mitteilung, bekanntmachung, ankündigung, rundschreiben, einladung, hinweis, hinweise, aushang, "
              "elternbrief, merkblatt, informationsschreiben, infoschreiben, benachrichtigung, "
              "elterninformation",
     .weak = ""},
    {.kind = DocumentKind::jobPosting,
     .nouns = "stellenanzeige, stellenausschreibung, stellenangebot, stellenbeschreibung, jobprofil",
     .weak = ""},
    {.kind = DocumentKind::email,
     .nouns = "geschäftsbrief, begleitschreiben, dankschreiben, kündigungsschreiben, antwortschreiben, "
              "beschwerdebrief, rundmail, willkommensmail, mail an, anfrage, antwortmail, e-mail-entwurf, "
              "anschreiben",
     .weak = "mail, mails, e-mail"},
    {.kind = DocumentKind::faq,
     .nouns = "häufige fragen, häufig gestellte fragen, faq, fragen und antworten",
     .weak = ""},
    {.kind = DocumentKind::blogPost,
     .nouns = "blogbeitrag, blogeintrag, blogpost, gastbeitrag, artikel, erfahrungsbericht, reisebericht, "
              "reportage",
     .weak = ""},
    {.kind = DocumentKind::script,
     .nouns = "drehbuch, rede, sprechtext, videoskript, theaterstück, untertitel, ansprache, podcast-skript, "
              "hörspiel, moderationstext, sprechertext",
     .weak = ""},
    {.kind = DocumentKind::essay,
     .nouns = "essay, aufsatz, kolumne, kommentar, rezension, leitartikel, erörterung, filmkritik, "
              "buchbesprechung, stellungnahme, glosse",
     .weak = ""},
    {.kind = DocumentKind::story,
     .nouns = "kurzgeschichte, roman, märchen, erzählung, gedicht, fabel, liedtext",
     .weak = ""},
    {.kind = DocumentKind::translation, .nouns = "übersetzung, englische fassung, lokalisierung", .weak = ""},
    {.kind = DocumentKind::learning,
     .nouns = "lehrplan, lehrmaterial, lernmaterial, unterrichtsmaterial, unterrichtsmaterialien, "
              "unterrichtsentwurf, unterrichtsplanung, stundenentwurf, schulungsunterlagen, kursunterlagen, "
              "lehrbuch, modulhandbuch, stoffverteilungsplan, seminarplan, arbeitsheft, lernplan, "
              "schulungskonzept",
     .weak = ""},
    {.kind = DocumentKind::lectureNotes, .nouns = "mitschrift, vorlesungsnotizen, vorlesungsskript", .weak = ""},
    {.kind = DocumentKind::studyNotes,
     .nouns = "lernzettel, karteikarten, prüfungsvorbereitung, klausurvorbereitung, vokabelliste, "
              "vokabeln, formelsammlung, lernkarten, spickzettel, zusammenfassung",
     .weak = ""},
    {.kind = DocumentKind::readingNotes,
     .nouns = "lesenotizen, buchzusammenfassung, lesetagebuch, exzerpt, inhaltsangabe, leseprotokoll, "
              "lektürenotizen",
     .weak = ""},
    {.kind = DocumentKind::exercises,
     .nouns = "übungsaufgabe, übungsaufgaben, übung, übungen, übungsblatt, übungsblätter, arbeitsblatt, "
              "arbeitsblätter, aufgabenblatt, hausaufgabe, hausaufgaben, aufgabensammlung",
     .weak = ""},
    {.kind = DocumentKind::solutions,
     .nouns = "musterlösung, lösungen, lösungsblatt, lösungsweg, lösungsvorschlag, erwartungshorizont, "
              "lösungsheft, antworten",
     .weak = ""},
    {.kind = DocumentKind::quiz,
     .nouns = "klausur, klassenarbeit, prüfungsfragen, abschlussprüfung, vokabeltest, quizfragen, "
              "einstufungstest",
     .weak = "prüfung, prüfungen, quiz"},
    {.kind = DocumentKind::paper,
     .nouns = "abschlussarbeit, bachelorarbeit, masterarbeit, dissertation, doktorarbeit, hausarbeit, "
              "seminararbeit, facharbeit, projektarbeit, diplomarbeit, forschungsarbeit",
     .weak = ""},
    {.kind = DocumentKind::journal, .nouns = "tagebuch, tagebucheintrag, logbuch", .weak = ""},
    {.kind = DocumentKind::resume,
     .nouns = "lebenslauf, bewerbung, bewerbungsschreiben, motivationsschreiben, bewerbungsunterlagen, "
              "empfehlungsschreiben, arbeitszeugnis",
     .weak = ""},
    {.kind = DocumentKind::travelPlan,
     .nouns = "reiseplan, reiseplanung, reiseroute, reiseverlauf, reiseprogramm, urlaubsplan, urlaubsplanung",
     .weak = ""},
    {.kind = DocumentKind::recipe,
     .nouns = "rezept, rezepte, kochbuch, speiseplan, essensplan, rezeptsammlung, menü",
     .weak = ""},
};

}  // namespace

std::span<const Layered> german() {
    return words;
}

}  // namespace vellark::KindWords
