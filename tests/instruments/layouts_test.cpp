// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/layouts.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using instruments::Hand;
using instruments::StringLayout;

struct ColumnRow {
    int fret;
    int right;
    int left;
};

TEST(Columns, everyFret_standsAtItsPlaceForEitherHand)
{
    // clang-format off
    const auto rows = std::to_array<ColumnRow>({
        {  0, 1190, 8820 }, {  1, 1620, 8220 }, {  2, 2100, 7740 }, {  3, 2580, 7260 }, {  4, 3060, 6780 },
        {  5, 3540, 6300 }, {  6, 4020, 5880 }, {  7, 4440, 5460 }, {  8, 4860, 5040 }, {  9, 5280, 4620 },
        { 10, 5700, 4200 }, { 11, 6120, 3780 }, { 12, 6600, 3300 }, { 13, 7020, 2880 }, { 14, 7440, 2520 },
        { 15, 7800, 2160 }, { 16, 8160, 1800 }, { 17, 8520, 1440 }, { 18, 8880, 1080 }, { 19, 9240,  720 },
    });
    // clang-format on
    ASSERT_EQ(rows.size(), instruments::columns.size());
    for (const ColumnRow& row : rows) {
        const instruments::ColumnPosition& column = instruments::columns.at(static_cast<std::size_t>(row.fret));
        EXPECT_EQ(column[Hand::right], row.right) << "fret " << row.fret;
        EXPECT_EQ(column[Hand::left], row.left) << "fret " << row.fret;
    }
}

struct LayoutCase {
    StringLayout layout;
    int code;
    const char* operation;
    int firstrow;
    std::array<int, 6> tops;
};

TEST(Layouts, everyLayout_hasItsCodeAndRowTops)
{
    // clang-format off
    for (const LayoutCase& row : std::to_array<LayoutCase>({
        { StringLayout::shortfifth,  0, "string5banjo", 1, { 5640, 5880, 6120, 6360, 6600, 6840 } },  // where six stand
        { StringLayout::fourstrings, 1, "string4b",     2, { 5640, 5880, 5880, 6120, 6360, 6600 } },
        { StringLayout::fivestrings, 2, "string5b",     1, { 5640, 5640, 5880, 6120, 6360, 6600 } },
        { StringLayout::sixstrings,  3, "string6g",     0, { 5640, 5880, 6120, 6360, 6600, 6840 } },
    })) {
        // clang-format on
        EXPECT_EQ(static_cast<int>(row.layout), row.code) << row.operation;
        EXPECT_EQ(instruments::layoutrow(row.layout).name, row.operation);
        EXPECT_EQ(instruments::layoutrow(row.layout).firstrow, row.firstrow) << row.operation;
        EXPECT_EQ(instruments::layoutrow(row.layout).tops, row.tops) << row.operation;
    }
}

TEST(StringLines, theirHeights_areAsDrawn)
{
    EXPECT_EQ(instruments::linetops, (std::array<int, 6>{5760, 6000, 6240, 6480, 6720, 6960}));
}

TEST(HandRow, segmentsAndCaption_changeSides)
{
    EXPECT_EQ(instruments::handrow(Hand::right).segmentleft, 9600);
    EXPECT_EQ(instruments::handrow(Hand::right).segmentright, 10260);
    EXPECT_EQ(instruments::handrow(Hand::right).captionleft, 180);
    EXPECT_EQ(instruments::handrow(Hand::left).segmentleft, 75);
    EXPECT_EQ(instruments::handrow(Hand::left).segmentright, 735);
    EXPECT_EQ(instruments::handrow(Hand::left).captionleft, 9180);
}

} // namespace
