// French words that point at a document's kind. The head of a French title stands first, so a phrase ("rapport
// d'incident") needs an entry only where it means another kind than its first word, or where that word is English too
// ("plan"). Plurals are entries of their own; words that English shares must have the same kind there. "plane" and
// "tribune" read as English unless a French complement follows.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

namespace vellark::KindWords {

namespace {

constexpr Layered words[] = {
    {.kind = DocumentKind::prd,
     .nouns = "expression de besoins, expression des besoins, exigences produit, note de cadrage, fiche projet, "
              "brief produit, fiche de cadrage, expression de besoin, cadrage fonctionnel, cahier des besoins, "
              "document d'exigences produit",
     .weak = ""},
    {.kind = DocumentKind::spec,
     .nouns = "cahier des charges, spécification, spécifications, exigences, fiche technique, "
              "dossier technique, règles de gestion, besoins fonctionnels, cahiers des charges, sfg, sfd",
     .weak = "besoins"},
    {.kind = DocumentKind::plan,
     .nouns = "plan, plan d'action, plan projet, plan stratégique, plan marketing, planning, calendrier, "
              "feuille de route, stratégie, stratégies, planification, rétroplanning, roadmap, "
              "emploi du temps, plane, échéancier, plan d'urgence, plan d'amélioration, plan d'investissement",
     .weak = "programme, programmes"},
    {.kind = DocumentKind::userStories,
     .nouns = "récits utilisateurs, user story, user stories, cas d'utilisation, cas d'usage, "
              "critères d'acceptation, scénario utilisateur, backlog produit, récits utilisateur",
     .weak = ""},
    {.kind = DocumentKind::meetingNotes,
     .nouns = "compte rendu, comptes rendus, procès-verbal, procès-verbaux, relevé de décisions, "
              "notes de réunion, ordre du jour, point hebdo, pv, cr, réunions",
     .weak = ""},
    {.kind = DocumentKind::report,
     .nouns = "rapport, rapports, bilan, bilans, reporting, synthèse, synthèses, note de synthèse, "
              "tableau de bord, tableaux de bord, état d'avancement, point d'avancement, analyse, diagnostic, "
              "évaluation, évaluations, livre blanc, compte rendu d'activité, point d'étape, résultats, "
              "résumé des modifications",
     .weak = "suivi, suivis"},
    {.kind = DocumentKind::research,
     .nouns = "étude, études, recherche, enquête, sondage, analyse concurrentielle, analyse de marché, veille, "
              "état de l'art, revue de littérature, revue de la littérature, questionnaire, "
              "benchmark concurrentiel, synthèse des entretiens, résultats du sondage, comparatif, "
              "analyse de la concurrence",
     .weak = ""},
    {.kind = DocumentKind::retrospective,
     .nouns = "rétrospective, rétro, retour d'expérience, retours d'expérience, bilan de projet, bilan "
              "de sprint, rex projet",
     .weak = ""},
    {.kind = DocumentKind::checklist,
     .nouns = "liste de contrôle, liste de vérification, liste de tâches, liste des tâches, liste de courses, "
              "à faire, checklist, checklists, check-list, points à vérifier, liste des courses, "
              "liste des choses, choses à faire",
     .weak = "tâches, liste, listes"},
    {.kind = DocumentKind::proposal,
     .nouns = "proposition, propositions, recommandation, recommandations, demande de subvention, "
              "demande de financement, réponse à appel d'offres, avant-projet, projet de recherche, "
              "appel à projets, réponse à l'appel d'offres, dossier de subvention",
     .weak = ""},
    {.kind = DocumentKind::memo,
     .nouns = "note de service, notes de service, note interne, mémo, pense-bête, notes en vrac, idées en vrac",
     .weak = ""},
    {.kind = DocumentKind::presentation,
     .nouns = "présentation, diaporama, support de présentation, diapositives, exposé, soutenance, "
              "présentations",
     .weak = ""},
    {.kind = DocumentKind::designDoc,
     .nouns = "document de conception, dossier de conception, conception, architecture technique, "
              "architecture logicielle, dossier d'architecture, document d'architecture, décision d'architecture, "
              "modèle de données, diagramme de séquence, schéma, vue d'ensemble de l'architecture",
     .weak = ""},
    {.kind = DocumentKind::apiDoc,
     .nouns = "documentation api, documentation d'api, documentation de l'api, référence api, "
              "référence de l'api, spécification api, contrat d'interface",
     .weak = ""},
    {.kind = DocumentKind::testPlan,
     .nouns = "plan de test, plan de tests, cas de test, stratégie de test, cahier de recette, "
              "cahier de tests, plan de recette, scénario de test, scénarios de test, jeu d'essai, "
              "pv de recette",
     .weak = ""},
    {.kind = DocumentKind::bugReport,
     .nouns = "rapport de bug, rapport d'anomalie, fiche d'anomalie, signalement de bug, anomalie, "
              "ticket d'incident",
     .weak = ""},
    {.kind = DocumentKind::codeReview,
     .nouns = "revue de code, relecture de code, revue de pr, relecture de la pr, commentaires de revue",
     .weak = ""},
    {.kind = DocumentKind::postmortem,
     .nouns = "post-mortem, postmortem, rapport d'incident, analyse d'incident, analyse des causes, "
              "analyse de cause racine, compte rendu d'incident, analyse post-incident",
     .weak = ""},
    {.kind = DocumentKind::changelog,
     .nouns = "journal des modifications, journal des changements, notes de version, note de version, "
              "notes de mise à jour, historique des versions, historique des modifications, nouveautés, "
              "changelog, release notes",
     .weak = ""},
    {.kind = DocumentKind::guide,
     .nouns = "guide, manuel, manuels, mode d'emploi, tutoriel, tuto, procédure, procédures, "
              "notice d'utilisation, guide utilisateur, guide d'installation, guide pratique, fiche pratique, "
              "livret d'accueil, consignes, prise en main, mode opératoire, bonnes pratiques, "
              "documentation technique, documentation utilisateur, guide d'accueil, vademecum, "
              "guide d'utilisation, instructions d'installation",
     .weak = "méthode, démarche, étapes"},
    {.kind = DocumentKind::data,
     .nouns = "données, jeu de données, statistiques, chiffres clés, indicateurs, liste des participants, "
              "liste des clients, annuaire, base de données, inventaire, registre, fichier clients, tableau",
     .weak = ""},
    {.kind = DocumentKind::prompt,
     .nouns = "prompt, prompts, prompt système, bibliothèque de prompts, instructions pour l'agent, "
              "consignes pour l'ia",
     .weak = ""},
    {.kind = DocumentKind::design,
     .nouns = "maquette, maquettes, wireframe, wireframes, prototype interactif, parcours utilisateur, "
              "parcours client, esquisse, croquis, conception graphique",
     .weak = ""},
    {.kind = DocumentKind::designSystem,
     .nouns = "système de design, design system, charte graphique, guide de style, identité visuelle, "
              "bibliothèque de composants, palette de couleurs, charte éditoriale, charte de marque",
     .weak = ""},
    {.kind = DocumentKind::marketingCopy,
     .nouns = "texte publicitaire, accroche, accroches, slogan, slogans, page de vente, publicité, "
              "annonce publicitaire, dépliant, description produit, fiche produit, texte promotionnel, "
              "textes publicitaires, prospectus, textes de la page, texte de la page",
     .weak = ""},
    {.kind = DocumentKind::sales,
     .nouns = "offre, argumentaire, présentation commerciale, plaquette commerciale, catalogue, "
              "script de vente, cas client, grille tarifaire, script d'appel, dossier commercial, tarifs, "
              "témoignage client, proposition commerciale",
     .weak = ""},
    {.kind = DocumentKind::pressRelease,
     .nouns = "communiqué de presse, communiqué, communiqués, dossier de presse",
     .weak = ""},
    {.kind = DocumentKind::newsletter,
     .nouns = "newsletter, newsletters, lettre d'information, lettres d'information, infolettre, bulletin, "
              "journal interne, bulletin municipal, gazette, bulletin d'information",
     .weak = ""},
    {.kind = DocumentKind::socialPost,
     .nouns = "publication linkedin, publication instagram, publication facebook, post linkedin, "
              "post instagram, post facebook, publication réseaux sociaux, tweet, légende instagram, "
              "fil twitter, publications, légendes",
     .weak = ""},
    {.kind = DocumentKind::businessPlan,
     .nouns = "plan d'affaires, business plan, modèle économique, plan de développement, étude de faisabilité",
     .weak = ""},
    {.kind = DocumentKind::finance,
     .nouns = "budget, budgets, budget prévisionnel, devis, facture, factures, bilan comptable, "
              "bilan financier, compte de résultat, comptes annuels, plan de financement, plan de trésorerie, "
              "note de frais, notes de frais, état financier, états financiers, rapport financier, "
              "bon de commande, suivi budgétaire, fiche de paie, bulletin de paie, relevé de compte, reçu, "
              "déclaration fiscale, relevé bancaire, trésorerie, comptabilité",
     .weak = ""},
    {.kind = DocumentKind::legal,
     .nouns = "contrat, contrats, convention, conventions, accord, conditions générales, "
              "conditions d'utilisation, mentions légales, statuts, bail, avenant, procuration, "
              "mise en demeure, licence, attestation, attestations, protocole d'accord, cgv, cgu, "
              "projet de loi, testament, plainte, assignation, compromis de vente",
     .weak = ""},
    {.kind = DocumentKind::policy,
     .nouns = "politique, politiques, règlement, règlements, charte, chartes, code de conduite, directive, "
              "règles, consignes de sécurité, lignes directrices, normes",
     .weak = ""},
    {.kind = DocumentKind::notice,
     .nouns = "annonce, annonces, avis, note d'information, circulaire, convocation, communication interne, "
              "information aux parents, lettre aux parents, appel à candidatures, faire-part, "
              "lettre d'invitation, rappel",
     .weak = ""},
    {.kind = DocumentKind::jobPosting,
     .nouns = "offre d'emploi, offres d'emploi, annonce d'emploi, fiche de poste, fiches de poste, "
              "offre de stage, offres de stage, offre d'alternance, description de poste, profil de poste, "
              "annonce de recrutement, recrutement, avis de recrutement, annonce recrutement",
     .weak = ""},
    {.kind = DocumentKind::email,
     .nouns = "courriel, courriels, lettre, courrier, mail de relance, e-mail de relance, "
              "mail de remerciement, e-mail de bienvenue, mail de bienvenue, mail de prospection, "
              "réponse au client, mail d'excuses, relance client",
     .weak = "mail, mails, e-mail, e-mails"},
    {.kind = DocumentKind::faq,
     .nouns = "foire aux questions, questions fréquentes, faq, questions fréquemment posées, "
              "questions-réponses, questions et réponses",
     .weak = ""},
    {.kind = DocumentKind::blogPost,
     .nouns = "article de blog, article, billet, témoignage, témoignages, reportage, récit de voyage, "
              "article blog, articles de blog",
     .weak = ""},
    {.kind = DocumentKind::script,
     .nouns = "scénario, scénarios, discours, script vidéo, script de podcast, pièce de théâtre, sous-titres, "
              "dialogue, dialogues, allocution, storyboard, éloge funèbre, script podcast, "
              "conducteur de l'émission, transcription",
     .weak = ""},
    {.kind = DocumentKind::essay,
     .nouns = "essai, essais, tribune, éditorial, édito, chronique, critique de film, critique littéraire, "
              "commentaire de texte, billet d'humeur, rédaction, dissertation de philosophie, "
              "commentaire composé, critique du film",
     .weak = ""},
    {.kind = DocumentKind::story,
     .nouns = "roman, conte, nouvelle littéraire, recueil de nouvelles, histoire pour enfants, poème, poèmes, "
              "récit, récits, fable, paroles",
     .weak = ""},
    {.kind = DocumentKind::translation,
     .nouns = "traduction, traductions, version française, version anglaise",
     .weak = ""},
    {.kind = DocumentKind::learning,
     .nouns = "cours, support de cours, supports de cours, plan de cours, programme de formation, "
              "support de formation, plan de formation, module de formation, formation, formations, "
              "séquence pédagogique, fiche pédagogique, fiche de préparation, leçon, leçons, "
              "livret de formation, progression annuelle, séquence",
     .weak = ""},
    {.kind = DocumentKind::lectureNotes,
     .nouns = "notes de cours, prise de notes, notes de conférence, notes de séminaire, polycopié, "
              "cours magistral",
     .weak = ""},
    {.kind = DocumentKind::studyNotes,
     .nouns = "fiche de révision, fiches de révision, révisions, fiche de synthèse, résumé de cours, "
              "aide-mémoire, fiche de cours, fiches de cours, vocabulaire, notes de révision, "
              "résumé de chapitre, carte mentale, résumé du chapitre, fiches de vocabulaire",
     .weak = ""},
    {.kind = DocumentKind::readingNotes,
     .nouns = "fiche de lecture, fiches de lecture, notes de lecture, note de lecture, "
              "compte rendu de lecture, résumé de livre, résumé du livre, carnet de lecture",
     .weak = ""},
    {.kind = DocumentKind::exercises,
     .nouns = "exercice, exercices, feuille d'exercices, cahier d'exercices, série d'exercices, "
              "devoirs, devoir maison, travaux dirigés, travaux pratiques, annales, problèmes de maths, "
              "td",
     .weak = ""},
    {.kind = DocumentKind::solutions,
     .nouns = "corrigé, corrigés, solution des exercices, éléments de correction, correction du, "
              "correction des, correction exercices, solutions des exercices, réponses, barème, "
              "correction de l'examen, correction exercice",
     .weak = ""},
    {.kind = DocumentKind::quiz,
     .nouns = "qcm, sujet d'examen, devoir surveillé, interrogation, épreuve, épreuves, partiel, bac blanc, "
              "dictée, sujet de bac, contrôle de mathématiques, contrôle continu, contrôle chapitre, examens, "
              "interro",
     .weak = "quiz, examen, examens, contrôle, contrôles"},
    {.kind = DocumentKind::errorNotes,
     .nouns = "cahier d'erreurs, cahier des erreurs, carnet d'erreurs, analyse des erreurs, relevé d'erreurs, "
              "mes erreurs, mes fautes",
     .weak = ""},
    {.kind = DocumentKind::paper,
     .nouns = "mémoire, mémoires, thèse, thèses, article scientifique, articles scientifiques, "
              "article de recherche, articles de recherche, rapport de recherche, actes de colloque, "
              "projet de thèse",
     .weak = ""},
    {.kind = DocumentKind::journal,
     .nouns = "journal intime, journal de bord, carnet de bord, journal personnel, journal de gratitude, "
              "journal de voyage, carnet de voyage, carnet de gratitude",
     .weak = ""},
    {.kind = DocumentKind::resume,
     .nouns = "curriculum vitae, lettre de motivation, lettres de motivation, dossier de candidature, "
              "candidature, candidatures, dossier de compétences, lettre de recommandation, mon cv",
     .weak = "cv"},
    {.kind = DocumentKind::travelPlan,
     .nouns = "itinéraire, voyage, programme de voyage, plan de voyage, planning de voyage, "
              "programme de visite, séjour, programme week-end, programme du voyage, programme du séjour",
     .weak = ""},
    {.kind = DocumentKind::recipe,
     .nouns = "recette, recettes, carnet de recettes, fiche recette, menu de la semaine, menus de la semaine, "
              "plan de repas",
     .weak = ""},
};

}  // namespace

std::span<const Layered> french() {
    return words;
}

}  // namespace vellark::KindWords
