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

} // namespace
