#pragma once

#include <VellarkLocalization/LocalizationCatalog.hpp>
#include <VellarkLocalization/Messages/LiteralIndex.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// One template of a key, in some language, as a pattern of the finished sentences that it makes.
struct MessagePattern {
    std::string key;
    std::vector<std::string> literals;         ///< around the placeholders: one more than `arguments`
    std::vector<std::size_t> arguments;        ///< the argument that each placeholder stands for
    std::optional<std::size_t> countArgument;  ///< the argument that must be a whole quantity

    bool operator==(const MessagePattern&) const = default;
};

/// The patterns of all external keys, the more specific first.
class MessagePatterns {
public:
    /// A sentence that a pattern recognised.
    struct Match {
        std::string_view key;
        std::vector<std::string> arguments;  ///< "" for one that the template does not name
        std::optional<std::int64_t> count;
    };

    MessagePatterns() = default;

    /// The patterns are tried in the order given.
    explicit MessagePatterns(std::vector<MessagePattern> patterns);

    /// Patterns of the external keys of `english`, for every template that any of the catalogues has for them; the
    /// catalogues stand in the order of the languages. A template without a placeholder, or with fewer than two letters
    /// beside its placeholders, makes none: it would match nearly everything. Patterns of longer keys (in characters)
    /// come first.
    [[nodiscard]] static MessagePatterns make(const LocalizationCatalog& english,
                                              std::span<const LocalizationCatalog* const> catalogs);

    /// The first pattern that the whole text matches and whose count argument, if it has one, is a whole quantity. The
    /// text is well-formed UTF-8.
    [[nodiscard]] std::optional<Match> firstMatch(std::string_view text) const;

    [[nodiscard]] const std::vector<MessagePattern>& list() const { return patterns_; }

private:
    [[nodiscard]] std::vector<std::uint32_t> candidates(std::string_view text) const;

    std::vector<MessagePattern> patterns_;
    LiteralIndex byPrefix_;                // patterns that begin with a literal
    LiteralIndex bySuffix_;                // those that only end with one, under its bytes from last to first
    std::vector<std::uint32_t> floating_;  // those that do neither
};

}  // namespace vellark
