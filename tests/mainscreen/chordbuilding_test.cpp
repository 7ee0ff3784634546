// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using tests::modecount;
using tests::Started;
using tests::written;

constexpr auto enterfirst = "Please enter a note using your mouse\n"
                            "left clicking on a piano or guitar note\n"
                            "first, before using this function";
constexpr int none = -1;

struct ButtonRow {
    int index;
    const char* name;
    std::vector<int> intervals;
    int alternateroot; ///< interval above the root
    const char* alternate;
};

// clang-format off
const std::vector<ButtonRow> buttons{
    {  0, "major",            {0, 4, 7},           none, ""},
    {  1, "minor",            {0, 3, 7},           3,    "major 6th no 5"},
    {  2, "major 6th",        {0, 4, 7, 9},        9,    "minor 7th"},
    {  3, "7th",              {0, 4, 7, 10},       none, ""},
    {  4, "minor 7th",        {0, 3, 7, 10},       3,    "major 6th"},
    {  5, "major 7th",        {0, 4, 7, 11},       9,    "minor 9th"},        // the sixth is no note of it
    {  6, "major 9th",        {0, 2, 4, 7, 10},    none, ""},
    {  7, "diminished",       {0, 3, 6, 9},        3,    "dim"},              // a list of notes
    {  8, "major 11th",       {0, 2, 4, 5, 7, 10}, none, ""},
    {  9, "+ ( +5, aug. )",   {0, 4, 8},           4,    "aug"},              // likewise
    { 10, "minor 6th",        {0, 3, 7, 9},        5,    "major 9th"},        // nor is the fourth
    { 11, "sus (sus4 no 3)",  {0, 5, 7},           5,    "sus 2"},
    { 12, "mmaj7th",          {0, 3, 7, 11},       none, ""},
    { 13, "-5",               {0, 4, 6},           none, ""},
    { 14, "7 sus 4",          {0, 5, 10},          5,    "sus (sus4 no 3)"},
    { 15, "minor 9th",        {0, 2, 3, 7, 10},    none, ""},
    { 16, "minor 11th",       {0, 2, 3, 5, 7, 10}, none, ""},
    { 17, "7-5",              {0, 4, 6, 10},       none, ""},                 // has one only when read from notes
    { 18, "7 maj 5",          {0, 4, 8, 10},       none, ""},
    { 19, "6th add 9",        {0, 2, 4, 7, 9},     none, ""},
    { 20, "major 13th",       {0, 2, 4, 7, 9, 10}, none, ""},
    { 21, "minor 13th",       {0, 2, 3, 7, 9, 10}, none, ""},
    { 22, "sus 2",            {0, 2, 7},           7,    "sus (sus4 no 3)"},
    { 23, "5 (1st and 5th)",  {0, 7},              none, ""},
    { 24, "sus 4   (3 no 5)", {0, 4, 5},           none, ""},
    { 25, "sus 4 (5 and 3)",  {0, 4, 5, 7},        none, ""},
    { 26, "major 6th no 5",   {0, 4, 9},           9,    "minor"},
    { 27, "minor 6th no 5",   {0, 3, 9},           none, ""},
};
// clang-format on

std::string above(int root, int semitones, int mode)
{
    return written((root + semitones) % 12, mode);
}

std::string alternatetext(const ButtonRow& row, int root, int mode)
{
    std::string text = row.alternate;
    if (text == "dim")
        return ", " + above(root, 6, mode) + ", & " + above(root, 9, mode) + " dim.";
    if (text == "aug")
        return "+ and " + above(root, 8, mode) + "+";
    return text;
}

class ChordButton : public testing::TestWithParam<ButtonRow> {};

TEST_P(ChordButton, everyRootInEveryMode_fillsTheReadouts)
{
    const ButtonRow& row = GetParam();
    for (int mode = 0; mode < modecount; ++mode)
        for (int root = 0; root < 12; ++root) {
            SCOPED_TRACE(written(root, mode) + " " + row.name + " in mode " + std::to_string(mode));
            Started s;
            s.pickmode(mode);
            s.session.key_Click(root);
            s.session.Crd_Click(row.index);
            for (std::size_t i = 0; i < 6; ++i) {
                const bool used = i < row.intervals.size();
                EXPECT_EQ(s.session.note[i], used ? above(root, row.intervals[i], mode) : " ") << "readout " << i;
                EXPECT_EQ(s.session.chordslots.notes[i], used ? root + row.intervals[i] : 99) << "slot " << i;
            }
            EXPECT_EQ(s.session.note[6], written(root, mode));
            EXPECT_EQ(s.session.cordtyp1, row.name);
            const bool has = row.alternateroot != none;
            EXPECT_EQ(s.session.note[7], has ? above(root, row.alternateroot, mode) : " ");
            EXPECT_EQ(s.session.chordslots.alternateroot, has ? root + row.alternateroot : 99);
            EXPECT_EQ(s.session.cordtyp2, alternatetext(row, root, mode));
            EXPECT_EQ(s.session.chordindex, row.index);
            EXPECT_TRUE(s.desktop.told.empty());
        }
}

INSTANTIATE_TEST_SUITE_P(Buttons, ChordButton, testing::ValuesIn(buttons), [](const auto& row) {
    return std::to_string(row.param.index) + "_" + tests::rowname(row.param.name);
});

TEST(ChordButton, withoutARoot_saysSoAndChangesOnlyTheIndex)
{
    for (const char* blank : {"", " "})
        for (int index = 0; index < 28; ++index) {
            Started s;
            if (*blank != '\0')
                s.reset();
            ASSERT_EQ(s.session.note[0], blank);
            s.session.cordtyp1 = "untouched";
            s.session.fretboard.cell[119].back = core::midgrey;
            s.session.Crd_Click(index);
            EXPECT_EQ(s.desktop.told, (std::vector<tests::Told>{{ui::Icon::information, enterfirst}}));
            EXPECT_EQ(s.session.chordindex, index);
            EXPECT_EQ(s.session.note[0], blank);
            EXPECT_EQ(s.session.cordtyp1, "untouched") << index;
            EXPECT_EQ(s.session.fretboard.cell[119].back, core::midgrey) << index;
        }
}

TEST(ChordButton, indexOfNoType_showsTheSlotsWithoutAnAlternate)
{
    for (const int index : {-1, 28, 99}) {
        Started s;
        s.enter("C Eb G");
        s.session.Crd_Click(4);
        s.session.findchord(index);
        EXPECT_EQ(s.session.chordindex, index);
        EXPECT_EQ(s.notes(), "C Eb G Bb");
        EXPECT_EQ(s.session.note[6], "C");
        EXPECT_EQ(s.session.cordtyp1, "minor 7th");
        EXPECT_EQ(s.session.note[7], " ");
        EXPECT_EQ(s.session.cordtyp2, "");
        EXPECT_EQ(s.session.chordslots.alternateroot, 99);
    }
}

TEST(ChordButton, root_isTheFirstReadoutNotTheChordsRoot)
{
    Started s;
    s.enter("A C E"); // shown as C E A, read as A minor
    EXPECT_EQ(s.session.note[6], "A");
    s.session.Crd_Click(0);
    EXPECT_EQ(s.notes(), "C E G");
    EXPECT_EQ(s.session.note[6], "C");
}

TEST(ChordButton, slotsOfTheRootAndItsNumber_areLeft)
{
    Started s;
    s.enter("D G"); // root G in slot 6
    s.session.Crd_Click(0);
    EXPECT_EQ(s.session.note[6], "D");
    EXPECT_EQ(s.session.chordslots.root, 7);
}

TEST(ChordButton, highNotes_areFoldedInTheReadoutsOnly)
{
    Started s;
    s.enter("B");
    s.session.Crd_Click(21);
    EXPECT_EQ(s.session.chordslots.notes, (std::array<int, 6>{11, 13, 14, 18, 20, 21}));
    EXPECT_EQ(s.notes(), "B Db D Gb Ab A");
}

TEST(ChordButton, chord_isMarkedOnPianoAndBoard)
{
    Started s;
    s.session.key_Click(24);
    s.session.Crd_Click(0);
    std::string keys;
    for (std::size_t k = 0; k < 25; ++k)
        keys += s.session.keyboard.key[k].back == 0x808080   ? '#'
                : s.session.keyboard.key[k].back == 0xC0C0C0 ? '+'
                                                             : '.';
    EXPECT_EQ(keys, "#...#..#....+...+..+....+");
    EXPECT_EQ(s.rowmarks(0), "#..+................"); // E and G
    EXPECT_EQ(s.rowmarks(1), ".#..................");
    EXPECT_EQ(s.rowmarks(2), "#...................");
    EXPECT_EQ(s.rowmarks(3), "..#.................");
    EXPECT_EQ(s.rowmarks(4), "...#................");
    EXPECT_EQ(s.rowmarks(5), "#..+................");
}

TEST(ChordButton, noteAddedToABuiltChord_isReadWithIt)
{
    Started s;
    s.enter("C");
    s.session.Crd_Click(0);
    s.enter("Bb");
    EXPECT_EQ(s.notes(), "C E G Bb");
    EXPECT_EQ(s.session.cordtyp1, "7th");
    EXPECT_EQ(s.session.chordindex, 3);
}

TEST(ChordButton, alternateInAnotherMode_isRespelled)
{
    Started s;
    s.enter("C");
    s.session.Crd_Click(7);
    EXPECT_EQ(s.session.cordtyp2, ", Gb, & A dim.");
    s.pickmode(3);
    EXPECT_EQ(s.session.cordtyp2, ", F#, & A dim.");
    EXPECT_EQ(s.session.note[7], "D#");
}

TEST(ShownChord, everyButton_isTheOneThatTheReadoutNames)
{
    Started s;
    EXPECT_EQ(s.session.shownchord(), none);
    s.enter("C");
    EXPECT_EQ(s.session.shownchord(), none);
    for (int index = 0; index < 28; ++index) {
        s.session.Crd_Click(index);
        EXPECT_EQ(s.session.shownchord(), index);
    }
    s.reset();
    EXPECT_EQ(s.session.shownchord(), none);
    s.enter("C Db D");
    EXPECT_EQ(s.session.cordtyp1, "cant find");
    EXPECT_EQ(s.session.shownchord(), none);
}

} // namespace
