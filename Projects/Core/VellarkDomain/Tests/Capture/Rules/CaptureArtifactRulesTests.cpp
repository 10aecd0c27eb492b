#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactTables.hpp>

#include <gtest/gtest.h>

#include <string>

namespace vellark {
namespace {

namespace Tables = CaptureArtifactTables;
using Category = ArtifactCategory;

const CaptureTemporaryScope scope{std::nullopt, std::nullopt, "/home/ann"};

bool isExcluded(std::string_view path, bool temporaryDocuments = false) {
    return CaptureRules::excludedArtifact(path, scope, temporaryDocuments);
}

std::string upper(std::string_view text) {
    std::string result(text);
    for (char& byte : result)
        byte = byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - ('a' - 'A')) : byte;
    return result;
}

TEST(CaptureArtifactRules, typesFilesBySuffixAndName) {
    struct Row {
        std::string_view path;
        bool isPlan;
        CaptureRules::ArtifactType type;
    };
    const Row rows[] = {
        {"/p/a.md", false, {Category::documents, "markdown"}},
        {"/p/a.QMD", true, {Category::plans, "markdown"}},
        {"/p/a.xhtml", false, {Category::documents, "html"}},
        {"/p/a.htm", true, {Category::plans, "html"}},
        {"a.HEIC", true, {Category::images, "image"}},
        {"a.mp4", false, {Category::videos, "video"}},
        {"a.m\u212Av", false, {Category::videos, "video"}},
        {"a.pdf", true, {Category::pdfs, "pdf"}},
        {"a.tar.py", false, {Category::code, "text"}},
        {"a.t\u017F", false, {Category::code, "text"}},
        {"a.docx", false, {Category::other, "file"}},
        {"a.mdé", false, {Category::other, "file"}},
        {"/p/Makefile", false, {Category::code, "text"}},
        {"/p/README/", true, {Category::code, "text"}},
        {"licen\u017Fe", false, {Category::code, "text"}},
        {"Dockerfile.prod", false, {Category::other, "file"}},
        {"readme.md", false, {Category::documents, "markdown"}},
        {".md", false, {Category::other, "file"}},
        {"a.", false, {Category::other, "file"}},
        {"", false, {Category::other, "file"}},
    };
    for (const Row& row : rows) {
        const auto type = CaptureRules::artifactType(row.path, row.isPlan);
        EXPECT_EQ(type.category, row.type.category) << row.path;
        EXPECT_EQ(type.kind, row.type.kind) << row.path;
    }
}

TEST(CaptureArtifactRules, heedsEachNameAndSuffixOfItsTables) {
    for (const auto& [name, trait] : Tables::names.entries()) {
        const bool isCode = trait == Tables::NameTrait::code;
        EXPECT_EQ(isExcluded("/p/" + upper(name)), !isCode) << name;
        EXPECT_EQ(CaptureRules::artifactType(upper(name), false).category == Category::code,
                  isCode || name.ends_with(".json") || name.ends_with(".yaml") || name.ends_with(".yml"))
            << name;
        EXPECT_FALSE(isExcluded("/p/x" + std::string(name) + ".md")) << name;
    }
    for (const auto& [suffix, trait] : Tables::suffixes.entries()) {
        const bool isConfiguration = trait == Tables::SuffixTrait::configuration;
        EXPECT_TRUE(isExcluded("/p/API-Key" + upper(suffix))) << suffix;
        EXPECT_EQ(isExcluded("/p/keyboard" + std::string(suffix)), !isConfiguration) << suffix;
    }
}

TEST(CaptureArtifactRules, excludesByTheFirstRuleThatFits) {
    enum Verdict { kept, excluded, documentOnly };  // the last: kept only where temporary documents are
    const std::pair<const char*, Verdict> rows[] = {
        {"/p/a.md", kept},
        {"/p/a", kept},
        {"", kept},
        {"/", kept},
        {"/h/.hermes/cache/a.md", excluded},
        {"/h/.hermes/notes/a.md", kept},
        {"/h/.codex/memories/a.md", excluded},
        {"/h/.codex/plans/a.md", kept},
        {"/tmp/a.md", documentOnly},
        {"/tmp/a.py", excluded},
        {"/tmp/.cache/a.md", excluded},
        {"/tmp/requirements.txt", excluded},
        {"/tmp/x/logs/a.txt", excluded},
        {"/var/folders/x/a.md", excluded},
        {"/tmp/token.txt", excluded},
        {"/tmp/token.md", documentOnly},
        {"/tmp/.hermes/cache/a.md", excluded},
        {"/p/.env", excluded},
        {"/p/.ENV", excluded},
        {"/p/.env.local", excluded},
        {"/p/.env.md", excluded},
        {"/p/.envrc", kept},
        {"/p/env", kept},
        {"/p/.DS_Store", excluded},
        {"/p/rollout-2026.jsonl", excluded},
        {"/p/rollout.txt", kept},
        {"/p/a-rollout.jsonl", kept},
        {"/p/history.jsonl", excluded},
        {"/p/secrets.md", kept},
        {"/p/secrets.json", excluded},
        {"/p/\u017Fecrets.json", excluded},
        {"/p/secrets.json\u0301", kept},
        {"/p/token.pdf", kept},
        {"/p/id_rsa", excluded},
        {"/p/id_rsa.png", kept},
        {"/p/id_rsa.md", kept},
        {"/p/id_rsa.pub.txt", excluded},
        {"/p/id_ecdsa.swift", excluded},
        {"/p/id_rsa.mp4", excluded},
        {"/p/api_key.json", excluded},
        {"/p/prod-secrets.yaml", excluded},
        {"/p/token.staging.json", excluded},
        {"/p/token.staging", kept},
        {"/p/service-account", excluded},
        {"/p/service_account/", excluded},
        {"/p/tokenizer.json", kept},
        {"/p/auth.py", kept},
        {"/p/auth.", kept},
        {"/p/비밀-token.txt", excluded},
        {"/p/to\u212Aen.txt", excluded},
        {"/p/a\ntoken.txt", kept},
        {"/p/a\n-token.txt", kept},
        {"/p/credentials/a.txt", kept},
        {"/p/\xff-token.txt", excluded},
    };
    for (const auto& [path, verdict] : rows) {
        EXPECT_EQ(isExcluded(path), verdict != kept) << path;
        EXPECT_EQ(isExcluded(path, true), verdict == excluded) << path;
    }
}

}  // namespace
}  // namespace vellark
