// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/unicode.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

struct Utf8Case {
    const char* name;
    std::string_view bytes;
    std::u16string_view units;
};

class Utf8 : public testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8, bytes_areTakenAsCharacters)
{
    EXPECT_EQ(help::toutf16(GetParam().bytes), GetParam().units);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bytes, Utf8, testing::Values(
    //        name                    bytes                       units
    Utf8Case{"nothing",               "",                         u""},
    Utf8Case{"ascii",                 "a\0\x7F"sv,                u"a\0\x7F"sv},
    Utf8Case{"least_of_two",          "\xC2\x80",                 u"\u0080"},
    Utf8Case{"most_of_two",           "\xDF\xBF",                 u"\u07FF"},
    Utf8Case{"least_of_three",        "\xE0\xA0\x80",             u"\u0800"},
    Utf8Case{"before_the_surrogates", "\xED\x9F\xBF",             u"\uD7FF"},
    Utf8Case{"behind_the_surrogates", "\xEE\x80\x80",             u"\uE000"},
    Utf8Case{"most_of_three",         "\xEF\xBF\xBF",             u"\uFFFF"},
    Utf8Case{"least_of_four",         "\xF0\x90\x80\x80",         u"\U00010000"},
    Utf8Case{"clef",                  "\xF0\x9D\x84\x9E",         u"\U0001D11E"},
    Utf8Case{"most_of_four",          "\xF4\x8F\xBF\xBF",         u"\U0010FFFF"},
    Utf8Case{"beyond_the_last",       "\xF4\x90\x80\x80",         u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    Utf8Case{"first_surrogate",       "\xED\xA0\x80",             u"\uFFFD\uFFFD\uFFFD"},
    Utf8Case{"last_surrogate",        "\xED\xBF\xBF",             u"\uFFFD\uFFFD\uFFFD"},
    Utf8Case{"too_long_for_ascii",    "\xC1\xBF",                 u"\uFFFD\uFFFD"},
    Utf8Case{"too_long_for_two",      "\xE0\x9F\xBF",             u"\uFFFD\uFFFD\uFFFD"},
    Utf8Case{"too_long_for_three",    "\xF0\x8F\xBF\xBF",         u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    Utf8Case{"no_first_byte",         "\x80" "a",                 u"\uFFFDa"},
    Utf8Case{"no_byte_at_all",        "\xFF\xF8",                 u"\uFFFD\uFFFD"},
    Utf8Case{"cut",                   "\xE2\x82",                 u"\uFFFD\uFFFD"},
    Utf8Case{"broken_off",            "\xE2\x82" "a",             u"\uFFFD\uFFFDa"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(AppendUtf8, everyCharacter_isTakenBackAsItself)
{
    for (char32_t c = 0; c <= 0x110000; ++c) {
        std::string bytes;
        help::appendutf8(bytes, c);
        std::string_view rest = bytes;
        const bool none = c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF);
        ASSERT_EQ(help::takecharacter(rest), none ? help::replacement : c) << std::hex << static_cast<unsigned>(c);
        ASSERT_TRUE(rest.empty()) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(AppendUtf16, noCharacter_isReplaced)
{
    std::u16string units;
    for (const char32_t c : {0xD800U, 0xDFFFU, 0x110000U})
        help::appendutf16(units, c);
    EXPECT_EQ(units, u"\uFFFD\uFFFD\uFFFD");
}

} // namespace
