#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindOutline.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/TextLines.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/ScalarProperties.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentKindOutline {

namespace {

constexpr std::string_view blanks = " \t";

// Lower-case and in NFC.
constexpr auto declaredKeys = std::to_array<std::string_view>({
    "type",
    "kind",
    "doctype",
    "doc_type",
    "document_type",
    "documenttype",
    "template",
    "종류",
    "유형",
    "문서유형",
    "種類",
    "種別",
    "类型",
    "文档类型",
    "類型",
    "文件類型",
    "种类",
    "typ",
    "tipo",
    "тип",
    "төрөл",
    "loại",
    "ประเภท",
    "type de document",
    "tipo de documento",
    "dokumenttyp",
    "тип документа",
});

constexpr auto tagKeys = std::to_array<std::string_view>({
    "tags",
    "tag",
    "keywords",
    "categories",
    "category",
    "태그",
    "タグ",
    "标签",
    "標籤",
    "分类",
    "分類",
});

// Values that are kept of one line.
constexpr std::size_t mostDeclared = 4;
constexpr std::size_t mostTags = 12;

// The key's values go here; a null list for a key that tells nothing.
struct Destination {
    std::vector<std::string>* values = nullptr;
    std::size_t mostOfOneLine = 0;
};

Destination destination(std::string_view key, DocumentKindEvidence& evidence) {
    const std::string composed = Normalization::nfc(key);
    const auto isOneOf = [&](const auto& keys) { return std::ranges::find(keys, composed) != keys.end(); };
    if (isOneOf(declaredKeys)) return {&evidence.declared, mostDeclared};
    if (isOneOf(tagKeys)) return {&evidence.tags, mostTags};
    return {};
}

void add(std::string_view value, Destination destination) {
    if (destination.values == nullptr) return;
    value = trimmed(value, "[] ");
    for (std::size_t count = 0; count < destination.mostOfOneLine && !value.empty();) {
        const std::size_t comma = std::min(value.find(','), value.size());
        const std::string_view piece = trimmed(value.substr(0, comma), "\"' #");
        value.remove_prefix(std::min(comma + 1, value.size()));
        if (piece.empty()) continue;
        destination.values->emplace_back(piece);
        ++count;
    }
}

// A line of the block that neither ends it nor is an item of the current key.
void readKeyLine(std::string_view line, std::string_view content, std::optional<Destination>& current,
                 DocumentKindEvidence& evidence) {
    if (!content.empty() && content.data() != line.data()) {
        current.reset();  // an indented line belongs to a nested value
        return;
    }
    const std::size_t colon = content.find(':');
    if (colon == content.npos) return;
    const std::string key = UnicodeCase::lower(trimmed(content.substr(0, colon), blanks));
    const std::string_view value = trimmed(content.substr(colon + 1), blanks);
    if (value.empty()) {
        current = destination(key, evidence);
    } else {
        add(value, destination(key, evidence));
        current.reset();
    }
}

bool isTaskItem(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(' ', 1), line.size()));
    return line.size() >= 3 && line[0] == '[' && (line[1] == ' ' || line[1] == 'x' || line[1] == 'X') && line[2] == ']';
}

char lowered(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte | 0x20) : byte;
}

// Whether the ASCII text, in lower case, stands at the offset in either case.
bool standsAt(std::string_view text, std::size_t offset, std::string_view expected) {
    const std::string_view part = text.substr(std::min(offset, text.size()), expected.size());
    return std::ranges::equal(part, expected, {}, lowered);
}

// Where the next ">" stands, found once for all questions before it: many "<" without one would cost a walk each.
class NextTagEnd {
public:
    explicit NextTagEnd(std::string_view text) : text_(text) {}

    [[nodiscard]] std::size_t from(std::size_t offset) {
        if (!isKnown_ || (found_ != text_.npos && found_ < offset)) {
            found_ = text_.find('>', offset);
            isKnown_ = true;
        }
        return found_;
    }

private:
    std::string_view text_;
    std::size_t found_ = 0;
    bool isKnown_ = false;
};

// Behind the end tag of the script or style element that begins with this tag, when no "<" stands in it; the offset
// itself when it is none. The element's name ends where a word ends.
std::size_t endOfHiddenElement(std::string_view text, std::size_t tag, std::size_t tagEnd) {
    for (const std::string_view name : {"script", "style"}) {
        const std::size_t nameEnd = tag + 1 + name.size();
        if (text.substr(tag + 1, name.size()) != name) continue;
        if (ScalarProperties::continuesWord(UTF8::decode(text, nameEnd).scalar)) continue;
        const std::size_t close = text.find('<', tagEnd + 1);
        if (close == text.npos || text.substr(close + 1, 1) != "/") continue;
        if (text.substr(close + 2, name.size()) != name || text.substr(close + 2 + name.size(), 1) != ">") continue;
        return close + 2 + name.size() + 1;
    }
    return tag;
}

}  // namespace

std::string_view readFrontMatter(std::string_view text, DocumentKindEvidence& evidence) {
    constexpr int mostLines = 80;
    if (!text.starts_with("---")) return text;
    TextLines lines(text);
    if (trimmed(*lines.next(), blanks) != "---") return text;
    std::optional<Destination> current;  // of the key whose items may follow
    for (int number = 2; number <= mostLines; ++number) {
        const auto line = lines.next();
        if (!line) break;
        const std::string_view content = trimmed(*line, blanks);
        if (content == "---" || content == "...") return lines.rest();
        if (content.starts_with("- ") && current) {
            add(content.substr(2), *current);
        } else {
            readKeyLine(*line, content, current, evidence);
        }
    }
    return text;
}

void readMarkdown(std::string_view text, DocumentKindEvidence& evidence) {
    bool isFenced = false;
    bool hasHeading = false;
    TextLines lines(text);
    while (const auto line = lines.next()) {
        const std::size_t start = line->find_first_not_of(blanks);
        if (start == line->npos) continue;
        const std::string_view content = line->substr(start);
        if (content.starts_with("```") || content.starts_with("~~~")) {
            isFenced = !isFenced;
        } else if (isFenced) {
            continue;
        } else if (content[0] == '-' || content[0] == '*' || content[0] == '+') {
            if (isTaskItem(content)) ++evidence.checkboxes;
        } else if (!hasHeading && line->starts_with("# ")) {
            evidence.headings.emplace_back(trimmed(line->substr(2), blanks));
            hasHeading = true;
        }
    }
}

std::vector<std::string> htmlHeadings(std::string_view text) {
    constexpr std::size_t mostScalars = 200;
    std::vector<std::string> headings;
    NextTagEnd tagEnds(text);
    for (std::size_t tag = text.find('<'); tag != text.npos; tag = text.find('<', tag)) {
        const std::size_t start = tag;
        ++tag;
        if (!standsAt(text, start, "<h1")) continue;
        const std::size_t tagEnd = tagEnds.from(start);
        if (tagEnd == text.npos) break;
        const std::size_t close = text.find('<', tagEnd);
        if (close == text.npos || !standsAt(text, close, "</h1>")) continue;
        const std::string_view content = text.substr(tagEnd + 1, close - tagEnd - 1);
        if (content.empty() || UTF8::scalarCount(content) > mostScalars) continue;
        headings.emplace_back(trimmed(content, blanks));
        tag = close + std::string_view("</h1>").size();
    }
    return headings;
}

std::string htmlText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t tag = text.find('<'); tag != text.npos; tag = text.find('<', copied)) {
        const std::size_t tagEnd = text.find('>', tag);
        if (tagEnd == text.npos) break;
        result.append(text, copied, tag - copied).push_back(' ');
        const std::size_t hiddenEnd = endOfHiddenElement(text, tag, tagEnd);
        copied = hiddenEnd == tag ? tagEnd + 1 : hiddenEnd;
    }
    return result.append(text, copied);
}

}  // namespace vellark::DocumentKindOutline
