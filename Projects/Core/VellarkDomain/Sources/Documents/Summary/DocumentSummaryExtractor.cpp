#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryConclusion.hpp>
#include <VellarkDomain/Documents/Summary/SummaryFacts.hpp>
#include <VellarkDomain/Documents/Summary/SummaryHTML.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkdown.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>

namespace vellark::DocumentSummaryExtractor {

namespace {

std::string joined(Lines lines, std::string_view separator) {
    std::string result;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (index > 0) result += separator;
        result += lines[index];
    }
    return result;
}

std::string firstParagraph(std::string_view text) {
    std::vector<std::string_view> paragraph;
    for (const std::string_view line : SummaryText::lines(text)) {
        const std::string_view trimmed = Whitespace::trimmed(line);
        if (!trimmed.empty()) {
            paragraph.push_back(trimmed);
        } else if (!paragraph.empty()) {
            break;
        }
    }
    return joined(paragraph, " ");
}

void addFactsAndConclusion(DocumentSummaryExtract& digest, Lines lines, bool markdown, bool isComplete) {
    const auto prose = proseLines(lines, markdown, isComplete);
    digest.facts = SummaryFacts::factsOf(prose);
    digest.conclusion = SummaryConclusion::conclusionOf(prose);
}

DocumentSummaryExtract plainDigest(std::string_view text, bool isComplete) {
    DocumentSummaryExtract digest;
    digest.summary = cut(firstParagraph(text), summaryLength);
    digest.body = text;
    const std::string converted = SummaryText::replacing(text, "\r\n", "\n");
    addFactsAndConclusion(digest, SummaryText::lines(converted), false, isComplete);
    return digest;
}

// The first key of front matter that has something to say.
std::string statedSummary(const std::map<std::string, std::string>& values) {
    for (const std::string_view key : frontMatterKeys) {
        const auto found = values.find(std::string(key));
        if (found == values.end()) continue;
        std::string text = plainInline(found->second);
        if (!text.empty()) return text;
    }
    return {};
}

// Lines of the first paragraph that can reach into its cut: each has one character at least, or the blank before it,
// and a cut looks a few characters further to keep a number whole.
constexpr std::size_t readLineCount = summaryLength + 100;

// CR LF is one character and ends no line, so a document of such lines has one line only; facts and conclusion alone
// are read from its lines as an editor shows them.
DocumentSummaryExtract markdownDigest(std::string_view text, bool isComplete) {
    const FrontMatter read = frontMatter(text);
    DocumentSummaryExtract digest;
    digest.headings = keyHeadings(read.body);
    digest.body = joined(read.body, "\n");
    if (text.find("\r\n") == text.npos) {
        addFactsAndConclusion(digest, read.body, true, isComplete);
    } else {
        const std::string converted = SummaryText::replacing(text, "\r\n", "\n");
        addFactsAndConclusion(digest, frontMatter(converted).body, true, isComplete);
    }
    std::string stated = statedSummary(read.values);
    if (stated.empty()) {
        Prose opening = SummaryMarkdown::opening(read.body, readLineCount);
        stated = std::move(opening.text);
        digest.items = std::move(opening.items);
    }
    digest.summary = cut(stated, summaryLength);
    return digest;
}

DocumentSummaryExtract digestOf(std::string_view text, const DocumentContentFormat& format, bool isComplete) {
    if (format.isHTML()) return SummaryHTML::extract(text, isComplete);
    if (format.isMarkdown()) return markdownDigest(text, isComplete);
    const auto& language = std::get<DocumentContentFormat::Code>(format.value).language;
    if (language && isPlainTextLanguage(*language)) return plainDigest(text, isComplete);
    DocumentSummaryExtract digest;
    digest.body = text;
    return digest;
}

// Whether there may be more characters than the limit: there are never more than scalars, less the line feeds that
// belong to a carriage return, and both are counted much faster.
bool mayExceedLimit(std::string_view text) {
    constexpr std::size_t longestScalar = 4;
    if (text.size() <= readingLimit) return false;
    if (text.size() > readingLimit * longestScalar || !UTF8::isValid(text)) return true;
    std::size_t count = 0;
    char before = 0;
    for (const char byte : text) {
        const bool isFirst = (static_cast<unsigned char>(byte) & 0xC0U) != 0x80 && !(before == '\r' && byte == '\n');
        count += isFirst ? 1 : 0;
        before = byte;
    }
    return count > readingLimit;
}

}  // namespace

DocumentSummaryExtract extract(std::string_view text, const DocumentContentFormat& format, bool isComplete) {
    const std::string_view read = mayExceedLimit(text) ? GraphemeBreak::prefix(text, readingLimit) : text;
    const bool isWhole = isComplete && read.size() == text.size();
    if (UTF8::isValid(read)) return digestOf(read, format, isWhole);
    return digestOf(UTF8::replacingInvalid(read), format, isWhole);
}

}  // namespace vellark::DocumentSummaryExtractor
