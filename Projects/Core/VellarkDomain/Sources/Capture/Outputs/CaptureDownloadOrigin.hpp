#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace vellark::CaptureOutputs {

/// A host, which stands for all hosts below it too, and the source of the documents that come from there. The texts are
/// views: a row is as good as the texts that it was made from.
struct ChatHost {
    std::string_view host;  ///< lower-case
    std::string_view source;

    bool operator==(const ChatHost&) const = default;
};

inline constexpr std::array<std::string_view, 4> chatSources = {"chatgpt-chat", "claude-desktop-chat", "gemini-chat",
                                                                "perplexity-chat"};

/// The hosts of the chat services.
inline constexpr auto chatHosts = std::to_array<ChatHost>({
    {"chatgpt.com", "chatgpt-chat"},
    {"chat.openai.com", "chatgpt-chat"},
    {"oaiusercontent.com", "chatgpt-chat"},
    {"claude.ai", "claude-desktop-chat"},
    {"claudeusercontent.com", "claude-desktop-chat"},
    {"gemini.google.com", "gemini-chat"},
    {"aistudio.google.com", "gemini-chat"},
    {"notebooklm.google.com", "gemini-chat"},
    {"googleusercontent.com", "gemini-chat"},
    {"perplexity.ai", "perplexity-chat"},
});

/// Those that serve files of several products, so that alone they do not prove a chat.
inline constexpr std::array<std::string_view, 3> weakHosts = {"oaiusercontent.com", "claudeusercontent.com",
                                                              "googleusercontent.com"};

/// The row of the chat service that a download comes from, by its origin URLs, the most direct first; nothing when it
/// comes from elsewhere or none of them proves a chat.
///
/// The first URL decides: one of a foreign host makes the download foreign, whatever follows. Only where it hides its
/// host ("blob:" without a known one) or its host is weak do the further URLs count.
///
/// A URL without "//", with user information behind which another host stands, or with characters that browsers read
/// in different ways (controls, blanks, `\` and the like) does not pass for a service.
[[nodiscard]] std::optional<ChatHost> chatOrigin(std::span<const std::string_view> urls,
                                                 std::span<const ChatHost> hosts = chatHosts);

/// Longest name of a host and of one of its labels, in bytes (RFC 1035).
inline constexpr std::size_t maximumHostLength = 253;
inline constexpr std::size_t maximumLabelLength = 63;

/// Whether the text may be added to the hosts: a name of two labels or more, in ASCII letters, digits and inner "-",
/// whose last label is not a number, as an IPv4 address's is. Case does not count.
[[nodiscard]] bool isOverrideHost(std::string_view host);

}  // namespace vellark::CaptureOutputs
