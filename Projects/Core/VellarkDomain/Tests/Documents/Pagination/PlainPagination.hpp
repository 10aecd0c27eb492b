#pragma once

#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// Pagination in its plainest form: one byte and one line at a time, every line in a string of its own. The text must
/// be well-formed and without U+0000.
class PlainPagination {
public:
    explicit PlainPagination(const DocumentContentFormat& format) : format_(format) {}

    std::vector<DocumentTextPagination::Page> pages(const std::string& text) {
        std::vector<DocumentTextPagination::Page> result;
        bool continues = false;
        for (std::size_t begin = 0; begin < text.size();) {
            const std::string rest = text.substr(begin, 32'770);
            const std::string page = rest.substr(0, length(rest));
            const std::size_t end = begin + page.size();
            const bool splits = end < text.size() && page.back() != '\n';
            DocumentTextPagination::Page made{.bytes = {begin, end}, .format = format_};
            if (format_.isMarkdown()) {
                made.prefix = prefix(page, continues);
                consume(page, continues, splits);
                if (fenceMarker_) made.suffix = "\n" + std::string(fenceLength_, *fenceMarker_) + "\n";
                if ((continues || splits) && made.prefix.empty() && made.suffix.empty()) {
                    made.format = DocumentContentFormat::code("plaintext");
                }
            }
            result.push_back(made);
            continues = splits;
            begin = end;
        }
        return result;
    }

    static bool isSeparator(std::string line) {
        line = trimmed(line, {" ", "\t", "\n", "\v", "\f", "\r", "\u0085", "\u2028", "\u2029"});
        if (line.find('-') == std::string::npos) return false;
        for (std::string cell : split(line, '|')) {
            if (cell.empty()) continue;
            cell = trimmed(cell, {"\t", " ", "\u00A0", "\u1680", "\u2000", "\u200B", "\u202F", "\u205F", "\u3000"});
            cell = trimmed(cell, {":"});
            if (cell.size() < 3 || cell != std::string(cell.size(), '-')) return false;
        }
        return true;
    }

private:
    static std::size_t length(const std::string& rest) {
        std::size_t lines = 0;
        std::size_t lastLineEnd = 0;
        for (std::size_t offset = 0; offset < rest.size() && offset < 32'768; ++offset) {
            if (rest[offset] != '\n') continue;
            lastLineEnd = offset + 1;
            if (++lines == 512) return lastLineEnd;
        }
        if (rest.size() <= 32'768) return rest.size();
        if (lastLineEnd > 0) return lastLineEnd;
        if (rest[32'767] == '\r' && rest[32'768] == '\n') return 32'769;
        std::size_t cut = 32'768;
        while (static_cast<unsigned char>(rest[cut]) / 64 == 2)
            --cut;
        return cut;
    }

    static std::vector<std::string> split(const std::string& text, char separator) {
        std::vector<std::string> parts(1);
        for (const char character : text) {
            if (character == separator) {
                parts.emplace_back();
            } else {
                parts.back() += character;
            }
        }
        return parts;
    }

    static std::string trimmed(std::string text, const std::vector<std::string>& set) {
        for (bool goesOn = true; goesOn;) {
            goesOn = false;
            for (const std::string& piece : set) {
                if (text.starts_with(piece)) {
                    text.erase(0, piece.size());
                    goesOn = true;
                }
                if (text.ends_with(piece)) {
                    text.erase(text.size() - piece.size());
                    goesOn = true;
                }
            }
        }
        return text;
    }

    std::string prefix(const std::string& page, bool continues) const {
        if (fenceMarker_) return opening_ + "\n";
        if (continues) return "";
        const std::string line = split(page, '\n').front();
        if (hasTable_ && line.find('|') != std::string::npos) return header_ + "\n" + separator_ + "\n";
        if (isSeparator(line) && previous_.find('|') != std::string::npos && previous_.size() <= 4'095) {
            return previous_ + "\n";
        }
        return "";
    }

    void consume(const std::string& page, bool continues, bool splits) {
        std::vector<std::string> lines = split(page, '\n');
        if (splits || lines.back().empty()) lines.pop_back();
        if (continues && !lines.empty()) lines.erase(lines.begin());
        for (const std::string& line : lines) {
            takeLine(line);
            previous_ = line;
        }
    }

    void takeLine(const std::string& line) {
        std::size_t spaces = 0;
        while (spaces < line.size() && line[spaces] == ' ')
            ++spaces;
        const char marker = spaces < line.size() ? line[spaces] : 'x';
        std::size_t run = 0;
        while (spaces + run < line.size() && line[spaces + run] == marker)
            ++run;
        const std::string rest = line.substr(spaces + run);
        const bool isRun = spaces < 4 && run >= 3 && (marker == '`' || marker == '~');
        if (fenceMarker_) {
            const std::string behind = trimmed(rest, {" ", "\t", "\n", "\v", "\f", "\r", "\u0085", "\u2028", "\u2029"});
            if (isRun && marker == *fenceMarker_ && run >= fenceLength_ && behind.empty()) fenceMarker_.reset();
            return;
        }
        if (isRun && line.size() <= 4'096 && !(marker == '`' && rest.find('`') != std::string::npos)) {
            fenceMarker_ = marker;
            fenceLength_ = run;
            opening_ = line;
            hasTable_ = false;
            return;
        }
        if (line.find('|') == std::string::npos) {
            hasTable_ = false;
        } else if (isSeparator(line) && previous_.find('|') != std::string::npos) {
            hasTable_ = line.size() <= 4'096 && previous_.size() <= 4'096;
            header_ = previous_;
            separator_ = line;
        }
    }

    DocumentContentFormat format_;
    std::optional<char> fenceMarker_;
    std::size_t fenceLength_ = 0;
    std::string opening_;
    bool hasTable_ = false;
    std::string header_;
    std::string separator_;
    std::string previous_;
};

}  // namespace vellark::testing
