// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/notes.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using tests::modecount;
using tests::rowname;
using tests::spelling;

struct NumberRow {
    int number;
    std::array<const char*, modecount> names; ///< by mode
    int readback;
};

class NoteName : public testing::TestWithParam<NumberRow> {};

TEST_P(NoteName, number_namedAndFolded)
{
    const NumberRow& row = GetParam();
    for (int mode = 0; mode < modecount; ++mode) {
        core::PitchClass n = row.number;
        EXPECT_EQ(spelling(mode).notename(n), row.names.at(static_cast<std::size_t>(mode)))
            << "number " << row.number << " in mode " << mode;
        EXPECT_EQ(n, row.readback) << "number " << row.number << " in mode " << mode;
        EXPECT_EQ(spelling(mode).nameof(row.number), row.names.at(static_cast<std::size_t>(mode)));
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numbers, NoteName, testing::Values(
    //         number  flats  mix1  mix2  sharps      read back
    NumberRow{     0, {"C",  "C",  "C",  "C" },           0},
    NumberRow{     1, {"Db", "C#", "C#", "C#"},           1},
    NumberRow{     2, {"D",  "D",  "D",  "D" },           2},
    NumberRow{     3, {"Eb", "Eb", "Eb", "D#"},           3},
    NumberRow{     4, {"E",  "E",  "E",  "E" },           4},
    NumberRow{     5, {"F",  "F",  "F",  "F" },           5},
    NumberRow{     6, {"Gb", "F#", "F#", "F#"},           6},
    NumberRow{     7, {"G",  "G",  "G",  "G" },           7},
    NumberRow{     8, {"Ab", "Ab", "G#", "G#"},           8},
    NumberRow{     9, {"A",  "A",  "A",  "A" },           9},
    NumberRow{    10, {"Bb", "Bb", "Bb", "A#"},          10},
    NumberRow{    11, {"B",  "B",  "B",  "B" },          11},
    NumberRow{    12, {"C",  "C",  "C",  "C" },          12},  // up to 24 stays: piano keys
    NumberRow{    13, {"Db", "C#", "C#", "C#"},          13},
    NumberRow{    18, {"Gb", "F#", "F#", "F#"},          18},
    NumberRow{    23, {"B",  "B",  "B",  "B" },          23},
    NumberRow{    24, {"C",  "C",  "C",  "C" },          24},
    NumberRow{    25, {"Db", "C#", "C#", "C#"},          13},  // the first above: one octave down
    NumberRow{    30, {"Gb", "F#", "F#", "F#"},          18},
    NumberRow{    36, {"C",  "C",  "C",  "C" },          24},  // 24 is in range, so not 12 or 0
    NumberRow{    37, {"Db", "C#", "C#", "C#"},          13},
    NumberRow{    98, {"D",  "D",  "D",  "D" },          14},
    NumberRow{   100, {"E",  "E",  "E",  "E" },          16},
    NumberRow{    99, {" ",  " ",  " ",  " " },          99},  // no note
    NumberRow{    -1, {"B",  "B",  "B",  "B" },          11},
    NumberRow{    -2, {"Bb", "Bb", "Bb", "A#"},          10},
    NumberRow{   -12, {"C",  "C",  "C",  "C" },           0},
    NumberRow{   -13, {"B",  "B",  "B",  "B" },          11},
    NumberRow{   -25, {"B",  "B",  "B",  "B" },          11},
    NumberRow{   -99, {"A",  "A",  "A",  "A" },           9}), // 99 below is a number like others
    [](const auto& row) { return rowname(std::to_string(row.param.number)); });
// clang-format on

struct NameRow {
    const char* name;
    int number;
};

class NoteNumber : public testing::TestWithParam<NameRow> {};

TEST_P(NoteNumber, text_numbered)
{
    EXPECT_EQ(core::notenumber(GetParam().name), GetParam().number) << '"' << GetParam().name << '"';
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Capitals, NoteNumber, testing::Values(
    NameRow{"C",   0}, NameRow{"C#",  1}, NameRow{"Db",  1}, NameRow{"D",   2}, NameRow{"D#",  3}, NameRow{"Eb",  3},
    NameRow{"E",   4}, NameRow{"F",   5}, NameRow{"F#",  6}, NameRow{"Gb",  6}, NameRow{"G",   7}, NameRow{"G#",  8},
    NameRow{"Ab",  8}, NameRow{"A",   9}, NameRow{"A#", 10}, NameRow{"Bb", 10}, NameRow{"B",  11}),
    [](const auto& row) { return rowname(row.param.name); });

INSTANTIATE_TEST_SUITE_P(SmallLetters, NoteNumber, testing::Values(
    NameRow{"c",   0}, NameRow{"c#",  1}, NameRow{"db",  1}, NameRow{"d",   2}, NameRow{"d#",  3}, NameRow{"eb",  3},
    NameRow{"e",   4}, NameRow{"f",   5}, NameRow{"f#",  6}, NameRow{"gb",  6}, NameRow{"g",   7}, NameRow{"g#",  8},
    NameRow{"ab",  8}, NameRow{"a",   9}, NameRow{"a#", 10}, NameRow{"bb", 10}, NameRow{"b",  11}),
    [](const auto& row) { return rowname(row.param.name); });
// clang-format on

TEST(NoteNumber, textThatIsNoName_isNoNote)
{
    const auto refused = std::to_array<const char*>({
        "",      " ",            // no note
        "BB",    "DB",    "bB",  // a flat sign in capitals
        " C",    "C ",    "c# ", // blanks around
        "C# Db",                 // both names of a key
        "E#",    "Fb",    "Cb",  // names that no note has
        "C##",   "Dbb",   "C4",  // longer
        "H",     "h",     "#",   // no letter of a note
        "?",     "major", "Cm",
    });
    for (const char* text : refused)
        EXPECT_EQ(core::notenumber(text), core::nonote) << '"' << text << '"';
}

TEST(NoteNumber, ofEveryName_namesTheSameNoteInTheMode)
{
    for (int from = 0; from < modecount; ++from)
        for (int to = 0; to < modecount; ++to)
            for (int pitch = 0; pitch < 12; ++pitch)
                EXPECT_EQ(spelling(to).nameof(core::notenumber(tests::written(pitch, from))), tests::written(pitch, to))
                    << tests::written(pitch, from) << " in mode " << to;
}

struct ChangeRow {
    const char* text;
    std::array<const char*, modecount> changed; ///< by mode
};

class NoteFlat : public testing::TestWithParam<ChangeRow> {};

TEST_P(NoteFlat, text_spelledInTheMode)
{
    for (int mode = 0; mode < modecount; ++mode) {
        std::string text = GetParam().text;
        spelling(mode).noteflat(text);
        EXPECT_EQ(text, GetParam().changed.at(static_cast<std::size_t>(mode)))
            << '"' << GetParam().text << "\" in mode " << mode;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, NoteFlat, testing::Values(
    //         text       flats    mix1     mix2     sharps
    ChangeRow{"C",      {"C",     "C",     "C",     "C"    }},
    ChangeRow{"C#",     {"Db",    "C#",    "C#",    "C#"   }},
    ChangeRow{"Db",     {"Db",    "C#",    "C#",    "C#"   }},
    ChangeRow{"D",      {"D",     "D",     "D",     "D"    }},
    ChangeRow{"D#",     {"Eb",    "Eb",    "Eb",    "D#"   }},
    ChangeRow{"Eb",     {"Eb",    "Eb",    "Eb",    "D#"   }},
    ChangeRow{"E",      {"E",     "E",     "E",     "E"    }},
    ChangeRow{"F",      {"F",     "F",     "F",     "F"    }},
    ChangeRow{"F#",     {"Gb",    "F#",    "F#",    "F#"   }},
    ChangeRow{"Gb",     {"Gb",    "F#",    "F#",    "F#"   }},
    ChangeRow{"G",      {"G",     "G",     "G",     "G"    }},
    ChangeRow{"G#",     {"Ab",    "Ab",    "G#",    "G#"   }},
    ChangeRow{"Ab",     {"Ab",    "Ab",    "G#",    "G#"   }},
    ChangeRow{"A",      {"A",     "A",     "A",     "A"    }},
    ChangeRow{"A#",     {"Bb",    "Bb",    "Bb",    "A#"   }},
    ChangeRow{"Bb",     {"Bb",    "Bb",    "Bb",    "A#"   }},
    ChangeRow{"B",      {"B",     "B",     "B",     "B"    }},
    ChangeRow{" ",      {" ",     " ",     " ",     " "    }},
    ChangeRow{"",       {"",      "",      "",      ""     }},
    ChangeRow{"major",  {"major", "major", "major", "major"}},
    ChangeRow{"db",     {"db",    "db",    "db",    "db"   }},  // capitals count here
    ChangeRow{"DB",     {"DB",    "DB",    "DB",    "DB"   }},
    ChangeRow{"Db ",    {"Db ",   "Db ",   "Db ",   "Db "  }},
    ChangeRow{"C# Db",  {"C# Db", "C# Db", "C# Db", "C# Db"}},
    ChangeRow{"?",      {"?",     "?",     "?",     "?"    }}),
    [](const auto& row) { return std::to_string(row.index) + "_" + rowname(row.param.text); });
// clang-format on

class NoteUp : public testing::TestWithParam<ChangeRow> {};

TEST_P(NoteUp, text_raisedInTheMode)
{
    for (int mode = 0; mode < modecount; ++mode) {
        std::string text = GetParam().text;
        spelling(mode).noteup(text);
        EXPECT_EQ(text, GetParam().changed.at(static_cast<std::size_t>(mode)))
            << '"' << GetParam().text << "\" in mode " << mode;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, NoteUp, testing::Values(
    //         text    flats  mix1  mix2  sharps
    ChangeRow{"C",    {"Db", "C#", "C#", "C#"}},
    ChangeRow{"C#",   {"D",  "D",  "D",  "D" }},
    ChangeRow{"Db",   {"D",  "D",  "D",  "D" }},
    ChangeRow{"D",    {"Eb", "Eb", "Eb", "D#"}},
    ChangeRow{"D#",   {"E",  "E",  "E",  "E" }},
    ChangeRow{"Eb",   {"E",  "E",  "E",  "E" }},
    ChangeRow{"E",    {"F",  "F",  "F",  "F" }},
    ChangeRow{"F",    {"Gb", "F#", "F#", "F#"}},
    ChangeRow{"F#",   {"G",  "G",  "G",  "G" }},
    ChangeRow{"Gb",   {"G",  "G",  "G",  "G" }},
    ChangeRow{"G",    {"Ab", "Ab", "G#", "G#"}},
    ChangeRow{"G#",   {"A",  "A",  "A",  "A" }},
    ChangeRow{"Ab",   {"A",  "A",  "A",  "A" }},
    ChangeRow{"A",    {"Bb", "Bb", "Bb", "A#"}},
    ChangeRow{"A#",   {"B",  "B",  "B",  "B" }},
    ChangeRow{"Bb",   {"B",  "B",  "B",  "B" }},
    ChangeRow{"B",    {"C",  "C",  "C",  "C" }},  // no octave
    ChangeRow{"Cm",   {"Cm", "Cm", "Cm", "Cm"}},
    ChangeRow{"c",    {"c",  "c",  "c",  "c" }},  // capitals count here
    ChangeRow{" ",    {" ",  " ",  " ",  " " }},
    ChangeRow{"",     {"",   "",   "",   ""  }},
    ChangeRow{"?",    {"?",  "?",  "?",  "?" }}), // an unused string of a custom tuning
    [](const auto& row) { return std::to_string(row.index) + "_" + rowname(row.param.text); });
// clang-format on

class Respell : public testing::TestWithParam<ChangeRow> {};

TEST_P(Respell, namesInsideAText_spelledInTheMode)
{
    for (int mode = 0; mode < modecount; ++mode) {
        std::string text = GetParam().text;
        spelling(mode).respell(text);
        EXPECT_EQ(text, GetParam().changed.at(static_cast<std::size_t>(mode)))
            << '"' << GetParam().text << "\" in mode " << mode;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, Respell, testing::Values(
    //         text                 flats              mix1               mix2               sharps
    ChangeRow{", F#, & A dim.",   {", Gb, & A dim.",  ", F#, & A dim.",  ", F#, & A dim.",  ", F#, & A dim." }},
    ChangeRow{", Ab, & B dim.",   {", Ab, & B dim.",  ", Ab, & B dim.",  ", G#, & B dim.",  ", G#, & B dim." }},
    ChangeRow{", D#, & Gb dim.",  {", Eb, & Gb dim.", ", Eb, & F# dim.", ", Eb, & F# dim.", ", D#, & F# dim."}},
    ChangeRow{"+ and Bb+",        {"+ and Bb+",       "+ and Bb+",       "+ and Bb+",       "+ and A#+"      }},
    ChangeRow{"Db",               {"Db",              "C#",              "C#",              "C#"             }},
    ChangeRow{"minor 7th",        {"minor 7th",       "minor 7th",       "minor 7th",       "minor 7th"      }},
    ChangeRow{" ",                {" ",               " ",               " ",               " "              }},
    ChangeRow{"",                 {"",                "",                "",                ""               }}),
    [](const auto& row) { return std::to_string(row.index) + "_" + rowname(row.param.text); });
// clang-format on

TEST(IsBlack, everyKeyOfThePiano_hasTheColourOfItsNote)
{
    const std::string twooctaves = "wbwbwwbwbwbwwbwbwwbwbwbww"; // from C to C
    for (int k = 0; k <= 24; ++k)
        EXPECT_EQ(core::isblack(k), twooctaves.at(static_cast<std::size_t>(k)) == 'b') << "key " << k;
}

TEST(IsBlank, onlyNothingAndOneBlank_areBlank)
{
    EXPECT_TRUE(core::isblank(""));
    EXPECT_TRUE(core::isblank(" "));
    EXPECT_FALSE(core::isblank("  "));
    EXPECT_FALSE(core::isblank("C"));
}

} // namespace
