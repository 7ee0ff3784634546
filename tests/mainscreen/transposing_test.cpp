// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using mainscreen::Reread;
using tests::Started;

std::string line(const core::ScaleRow& row)
{
    std::string names;
    for (const std::string& name : row)
        names += (names.empty() ? "" : " ") + name;
    return names;
}

const core::ScaleRow& upper(const Started& s)
{
    return s.session.trans1[0];
}
const core::ScaleRow& lower(const Started& s)
{
    return s.session.trans1[1];
}

std::string chord(const Started& s)
{
    return s.session.note[6] + " " + s.session.cordtyp1;
}

TEST(UpperRow, left_beginsASemitoneLower)
{
    Started s;
    s.session.topl_Click();
    EXPECT_EQ(line(upper(s)), "B C Db D Eb E F Gb G Ab A Bb B C Db");
    EXPECT_EQ(lower(s).front(), "C");
}

TEST(UpperRow, right_beginsASemitoneHigher)
{
    Started s;
    s.session.topr_Click();
    EXPECT_EQ(line(upper(s)), "Db D Eb E F Gb G Ab A Bb B C Db D Eb");
    EXPECT_EQ(lower(s).front(), "C");
}

TEST(UpperRow, moved_leavesTheChord)
{
    Started s;
    s.enter("C Eb G");
    const auto cells = s.session.fretboard.cell;
    s.session.topl_Click();
    s.session.topr_Click();
    s.session.topr_Click();
    EXPECT_EQ(s.notes(), "C Eb G");
    EXPECT_EQ(chord(s), "C minor");
    EXPECT_EQ(s.session.fretboard.cell, cells);
}

TEST(BothRows, twelveStepsEitherWay_wrap)
{
    using Click = void (mainscreen::Session::*)();
    struct {
        Click click;
        std::size_t row;
        int direction;
    } const buttons[] = {
        {&mainscreen::Session::topl_Click, 0, -1},
        {&mainscreen::Session::topr_Click, 0, +1},
        {&mainscreen::Session::botl_Click, 1, -1},
        {&mainscreen::Session::botr_Click, 1, +1},
    };
    for (const auto& button : buttons)
        for (int mode = 0; mode < tests::modecount; ++mode) {
            Started s;
            s.pickmode(mode);
            for (int step = 1; step <= 12; ++step) {
                (s.session.*button.click)();
                const int first = (12 + button.direction * step) % 12;
                for (int k = 0; k < 15; ++k)
                    EXPECT_EQ(s.session.trans1.at(button.row).at(static_cast<std::size_t>(k)),
                              tests::written((first + k) % 12, mode))
                        << "step " << step << ", member " << k << ", mode " << mode;
                EXPECT_EQ(s.session.trans1.at(1 - button.row).front(), "C");
            }
        }
}

TEST(LowerRow, fromB_beginsOnCAndMovesTheChordUp)
{
    Started s;
    s.session.botl_Click();
    ASSERT_EQ(lower(s).front(), "B");
    s.enter("B D F#");
    s.session.botr_Click();
    EXPECT_EQ(line(lower(s)), "C Db D Eb E F Gb G Ab A Bb B C Db D");
    EXPECT_EQ(s.notes(), "C Eb G");
    EXPECT_EQ(chord(s), "C minor");
}

struct MoveRow {
    const char* entered;
    int steps; ///< to the right; below 0 to the left
    const char* notes;
    const char* chord;
    const char* alternate; ///< its root and text
};

class LowerRowMoves : public testing::TestWithParam<MoveRow> {};

TEST_P(LowerRowMoves, chord_followsAndIsReadAgain)
{
    const MoveRow& row = GetParam();
    Started s;
    s.enter(row.entered);
    for (int step = 0; step < std::abs(row.steps); ++step)
        row.steps > 0 ? s.session.botr_Click() : s.session.botl_Click();
    EXPECT_EQ(s.notes(), row.notes) << row.entered << " by " << row.steps;
    EXPECT_EQ(chord(s), row.chord) << row.entered << " by " << row.steps;
    EXPECT_EQ(s.session.note[7] + " " + s.session.cordtyp2, row.alternate) << row.entered << " by " << row.steps;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Moves, LowerRowMoves, testing::Values(
    //      entered       by  notes           chord              alternate
    MoveRow{"C E G",       1, "Db F Ab",      "Db major",        "   "},
    MoveRow{"C E G",      -1, "Eb Gb B",      "B major",         "   "},                   // below C: sorted anew
    MoveRow{"C E G",      12, "C E G",        "C major",         "   "},
    MoveRow{"C E G",     -12, "C E G",        "C major",         "   "},
    MoveRow{"C Eb G Bb",   2, "C D F A",      "D minor 7th",     "F major 6th"},
    MoveRow{"C Eb Gb A",   1, "Db E G Bb",    "Db diminished",   "E , G, & Bb dim."},
    MoveRow{"C Eb Gb A",   3, "C Eb Gb A",    "C diminished",    "Eb , Gb, & A dim."},    // on its lowest note again
    MoveRow{"C E Ab",      4, "C E Ab",       "C + ( +5, aug. )","E + and Ab+"},
    MoveRow{"C Db D",      1, "Db D Eb",      "  cant find",     "   "},
    MoveRow{"B",           1, "C",            "   ",             "   "},                   // one note moves as well
    MoveRow{"C",          -1, "B",            "   ",             "   "}),
    [](const auto& row) {
        return tests::rowname(row.param.entered) + "_by_" + tests::rowname(std::to_string(row.param.steps));
    });
// clang-format on

TEST(LowerRow, withoutNotes_leavesBlankReadoutsBlank)
{
    Started s;
    s.session.botr_Click();
    for (const std::string& note : s.session.note)
        EXPECT_TRUE(core::isblank(note)) << note;
    EXPECT_EQ(lower(s).front(), "Db");
    EXPECT_TRUE(core::isblank(s.session.cordtyp1));
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST(LowerRow, chordOfAButton_isReadFromItsNotes)
{
    Started s;
    s.enter("C");
    s.session.Crd_Click(2); // a major 6th, whose notes read as another chord
    ASSERT_EQ(chord(s), "C major 6th");
    s.session.botr_Click();
    EXPECT_EQ(chord(s), "Bb minor 7th");
    EXPECT_EQ(s.session.note[7] + " " + s.session.cordtyp2, "Db major 6th");
    EXPECT_EQ(s.session.chordindex, 4);
}

TEST(LowerRow, moved_marksPianoAndBoardAnew)
{
    Started s;
    s.session.Text1_Click(7);     // C
    s.session.Text1_Click(6 * 3); // G
    s.session.botr_Click();
    EXPECT_EQ(s.session.keyboard.key[1].back, 0x808080U);
    EXPECT_EQ(s.session.keyboard.key[20].back, 0xC0C0C0U);
    EXPECT_EQ(s.session.keyboard.key[0].back, core::white);
    EXPECT_EQ(s.rowmarks(0), "....#..............."); // Ab
    EXPECT_EQ(s.rowmarks(1), "..#.................");
}

TEST(Rows, otherMode_respellsThem)
{
    Started s;
    s.session.topr_Click();
    s.session.botr_Click();
    EXPECT_EQ(upper(s).front(), "Db");
    s.pickmode(3);
    EXPECT_EQ(upper(s).front(), "C#");
    EXPECT_EQ(lower(s).front(), "C#");
}

TEST(Transpose, fromType_buildsTheTypeOnTheMovedRoot)
{
    Started s;
    s.enter("C");
    s.session.Crd_Click(2);
    s.session.transpose(3, Reread::fromtype);
    EXPECT_EQ(chord(s), "Eb major 6th");
    EXPECT_EQ(s.notes(), "Eb G Bb C");
    EXPECT_EQ(s.session.note[7] + " " + s.session.cordtyp2, "C minor 7th");
    EXPECT_EQ(s.session.chordindex, 2);
    EXPECT_EQ(lower(s).front(), "C"); // the rows are the buttons' business
}

TEST(Transpose, fromTypeWithoutNotes_asksForOne)
{
    Started s;
    s.session.transpose(1, Reread::fromtype);
    ASSERT_EQ(s.desktop.told.size(), 1U);
    EXPECT_EQ(s.desktop.told[0].icon, ui::Icon::information);
}

TEST(Transpose, everyDistanceBothWays_endsOnTheNote)
{
    for (int semitones = -24; semitones <= 24; ++semitones) {
        Started s;
        s.enter("F");
        s.session.transpose(semitones, Reread::fromnotes);
        EXPECT_EQ(s.notes(), tests::written((5 + semitones + 24) % 12, 0)) << semitones;
    }
}

} // namespace
