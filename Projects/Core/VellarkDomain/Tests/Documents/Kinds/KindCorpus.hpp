#pragma once

#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// Titles and documents of known kind, and how the classifier does on them.
///
/// Each .tsv file of the folder has a line for each title: language, raw value of the kind ("-" for a title that names
/// none), title. A line of documents/index.tsv is the path that a document had, the raw value of its kind, and the file
/// in that folder with its text. Lines that begin with "#" are left out.
class KindCorpus {
public:
    struct Score {
        int right = 0;
        int total = 0;
        std::vector<std::string> misses;

        [[nodiscard]] double percent() const { return total == 0 ? 100 : 100.0 * right / total; }

        void count(bool isRight, std::string miss) {
            ++total;
            if (isRight) {
                ++right;
            } else {
                misses.push_back(std::move(miss));
            }
        }
    };

    explicit KindCorpus(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// By language, and by kind in all languages.
    std::map<std::string, Score> languages;
    std::map<std::string, Score> kinds;
    Score kindless;
    Score documents;

    /// False when there are no titles.
    bool run() {
        std::set<std::filesystem::path> lists;
        for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
            if (entry.path().extension() == ".tsv") lists.insert(entry.path());
        }
        for (const auto& list : lists) {
            for (const auto& row : rows(list, 3)) {
                judgeTitle(row[0], row[1], row[2]);
            }
        }
        for (const auto& row : rows(folder_ / "documents" / "index.tsv", 3)) {
            judgeDocument(row[0], row[1], row[2]);
        }
        return kindless.total > 0 || !languages.empty();
    }

private:
    using Row = std::vector<std::string>;

    static std::string content(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static std::vector<Row> rows(const std::filesystem::path& path, std::size_t columns) {
        std::vector<Row> result;
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);) {
            if (line.empty() || line.starts_with('#')) continue;
            Row row;
            std::size_t start = 0;
            while (row.size() + 1 < columns) {
                const std::size_t tab = std::min(line.find('\t', start), line.size());
                row.push_back(line.substr(start, tab - start));
                start = std::min(tab + 1, line.size());
            }
            row.push_back(line.substr(start));
            result.push_back(std::move(row));
        }
        return result;
    }

    static std::string answer(const std::optional<DocumentKindGuess>& guess) {
        if (!guess) return "nothing";
        std::string text;
        for (const DocumentKind kind : guess->candidates) {
            text += std::string(text.empty() ? "" : ", ") + std::string(rawValue(kind));
        }
        return text + (guess->decided ? "" : " (open)");
    }

    static bool names(const std::optional<DocumentKindGuess>& guess, const std::string& expected) {
        const auto kind = guess ? guess->kind({}) : std::nullopt;
        return kind && rawValue(*kind) == expected;
    }

    void judgeTitle(const std::string& language, const std::string& expected, const std::string& title) {
        const auto guess = DocumentKindClassifier::classify({.title = title});
        const std::string miss = language + " " + expected + ": " + title + " -> " + answer(guess);
        if (expected == "-") {
            kindless.count(!guess || !guess->decided || guess->kind({}) == std::nullopt, miss);
            return;
        }
        languages[language].count(names(guess, expected), miss);
        kinds[expected].count(names(guess, expected), miss);
    }

    void judgeDocument(const std::string& path, const std::string& expected, const std::string& name) {
        const std::filesystem::path file(path);
        DocumentKindEvidence evidence = {.title = file.stem().string(), .path = path};
        evidence.read(content(folder_ / "documents" / name),
                      {.html = file.extension() == ".html" || file.extension() == ".htm"});
        const auto guess = DocumentKindClassifier::classify(evidence);
        documents.count(names(guess, expected), path + " " + expected + " -> " + answer(guess));
    }

    std::filesystem::path folder_;
};

}  // namespace vellark::testing
