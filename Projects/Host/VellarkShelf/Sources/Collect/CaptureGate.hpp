#pragma once

#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>
#include <VellarkDomain/Settings/AppSettings.hpp>
#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Collect/CaptureVerdict.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Puts the user's settings and the capture rules to one document after the other. It decides nothing by itself: it
/// gathers the facts that the rules ask for, asks them in the order from the strictest to the mildest, and says which
/// one refused.
class CaptureGate {
public:
    CaptureGate(const AppSettings& settings, const DataDirectory& directory, const Environment& environment);

    struct FileFacts {
        std::string_view path;             ///< as the signal named it, absolute and normal
        std::string_view actualPath;       ///< without links
        std::string_view directory;        ///< of the event; "" when it is not known
        std::string_view actualDirectory;  ///< the same without links
        std::optional<double> modifiedAt;
        bool isSubagents = false;
        std::optional<double> observedAt;  ///< of the event
    };

    /// What path and settings say. `captured` until the content has been looked at.
    [[nodiscard]] CaptureVerdict byPath(const FileFacts& file) const;

    struct ContentFacts {
        std::string_view content;
        std::string_view path;  ///< "" for an answer
        std::string_view source;
        std::string_view kind;  ///< of the artifact, or "candidate"
    };

    /// What the content says.
    [[nodiscard]] static CaptureVerdict byContent(const ContentFacts& document);

    struct ResponseFacts {
        std::string_view event;
        bool isSubagents = false;
        std::optional<double> observedAt;
    };

    [[nodiscard]] CaptureVerdict byResponse(const ResponseFacts& response) const;

    [[nodiscard]] bool isRemoved(const std::string& documentID) const;

    /// Whether the path leads into a folder in which agents leave their plans.
    [[nodiscard]] static bool isPlan(std::string_view path);

private:
    [[nodiscard]] CaptureVerdict byProject(const FileFacts& file) const;
    [[nodiscard]] bool isShown(std::string_view path, std::string_view directory) const;

    const AppSettings& settings_;
    ResolvedCapturePolicy policy_;
    CaptureTemporaryScope scope_;
    std::string home_;
    std::optional<double> captureAllSince_;
};

}  // namespace vellark
