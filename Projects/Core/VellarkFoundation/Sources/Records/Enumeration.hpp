#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>

namespace vellark {

/// One case of an enumeration and the text that files hold for it.
template <class Enum>
struct CaseName {
    Enum value;
    std::string_view name;
};

/// The cases of an enumeration in their order. An enumeration that is stored or listed specialises it, with every case,
/// each at the place of its own value:
///
///     enum class ReviewState { unread, read };
///
///     template <>
///     inline constexpr auto caseTable<ReviewState> = std::to_array<CaseName<ReviewState>>({
///         {ReviewState::unread, "unread"},
///         {ReviewState::read, "read"},
///     });
template <class Enum>
inline constexpr auto caseTable = nullptr;

template <class Enum>
concept NamedCases =
    std::is_enum_v<Enum> && !std::same_as<std::remove_const_t<decltype(caseTable<Enum>)>, std::nullptr_t>;

namespace detail {

// Compilers print an enumerator by its name and any other value as a cast: "E::read" against "(E)2".
template <auto value>
consteval bool isEnumerator() {
    const std::string_view signature = __PRETTY_FUNCTION__;
    const std::size_t mark = signature.rfind("value = ");
    return signature[mark + std::string_view("value = ").size()] != '(';
}

template <NamedCases Enum>
consteval bool isComplete() {
    for (std::size_t index = 0; index < caseTable<Enum>.size(); ++index) {
        if (static_cast<std::size_t>(caseTable<Enum>[index].value) != index) return false;
    }
    return !isEnumerator<static_cast<Enum>(caseTable<Enum>.size())>();
}

}  // namespace detail

/// The text of a case.
template <NamedCases Enum>
[[nodiscard]] constexpr std::string_view rawValue(Enum value) {
    static_assert(detail::isComplete<Enum>(), "the table lacks a case or is out of order");
    return caseTable<Enum>[static_cast<std::size_t>(value)].name;
}

/// The case of a text, compared byte by byte; nothing for any other text.
template <NamedCases Enum>
[[nodiscard]] constexpr std::optional<Enum> fromRawValue(std::string_view text) {
    static_assert(detail::isComplete<Enum>(), "the table lacks a case or is out of order");
    for (const auto& row : caseTable<Enum>) {
        if (row.name == text) return row.value;
    }
    return std::nullopt;
}

/// All cases in their order.
template <NamedCases Enum>
[[nodiscard]] constexpr auto allCases() {
    static_assert(detail::isComplete<Enum>(), "the table lacks a case or is out of order");
    std::array<Enum, caseTable<Enum>.size()> cases{};
    std::ranges::transform(caseTable<Enum>, cases.begin(), &CaseName<Enum>::value);
    return cases;
}

}  // namespace vellark
