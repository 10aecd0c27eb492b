#include <VellarkFoundation/Identifiers/UUID.hpp>

#include <gtest/gtest.h>

#include <set>

namespace vellark {
namespace {

TEST(UUID, knowsItsForm) {
    const std::pair<std::string, bool> rows[] = {
        {"01234567-89ab-cdef-0123-456789abcdef", true},
        {"01234567-89AB-CDEF-0123-456789ABCDEF", true},
        {"00000000-0000-0000-0000-000000000000", true},
        {"", false},
        {"01234567-89ab-cdef-0123-456789abcde", false},
        {"01234567-89ab-cdef-0123-456789abcdef0", false},
        {"{1234567-89ab-cdef-0123-456789abcde}", false},
        {"0123456789ab-cdef--0123-456789abcdef", false},
        {"01234567-89ab-cdef-0123-456789abcdeg", false},
        {"01234567-89ab-cdef-0123-4567-9abcdef", false},
        {"01234567_89ab_cdef_0123_456789abcdef", false},
        {"01234567-89ab-cdef-0123-456789abcdé", false},
        {std::string("01234567-89ab-cdef-0123-456789abcde\0", 36), false},
    };
    for (const auto& [text, isValid] : rows) {
        EXPECT_EQ(UUID::isValid(text), isValid) << text;
    }
}

TEST(UUID, makesRandomOnesOfVersionFour) {
    std::set<std::string> made;
    for (int index = 0; index < 1000; ++index) {
        const auto identifier = UUID::random();
        ASSERT_TRUE(identifier && UUID::isValid(*identifier));
        EXPECT_EQ(identifier->find_first_of("ABCDEF"), std::string::npos);
        EXPECT_EQ((*identifier)[14], '4');
        EXPECT_NE(std::string("89ab").find((*identifier)[19]), std::string::npos);
        made.insert(*identifier);
    }
    EXPECT_EQ(made.size(), 1000U);
}

}  // namespace
}  // namespace vellark
