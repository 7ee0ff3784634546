// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/chordmatch.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using tests::spelling;

struct Chord {
    core::ChordSlots slots;
    int chordindex = 0;
    core::NoteSpelling names;

    explicit Chord(int mode = 0) : names(spelling(mode)) {}
    void add(int n) { core::chordmatch(n, slots, chordindex, names); }
    void add(const char* line)
    {
        for (const int n : tests::pitches(line))
            add(n);
    }
    std::string notes() const
    {
        std::string line;
        for (const int n : slots.notes)
            if (n != core::nonote)
                line += (line.empty() ? "" : " ") + tests::written(n, 0);
        return line;
    }
    std::string reading() const { return name(slots.root) + "|" + slots.name; }
    std::string alternate() const { return name(slots.alternateroot) + "|" + slots.alternate; }
    std::string name(int n) const { return names.nameof(n); }
};

struct ReadingRow {
    const char* entered;
    int mode;
    const char* reading;   ///< root, bar, name
    const char* alternate; ///< the same; " | " where there is none
};

class Entered : public testing::TestWithParam<ReadingRow> {};

TEST_P(Entered, notes_readWithTheirAlternate)
{
    Chord chord(GetParam().mode);
    chord.add(GetParam().entered);
    EXPECT_EQ(chord.reading(), GetParam().reading) << GetParam().entered;
    EXPECT_EQ(chord.alternate(), GetParam().alternate) << GetParam().entered;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Readings, Entered, testing::Values(
    //         entered            mode  reading                  alternate
    ReadingRow{"C E G",             0, "C|major",               " | "},
    ReadingRow{"G E C",             0, "C|major",               " | "},                 // any order
    ReadingRow{"E C G",             0, "C|major",               " | "},
    ReadingRow{"A C E",             0, "A|minor",               "C|major 6th no 5"},
    ReadingRow{"C Eb G Bb",         0, "C|minor 7th",           "Eb|major 6th"},
    ReadingRow{"C Eb G Bb",         3, "C|minor 7th",           "D#|major 6th"},
    ReadingRow{"C E G A",           0, "A|minor 7th",           "C|major 6th"},         // shared notes: the earlier type
    ReadingRow{"C E G B",           0, "C|major 7th",           "A|minor 9th"},         // A is no note of it
    ReadingRow{"C Eb G A",          0, "C|minor 6th",           "F|major 9th"},         // nor is F
    ReadingRow{"C D F Ab",          0, "F|minor 6th",           "Bb|major 9th"},        // a rootless ninth reads thus
    ReadingRow{"C Db F Ab",         0, "Db|major 7th",          "Bb|minor 9th"},
    ReadingRow{"C Eb Gb A",         0, "C|diminished",          "Eb|, Gb, & A dim."},
    ReadingRow{"C Eb Gb A",         1, "C|diminished",          "Eb|, F#, & A dim."},
    ReadingRow{"C Eb Gb A",         2, "C|diminished",          "Eb|, F#, & A dim."},
    ReadingRow{"C Eb Gb A",         3, "C|diminished",          "D#|, F#, & A dim."},
    ReadingRow{"A Gb Eb C",         0, "C|diminished",          "Eb|, Gb, & A dim."},   // the lowest is the root
    ReadingRow{"B D F Ab",          0, "D|diminished",          "F|, Ab, & B dim."},
    ReadingRow{"B D F Ab",          2, "D|diminished",          "F|, G#, & B dim."},
    ReadingRow{"Db E G Bb",         3, "C#|diminished",         "E|, G, & A# dim."},
    ReadingRow{"C E G#",            0, "C|+ ( +5, aug. )",      "E|+ and Ab+"},
    ReadingRow{"C E G#",            1, "C|+ ( +5, aug. )",      "E|+ and Ab+"},
    ReadingRow{"C E G#",            2, "C|+ ( +5, aug. )",      "E|+ and G#+"},
    ReadingRow{"C E G#",            3, "C|+ ( +5, aug. )",      "E|+ and G#+"},
    ReadingRow{"B G Eb",            3, "D#|+ ( +5, aug. )",     "G|+ and B+"},
    ReadingRow{"C E Gb Bb",         0, "C|7-5",                 "Gb|7-5"},
    ReadingRow{"C F G",             0, "C|sus (sus4 no 3)",     "F|sus 2"},
    ReadingRow{"F G C",             0, "C|sus (sus4 no 3)",     "F|sus 2"},
    ReadingRow{"G C F",             0, "C|sus (sus4 no 3)",     "F|sus 2"},
    ReadingRow{"B E A",             0, "E|sus (sus4 no 3)",     "A|sus 2"},
    ReadingRow{"C G",               0, "C|5 (1st and 5th)",     " | "},                 // gap 7
    ReadingRow{"D G",               0, "G|5 (1st and 5th)",     " | "},                 // gap 5: the root is above
    ReadingRow{"C D E F G Bb",      0, "C|major 11th",          " | "},
    ReadingRow{"B D F# A C#",       3, "B|minor 9th",           " | "},                 // the root is in slot 4
    ReadingRow{"C D E G A",         0, "C|6th add 9",           " | "},
    ReadingRow{"C E F",             0, "C|sus 4   (3 no 5)",    " | "},                 // three blanks
    ReadingRow{"C Eb A",            0, "C|minor 6th no 5",      " | "},
    ReadingRow{"C Db D",            0, " |cant find",           " | "},
    ReadingRow{"C Db",              0, " |cant find",           " | "},
    ReadingRow{"C Gb",              0, " |cant find",           " | "},
    ReadingRow{"C Db D Eb E F",     0, " |cant find",           " | "}),
    [](const auto& row) {
        return tests::rowname(row.param.entered) + "_mode" + std::to_string(row.param.mode);
    });
// clang-format on

TEST(ChordMatch, noteThatIsThere_changesNothing)
{
    Chord chord;
    chord.add("C E G");
    const core::ChordSlots before = chord.slots;
    chord.add(7);
    EXPECT_EQ(chord.slots.notes, before.notes);
    EXPECT_EQ(chord.reading(), "C|major");
}

TEST(ChordMatch, twelve_isC)
{
    Chord chord;
    chord.add("E G");
    int n = 12;
    core::chordmatch(n, chord.slots, chord.chordindex, chord.names);
    EXPECT_EQ(n, 0);
    EXPECT_EQ(chord.notes(), "C E G");
    chord.add(12);
    EXPECT_EQ(chord.notes(), "C E G");
}

TEST(ChordMatch, thirteen_readsTheNotesAgainWithoutOneMore)
{
    Chord chord;
    chord.slots.notes = {7, 99, 4, 99, 0, 99}; // as they stand: neither sorted nor read
    int n = core::rereadnotes;
    core::chordmatch(n, chord.slots, chord.chordindex, chord.names);
    EXPECT_EQ(n, 13);
    EXPECT_EQ(chord.slots.notes, (std::array<int, 6>{0, 4, 7, 99, 99, 99}));
    EXPECT_EQ(chord.reading(), "C|major");
}

TEST(ChordMatch, thirteenInAnotherMode_respellsTheAlternate)
{
    Chord chord;
    chord.add("C Eb Gb A");
    chord.names = spelling(3);
    chord.add(core::rereadnotes);
    EXPECT_EQ(chord.alternate(), "D#|, F#, & A dim.");
}

TEST(ChordMatch, fewerThanTwoNotes_leaveTheReading)
{
    Chord chord;
    chord.add("C E G#");
    chord.slots.notes = {4, 99, 99, 99, 99, 99};
    chord.add(core::rereadnotes);
    EXPECT_EQ(chord.reading(), "C|+ ( +5, aug. )");
    EXPECT_EQ(chord.alternate(), "E|+ and Ab+");
    EXPECT_EQ(chord.chordindex, 9);
    chord.slots.notes.fill(core::nonote);
    chord.add(2);
    EXPECT_EQ(chord.reading(), "C|+ ( +5, aug. )");
    EXPECT_EQ(chord.notes(), "D");
}

TEST(ChordMatch, notesOfNoType_keepTheChordIndex)
{
    Chord chord;
    chord.add("C E G Bb");
    EXPECT_EQ(chord.chordindex, 3);
    chord.add("B");
    EXPECT_EQ(chord.reading(), " |cant find");
    EXPECT_EQ(chord.alternate(), " | ");
    EXPECT_EQ(chord.chordindex, 3);
}

TEST(ChordMatch, typeWithoutAlternate_clearsTheFormerOne)
{
    Chord chord;
    chord.add("C E A");
    EXPECT_EQ(chord.alternate(), "C|major 6th no 5");
    chord.slots.notes = {0, 4, 7, 99, 99, 99};
    chord.add(core::rereadnotes);
    EXPECT_EQ(chord.alternate(), " | ");
}

struct SeventhRow {
    const char* six;
    const char* seventh;
    const char* left;
};

TEST(ChordMatch, seventhNote_pushesTheHighestOut)
{
    // clang-format off
    for (const SeventhRow& row : std::to_array<SeventhRow>({
        { "C D E F G Bb",  "A",  "C D E F G A"   },  // the new one may be the highest
        { "C D E F G A",   "B",  "C D E F G B"   },
        { "D E F G A B",   "C",  "C D E F G A"   },
        { "C D E F G Bb",  "E",  "C D E F G Bb"  },  // one that is there pushes nothing
    })) {
        // clang-format on
        Chord chord;
        chord.add(row.six);
        chord.add(row.seventh);
        EXPECT_EQ(chord.notes(), row.left) << row.six << " and " << row.seventh;
    }
}

TEST(ChordMatch, repeatedNotes_areHeldOnceWhenOneIsAdded)
{
    Chord chord;
    chord.slots.notes = {4, 4, 7, 7, 99, 99};
    chord.add(0);
    EXPECT_EQ(chord.slots.notes.front(), 0);
    EXPECT_EQ(std::ranges::count(chord.slots.notes, 4), 1);
    EXPECT_EQ(std::ranges::count(chord.slots.notes, 7), 1);
    EXPECT_EQ(chord.reading(), "C|major");
}

} // namespace
