#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindFileName.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGrammar.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindSegment.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

using Found = DocumentKindSegment::Found;
using Level = DocumentKindGuess::Level;
using Meaning = DocumentKindGrammar::Meaning;
using Role = DocumentKindTerm::Role;
using Segments = std::vector<DocumentKindSegment>;

/// One document. Later places are read only when the earlier ones say nothing.
class Classification {
public:
    Classification(const DocumentKindEvidence& evidence, const DocumentKindLexicon& lexicon)
        : evidence_(evidence), lexicon_(lexicon), file_(evidence.path) {}

    std::optional<DocumentKindGuess> run() {
        if (file_.kind) return DocumentKindGuess{{*file_.kind}, Level::fileName, true};
        if (auto guess = fromNames()) return guess;
        readFields();
        if (const auto meaning = headIn(folders_)) return settled(*meaning, Level::folder);
        if (const auto meaning = declaredMeaning()) return settled(*meaning, Level::declared);
        if (const auto meaning = headIn(headings_)) return settled(*meaning, Level::heading);
        if (const auto meaning = headIn(tags_)) return settled(*meaning, Level::declared);
        if (const auto meaning = hintIn(titleNames_)) return settled(*meaning, Level::cue);
        if (const auto meaning = hintIn(stemNames_)) return settled(*meaning, Level::cue);
        return fromMarkers();
    }

private:
    std::optional<DocumentKindGuess> fromNames() {
        titleNames_ = segments(evidence_.title);
        normalizedTitle_ = DocumentKindMatcher::normalize(evidence_.title);
        if (file_.stem && DocumentKindMatcher::normalize(*file_.stem) != normalizedTitle_) {
            stemNames_ = segments(*file_.stem);
        }
        auto meaning = headIn(titleNames_);
        if (!meaning) meaning = headIn(stemNames_);
        if (!meaning) return std::nullopt;
        if (meaning->kinds.size() >= 2) readFields();
        return settled(*meaning, Level::name);
    }

    void readFields() {
        if (hasFields_) return;
        hasFields_ = true;
        for (const std::string_view folder : file_.folders(evidence_.root)) {
            folders_.emplace_back(folder, lexicon_);
        }
        for (const std::string& tag : evidence_.tags) {
            append(tags_, segments(tag));
        }
        for (const std::string& value : evidence_.declared) {
            append(declared_, segments(value));
        }
        for (const std::string& heading : evidence_.headings) {
            const bool repeatsTitle = DocumentKindMatcher::normalize(heading) == normalizedTitle_;
            if (!heading.empty() && !repeatsTitle) append(headings_, segments(heading));
        }
    }

    [[nodiscard]] Segments segments(std::string_view text) const {
        return DocumentKindSegment::segments(text, lexicon_);
    }

    static void append(Segments& segments, Segments more) { std::ranges::move(more, std::back_inserter(segments)); }

    static Meaning meaning(const Found& found) { return {found.term->kinds, found.pattern}; }

    static std::optional<Meaning> headIn(const Segments& segments) {
        for (const DocumentKindSegment& segment : segments) {
            if (const auto head = DocumentKindGrammar(segment).head()) return meaning(*head);
        }
        return std::nullopt;
    }

    // A generic noun with a topic, or a weak word beside one.
    static std::optional<Meaning> hintIn(const Segments& segments) {
        for (const DocumentKindSegment& segment : segments) {
            DocumentKindGrammar grammar(segment);
            if (auto refined = grammar.refinedGeneric()) return refined;
            if (const auto weak = grammar.corroborated()) return meaning(*weak);
        }
        return std::nullopt;
    }

    // A declared value needs no grammar: any word of it that points at a kind counts.
    [[nodiscard]] std::optional<Meaning> declaredMeaning() const {
        for (const DocumentKindSegment& segment : declared_) {
            std::vector<const Found*> telling;
            for (const Found& found : segment.found) {
                const Role role = found.term->role;
                if (role == Role::name || role == Role::weak || role == Role::cue) telling.push_back(&found);
            }
            if (const Found* const best = DocumentKindGrammar::latest(telling)) return meaning(*best);
        }
        return std::nullopt;
    }

    // Of several kinds, the one whose group the rest of the evidence speaks of most.
    [[nodiscard]] DocumentKindGuess settled(const Meaning& meaning, Level level) const {
        const auto& kinds = meaning.kinds;
        if (kinds.size() < 2) return {kinds, level, true};
        const auto votes = groupVotes(meaning.pattern, level);
        const auto score = [&](DocumentKind kind) {
            const auto group = DocumentKinds::group(kind);
            return group ? votes[static_cast<std::size_t>(*group)] : 0;
        };
        std::vector<DocumentKind> candidates;
        std::ranges::copy_if(kinds, std::back_inserter(candidates),
                             [](DocumentKind kind) { return kind != DocumentKind::other; });
        const auto best = std::ranges::max_element(candidates, {}, score);
        if (best == candidates.end() || score(*best) < 1) return {kinds, level, false};
        const int bestScore = score(*best);
        if (std::ranges::count(candidates, bestScore, score) != 1) return {kinds, level, false};
        std::rotate(candidates.begin(), best, best + 1);
        return {std::move(candidates), level, true};
    }

    using Votes = std::array<int, caseTable<DocumentKindGroup>.size()>;

    // Names and topics of one kind, but for those of the pattern that is in question.
    [[nodiscard]] Votes groupVotes(std::uint32_t pattern, Level level) const {
        Votes votes{};
        const auto count = [&](const Segments& segments) {
            for (const DocumentKindSegment& segment : segments) {
                for (const Found& found : segment.found) {
                    const bool isTelling = found.term->role == Role::name || found.term->role == Role::cue;
                    if (!isTelling || found.term->kinds.size() != 1 || found.pattern == pattern) continue;
                    if (const auto group = DocumentKinds::group(found.term->kinds.front())) {
                        ++votes[static_cast<std::size_t>(*group)];
                    }
                }
            }
        };
        count(titleNames_);
        count(stemNames_);
        count(folders_);
        if (level != Level::cue) count(tags_);
        return votes;
    }

    [[nodiscard]] std::optional<DocumentKindGuess> fromMarkers() const {
        constexpr int fewestPhrases = 3;
        constexpr int mostStrayCheckboxes = 2;
        constexpr int checklistScore = 3;
        std::vector<std::uint32_t> patterns;
        addMarkers(patterns, evidence_.body);
        for (const std::string& heading : evidence_.headings) {
            addMarkers(patterns, heading);
        }
        std::ranges::sort(patterns);
        patterns.erase(std::unique(patterns.begin(), patterns.end()), patterns.end());

        std::array<int, caseTable<DocumentKind>.size()> scores{};
        for (const std::uint32_t pattern : patterns) {
            for (const DocumentKind kind : markerTerm(pattern).kinds) {
                ++scores[static_cast<std::size_t>(kind)];
            }
        }
        if (evidence_.checkboxes > mostStrayCheckboxes) {
            scores[static_cast<std::size_t>(DocumentKind::checklist)] += checklistScore;
        }
        const int best = std::ranges::max(scores);
        if (best < fewestPhrases) return std::nullopt;
        std::vector<DocumentKind> candidates;
        for (const DocumentKind kind : allCases<DocumentKind>()) {
            if (scores[static_cast<std::size_t>(kind)] == best) candidates.push_back(kind);
        }
        const bool isAlone = candidates.size() == 1;
        return DocumentKindGuess{std::move(candidates), Level::body, isAlone};
    }

    void addMarkers(std::vector<std::uint32_t>& patterns, std::string_view text) const {
        std::vector<DocumentKindMatcher::Hit> hits;
        lexicon_.markerHits(DocumentKindMatcher::normalize(text), hits);
        for (const auto& hit : hits) {
            patterns.push_back(hit.pattern);
        }
    }

    [[nodiscard]] const DocumentKindTerm& markerTerm(std::uint32_t pattern) const {
        return *std::ranges::find(lexicon_.terms()[pattern], Role::marker, &DocumentKindTerm::role);
    }

    const DocumentKindEvidence& evidence_;
    const DocumentKindLexicon& lexicon_;
    DocumentKindFileName file_;
    std::u32string normalizedTitle_;
    Segments titleNames_;
    Segments stemNames_;
    Segments folders_;
    Segments declared_;
    Segments headings_;
    Segments tags_;
    bool hasFields_ = false;
};

}  // namespace

std::optional<DocumentKindGuess> DocumentKindClassifier::classify(const DocumentKindEvidence& evidence) {
    return classify(evidence, DocumentKindLexicon::shared());
}

std::optional<DocumentKindGuess> DocumentKindClassifier::classify(const DocumentKindEvidence& evidence,
                                                                  const DocumentKindLexicon& lexicon) {
    return Classification(evidence, lexicon).run();
}

}  // namespace vellark
