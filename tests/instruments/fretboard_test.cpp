// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/fretboard.h"
#include "tests/support/colours.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

namespace {

using instruments::Fretboard;
using instruments::StringLayout;
using tests::dark;
using tests::mid;
using tests::rest;
using tests::spelling;

std::string rowtext(const Fretboard& board, int row)
{
    std::string line;
    for (int i = row; i < 120; i += 6)
        line += (i == row ? "" : " ") + board.cell.at(static_cast<std::size_t>(i)).text;
    return line;
}

instruments::Cell& cellof(Fretboard& board, int i)
{
    return board.cell.at(static_cast<std::size_t>(i));
}

struct LineRow {
    int row;
    const char* open;
    int mode;
    StringLayout layout;
    const char* line; ///< frets 0 to 19
};

TEST(DoLine, openNote_fillsTheRow)
{
    using enum StringLayout;
    // clang-format off
    for (const LineRow& c : std::to_array<LineRow>({
        // row open mode
        { 0, "E",  3, sixstrings,  "E F F# G G# A A# B C C# D D# E F F# G G# A A# B"  },
        { 0, "E",  0, sixstrings,  "E F Gb G Ab A Bb B C Db D Eb E F Gb G Ab A Bb B"  },
        { 3, "D#", 1, sixstrings,  "Eb E F F# G Ab A Bb B C C# D Eb E F F# G Ab A Bb" },  // spelled on the way in
        { 5, "Ab", 2, fourstrings, "G# A Bb B C C# D Eb E F F# G G# A Bb B C C# D Eb" },
        { 5, "G",  3, shortfifth,  "G G G G G G G# A A# B C C# D D# E F F# G G# A"    },  // begins at the fifth fret
        { 5, "F#", 0, shortfifth,  "Gb Gb Gb Gb Gb Gb G Ab A Bb B C Db D Eb E F Gb G Ab" },
        { 4, "D",  3, shortfifth,  "D D# E F F# G G# A A# B C C# D D# E F F# G G# A"  },  // the others do not
        { 5, "G",  3, fivestrings, "G G# A A# B C C# D D# E F F# G G# A A# B C C# D"  },
        { 2, "?",  0, sixstrings,  "? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ?"          },  // an unused string
    })) {
        // clang-format on
        Fretboard board;
        board.arrange(c.layout);
        board.doline(c.row, c.open, spelling(c.mode));
        EXPECT_EQ(rowtext(board, c.row), c.line) << "row " << c.row << ", " << c.open << ", mode " << c.mode;
    }
}

TEST(DoLine, oneRow_leavesTheOthers)
{
    Fretboard board;
    board.doline(2, "C", spelling(0));
    for (int i = 0; i < 120; ++i)
        EXPECT_EQ(cellof(board, i).text.empty(), i % 6 != 2) << "cell " << i;
}

TEST(DoLine, rowOffTheBoard_isIgnored)
{
    for (const int row : {-1, 6, 7, -6, 120}) {
        Fretboard board;
        board.doline(row, "C", spelling(0));
        EXPECT_EQ(board.cell, Fretboard().cell) << "row " << row;
    }
}

TEST(DoAllDoLine, anotherMode_respellsEveryRowAndKeepsColours)
{
    Fretboard board;
    board.tune(*instruments::findtuning(instruments::Family::guitar, "Standard -1"), spelling(3));
    cellof(board, 7).back = dark;
    board.doalldoline(spelling(0));
    EXPECT_EQ(rowtext(board, 0), "Eb E F Gb G Ab A Bb B C Db D Eb E F Gb G Ab A Bb");
    EXPECT_EQ(rowtext(board, 5), "Eb E F Gb G Ab A Bb B C Db D Eb E F Gb G Ab A Bb");
    EXPECT_EQ(cellof(board, 7).back, dark);
}

TEST(DoAllDoLine, editedOpenNote_isCarriedAlongItsRow)
{
    Fretboard board;
    board.tune(*instruments::findtuning(instruments::Family::guitar, "Standard 6 or 12 string"), spelling(3));
    cellof(board, 5).text = "D";
    board.doalldoline(spelling(3));
    EXPECT_EQ(rowtext(board, 5), "D D# E F F# G G# A A# B C C# D D# E F F# G G# A");
    EXPECT_EQ(rowtext(board, 4).substr(0, 4), "A A#");
}

TEST(Arrange, everyLayout_showsItsCellsAndLines)
{
    struct {
        StringLayout layout;
        std::array<const char*, 6> rows; ///< "x" shown, "." hidden
        std::array<bool, 6> lines;
    } const cases[] = {
        {StringLayout::sixstrings,
         {"xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx",
          "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx"},
         {true, true, true, true, true, true}},
        {StringLayout::fivestrings,
         {"....................", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx",
          "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx"},
         {true, true, true, true, true, false}},
        {StringLayout::fourstrings,
         {"....................", "....................", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx",
          "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx"},
         {false, true, true, true, true, false}}, // as high as their rows, which begin at the second place
        {StringLayout::shortfifth,
         {"....................", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxx",
          "xxxxxxxxxxxxxxxxxxxx", "x.....xxxxxxxxxxxxxx"}, // open, then from the sixth fret
         {false, true, true, true, true, true}},
    };
    for (const auto& before : cases) // each after each: nothing of the former layout stays
        for (const auto& c : cases) {
            Fretboard board;
            board.arrange(before.layout);
            board.arrange(c.layout);
            EXPECT_EQ(board.layout, c.layout);
            EXPECT_EQ(board.rowtop, instruments::layoutrow(c.layout).tops);
            EXPECT_EQ(board.linevisible, c.lines) << instruments::layoutrow(c.layout).name;
            for (int i = 0; i < 120; ++i)
                ASSERT_EQ(cellof(board, i).visible, c.rows.at(static_cast<std::size_t>(i % 6))[i / 6] == 'x')
                    << instruments::layoutrow(c.layout).name << " cell " << i;
        }
}

TEST(Arrange, textsAndColours_stay)
{
    Fretboard board;
    board.doline(0, "E", spelling(0));
    cellof(board, 6).back = mid;
    board.arrange(StringLayout::fourstrings);
    EXPECT_EQ(rowtext(board, 0).substr(0, 4), "E F ");
    EXPECT_EQ(cellof(board, 6).back, mid);
}

TEST(Mark, notesInTheSpan_areDarkAndOthersStay)
{
    Fretboard board;
    board.tune(*instruments::findtuning(instruments::Family::guitar, "Standard 6 or 12 string"), spelling(0));
    const std::array<std::string, 3> notes{"F", "C", " "};
    board.mark({6, 17}, notes); // frets 1 and 2: row 0 F Gb, row 1 C Db, row 2 Ab A, row 3 Eb E, row 4 Bb B, row 5 F Gb
    for (int i = 0; i < 120; ++i)
        EXPECT_EQ(cellof(board, i).back, i == 6 || i == 7 || i == 11 ? dark : rest) << "cell " << i;
}

TEST(Mark, blanksAndEmptyCells_markNothing)
{
    Fretboard board; // no cell has a text yet
    const std::array<std::string, 2> notes{"", " "};
    board.mark({0, 119}, notes);
    EXPECT_EQ(board.cell, Fretboard().cell);
}

TEST(Mark, noteInTheOtherSpelling_isNotTheCells)
{
    Fretboard board;
    board.doline(0, "Db", spelling(0));
    board.mark({0, 119}, std::array<std::string, 1>{"C#"});
    EXPECT_EQ(cellof(board, 0).back, rest);
}

TEST(FadeFurther, secondMarkOfARow_isMid)
{
    Fretboard board;
    for (const int i : {6, 18, 24, 13, 119}) // row 0 frets 1, 3 and 4; row 1 fret 2; row 5 fret 19
        cellof(board, i).back = dark;
    board.fadefurther({0, 29});
    for (int i = 0; i < 120; ++i) {
        const core::Colour expected = i == 18 || i == 24 ? mid : i == 6 || i == 13 || i == 119 ? dark : rest;
        EXPECT_EQ(cellof(board, i).back, expected) << "cell " << i;
    }
}

TEST(FadeFurther, spanOffTheColumns_keepsToItsRows)
{
    Fretboard board;
    for (const int i : {65, 71, 77, 101, 72, 78, 102}) // rows 5 and 0; 65 and 102 lie outside
        cellof(board, i).back = dark;
    board.fadefurther({71, 101});
    EXPECT_EQ(cellof(board, 65).back, dark);
    EXPECT_EQ(cellof(board, 71).back, dark);
    EXPECT_EQ(cellof(board, 77).back, mid);
    EXPECT_EQ(cellof(board, 101).back, mid);
    EXPECT_EQ(cellof(board, 72).back, dark);
    EXPECT_EQ(cellof(board, 78).back, mid);
    EXPECT_EQ(cellof(board, 102).back, dark);
}

TEST(ResetColours, markedBoard_isAtRest)
{
    Fretboard board;
    for (instruments::Cell& cell : board.cell)
        cell.back = dark;
    board.resetcolours();
    EXPECT_EQ(board.cell, Fretboard().cell);
}

} // namespace
