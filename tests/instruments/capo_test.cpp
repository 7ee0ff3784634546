// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/capo.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using instruments::CapoMarker;
using instruments::Hand;

struct ChoiceRow {
    const char* text;
    int first;
    int last;
    int fret;
};

TEST(CapoSpan, everyText_examinesItsCells)
{
    // clang-format off
    for (const ChoiceRow& row : std::to_array<ChoiceRow>({
        { "0 normal - open",         0,  29,  0 },
        { "1st fret  capo / bar",    6,  35,  1 },
        { "2nd fret  capo / bar",   12,  41,  2 },
        { "3rd fret  capo / bar",   18,  47,  3 },
        { "4th fret  capo / bar",   24,  53,  4 },
        { "5th fret  capo / bar",   30,  59,  5 },
        { "6th fret  capo / bar",   36,  65,  6 },
        { "7th fret  capo / bar",   42,  71,  7 },
        { "8th fret  capo / bar",   48,  77,  8 },
        { "9th fret  capo / bar",   54,  83,  9 },
        { "10th fret  capo / bar",  60,  89, 10 },
        { "11th fret  capo / bar",  66,  95, 11 },
        { "12th fret  capo / bar",  71, 101, 12 },  // from row 5 of the 11th fret
        { "13th fret  capo / bar",  77, 107, 13 },  // likewise
        { "14th fret  capo / bar",  84, 114, 14 },  // to row 0 of the 19th
        { "15th fret  capo / bar",  90, 119, 15 },
        { "pull down menu --- >",    0,  29,  0 },
        { "scroll to select ------>",0,  29,  0 },
        { "2nd choice",             12,  41,  2 },  // only four characters count
        { "16th fret  capo / bar",   0,  29,  0 },
        { "1st",                     0,  29,  0 },  // too short to be a fret's
        { "",                        0,  29,  0 },
    })) {
        // clang-format on
        const instruments::CapoSpan& choice = instruments::capospan(row.text);
        EXPECT_EQ(choice.span.first, row.first) << row.text;
        EXPECT_EQ(choice.span.last, row.last) << row.text;
        EXPECT_EQ(choice.fret, row.fret) << row.text;
    }
}

TEST(CapoList, itsTexts_areAsListed)
{
    const auto listed = std::to_array<std::string_view>({
        "select ------------>",
        "0 normal - open",
        "1st fret  capo / bar",
        "2nd fret  capo / bar",
        "3rd fret  capo / bar",
        "4th fret  capo / bar",
        "5th fret  capo / bar",
        "6th fret  capo / bar",
        "7th fret  capo / bar",
        "8th fret  capo / bar",
        "9th fret  capo / bar",
        "10th fret  capo / bar",
        "11th fret  capo / bar",
        "12th fret  capo / bar",
        "13th fret  capo / bar",
        "14th fret  capo / bar",
        "15th fret  capo / bar",
        "show all notes",
        "",
    });
    EXPECT_EQ(instruments::capolist, listed);
}

struct BarRow {
    int fret;
    int right;
    int left;
};

class GetCapo : public testing::TestWithParam<BarRow> {};

TEST_P(GetCapo, fret_barAndFollowerAtItsPlaceForEitherHand)
{
    const BarRow& row = GetParam();
    for (const Hand hand : {Hand::right, Hand::left}) {
        CapoMarker marker;
        marker.getcapo(row.fret, hand);
        EXPECT_TRUE(marker.barvisible) << row.fret;
        EXPECT_EQ(marker.barleft, hand == Hand::right ? row.right : row.left) << row.fret;
        EXPECT_TRUE(marker.followervisible) << row.fret;
        EXPECT_EQ(marker.followerleft, (hand == Hand::right ? row.right : row.left) + 120) << row.fret;
    }
    EXPECT_EQ(row.right + row.left, 9960);
}

INSTANTIATE_TEST_SUITE_P(Frets, GetCapo,
                         testing::Values(BarRow{1, 1680, 8280}, BarRow{2, 2160, 7800}, BarRow{3, 2640, 7320},
                                         BarRow{4, 3120, 6840}, BarRow{5, 3600, 6360}, BarRow{6, 4050, 5910},
                                         BarRow{7, 4470, 5490}, BarRow{8, 4890, 5070}, BarRow{9, 5310, 4650},
                                         BarRow{10, 5730, 4230}, BarRow{11, 6150, 3810}, BarRow{12, 6630, 3330},
                                         BarRow{13, 7050, 2910}, BarRow{14, 7440, 2520}, BarRow{15, 7800, 2160}),
                         [](const auto& row) { return "fret" + std::to_string(row.param.fret); });

TEST(GetCapo, zeroAfterAFret_hidesBothAndMovesTheBar)
{
    for (const Hand hand : {Hand::right, Hand::left}) {
        CapoMarker marker;
        marker.getcapo(15, hand);
        marker.getcapo(0, hand);
        EXPECT_FALSE(marker.barvisible);
        EXPECT_FALSE(marker.followervisible);
        EXPECT_EQ(marker.barleft, 1680); // the first fret's place, whichever the hand
    }
}

} // namespace
