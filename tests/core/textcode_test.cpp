// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct DecodeRow {
    const char* row;
    std::string bytes;
    std::string text;
};

class Decode : public testing::TestWithParam<DecodeRow> {};

TEST_P(Decode, bytes_becomeUtf8)
{
    EXPECT_EQ(core::decode(GetParam().bytes), GetParam().text);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bytes, Decode, testing::Values(
    DecodeRow{"empty",               "",                         ""},
    DecodeRow{"ascii",               "Open D;\r\n",              "Open D;\r\n"},
    DecodeRow{"zero",                std::string("a\0b", 3),     std::string("a\0b", 3)},
    DecodeRow{"two bytes",           "Caf\xC3\xA9",              "Caf\xC3\xA9"},
    DecodeRow{"three bytes",         "\xE2\x99\xAD" "7",         "\xE2\x99\xAD" "7"},
    DecodeRow{"four bytes",          "\xF0\x9F\x8E\xB8",         "\xF0\x9F\x8E\xB8"},
    DecodeRow{"last character",      "\xF4\x8F\xBF\xBF",         "\xF4\x8F\xBF\xBF"},
    DecodeRow{"mark",                "\xEF\xBB\xBFTonefret:",    "Tonefret:"},
    DecodeRow{"mark alone",          "\xEF\xBB\xBF",             ""},
    DecodeRow{"mark inside",         "a\xEF\xBB\xBF",            "a\xEF\xBB\xBF"},
    DecodeRow{"second mark",         "\xEF\xBB\xBF\xEF\xBB\xBF", "\xEF\xBB\xBF"},
    DecodeRow{"mark then 8 bit",     "\xEF\xBB\xBF\xE9",         "\xC3\xA9"},
    // not UTF-8: Windows-1252, all of it
    DecodeRow{"8 bit",               "Caf\xE9",                  "Caf\xC3\xA9"},
    DecodeRow{"8 bit then ascii",    "\xE9t\xE9 in Paris",       "\xC3\xA9t\xC3\xA9 in Paris"},
    DecodeRow{"euro",                "\x80",                     "\xE2\x82\xAC"},
    DecodeRow{"unused",              "\x81\x8D\x8F\x90\x9D",     "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
    DecodeRow{"last of 8 bits",      "\x9F\xA0\xFF",             "\xC5\xB8\xC2\xA0\xC3\xBF"},
    DecodeRow{"one 8 bit among",     "\xC3\xA9\xE9",             "\xC3\x83\xC2\xA9\xC3\xA9"},
    DecodeRow{"cut short",           "\xE2\x99",                 "\xC3\xA2\xE2\x84\xA2"},
    DecodeRow{"overlong of 2",       "\xC0\xAF",                 "\xC3\x80\xC2\xAF"},
    DecodeRow{"overlong of 3",       "\xE0\x9F\xBF",             "\xC3\xA0\xC5\xB8\xC2\xBF"},
    DecodeRow{"overlong of 4",       "\xF0\x8F\xBF\xBF",         "\xC3\xB0\xC2\x8F\xC2\xBF\xC2\xBF"},
    DecodeRow{"surrogate",           "\xED\xA0\x80",             "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},
    DecodeRow{"beyond the last",     "\xF4\x90\x80\x80",         "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC"},
    DecodeRow{"tail alone",          "\xBF",                     "\xC2\xBF"},
    DecodeRow{"tail behind 8 ascii", "12345678\xBF",             "12345678\xC2\xBF"}),
    [](const auto& row) { return tests::rowname(row.param.row); });
// clang-format on

TEST(Decode, everyByte_isOneCharacter)
{
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(core::charactercount(core::decode({static_cast<char>(byte)})), 1U) << "byte " << byte;
}

TEST(Decode, bytesThatLatin1DoesNotHave_areThoseOfWindows1252)
{
    std::string bytes;
    for (int byte = 0x80; byte < 0xA0; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(core::decode(bytes), "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F"
                                   "\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ");
}

/// A character above ASCII, in UTF-8.
std::string encoded(unsigned character)
{
    const unsigned tails = character < 0x800U ? 1 : character < 0x10000U ? 2 : 3;
    constexpr std::array<unsigned, 4> heads{0, 0xC0U, 0xE0U, 0xF0U};
    std::string bytes(1, static_cast<char>(heads.at(tails) | (character >> (6U * tails))));
    for (unsigned tail = tails; tail > 0; --tail)
        bytes += static_cast<char>(0x80U | ((character >> (6U * (tail - 1))) & 0x3FU));
    return bytes;
}

TEST(Decode, everyCharacter_staysAsItIs)
{
    for (unsigned character = 0x80; character < 0x110000; ++character) {
        if (character == 0xD800)
            character = 0xE000;                             // surrogates are no characters
        const std::string bytes = "a" + encoded(character); // at the head one would be the byte order mark
        ASSERT_EQ(core::decode(bytes), bytes) << character;
    }
}

TEST(Decode, piecesOfLongText_meetWithoutLoss)
{
    for (const std::size_t size : {4095U, 4096U, 4097U, 9000U}) {
        std::string expected;
        for (std::size_t i = 0; i < size; ++i)
            expected += "\xC3\xA9";
        EXPECT_EQ(core::decode(std::string(size, '\xE9')), expected) << size;
    }
}

TEST(CharacterCount, unicode_isCountedByCharacters)
{
    EXPECT_EQ(core::charactercount(""), 0U);
    EXPECT_EQ(core::charactercount("Open D"), 6U);
    EXPECT_EQ(core::charactercount("Caf\xC3\xA9"), 4U);
    EXPECT_EQ(core::charactercount("\xE2\x99\xAD\xF0\x9F\x8E\xB8"), 2U);
}

TEST(SkipCharacters, tooFewLeft_isNowhere)
{
    constexpr auto nowhere = std::string_view::npos;
    const std::string text = "a\xC3\xA9\xF0\x9F\x8E\xB8z"; // bytes 0, 1, 3, 7; the end is 8
    const std::size_t offsets[] = {0, 1, 3, 7, 8, nowhere, nowhere};
    for (std::size_t count = 0; count < std::size(offsets); ++count)
        EXPECT_EQ(core::skipcharacters(text, 0, count), offsets[count]) << count;
    EXPECT_EQ(core::skipcharacters(text, 3, 2), 8U);
    EXPECT_EQ(core::skipcharacters(text, 8, 0), 8U);
    EXPECT_EQ(core::skipcharacters(text, 8, 1), nowhere);
}

TEST(OneByteEach, otherThanAscii_isAQuestionMark)
{
    EXPECT_EQ(core::onebyteeach("03E\xC3\xA9\xF0\x9F\x8E\xB8 9;"), "03E?? 9;");
}

TEST(WithLineFeeds, everyLineEnd_isALineFeed)
{
    EXPECT_EQ(core::withlinefeeds("a\r\nb\rc\nd\r\n"), "a\nb\nc\nd\n");
    EXPECT_EQ(core::withlinefeeds("\r\r\n\n\r"), "\n\n\n\n");
    EXPECT_EQ(core::withlinefeeds("none"), "none");
}

} // namespace
