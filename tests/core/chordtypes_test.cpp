// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/chordmatch.h"
#include "core/chordtypes.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct TypeRow {
    int number;
    const char* name;
    std::vector<int> intervals;
    const char* caption;
    const char* tip;
};

class ChordTypes : public testing::TestWithParam<TypeRow> {};

TEST_P(ChordTypes, row_isAsListed)
{
    const TypeRow& row = GetParam();
    const core::ChordType& type = core::chordtypes.at(static_cast<std::size_t>(row.number));
    EXPECT_EQ(type.name, row.name);
    EXPECT_EQ(std::vector<int>(type.intervals.begin(), type.intervals.end()), row.intervals) << row.name;
    EXPECT_EQ(type.caption, row.caption);
    EXPECT_EQ(type.tip, row.tip) << row.name;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Catalogue, ChordTypes, testing::Values(
    TypeRow{ 0, "major",            {0, 4, 7},           "major",            ""},
    TypeRow{ 1, "minor",            {0, 3, 7},           "minor",            ""},
    TypeRow{ 2, "major 6th",        {0, 4, 7, 9},        "major 6th",        ""},
    TypeRow{ 3, "7th",              {0, 4, 7, 10},       "7th",              "dominant 7th (adds flatted 7th note)"},
    TypeRow{ 4, "minor 7th",        {0, 3, 7, 10},       "minor 7th",        ""},
    TypeRow{ 5, "major 7th",        {0, 4, 7, 11},       "major 7th",        ""},
    TypeRow{ 6, "major 9th",        {0, 2, 4, 7, 10},    "major 9th",        ""},
    TypeRow{ 7, "diminished",       {0, 3, 6, 9},        "diminished",       "all notes in a diminished chord would yield the same chord as the base note"},
    TypeRow{ 8, "major 11th",       {0, 2, 4, 5, 7, 10}, "major 11th",       ""},
    TypeRow{ 9, "+ ( +5, aug. )",   {0, 4, 8},           "+ ( +5, aug. )",   "augmented chord, also called \"+5\" or simply \"+\""},
    TypeRow{10, "minor 6th",        {0, 3, 7, 9},        "minor 6th",        ""},
    TypeRow{11, "sus (sus4 no 3)",  {0, 5, 7},           "sus (sus4 no 3)",  "sus 4 is also simply called \"sus\"; chord contains the 5th but not the 3rd"},
    TypeRow{12, "mmaj7th",          {0, 3, 7, 11},       "mmaj7th",          "combination of a minor chord with a major 7th added"},
    TypeRow{13, "-5",               {0, 4, 6},           "-5",               "flatting the fifth note of the chord"},
    TypeRow{14, "7 sus 4",          {0, 5, 10},          "7 sus 4",          "combination dom 7th with sus 4th"},
    TypeRow{15, "minor 9th",        {0, 2, 3, 7, 10},    "minor 9th",        ""},
    TypeRow{16, "minor 11th",       {0, 2, 3, 5, 7, 10}, "minor 11th",       ""},
    TypeRow{17, "7-5",              {0, 4, 6, 10},       "7-5",              "combination dom 7th with flatted 5th (-5)"},
    TypeRow{18, "7 maj 5",          {0, 4, 8, 10},       "7 maj 5",          "Combination Dom 7th with + 5 (aug)"}, // capitals as they are
    TypeRow{19, "6th add 9",        {0, 2, 4, 7, 9},     "6th add 9",        ""},
    TypeRow{20, "major 13th",       {0, 2, 4, 7, 9, 10}, "major 13th",       ""},
    TypeRow{21, "minor 13th",       {0, 2, 3, 7, 9, 10}, "minor 13th",       ""},
    TypeRow{22, "sus 2",            {0, 2, 7},           "sus 2",            ""},
    TypeRow{23, "5 (1st and 5th)",  {0, 7},              "5 (1st and 5th)",  "just two notes - the primary and the fifth; also called \"no 3rd\""},
    TypeRow{24, "sus 4   (3 no 5)", {0, 4, 5},           "sus 4 (3 no 5)",   "contains the 3rd but not the 5th"}, // three blanks on screen, one on the button
    TypeRow{25, "sus 4 (5 and 3)",  {0, 4, 5, 7},        "sus 4 (5 and 3)",  "contains the sus 4th, plus both 3rd and 5th"},
    TypeRow{26, "major 6th no 5",   {0, 4, 9},           "major 6th no 5",   ""},
    TypeRow{27, "minor 6th no 5",   {0, 3, 9},           "minor 6th no 5",   ""}),
    [](const auto& row) { return std::to_string(row.param.number) + "_" + tests::rowname(row.param.name); });
// clang-format on

TEST(NotesOf, intervalsOnARoot_wrapAtTheOctave)
{
    EXPECT_EQ(core::notesof({0, 4, 7}, 0), 0b000010010001);
    EXPECT_EQ(core::notesof({0, 4, 7}, 9), 0b001000010010); // A C# E
}

struct TextRow {
    core::AlternateText kind;
    int type;
    int second;
    int third;
    int mode;
    const char* text;
};

TEST(AlternateText, everyKind_writesItsNotesInTheMode)
{
    using enum core::AlternateText;
    // clang-format off
    for (const TextRow& row : std::to_array<TextRow>({
        //  kind     type  second third mode
        { none,       0,    7,    99,   0, ""                },
        { type,       2,    7,    10,   0, "major 6th"       },
        { type,      11,    7,    99,   3, "sus (sus4 no 3)" },
        { dimlist,    0,    6,     9,   0, ", Gb, & A dim."  },
        { dimlist,    0,    6,     9,   3, ", F#, & A dim."  },
        { dimlist,    0,   17,    20,   0, ", F, & Ab dim."  },  // notes of a button's chord pass the octave
        { auglist,    0,    8,    99,   1, "+ and Ab+"       },
        { auglist,    0,    8,    99,   3, "+ and G#+"       },
    })) {
        const core::Alternate alternate{row.kind, 0, static_cast<std::int8_t>(row.type)};
        EXPECT_EQ(core::alternatetext(alternate, row.second, row.third, tests::spelling(row.mode)), row.text);
    }
    // clang-format on
}

} // namespace
