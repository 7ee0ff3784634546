// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using tests::Started;

struct Automatic : Started {
    Automatic() { session.doauto(); }
};

struct ChordRow {
    const char* entered;
    const char* name; ///< root and chord, as shown afterwards
    int mode;
};

class AutoSpelling : public testing::TestWithParam<ChordRow> {};

TEST_P(AutoSpelling, chordOfNotes_choosesItsMode)
{
    const ChordRow& row = GetParam();
    Automatic s;
    s.enter(row.entered);
    EXPECT_EQ(s.session.note[6] + " " + s.session.cordtyp1, row.name);
    EXPECT_EQ(s.mode(), row.mode) << row.entered;
    EXPECT_EQ(s.notes(), tests::rewritten(s.notes(), row.mode)) << row.entered;
    EXPECT_TRUE(s.session.spelling.automatic);
    EXPECT_TRUE(s.session.marks.mnuauto);
    EXPECT_FALSE(s.session.marks.mnuflat);
    EXPECT_EQ(s.session.marks.bold, mainscreen::BoldButton::cmdauto);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Chords, AutoSpelling, testing::Values(
    ChordRow{"C E G",      "C major",       1},
    ChordRow{"C# F G#",    "Db major",      0},  // black keys: flats for a major chord
    ChordRow{"D F# A",     "D major",       2},
    ChordRow{"Eb G Bb",    "Eb major",      0},
    ChordRow{"E G# B",     "E major",       3},
    ChordRow{"F A C",      "F major",       1},
    ChordRow{"F# A# C#",   "Gb major",      0},
    ChordRow{"G B D",      "G major",       2},
    ChordRow{"G# C D#",    "Ab major",      0},
    ChordRow{"A C# E",     "A major",       3},
    ChordRow{"A# D F",     "Bb major",      0},
    ChordRow{"B D# F#",    "B major",       3},
    ChordRow{"C Eb G",     "C minor",       0},
    ChordRow{"Db E Ab",    "C# minor",      3},  // and sharps for a minor chord
    ChordRow{"D F A",      "D minor",       1},
    ChordRow{"D# F# A#",   "Eb minor",      0},  // but for these two
    ChordRow{"E G B",      "E minor",       2},
    ChordRow{"F Ab C",     "F minor",       0},
    ChordRow{"Gb A Db",    "F# minor",      3},
    ChordRow{"G Bb D",     "G minor",       0},
    ChordRow{"Ab B Eb",    "G# minor",      3},
    ChordRow{"A C E",      "A minor",       1},
    ChordRow{"Bb Db F",    "Bb minor",      0},
    ChordRow{"B D F#",     "B minor",       2},
    ChordRow{"Db E Ab B",  "C# minor 7th",  3}),
    [](const auto& row) { return tests::rowname(row.param.name); });
// clang-format on

TEST(AutoSpelling, chosen_startsFromTheFirstMixWhateverIsShown)
{
    Started s;
    s.pickmode(3);
    s.enter("C# E G#"); // sharps would suit it
    s.session.doauto();
    EXPECT_EQ(s.mode(), 1);
    EXPECT_EQ(s.notes(), "C# E Ab");
}

TEST(AutoSpelling, off_doesNotAct)
{
    Started s;
    s.enter("C# E G#");
    EXPECT_EQ(s.mode(), 0);
}

TEST(AutoSpelling, oneNoteOrReset_choosesNothing)
{
    Automatic s;
    s.enter("E G# B");
    ASSERT_EQ(s.mode(), 3);
    s.reset();
    EXPECT_EQ(s.mode(), 3);
    s.enter("Bb");
    EXPECT_EQ(s.mode(), 3);
    EXPECT_EQ(s.notes(), "A#");
}

struct ButtonRow {
    const char* root;
    int button;
    int mode;
};

TEST(AutoSpelling, chordOfAButton_choosesItsMode)
{
    // clang-format off
    for (const ButtonRow& row : std::to_array<ButtonRow>({
        { "C#", 0, 0 }, { "C#", 1, 3 }, { "A", 0, 3 }, { "A", 1, 1 }, { "E", 4, 2 }, { "E", 12, 3 }, { "G", 27, 0 },
        { "F",  7, 1 }, { "Eb", 1, 0 }, { "D", 3, 2 }, { "B", 15, 2 },
    })) {
        // clang-format on
        Automatic s;
        s.enter(row.root);
        s.session.Crd_Click(row.button);
        EXPECT_EQ(s.mode(), row.mode) << row.root << ", button " << row.button;
        EXPECT_EQ(s.session.note[6], tests::written(tests::pitchof(row.root), row.mode));
        EXPECT_EQ(s.session.note[0], s.session.note[6]) << row.root << ", button " << row.button;
    }
}

TEST(AutoSpelling, changeOfTheChordAlone_choosesByTheStandingRoot)
{
    Automatic s;
    s.enter("E");
    s.session.Crd_Click(1);
    EXPECT_EQ(s.mode(), 2);
    s.session.Crd_Click(0); // the root's readout does not change
    EXPECT_EQ(s.mode(), 3);
    EXPECT_EQ(s.notes(), "E G# B");
}

// What follows fails when a readout is written earlier or later than another.

TEST(AutoOrder, chordThatIsNone_isNamedWhileTheFormerRootStands)
{
    Automatic s;
    s.enter("C# E G#"); // C# minor
    ASSERT_EQ(s.mode(), 3);
    s.enter("D"); // no chord: "cant find" meets the root C#, which stands until the readouts are written
    EXPECT_EQ(s.session.cordtyp1, "cant find");
    EXPECT_EQ(s.session.note[6], " ");
    EXPECT_EQ(s.mode(), 0);
    EXPECT_EQ(s.notes(), "Db D E Ab");
}

TEST(AutoOrder, alternateFromNotes_isComposedBeforeTheRootIsShown)
{
    Automatic s;
    s.enter("C Eb Gb"); // a minor 6th on Eb: flats
    ASSERT_EQ(s.session.cordtyp1, "minor 6th no 5");
    ASSERT_EQ(s.mode(), 0);
    s.enter("A"); // diminished on C: the first mix, once the root is shown
    EXPECT_EQ(s.mode(), 1);
    EXPECT_EQ(s.session.chordslots.alternate, ", Gb, & A dim.");
    EXPECT_EQ(s.session.cordtyp2, ", F#, & A dim.");
}

TEST(AutoOrder, alternateFromAButton_isComposedAfterTheRootIsShown)
{
    Automatic s;
    s.enter("A C E"); // A minor, the first mix; its first readout is C
    ASSERT_EQ(s.mode(), 1);
    s.session.Crd_Click(7); // first C as root of what is still a minor chord: flats; then it is diminished
    EXPECT_EQ(s.session.chordslots.alternate, ", Gb, & A dim.");
    EXPECT_EQ(s.session.cordtyp2, ", F#, & A dim.");
    EXPECT_EQ(s.mode(), 1);
}

TEST(AutoOrder, alternateFromAButton_isComposedBeforeTheChordIsNamed)
{
    Automatic s;
    s.enter("E");
    s.session.Crd_Click(1);
    ASSERT_EQ(s.mode(), 2); // E minor
    s.session.Crd_Click(7); // E diminished: sharps, but only once it is named
    EXPECT_EQ(s.session.chordslots.alternate, ", Bb, & C# dim.");
    EXPECT_EQ(s.session.cordtyp2, ", A#, & C# dim.");
    EXPECT_EQ(s.mode(), 3);
}

TEST(AutoOrder, marksOnTheBoard_areOnTheRightNotes)
{
    Automatic s;
    s.enter("E G# B"); // the third note turns the first mix into sharps
    EXPECT_EQ(s.rowtext(0).substr(0, 13), "E F F# G G# A");
    EXPECT_EQ(s.rowmarks(0), "#...+...............");
}

TEST(AutoOrder, transposition_isSpelledByTheMovedChord)
{
    Automatic s;
    s.enter("C E G");
    s.session.botr_Click();
    EXPECT_EQ(s.session.note[6] + " " + s.session.cordtyp1, "Db major");
    EXPECT_EQ(s.mode(), 0);
    EXPECT_EQ(s.notes(), "Db F Ab");
    EXPECT_EQ(s.session.trans1[1].front(), "Db");
    s.session.botr_Click();
    EXPECT_EQ(s.notes(), "D F# A");
    EXPECT_EQ(s.mode(), 2);
    EXPECT_EQ(s.session.keyboard.key[6].caption, "F#");
    EXPECT_EQ(s.session.keyboard.key[6].back, 0x808080U);
}

} // namespace
