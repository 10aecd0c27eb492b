#include <VellarkDomain/Capture/Outputs/CaptureOutput.hpp>
#include <VellarkDomain/Capture/Outputs/CaptureOutputPaths.hpp>
#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vellark {
namespace {

using enum CaptureOutput;
using Parts = std::vector<std::string_view>;
using CaptureOutputs::OutputFile;

TEST(CaptureOutput, countsByDefaultButForTheDownloads) {
    CapturePreferences preferences;
    preferences.outputs.clear();
    for (const CaptureOutput output : allCases<CaptureOutput>()) {
        SCOPED_TRACE(rawValue(output));
        EXPECT_EQ(CaptureOutputs::isEnabled(output, preferences), output != downloadsInbox);
        CaptureOutputs::setEnabled(output, output == downloadsInbox, preferences);
        EXPECT_EQ(CaptureOutputs::isEnabled(output, preferences), output == downloadsInbox);
        EXPECT_EQ(CaptureOutputs::originEvent(output), "output:" + std::string(rawValue(output)));
    }
    EXPECT_EQ(preferences.outputs.size(), 9U);
}

TEST(CaptureOutput, walksIntoFolders) {
    struct Row {
        const char* name;
        CaptureOutput output;
        Parts parents;
        bool walks;
    };
    const Row rows[] = {
        {"hidden folder", codexImages, {"a", ".git"}, false},
        {"any folder of images", codexImages, {"a", "b", "c"}, true},
        {"any folder of visualizations", codexVisualizations, {"2026", "한"}, true},
        {"hidden folder of visualizations", codexVisualizations, {".", "a"}, false},
        {"root of manus", manus, {}, true},
        {"date", manus, {"2026-01-02"}, true},
        {"no day of the calendar", manus, {"9999-99-99"}, true},
        {"short date", manus, {"2026-1-2"}, false},
        {"date and line feed", manus, {"2026-01-02\n"}, false},
        {"date with other dashes", manus, {"2026/01/02"}, false},
        {"date in Arabic digits", manus, {"٢٠٢٦-٠١-٠٢"}, false},
        {"session of 6", manus, {"2026-01-02", "abc-12"}, true},
        {"session of 5", manus, {"2026-01-02", "abcde"}, false},
        {"session with a point", manus, {"2026-01-02", "abc.def"}, false},
        {"session with an accent", manus, {"2026-01-02", "abcdefe\u0301"}, false},
        {"below a session", manus, {"2026-01-02", "abc_12", "x", "y"}, true},
        {"hidden below a session", manus, {"2026-01-02", "abc_12", ".x"}, false},
        {"two folders of cowork", claudeCowork, {"a", "b"}, true},
        {"no local session", claudeCowork, {"a", "b", "c"}, false},
        {"local session", claudeCowork, {"a", "b", "local_"}, true},
        {"no outputs", claudeCowork, {"a", "b", "local_1", "Outputs"}, false},
        {"outputs", claudeCowork, {"a", "b", "local_1", "outputs"}, true},
        {"below outputs", claudeCowork, {"a", "b", "local_1", "outputs", "x"}, true},
        {"outputs of no local session", claudeCowork, {"a", "b", "c", "outputs"}, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CaptureOutputs::walks(row.output, row.parents), row.walks) << row.name;
    for (const CaptureOutput output :
         {downloadsInbox, downloadsDocuments, downloadsPDFs, downloadsOffice, downloadsImages}) {
        EXPECT_TRUE(CaptureOutputs::walks(output, {})) << rawValue(output);
        EXPECT_FALSE(CaptureOutputs::walks(output, Parts{"a"})) << rawValue(output);
    }
}

TEST(CaptureOutput, assignsFilesToSessions) {
    const std::optional<OutputFile> none;
    const OutputFile unassigned;
    const auto in = [](const char* session) { return OutputFile{session}; };
    struct Row {
        const char* name;
        CaptureOutput output;
        Parts parts;
        std::optional<OutputFile> file;
    };
    const Row rows[] = {
        {"no path", codexImages, {}, none},
        {"hidden file", codexImages, {"abcdefgh", ".a.png"}, none},
        {"file in a hidden folder", codexImages, {".abcdefgh", "a.png"}, none},
        {"cowork above the outputs", claudeCowork, {"a", "b", "local_1", "a.md"}, none},
        {"cowork in the outputs", claudeCowork, {"a", "b", "local_1", "outputs", "a.md"}, in("local_1")},
        {"cowork deep", claudeCowork, {"a", "b", "local_é", "outputs", "x", "a.md"}, in("local_é")},
        {"cowork elsewhere", claudeCowork, {"a", "b", "local_1", "work", "a.md"}, none},
        {"image at the top", codexImages, {"a.png"}, unassigned},
        {"image in a short folder", codexImages, {"short", "a.png"}, unassigned},
        {"image in 7", codexImages, {"1234567", "a.png"}, unassigned},
        {"image in 8", codexImages, {"1234_6-8", "a.png"}, in("1234_6-8")},
        {"image deep", codexImages, {"abcdefgh", "x", "a.png"}, in("abcdefgh")},
        {"image in a folder with a blank", codexImages, {"abcd efgh", "a.png"}, unassigned},
        {"visualization high up", codexVisualizations, {"a", "b", "c", "abcdefgh"}, unassigned},
        {"visualization in a session", codexVisualizations, {"a", "b", "c", "abcdefgh", "a.svg"}, in("abcdefgh")},
        {"visualization in a short folder", codexVisualizations, {"a", "b", "c", "abc", "a.svg"}, unassigned},
        {"manus in a date", manus, {"2026-01-02", "a.md"}, none},
        {"manus in a session", manus, {"2026-01-02", "abc-12", "a.md"}, in("abc-12")},
        {"manus in a short session", manus, {"2026-01-02", "abc", "a.md"}, none},
        {"download", downloadsInbox, {"a.pdf"}, unassigned},
        {"download in a folder", downloadsInbox, {"sub", "a.pdf"}, none},
        {"unfinished in Chromium", downloadsInbox, {"a.pdf.CRDownload"}, none},
        {"unfinished in Safari", downloadsInbox, {"a.pdf.download"}, none},
        {"unfinished in Firefox", downloadsInbox, {"a.pdf.PART"}, none},
        {"named after a part", downloadsInbox, {"part.pdf"}, unassigned},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CaptureOutputs::session(row.output, row.parts), row.file) << row.name;
    for (const CaptureOutput kind : CaptureOutputs::inboxKinds) {
        EXPECT_EQ(CaptureOutputs::session(kind, Parts{"a.pdf"}), none) << rawValue(kind);
    }
}

TEST(CaptureOutput, sortsDownloadsByExtension) {
    const std::pair<CaptureOutput, std::vector<std::string_view>> rows[] = {
        {downloadsDocuments, {"md", "markdown", "rmd", "html", "xhtml", "txt"}},
        {downloadsPDFs, {"pdf"}},
        {downloadsOffice, {"csv", "docx", "pptx", "xlsx"}},
        {downloadsImages, {"avif", "gif", "heic", "png", "webp"}},
    };
    for (const auto& [kind, extensions] : rows) {
        for (const auto extension : extensions)
            EXPECT_EQ(CaptureOutputs::inboxKind(extension), kind) << extension;
    }
    for (const auto* const extension : {"", "exe", "PDF", ".pdf", "doc", "mp4", "py"}) {
        EXPECT_EQ(CaptureOutputs::inboxKind(extension), std::nullopt) << extension;
    }
}

ResolvedCapturePolicy everything() {
    ResolvedCapturePolicy policy;
    policy.enabled = true;
    for (const auto category : allCases<ArtifactCategory>())
        policy.types[category] = true;
    for (const auto output : allCases<CaptureOutput>())
        policy.outputs[std::string(rawValue(output))] = true;
    return policy;
}

TEST(CaptureOutput, isAllowedByPolicy) {
    using Policy = ResolvedCapturePolicy;
    static constexpr auto images = ArtifactCategory::images;
    struct Row {
        const char* name;
        CaptureOutput output;
        CaptureOutputs::FileFacts file;
        void (*change)(Policy&);
        bool allowed;
    };
    const Row rows[] = {
        {"all on", codexImages, {"gif", images, 5}, [](Policy&) {}, true},
        {"capture off", codexImages, {"gif", images, 5}, [](Policy& policy) { policy.enabled = false; }, false},
        {"output off", manus, {"md"}, [](Policy& policy) { policy.outputs["manus"] = false; }, false},
        {"output not mentioned", manus, {"md"}, [](Policy& policy) { policy.outputs.erase("manus"); }, false},
        {"category off", codexImages, {"gif", images, 5}, [](Policy& policy) { policy.types[images] = false; }, false},
        {"category not mentioned", codexImages, {"gif", images}, [](Policy& policy) { policy.types.clear(); }, false},
        {"no output's extension", codexImages, {"heic", images, 5}, [](Policy&) {}, false},
        {"extension in capitals", codexImages, {"GIF", images, 5}, [](Policy&) {}, false},
        {"no extension", codexImages, {"", images, 5}, [](Policy&) {}, false},
        {"kind as a place", downloadsPDFs, {"md", images, 5}, [](Policy&) {}, true},
        {"download without its category", downloadsInbox, {"heic"}, [](Policy& policy) { policy.types.clear(); }, true},
        {"download of no kind", downloadsInbox, {"exe"}, [](Policy&) {}, false},
        {"kind off", downloadsInbox, {"pdf"}, [](Policy& policy) { policy.outputs["downloadsPDFs"] = false; }, false},
        {"another kind off",
         downloadsInbox,
         {"pdf"},
         [](Policy& policy) { policy.outputs["downloadsImages"] = false; },
         true},
        {"at the moment of all", manus, {"md", images, 5}, [](Policy& policy) { policy.resumeSince = 5; }, true},
        {"before the moment of all", manus, {"md", images, 5}, [](Policy& policy) { policy.resumeSince = 5.5; }, false},
        {"before the output's",
         manus,
         {"md", images, 5},
         [](Policy& policy) { policy.resumeSince = 1, policy.outputResumeSince["manus"] = 6; },
         false},
        {"before another output's",
         manus,
         {"md", images, 5},
         [](Policy& policy) { policy.outputResumeSince["codexImages"] = 6; },
         true},
        {"before the category's",
         manus,
         {"md", images, 5},
         [](Policy& policy) { policy.typeResumeSince[images] = 6; },
         false},
        {"before the kind's",
         downloadsInbox,
         {"pdf", images, 5},
         [](Policy& policy) { policy.outputResumeSince["downloadsPDFs"] = 6; },
         false},
        {"download before its category's",
         downloadsInbox,
         {"pdf", images, 5},
         [](Policy& policy) { policy.typeResumeSince[images] = 6; },
         true},
        {"unknown change", manus, {"md", images, std::nullopt}, [](Policy& policy) { policy.resumeSince = 6; }, true},
    };
    for (const Row& row : rows) {
        ResolvedCapturePolicy policy = everything();
        row.change(policy);
        EXPECT_EQ(CaptureOutputs::allows(row.output, row.file, policy), row.allowed) << row.name;
    }
    for (const auto extension : CaptureOutputs::agentFileExtensions) {
        EXPECT_TRUE(CaptureOutputs::allows(claudeCowork, {.extension = extension}, everything())) << extension;
    }
}

}  // namespace
}  // namespace vellark
