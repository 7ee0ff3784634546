// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/printout.h"

#include <gtest/gtest.h>

namespace {

using Lines = print::PrintedPage;
using Pages = std::vector<Lines>;

struct Margins {
    const char* name;
    const char* text;
    int top;
    int left;
    const char* printed;
};

class WithMargins : public testing::TestWithParam<Margins> {};

TEST_P(WithMargins, text_getsItsMargins)
{
    EXPECT_EQ(print::withmargins(GetParam().text, GetParam().top, GetParam().left), GetParam().printed);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, WithMargins, testing::Values(
    Margins{"left6_ofTwoLines",           "one\ntwo",     0, 6, "      one\n      two"},
    Margins{"left6_ofALineEnd",           "one\n",        0, 6, "      one\n"},
    Margins{"left6_ofEmptyLines",         "a\n\nb",       0, 6, "      a\n      \n      b"},
    Margins{"left2_ofBlanksAtTheEnd",     "one  \ntwo  ", 0, 2, "  one  \n  two"},
    Margins{"left0_ofBlanksAtTheEnd",     "one  ",        0, 0, "one  "},
    Margins{"left3_ofBlanksOnly",         "    ",         0, 3, " "},
    Margins{"left1_ofNothing",            "",             0, 1, " "},
    Margins{"top3_left0",                 "one",          3, 0, "\n\n\none"},
    Margins{"top3_left6",                 "one\ntwo",     3, 6, "\n\n\n      one\n      two"},
    Margins{"top0_left0",                 "one\ntwo\n",   0, 0, "one\ntwo\n"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

struct Laid {
    const char* name;
    const char* text;
    ui::PaperRoom room;
    Pages pages;
    int toolong;
};

class LayoutPages : public testing::TestWithParam<Laid> {};

TEST_P(LayoutPages, text_breaksBetweenLines)
{
    const print::Printout printout = print::layoutpages(GetParam().text, GetParam().room);
    EXPECT_EQ(printout.pages, GetParam().pages);
    EXPECT_EQ(printout.toolong, GetParam().toolong);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, LayoutPages, testing::Values(
    Laid{"nothing",               "",                {10, 3}, {}, 0},
    Laid{"oneLine",               "abc",             {10, 3}, {{"abc"}}, 0},
    Laid{"lineEndAtTheEnd",       "abc\n",           {10, 3}, {{"abc"}}, 0},
    Laid{"emptyLines",            "\n\nabc",         {10, 3}, {{"", "", "abc"}}, 0},
    Laid{"fullPage",              "a\nb\nc\n",       {10, 3}, {{"a", "b", "c"}}, 0},
    Laid{"oneLineMore",           "a\nb\nc\nd",      {10, 3}, {{"a", "b", "c"}, {"d"}}, 0},
    Laid{"emptyLineMore",         "a\nb\nc\n\n",     {10, 3}, {{"a", "b", "c"}, {""}}, 0},
    Laid{"justFits",              "0123456789",      {10, 3}, {{"0123456789"}}, 0},
    Laid{"onlyBlanksDoNotFit",    "0123456789  \nb", {10, 3}, {{"0123456789", "b"}}, 0},
    Laid{"blanksThatFit",         "0123456  ",       {10, 3}, {{"0123456  "}}, 0},
    Laid{"oneTooLong",            "0123456789X",     {10, 3}, {{"0123456789", "X"}}, 1},
    Laid{"farTooLong",            "aaaabbbbcc\nd",   {4,  3}, {{"aaaa", "bbbb", "cc"}, {"d"}}, 1},
    Laid{"twoTooLong",            "aaaab\nc\nddddd", {4,  9}, {{"aaaa", "b", "c", "dddd", "d"}}, 2},
    Laid{"charactersNotBytes",    "\xC3\xA4\xC3\xB6\xC3\xBC", {3, 3}, {{"\xC3\xA4\xC3\xB6\xC3\xBC"}}, 0},
    Laid{"characterNotTornApart", "\xC3\xA4\xC3\xB6\xC3\xBC", {2, 3}, {{"\xC3\xA4\xC3\xB6", "\xC3\xBC"}}, 1},
    Laid{"tab",                   "a\tb",            {10, 3}, {{"a       b"}}, 0},
    Laid{"tabBehindUmlaut",       "\xC3\xA4\tb",     {10, 3}, {{"\xC3\xA4       b"}}, 0},
    Laid{"tabTooLong",            "a\tb",            {8,  3}, {{"a       ", "b"}}, 1},
    Laid{"noRoomAtAll",           "ab",              {0,  0}, {{"a"}, {"b"}}, 1}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(LayoutPages, tenMegabytes_areLaidOut)
{
    std::string text;
    while (text.size() < 10'000'000)
        text += "E -|*|-|-|   E -|*|-|-|   E -|*|-|-|   E -|*|-|-|\n";
    const print::Printout printout = print::layoutpages(text, {80, 60});
    EXPECT_EQ(printout.toolong, 0);
    EXPECT_EQ(printout.pages.size(), (text.size() / 50 + 59) / 60);
}

} // namespace
