#pragma once

#include <VellarkDomain/Documents/Library/CaptureLibrary.hpp>

#include <array>
#include <random>
#include <string>

/// A library as a busy year leaves it, the same in every run.
namespace vellark::sample {

class LibraryMaker {
public:
    CaptureLibrary library(std::size_t count) {
        CaptureLibrary result;
        result.documents.reserve(count);
        for (std::size_t index = 0; index < count; ++index) {
            result.documents.push_back(document());
        }
        return result;
    }

private:
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    bool oneIn(std::size_t count) { return below(count) == 0; }

    template <std::size_t size>
    std::string oneOf(const std::array<const char*, size>& texts) {
        return texts[below(size)];
    }

    std::string hexadecimal(std::size_t digits) {
        std::string text;
        while (text.size() < digits) {
            text += "0123456789abcdef"[below(16)];
        }
        return text;
    }

    std::string identifier() {
        return hexadecimal(8) + "-" + hexadecimal(4) + "-4" + hexadecimal(3) + "-a" + hexadecimal(3) + "-" +
               hexadecimal(12);
    }

    std::string timestamp() {
        const auto twoDigits = [&](std::size_t first, std::size_t bound) {
            const std::string digits = std::to_string(first + below(bound));
            return digits.size() < 2 ? "0" + digits : digits;
        };
        return "2026-" + twoDigits(1, 12) + "-" + twoDigits(1, 28) + "T" + twoDigits(0, 24) + ":" + twoDigits(0, 60) +
               ":" + twoDigits(0, 60) + "Z";
    }

    DocumentRevision revision(const DocumentRecord& record) {
        DocumentRevision revision;
        revision.id = identifier();
        revision.contentHash = hexadecimal(64);
        revision.snapshotPath = "snapshots/" + revision.contentHash.substr(0, 16) + ".md";
        revision.capturedAt = timestamp();
        revision.originEvent = oneOf(events);
        revision.byteSize = static_cast<std::int64_t>(below(90'000));
        if (oneIn(4)) revision.storageKind = DocumentStorageKind::snapshot;
        if (oneIn(16)) {
            revision.provenance = DocumentRevisionProvenance{.certainty = "recorded",
                                                             .agent = record.source,
                                                             .session = identifier(),
                                                             .toolUseId = "call_" + hexadecimal(24),
                                                             .cwd = record.projectRoot,
                                                             .gitBranch = "main",
                                                             .op = "write"};
        }
        return revision;
    }

    DocumentRecord document() {
        DocumentRecord record;
        record.id = identifier();
        record.title = oneOf(titles) + " " + std::to_string(below(1000));
        record.project = oneOf(projects);
        record.source = oneOf(sources);
        record.projectRoot = "/home/jin/work/" + record.project;
        record.sourcePath = *record.projectRoot + "/docs/notes-" + std::to_string(below(100'000)) + ".md";
        record.kind = "markdown";
        record.createdAt = timestamp();
        record.updatedAt = timestamp();
        record.artifactCategory = "documents";
        for (std::size_t count = oneIn(20) ? 2 : 1; count > 0; --count) {
            record.revisions.push_back(revision(record));
        }
        return record;
    }

    static constexpr std::array events = {"PostToolUse", "SessionEnd", "plan-file:write", "output:report"};
    static constexpr std::array titles = {"설계 검토 기록", "Weekly report", "마이그레이션 계획",
                                          "API \"draft\"",  "議事録",        "Notes on the parser"};
    static constexpr std::array projects = {"shelf", "capture-core", "billing", "website"};
    static constexpr std::array sources = {"claude", "codex", "gemini", "cursor"};

    std::mt19937_64 random_{2026};
};

}  // namespace vellark::sample
