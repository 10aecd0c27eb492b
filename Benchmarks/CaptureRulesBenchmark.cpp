// What a host asks of every file that it hears of: is its path excluded, of what type is it, and do the user's choices
// let it in. Beside it stands what it takes to find the suffix of the same path with the standard library, and the same
// decision on paths made to hurt it: those must take at most about twice as long at twice the size.

#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CaptureFileName.hpp>
#include <VellarkDomain/Capture/Rules/CaptureRules.hpp>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace vellark;

constexpr std::size_t pathCount = 100'000;
constexpr double modifiedAt = 1.78e9;

// The places and names that agents' reports are full of: projects, their folders, sources, documents, pictures,
// settings, and now and then a secret or a temporary file.
const std::vector<std::string_view> homes = {"/home/ann/projects/",
                                             "/Users/ann/Developer/",
                                             "/home/ann/work/clients/",
                                             "/Users/ann/Documents/",
                                             "/srv/builds/",
                                             "/home/ann/.claude/",
                                             "/home/ann/.codex/",
                                             "/tmp/",
                                             "/private/var/folders/8k/x1/T/"};
const std::vector<std::string_view> folders = {"website/",
                                               "Sources/",
                                               "src/components/",
                                               "docs/",
                                               "docs/design/",
                                               "Tests/Unit/",
                                               "assets/images/",
                                               "plans/",
                                               "scripts/",
                                               "reports/2026/07/",
                                               "node_modules/left-pad/dist/",
                                               ".github/workflows/",
                                               "packages/core/src/",
                                               "보고서/",
                                               "memories/",
                                               "Informes trimestrales/"};
const std::vector<std::string_view> stems = {"README",
                                             "index",
                                             "plan",
                                             "architecture-overview",
                                             "ReleaseNotes",
                                             "meeting-2026-07-14",
                                             "api",
                                             "auth",
                                             "config",
                                             "token",
                                             "screenshot",
                                             "주간 보고",
                                             "Übersicht",
                                             "CaptureRules",
                                             "main",
                                             "package-lock",
                                             "2026-Q3-forecast.final",
                                             "id_rsa",
                                             "prod-secrets",
                                             "invoice_0042"};
const std::vector<std::string_view> suffixes = {".md",   ".md",   ".md",  ".html", ".png",   ".PNG",  ".pdf", ".swift",
                                                ".ts",   ".tsx",  ".py",  ".json", ".yaml",  ".toml", ".txt", ".csv",
                                                ".docx", ".jpeg", ".mp4", "",      ".jsonl", ".log",  ".pyc", ".key"};

std::vector<std::string> paths() {
    std::mt19937_64 random(7);
    const auto oneOf = [&](const std::vector<std::string_view>& items) { return items[random() % items.size()]; };
    std::vector<std::string> result(pathCount);
    for (std::string& path : result) {
        path = oneOf(homes);
        for (std::size_t depth = random() % 4; depth > 0; --depth)
            path += oneOf(folders);
        path.append(oneOf(stems)).append(oneOf(suffixes));
    }
    return result;
}

// The choices of a user who takes documents, plans, pictures, PDFs and code, some of them from some moment on.
ResolvedCapturePolicy policy() {
    CapturePreferences preferences;
    preferences.setCategory(ArtifactCategory::code, true);
    preferences.applyCollectionDefaults("2026-01-01T00:00:00Z");
    preferences.resumeSince = "2025-12-24T12:00:00Z";
    preferences.extensionResumeSince["md"] = "2026-02-01T00:00:00Z";
    return ResolvedCapturePolicy::fromPreferences(preferences);
}

const CaptureTemporaryScope scope{"/var/folders/8k/x1/T/", "/private/var/folders/8k/x1/T",
                                  "/Users/ann/Library/Application Support"};

bool isCaptured(std::string_view path, const ResolvedCapturePolicy& policy) {
    if (CaptureRules::excludedArtifact(path, scope, true)) return false;
    const CaptureFileName file(path);
    const auto type = CaptureRules::artifactType(path, false);
    return CaptureRules::artifactAllowed(type.category, {.modifiedAt = modifiedAt, .extension = file.extension()},
                                         policy);
}

void decide(benchmark::State& state, const std::vector<std::string>& inputs) {
    const ResolvedCapturePolicy choices = policy();
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(isCaptured(inputs[index], choices));
        index = index + 1 == inputs.size() ? 0 : index + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

void findSuffix(benchmark::State& state, const std::vector<std::string>& inputs) {
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::filesystem::path(inputs[index]).extension());
        index = index + 1 == inputs.size() ? 0 : index + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

// As many repeats of a piece as fit the size, and an end.
struct HostilePath {
    const char* name;
    std::string_view piece;
    std::string_view end;
};

constexpr HostilePath hostilePaths[] = {
    {"hermes", "/.hermes", ""},  {"codex", "/.codex", ""},   {"slashes", "/", ""},
    {"points", "/.", "/a.json"}, {"parents", "/tmp/..", ""}, {"separators", "token-", ".json"},
    {"capitals", "É.", ".txt"},
};

void decideHostile(benchmark::State& state, const HostilePath& hostile) {
    std::string path = "/tmp/";
    while (path.size() < static_cast<std::size_t>(state.range(0)))
        path += hostile.piece;
    path += hostile.end;
    decide(state, {path});
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> inputs = paths();
    const ResolvedCapturePolicy choices = policy();
    const auto captured =
        std::count_if(inputs.begin(), inputs.end(), [&](const std::string& path) { return isCaptured(path, choices); });
    std::cerr << captured << " of " << inputs.size() << " paths are captured\n";
    benchmark::RegisterBenchmark("ours/decision", decide, inputs);
    benchmark::RegisterBenchmark("peer/filesystem-extension", findSuffix, inputs);
    for (const HostilePath& hostile : hostilePaths) {
        benchmark::RegisterBenchmark((std::string("ours/hostile/") + hostile.name).c_str(), decideHostile, hostile)
            ->RangeMultiplier(2)
            ->Range(1 << 15, 1 << 16);
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
