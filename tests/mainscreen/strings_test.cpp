// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using tests::Started;

constexpr auto unmarked = "....................";

TEST(GuitarColor, standardTuning_isAsFretted)
{
    Started s;
    EXPECT_EQ(s.rowtext(0).substr(0, 14), "E F Gb G Ab A ");
    s.pickmode(3);
    EXPECT_EQ(s.cell(0, 19).text, "B");
    EXPECT_EQ(s.cell(0, 2).text, "F#");
}

struct CapoRow {
    const char* choice;
    const char* row0; ///< marks of the highest string, tuned to E
    const char* row5; ///< of the lowest
    int fret;
    int barleft; ///< 0: no bar
};

class CapoChoice : public testing::TestWithParam<CapoRow> {};

TEST_P(CapoChoice, cMajor_isMarkedInItsSpan)
{
    const CapoRow& row = GetParam();
    Started s;
    s.enter("C E G"); // on an E string: frets 0, 3, 8, 12, 15
    s.pickcapo(row.choice);
    EXPECT_EQ(s.rowmarks(0), row.row0) << row.choice;
    EXPECT_EQ(s.rowmarks(5), row.row5) << row.choice;
    EXPECT_EQ(s.session.PositionFret, row.fret) << row.choice;
    EXPECT_EQ(s.session.capomarker.barvisible, row.barleft > 0) << row.choice;
    EXPECT_EQ(s.session.capomarker.followervisible, row.barleft > 0) << row.choice;
    if (row.barleft > 0) {
        EXPECT_EQ(s.session.capomarker.barleft, row.barleft) << row.choice;
        EXPECT_EQ(s.session.capomarker.followerleft, row.barleft + 120) << row.choice;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Choices, CapoChoice, testing::Values(
    CapoRow{"0 normal - open",       "#..+................", "#..+................",  0,    0},
    CapoRow{"1st fret  capo / bar",  "...#................", "...#................",  1, 1680},
    CapoRow{"2nd fret  capo / bar",  "...#................", "...#................",  2, 2160},
    CapoRow{"3rd fret  capo / bar",  "...#................", "...#................",  3, 2640},
    CapoRow{"4th fret  capo / bar",  "........#...........", "........#...........",  4, 3120},
    CapoRow{"5th fret  capo / bar",  "........#...........", "........#...........",  5, 3600},
    CapoRow{"6th fret  capo / bar",  "........#...........", "........#...........",  6, 4050},
    CapoRow{"7th fret  capo / bar",  "........#...........", "........#...........",  7, 4470},
    CapoRow{"8th fret  capo / bar",  "........#...+.......", "........#...+.......",  8, 4890},
    CapoRow{"9th fret  capo / bar",  "............#.......", "............#.......",  9, 5310},
    CapoRow{"10th fret  capo / bar", "............#.......", "............#.......", 10, 5730},
    CapoRow{"11th fret  capo / bar", "............#..+....", "............#..+....", 11, 6150},
    CapoRow{"12th fret  capo / bar", "............#..+....", "............#..+....", 12, 6630},
    CapoRow{"13th fret  capo / bar", "...............#....", "............#..+....", 13, 7050},  // from row 5 of the 12th
    CapoRow{"14th fret  capo / bar", "...............#....", "...............#....", 14, 7440},
    CapoRow{"15th fret  capo / bar", "...............#....", "...............#....", 15, 7800},
    CapoRow{"show all notes",        "#..#....#...#..#....", "#..#....#...#..#....",  0,    0}),
    [](const auto& row) { return tests::rowname(row.param.choice); });
// clang-format on

TEST(CapoChoice, twelfth_beginsAtRow5OfTheEleventhFret)
{
    Started s;
    s.enter("Eb A"); // Eb: the eleventh fret of an E string
    s.pickcapo("12th fret  capo / bar");
    EXPECT_EQ(s.rowmarks(5), "...........#........");
    EXPECT_EQ(s.rowmarks(0), unmarked);
}

TEST(CapoChoice, fourteenth_endsAtRow0OfTheNineteenthFret)
{
    Started s;
    s.enter("B C"); // B: the nineteenth fret of an E string
    s.pickcapo("14th fret  capo / bar");
    EXPECT_EQ(s.rowmarks(0), "...................#");
    EXPECT_EQ(s.rowmarks(5), unmarked);
}

TEST(ShowAll, longChord_marksItsFirstFourNotesOnly)
{
    Started s;
    s.enter("C");
    s.session.Crd_Click(8); // C D E F G Bb
    s.pickcapo("show all notes");
    EXPECT_EQ(s.rowmarks(0), "##......#.#.##......"); // E F C D
    s.pickcapo("0 normal - open");
    EXPECT_EQ(s.rowmarks(0), "#+.+................"); // G too
}

TEST(ShowAll, afterACapo_hidesTheBarAndKeepsItsFret)
{
    Started s;
    s.pickcapo("7th fret  capo / bar");
    s.pickcapo("show all notes");
    EXPECT_FALSE(s.session.capomarker.barvisible);
    EXPECT_FALSE(s.session.capomarker.followervisible);
    EXPECT_EQ(s.session.PositionFret, 7);
}

TEST(GuitarColor, textTooShort_leavesTheBoardUncoloured)
{
    for (const char* text : {"", "1st", "sho", "0"}) {
        Started s;
        s.enter("C E G");
        s.session.cbopreset.settext(text);
        s.session.guitarcolor();
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(s.rowmarks(row), unmarked) << '"' << text << '"';
    }
}

TEST(GuitarColor, textThatIsNoFret_examinesTheOpenPosition)
{
    for (const char* text : {"pull down menu --- >", "anything", "16th fret  capo / bar"}) {
        Started s;
        s.enter("C E G");
        s.pickcapo("9th fret  capo / bar");
        s.session.cbopreset.settext(text);
        s.session.guitarcolor();
        EXPECT_EQ(s.rowmarks(0), "#..+................") << text;
        EXPECT_EQ(s.session.PositionFret, 0) << text;
        EXPECT_FALSE(s.session.capomarker.barvisible) << text;
    }
}

TEST(GuitarColor, hiddenCells_areColouredLikeTheOthers)
{
    Started s;
    s.pickfamily("        BANJO");
    s.enter("G B D");
    EXPECT_EQ(s.rowmarks(5), "#++++..............."); // frets 1 to 4 of the short string are hidden
    EXPECT_FALSE(s.cell(5, 1).visible);
}

TEST(Banjo, shortString_beginsAtTheFifthFret)
{
    Started s;
    s.pickmode(3);
    s.pickfamily("        BANJO");
    EXPECT_EQ(s.session.cbotuning.text, "5 string normal");
    EXPECT_EQ(s.rowtext(5), "G G G G G G G# A A# B C C# D D# E F F# G G# A");
    for (int fret = 0; fret < 20; ++fret)
        EXPECT_EQ(s.cell(5, fret).visible, fret == 0 || fret >= 6) << "fret " << fret;
}

TEST(FourStrings, hiddenRows_keepTheirTexts)
{
    Started s;
    s.pickfamily("         BASS"); // its first tuning writes a guitar's notes into all six rows
    EXPECT_EQ(s.cell(0, 0).text, "E");
    EXPECT_EQ(s.cell(1, 0).text, "B");
    EXPECT_FALSE(s.cell(0, 0).visible);
    EXPECT_FALSE(s.cell(1, 19).visible);
    EXPECT_EQ(s.opennotes(), "E A D G");
}

TEST(Tenor, ofTheGuitarFamily_hasFourStrings)
{
    Started s;
    s.picktuning("Tenor Guitar 1 GDAE");
    EXPECT_EQ(s.opennotes(), "G D A E");
    EXPECT_EQ(s.session.fretboard.layout, instruments::StringLayout::fourstrings);
    s.picktuning("Vihuelita");
    EXPECT_EQ(s.opennotes(), "C F Bb D G");
    EXPECT_EQ(s.session.fretboard.layout, instruments::StringLayout::fivestrings);
}

void retune(Started& s, int row, int button)
{
    s.session.Text1_Click(row);
    s.session.cmdret_Click(button);
    s.session.frmretune_Unload();
}

TEST(Retune, everyButtonOnEveryRow_tunesIt)
{
    for (int mode = 0; mode < tests::modecount; ++mode)
        for (int row = 0; row < 6; ++row)
            for (int button = 1; button <= 12; ++button) {
                Started s;
                s.pickmode(mode);
                retune(s, row, button);
                for (int fret = 0; fret < 20; ++fret)
                    ASSERT_EQ(s.cell(row, fret).text, tests::written((button - 1 + fret) % 12, mode))
                        << "row " << row << ", button " << button << ", fret " << fret;
                EXPECT_EQ(s.desktop.closed, std::vector{ui::Screen::frmretune});
                EXPECT_EQ(s.session.retune.note, 0);
                EXPECT_EQ(s.session.cbotuning.text, "Standard 6 or 12 string");
            }
}

TEST(Retune, noRetune_changesNothingAndCloses)
{
    Started s;
    const auto cells = s.session.fretboard.cell;
    retune(s, 2, 0);
    EXPECT_EQ(s.session.fretboard.cell, cells);
    EXPECT_EQ(s.desktop.closed, std::vector{ui::Screen::frmretune});
}

TEST(Retune, otherRows_stay)
{
    Started s;
    retune(s, 1, 1);
    EXPECT_EQ(s.opennotes(), "E A D G C E");
}

TEST(Retune, chordOnTheScreen_isMarkedAnew)
{
    Started s;
    s.enter("C E G");
    retune(s, 0, 1);
    EXPECT_EQ(s.rowmarks(0), "#...+...............");
}

TEST(Retune, withoutAChoice_doesNothing)
{
    Started s;
    retune(s, 3, 8);
    const auto cells = s.session.fretboard.cell;
    s.session.retune.row = 4;
    s.session.stringretune(); // the dialog was closed: no note is chosen any more
    EXPECT_EQ(s.session.fretboard.cell, cells);
}

TEST(Retune, numbersOutOfRange_doNothing)
{
    Started s;
    const auto cells = s.session.fretboard.cell;
    for (const mainscreen::RetuneRequest request : {mainscreen::RetuneRequest{0, 13}, mainscreen::RetuneRequest{0, -1},
                                                    mainscreen::RetuneRequest{6, 1}, mainscreen::RetuneRequest{0, 0}}) {
        s.session.retune = request;
        s.session.stringretune();
        EXPECT_EQ(s.session.fretboard.cell, cells) << request.row << ", " << request.note;
    }
}

TEST(Retune, banjosShortString_isFilledByItsRule)
{
    Started s;
    s.pickmode(3);
    s.pickfamily("        BANJO");
    retune(s, 5, 9);
    EXPECT_EQ(s.rowtext(5), "G# G# G# G# G# G# A A# B C C# D D# E F F# G G# A A#");
}

TEST(Retune, followedByAnotherMode_isRespelled)
{
    Started s;
    retune(s, 0, 2);
    EXPECT_EQ(s.cell(0, 0).text, "Db");
    s.pickmode(1);
    EXPECT_EQ(s.cell(0, 0).text, "C#");
}

} // namespace
