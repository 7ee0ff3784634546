// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customtable.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

namespace {

using tests::spelling;

TEST(GetNoteName, everyDigit_namesItsNoteInTheMode)
{
    const std::string digits = "0123456789AB";
    for (int mode = 0; mode < tests::modecount; ++mode)
        for (int pitch = 0; pitch < 12; ++pitch) {
            const char digit = digits.at(static_cast<std::size_t>(pitch));
            EXPECT_EQ(custom::getnotename(digit, spelling(mode)), tests::written(pitch, mode))
                << digit << " in mode " << mode;
        }
}

TEST(GetNoteName, everyOtherCharacter_isAnUnusedString)
{
    const std::string digits = "0123456789AB";
    for (int c = 0; c < 256; ++c) {
        const char other = static_cast<char>(c);
        if (digits.find(other) != std::string::npos)
            continue;
        EXPECT_EQ(custom::getnotename(other, spelling(0)), "?") << "character " << c; // small a and b among them
    }
}

TEST(LayoutOf, everyCharacter_isALayout)
{
    for (int c = 0; c < 256; ++c) {
        const int code = c == '0' ? 0 : c == '1' ? 1 : c == '2' ? 2 : 3;
        EXPECT_EQ(static_cast<int>(custom::layoutof(static_cast<char>(c))), code) << "character " << c;
    }
}

TEST(FindEntry, names_areFoundExactlyAndFirst)
{
    custom::CustomTable table;
    table[0] = {"Open D", "03292A92"};
    table[1] = {"mine", "11042700"};
    table[2] = {"Open D", "00000000"};
    table[50] = {"last", "03042700"};
    EXPECT_EQ(custom::findentry(table, "Open D"), 0U);
    EXPECT_EQ(custom::findentry(table, "mine"), 1U);
    EXPECT_EQ(custom::findentry(table, "last"), 50U);
    EXPECT_EQ(custom::findentry(table, ""), 3U); // the first free place
    EXPECT_FALSE(custom::findentry(table, "Mine"));
    EXPECT_FALSE(custom::findentry(table, "mine "));
    EXPECT_FALSE(custom::findentry(custom::CustomTable{}, "mine"));
}

TEST(GetNoteData, everyName_givesItsDigitInEitherSpelling)
{
    const std::string digits = "0123456789AB";
    for (int mode = 0; mode < tests::modecount; ++mode)
        for (int pitch = 0; pitch < 12; ++pitch)
            EXPECT_EQ(custom::getnotedata(tests::written(pitch, mode)), digits.at(static_cast<std::size_t>(pitch)))
                << tests::written(pitch, mode);
}

TEST(GetNoteData, anyOtherText_isAnUnusedString)
{
    for (const char* text : {"", " ", "?", "c", "db", "DB", "C ", " C", "C##", "Cb", "E#", "Fb", "H", "0", "A Bb", "♭"})
        EXPECT_EQ(custom::getnotedata(text), '?') << text;
}

TEST(DataAt, characters_areCountedNotBytes)
{
    const custom::Entry plain{"", "1249279B"};
    const custom::Entry odd{"", "é2€92"};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(custom::dataat(plain, i), "1249279B"[i]) << i;
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(custom::dataat(odd, i), "?2?92???"[i]) << i;
    EXPECT_EQ(custom::dataat(custom::Entry{}, 0), '?');
}

/// Entries by name at their places: "a..b" is a at 0 and b at 3.
custom::CustomTable placed(std::string_view names)
{
    custom::CustomTable table;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (names[i] != '.')
            table.at(i) = {std::string(1, names[i]), "data " + std::string(1, names[i])};
    return table;
}

std::string namesof(const custom::CustomTable& table)
{
    std::string names;
    for (const custom::Entry& entry : table)
        names += entry.name.empty() ? "." : entry.name;
    return names.substr(0, names.find_last_not_of('.') + 1);
}

struct GapRow {
    const char* before;
    const char* after;
    std::size_t firstfree;
};

class DataBlankElim : public testing::TestWithParam<GapRow> {};

TEST_P(DataBlankElim, gaps_areClosedInOrder)
{
    custom::CustomTable table = placed(GetParam().before);
    custom::datablankelim(table);
    EXPECT_EQ(namesof(table), GetParam().after);
    EXPECT_EQ(custom::indexnew(table), GetParam().firstfree);
    for (const custom::Entry& entry : table)
        EXPECT_EQ(entry.data, entry.name.empty() ? "" : "data " + entry.name);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tables, DataBlankElim, testing::Values(
    //     before                                                 after             first free
    GapRow{"",                                                    "",               0 },
    GapRow{"abc",                                                 "abc",            3 },
    GapRow{".a",                                                  "a",              1 },
    GapRow{"a.b",                                                 "ab",             2 },
    GapRow{"c..a...b",                                            "cab",            3 },
    GapRow{"..................................................z", "z",              1 },
    GapRow{"a................................................z.", "az",             2 },
    GapRow{"abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxy",
           "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxy", 51 }));
// clang-format on

TEST(IndexNew, firstFreePlace_isFoundBeforeLaterEntries)
{
    EXPECT_EQ(custom::indexnew(placed("ab.c")), 2U);
    EXPECT_EQ(custom::indexnew(placed(".abc")), 0U);
}

} // namespace
