#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindSegment.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/ScalarProperties.hpp>

#include <algorithm>

namespace vellark {

namespace {

constexpr std::u32string_view separators = U":：—–|｜()（）[]［］【】「」『』<>《》〈〉";

constexpr std::string_view dash = " - ";

bool isSeparator(char32_t scalar) {
    if (scalar < 0x80) {
        switch (scalar) {
            case U':':
            case U'|':
            case U'(':
            case U')':
            case U'[':
            case U']':
            case U'<':
            case U'>':
                return true;
            default:
                return false;
        }
    }
    return scalar >= 0x2013 && separators.find(scalar) != separators.npos;
}

// A separator with a mark on it is another character.
bool carriesMark(std::string_view text, std::size_t behind) {
    if (behind >= text.size() || static_cast<unsigned char>(text[behind]) < 0x80) return false;
    return ScalarProperties::extendsCharacter(UTF8::decode(text, behind).scalar);
}

// Whether the character that ends at the offset holds a scalar of a joining script.
bool endsJoining(std::string_view text, std::size_t end) {
    while (end > 0) {
        const std::size_t start = UTF8::previousOffset(text, end);
        const char32_t scalar = UTF8::decode(text, start).scalar;
        if (ScalarClasses::isJoining(scalar)) return true;
        if (scalar < 0x80 || !ScalarProperties::extendsCharacter(scalar)) return false;
        end = start;
    }
    return false;
}

bool beginsJoining(std::string_view text, std::size_t start) {
    return start < text.size() && ScalarClasses::isJoining(UTF8::decode(text, start).scalar);
}

bool partsAt(std::string_view text, std::size_t offset, const UTF8::Decoded& decoded) {
    const std::size_t behind = offset + decoded.byteCount;
    if (decoded.scalar == U'_') {
        return !carriesMark(text, behind) && (endsJoining(text, offset) || beginsJoining(text, behind));
    }
    return isSeparator(decoded.scalar) && !carriesMark(text, behind);
}

class Splitter {
public:
    Splitter(std::string_view text, const DocumentKindLexicon& lexicon) : text_(text), lexicon_(lexicon) {}

    std::vector<DocumentKindSegment> run() {
        std::size_t start = 0;
        for (std::size_t offset = 0; offset < text_.size();) {
            const UTF8::Decoded decoded = UTF8::decode(text_, offset);
            if (partsAt(text_, offset, decoded)) {
                addPiece(text_.substr(start, offset - start));
                start = offset + decoded.byteCount;
            }
            offset += decoded.byteCount;
        }
        addPiece(text_.substr(start));
        return std::move(segments_);
    }

private:
    void addPiece(std::string_view piece) {
        for (std::size_t end = piece.find(dash); end != piece.npos; end = piece.find(dash)) {
            add(piece.substr(0, end));
            piece.remove_prefix(end + dash.size());
        }
        add(piece);
    }

    void add(std::string_view piece) {
        if (piece.empty()) return;
        DocumentKindSegment segment(piece, lexicon_);
        if (!segment.found.empty()) segments_.push_back(std::move(segment));
    }

    std::string_view text_;
    const DocumentKindLexicon& lexicon_;
    std::vector<DocumentKindSegment> segments_;
};

}  // namespace

DocumentKindSegment::DocumentKindSegment(std::string_view source, const DocumentKindLexicon& lexicon)
    : text(DocumentKindMatcher::normalize(source)) {
    std::vector<DocumentKindMatcher::Hit> hits;
    lexicon.hits(text, hits);
    found.reserve(hits.size());
    for (const auto& hit : hits) {
        for (const DocumentKindTerm& term : lexicon.terms()[hit.pattern]) {
            found.push_back({&term, hit.pattern, hit.start, hit.end});
        }
    }
}

std::vector<DocumentKindSegment> DocumentKindSegment::segments(std::string_view text,
                                                               const DocumentKindLexicon& lexicon) {
    return Splitter(text, lexicon).run();
}

}  // namespace vellark
