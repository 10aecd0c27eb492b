#include <VellarkDomain/Documents/Kinds/Matcher/KoreanParticles.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>

#include <algorithm>
#include <array>

namespace vellark::KoreanParticles {

namespace {

constexpr std::array particles = std::to_array<std::u32string_view>(
    {U"은",   U"는",   U"이",     U"가",     U"을",   U"를",     U"의",   U"에",   U"로",   U"으로", U"와",   U"과",
     U"도",   U"만",   U"에서",   U"까지",   U"부터", U"처럼",   U"보다", U"랑",   U"이랑", U"하고", U"에게", U"께",
     U"엔",   U"에는", U"에도",   U"으로는", U"로는", U"으로도", U"로도", U"이나", U"나",   U"들",   U"들의", U"들을",
     U"들이", U"이다", U"입니다", U"이에요", U"예요", U"이고",   U"이며", U"용",   U"과의", U"와의"});

constexpr std::size_t longest =
    std::ranges::max(particles, {}, [](std::u32string_view word) { return word.size(); }).size();

}  // namespace

std::span<const std::u32string_view> words() {
    return particles;
}

bool contains(std::u32string_view text) {
    return text.size() <= longest && std::ranges::find(particles, text) != particles.end();
}

bool standsAt(std::u32string_view text, std::size_t position) {
    std::size_t end = position;
    while (end < text.size() && ScalarClasses::isHangulSyllable(text[end])) {
        if (++end - position > longest) return false;
    }
    return contains(text.substr(position, end - position));
}

}  // namespace vellark::KoreanParticles
