#pragma once

#include <VellarkLocalization/LocalizationCatalog.hpp>
#include <VellarkLocalization/Messages/MessagePatterns.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vellark {

/// A set of catalogues and all look-ups in it. Immutable to its callers and safe to use from any thread; what `display`
/// needs is built at its first call.
class CatalogLibrary {
public:
    /// Longest text that `display` holds against patterns, in bytes of UTF-8. Whole texts of any length are looked up.
    static constexpr std::size_t maximumPatternTextBytes = 8192;

    /// Of catalogues with the same language the last counts.
    explicit CatalogLibrary(std::vector<LocalizationCatalog> catalogs);
    CatalogLibrary(const CatalogLibrary&) = delete;
    CatalogLibrary& operator=(const CatalogLibrary&) = delete;

    /// The catalogues of the supported languages that stand in the bundle directory. A file that is missing or no
    /// catalogue leaves its language out.
    [[nodiscard]] static std::vector<LocalizationCatalog> read(std::string_view bundle);

    /// The catalogue that calls itself by this language; a null pointer when there is none.
    [[nodiscard]] const LocalizationCatalog* catalog(std::string_view language) const;

    /// The languages of all catalogues, ascending.
    [[nodiscard]] std::vector<std::string> languages() const;

    /// What L10n::text gives, in this language.
    [[nodiscard]] std::string text(std::string_view key, std::span<const std::string> arguments,
                                   std::optional<std::int64_t> count, std::string_view language) const;

    /// What L10n::display gives, in this language.
    [[nodiscard]] std::string display(std::string_view text, std::string_view language) const;

    /// The patterns that `display` tries, in their order.
    [[nodiscard]] const MessagePatterns& patterns() const { return reverse().patterns; }

private:
    struct Entry {
        LocalizationCatalog catalog;
        std::unordered_map<std::string_view, std::string_view> messages;  // views into the catalogue
    };

    // What leads from a finished text back to its key.
    struct Reverse {
        std::unordered_map<std::string_view, std::string_view> keys;
        MessagePatterns patterns;
    };

    [[nodiscard]] const Entry* entry(std::string_view language) const;
    [[nodiscard]] std::string_view templateOf(std::string_view key, std::optional<std::int64_t> count,
                                              std::string_view language) const;
    [[nodiscard]] std::vector<const LocalizationCatalog*> supportedCatalogs() const;
    [[nodiscard]] Reverse makeReverse() const;
    [[nodiscard]] const Reverse& reverse() const;
    [[nodiscard]] bool isTextOf(std::string_view key, std::string_view text) const;
    void translateEnumerated(MessagePatterns::Match& match, std::string_view language) const;

    std::vector<std::unique_ptr<const Entry>> entries_;  // at addresses that stay
    const Entry* english_ = nullptr;
    mutable std::once_flag reverseMade_;
    mutable Reverse reverse_;
};

}  // namespace vellark
