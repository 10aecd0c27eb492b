#include <VellarkDomain/Feedback/FeedbackHash.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark::FeedbackHash {

std::uint64_t ofWellFormedLine(std::string_view line) {
    const std::size_t last = line.find_last_not_of(" \t");
    line = line.substr(0, last == std::string_view::npos ? 0 : last + 1);
    std::uint64_t state = offsetBasis;
    for (const char byte : line)
        state = step(state, static_cast<unsigned char>(byte));
    return state;
}

std::uint64_t ofLine(std::string_view line) {
    return UTF8::isValid(line) ? ofWellFormedLine(line) : ofWellFormedLine(UTF8::replacingInvalid(line));
}

std::string text(std::uint64_t hash) {
    std::string digits(16, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        *digit = "0123456789abcdef"[hash & 0xF];
        hash >>= 4;
    }
    return digits;
}

}  // namespace vellark::FeedbackHash
