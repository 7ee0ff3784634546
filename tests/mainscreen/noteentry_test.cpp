// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/colours.h"
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using tests::dark;
using tests::mid;
using tests::Started;

/// Marks a cell as no procedure would, to see whether the board is coloured anew.
constexpr std::size_t markedcell = 119;
void markoddly(Started& s)
{
    s.session.fretboard.cell[markedcell].back = dark;
}
bool colouredanew(const Started& s)
{
    return s.session.fretboard.cell[markedcell].back != dark;
}

struct EntryRow {
    const char* entered;
    const char* notes; ///< readouts 0..5
    const char* root;
    const char* chord;
    const char* otherroot;
    const char* alternate;
};

class KeyClick : public testing::TestWithParam<EntryRow> {};

TEST_P(KeyClick, notes_readAsAChord)
{
    const EntryRow& row = GetParam();
    Started s;
    s.enter(row.entered);
    EXPECT_EQ(s.notes(), row.notes) << row.entered;
    EXPECT_EQ(s.session.note[6], row.root) << row.entered;
    EXPECT_EQ(s.session.cordtyp1, row.chord) << row.entered;
    EXPECT_EQ(s.session.note[7], row.otherroot) << row.entered;
    EXPECT_EQ(s.session.cordtyp2, row.alternate) << row.entered;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Chords, KeyClick, testing::Values(
    //       entered            readouts           root  chord              alternate
    EntryRow{"C E G",           "C E G",           "C",  "major",           " ",  " "},
    EntryRow{"G C E",           "C E G",           "C",  "major",           " ",  " "},
    EntryRow{"C Eb G Bb",       "C Eb G Bb",       "C",  "minor 7th",       "Eb", "major 6th"},
    EntryRow{"C Eb Gb A",       "C Eb Gb A",       "C",  "diminished",      "Eb", ", Gb, & A dim."},
    EntryRow{"C E Ab",          "C E Ab",          "C",  "+ ( +5, aug. )",  "E",  "+ and Ab+"},
    EntryRow{"C F G",           "C F G",           "C",  "sus (sus4 no 3)", "F",  "sus 2"},
    EntryRow{"D G",             "D G",             "G",  "5 (1st and 5th)", " ",  " "},
    EntryRow{"C",               "C",               " ",  " ",               " ",  " "},          // one note: no chord
    EntryRow{"C C C",           "C",               " ",  " ",               " ",  " "},
    EntryRow{"C Db D",          "C Db D",          " ",  "cant find",       " ",  " "},
    EntryRow{"C D E F G Bb",    "C D E F G Bb",    "C",  "major 11th",      " ",  " "},
    EntryRow{"C D E F G Bb A",  "C D E F G A",     "D",  "minor 11th",      " ",  " "}), // the seventh: Bb goes
    [](const auto& row) { return tests::rowname(row.param.entered); });
// clang-format on

TEST(KeyClick, everyKey_entersItsNoteOfEitherOctave)
{
    for (int k = 0; k <= 24; ++k) {
        Started s;
        s.session.key_Click(k);
        EXPECT_EQ(s.session.note[0], tests::written(k % 12, 0)) << "key " << k;
        for (std::size_t i = 1; i < 8; ++i)
            EXPECT_EQ(s.session.note[i], " ") << "key " << k << ", readout " << i;
    }
}

TEST(KeyClick, allThreeCs_enterOneNote)
{
    Started s;
    for (const int k : {0, 12, 24})
        s.session.key_Click(k);
    EXPECT_EQ(s.notes(), "C");
}

TEST(KeyClick, clickedKeysOnly_turnDark)
{
    Started s;
    s.session.key_Click(12);
    s.session.key_Click(16);
    for (int k = 0; k <= 24; ++k)
        EXPECT_EQ(s.session.keyboard.key.at(static_cast<std::size_t>(k)).back == dark, k == 12 || k == 16)
            << "key " << k;
}

TEST(KeyClick, oneNote_coloursTheBoard)
{
    Started s;
    markoddly(s);
    s.session.key_Click(4);
    EXPECT_TRUE(colouredanew(s));
    EXPECT_EQ(s.rowmarks(0), "#..................."); // E: open, the span's only one on the highest string
    EXPECT_EQ(s.rowmarks(3), "..#.................");
}

TEST(CellClick, fretted_entersItsNoteAndMarksThePiano)
{
    Started s;
    s.session.Text1_Click(6 + 1); // C on the second string
    s.session.Text1_Click(6 * 2 + 3);
    EXPECT_EQ(s.notes(), "C E");
    for (const std::size_t k : {0U, 4U})
        EXPECT_EQ(s.session.keyboard.key[k].back, dark) << "key " << k;
    for (const std::size_t k : {12U, 16U, 24U})
        EXPECT_EQ(s.session.keyboard.key[k].back, mid) << "key " << k;
    EXPECT_EQ(s.session.keyboard.key[2].back, core::white);
    EXPECT_TRUE(s.desktop.opened.empty());
}

TEST(CellClick, everyFrettedCell_entersWhatItShows)
{
    Started s;
    for (int i = 6; i < 120; ++i) {
        s.reset();
        s.session.Text1_Click(i);
        EXPECT_EQ(s.notes(), s.session.fretboard.cell.at(static_cast<std::size_t>(i)).text) << "cell " << i;
    }
}

TEST(CellClick, oneNote_leavesTheBoardsColours)
{
    Started s;
    markoddly(s);
    s.session.Text1_Click(7);
    EXPECT_FALSE(colouredanew(s));
    s.session.Text1_Click(7); // the same note again
    EXPECT_FALSE(colouredanew(s));
    s.session.Text1_Click(8);
    EXPECT_TRUE(colouredanew(s));
}

TEST(CellClick, afterAKeyClick_marksThePianoByTheNotesAlone)
{
    Started s;
    s.session.key_Click(13);
    s.session.Text1_Click(7);
    EXPECT_EQ(s.notes(), "C Db");
    EXPECT_EQ(s.session.keyboard.key[1].back, dark);
    EXPECT_EQ(s.session.keyboard.key[13].back, mid);
}

TEST(CellClick, openString_asksForARetuneAndEntersNothing)
{
    for (int row = 0; row < 6; ++row) {
        Started s;
        markoddly(s);
        s.session.Text1_Click(row);
        EXPECT_EQ(s.desktop.opened, std::vector{ui::Screen::frmretune}) << "row " << row;
        EXPECT_EQ(s.session.retune.row, row);
        EXPECT_EQ(s.notes(), "") << "row " << row;
        EXPECT_FALSE(colouredanew(s));
    }
}

TEST(CellClick, cellWithoutANote_doesNothing)
{
    for (const char* text : {"?", "", " ", "c d"}) {
        Started s;
        s.enter("C E G");
        markoddly(s);
        s.session.fretboard.cell[30].text = text;
        s.session.Text1_Click(30);
        EXPECT_EQ(s.notes(), "C E G") << '"' << text << '"';
        EXPECT_EQ(s.session.cordtyp1, "major") << '"' << text << '"';
        EXPECT_FALSE(colouredanew(s)) << '"' << text << '"';
        EXPECT_EQ(s.session.keyboard.key[12].back, core::white) << "the piano is not marked anew";
    }
}

TEST(Reset, afterAChord_blanksEveryReadout)
{
    Started s;
    s.session.Text1_Click(7);
    s.enter("Eb Gb A");
    s.session.key_Click(25);
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(s.session.note[i], " ") << "readout " << i;
    EXPECT_EQ(s.session.cordtyp1, " ");
    EXPECT_EQ(s.session.cordtyp2, " ");
    EXPECT_EQ(s.session.chordslots.notes, (std::array<int, 6>{99, 99, 99, 99, 99, 99}));
    for (std::size_t k = 0; k < 25; ++k)
        EXPECT_EQ(s.session.keyboard.key[k].back, core::isblack(static_cast<int>(k)) ? 0xE0E0E0U : 0xFFFFFFU) << k;
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(s.rowmarks(row), "....................") << "row " << row;
}

TEST(Reset, itsOwnButton_staysDark)
{
    Started s;
    s.reset();
    EXPECT_EQ(s.session.keyboard.key[25].back, dark);
    s.session.key_Click(0);
    s.session.Text1_Click(7); // marks the piano anew
    EXPECT_EQ(s.session.keyboard.key[25].back, dark);
}

TEST(Reset, whatIsNotTheChords_stays)
{
    Started s;
    s.pickmode(2);
    s.picktuning("Open E");
    s.pickcapo("5th fret  capo / bar");
    s.session.topr_Click();
    s.session.botl_Click();
    s.enter("C E G");
    s.reset();
    EXPECT_EQ(s.session.trans1[0].front(), "C#");
    EXPECT_EQ(s.session.trans1[1].front(), "B");
    EXPECT_EQ(s.mode(), 2);
    EXPECT_EQ(s.opennotes(), "E B E G# B E");
    EXPECT_EQ(s.session.PositionFret, 5);
    EXPECT_TRUE(s.session.capomarker.barvisible);
    EXPECT_EQ(s.session.chordindex, 0);
    EXPECT_EQ(s.session.chordslots.name, "major"); // slots 8 and 9 are not cleared, only no longer shown
}

struct EntRow {
    int given;
    int readback;
    const char* notes; ///< after C and E stood there
};

TEST(NoteEntry, itsNumber_isFoldedOrClears)
{
    // clang-format off
    for (const EntRow& row : std::to_array<EntRow>({
        {  7,  7, "C E G"  },
        { 12,  0, "C E"    },
        { 13,  1, "C Db E" },
        { 19,  7, "C E G"  },
        { 24,  0, "C E"    },
        { 25, 13, ""       },  // Reset
        { 26, 14, ""       },  // no key of the piano
        { 99, 87, ""       },  // no note
    })) {
        // clang-format on
        Started s;
        s.enter("C E");
        int ent = row.given;
        s.session.noteentry(ent);
        EXPECT_EQ(ent, row.readback) << row.given;
        EXPECT_EQ(s.notes(), row.notes) << row.given;
    }
}

TEST(NoteEntry, numberThatIsNoNote_clearsTheNamesToo)
{
    Started s;
    s.enter("C Eb Gb A");
    int ent = 99;
    s.session.noteentry(ent);
    EXPECT_EQ(s.session.chordslots.name, " ");
    EXPECT_EQ(s.session.chordslots.alternate, " ");
    EXPECT_EQ(s.session.cordtyp1, " ");
}

} // namespace
