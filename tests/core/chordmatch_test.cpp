// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/chordmatch.h"
#include "tests/core/chordreading.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

namespace {

using tests::modecount;
using tests::Reading;
using tests::spelling;

constexpr int untouched = -7; ///< a chord index that no reading writes

/// A chord as notes are entered one by one.
struct Entry {
    core::ChordSlots slots;
    int chordindex = untouched;
    int mode = 0;

    explicit Entry(int spelledin = 0) : mode(spelledin) {}
    void add(int n) { core::chordmatch(n, slots, chordindex, spelling(mode)); }
    void add(const std::vector<int>& notes)
    {
        for (const int n : notes)
            add(n);
    }
    Reading reading() const { return {chordindex, slots.root, slots.alternateroot, slots.name, slots.alternate}; }
};

std::vector<int> membersof(unsigned set)
{
    std::vector<int> notes;
    for (int n = 0; n < 12; ++n)
        if ((set >> n & 1U) != 0)
            notes.push_back(n);
    return notes;
}

std::string shown(const std::vector<int>& notes)
{
    std::string line;
    for (const int n : notes)
        line += (line.empty() ? "" : " ") + tests::written(n, 0);
    return line;
}

/// The notes in slots 0..5, blanks left out; they must be sorted, the blanks last.
std::vector<int> held(const core::ChordSlots& slots)
{
    std::vector<int> notes;
    for (const int n : slots.notes)
        if (n != core::nonote)
            notes.push_back(n);
    EXPECT_TRUE(std::ranges::is_sorted(slots.notes)) << shown(notes);
    return notes;
}

Reading expectedof(const std::vector<int>& sorted, int mode)
{
    Reading expected = tests::readbygaps(sorted, mode);
    if (expected.type < 0)
        expected.type = untouched;
    return expected;
}

TEST(ChordMatch, everySetOfTwoToSixNotesInEveryMode_readsAsItsGapsSay)
{
    int sets = 0;
    for (unsigned set = 1; set < 1U << 12; ++set) {
        const std::vector<int> notes = membersof(set);
        if (notes.size() < 2 || notes.size() > 6)
            continue;
        for (int mode = 0; mode < modecount; ++mode) {
            Entry entry(mode);
            entry.add(notes);
            Entry last(mode); // its slots are filled without a reading before the last note's
            std::copy(notes.begin(), notes.end() - 1, last.slots.notes.begin());
            last.add(notes.back());
            ASSERT_EQ(last.reading(), expectedof(notes, mode)) << shown(notes) << " in mode " << mode;
            ASSERT_EQ(held(entry.slots), notes) << shown(notes);
            ASSERT_EQ(entry.slots.name, last.slots.name) << shown(notes);
            ASSERT_EQ(entry.slots.alternate, last.slots.alternate) << shown(notes);
        }
        ++sets;
    }
    EXPECT_EQ(sets, 66 + 220 + 495 + 792 + 924);
}

TEST(ChordMatch, everyOneNote_hasNoReading)
{
    for (int n = 0; n < 12; ++n) {
        Entry entry;
        entry.add(n);
        EXPECT_EQ(held(entry.slots), std::vector<int>{n});
        EXPECT_EQ(entry.reading(), (Reading{untouched, 99, 99, " ", " "})) << "note " << n;
    }
}

TEST(ChordMatch, everyOrderOfEveryFourNotes_readsTheSame)
{
    for (unsigned set = 0; set < 1U << 12; ++set) {
        if (std::popcount(set) != 4)
            continue;
        const std::vector<int> sorted = membersof(set);
        std::vector<int> order = sorted;
        const Reading expected = expectedof(sorted, 0);
        do {
            Entry entry;
            entry.add({order[0], order[1], order[2]});
            entry.chordindex = untouched;
            entry.add(order[3]);
            ASSERT_EQ(entry.reading(), expected) << shown(order);
            ASSERT_EQ(held(entry.slots), sorted) << shown(order);
        } while (std::ranges::next_permutation(order).found);
    }
}

struct TypeRow {
    const char* name; ///< of the type whose notes are entered
    std::vector<int> intervals;
    const char* readas; ///< the name that they get
    int root;           ///< interval of the reading's root; the lowest note of all where they repeat in the octave
};
constexpr int lowestnote = -1;

class EveryRoot : public testing::TestWithParam<TypeRow> {};

TEST_P(EveryRoot, everyRotation_readsAsOneType)
{
    const TypeRow& row = GetParam();
    for (int root = 0; root < 12; ++root)
        for (std::size_t first = 0; first < row.intervals.size(); ++first) {
            std::vector<int> notes;
            for (std::size_t i = 0; i < row.intervals.size(); ++i)
                notes.push_back((root + row.intervals[(first + i) % row.intervals.size()]) % 12);
            Entry entry;
            entry.add(notes);
            EXPECT_EQ(entry.slots.name, row.readas) << shown(notes);
            EXPECT_EQ(entry.slots.root, row.root == lowestnote ? std::ranges::min(notes) : (root + row.root) % 12)
                << shown(notes);
        }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Types, EveryRoot, testing::Values(
    TypeRow{"major",            {0, 4, 7},           "major",            0},
    TypeRow{"minor",            {0, 3, 7},           "minor",            0},
    TypeRow{"major 6th",        {0, 4, 7, 9},        "minor 7th",        9},  // never read as itself
    TypeRow{"7th",              {0, 4, 7, 10},       "7th",              0},
    TypeRow{"minor 7th",        {0, 3, 7, 10},       "minor 7th",        0},
    TypeRow{"major 7th",        {0, 4, 7, 11},       "major 7th",        0},
    TypeRow{"major 9th",        {0, 2, 4, 7, 10},    "major 9th",        0},
    TypeRow{"diminished",       {0, 3, 6, 9},        "diminished",       lowestnote},
    TypeRow{"major 11th",       {0, 2, 4, 5, 7, 10}, "major 11th",       0},
    TypeRow{"+ ( +5, aug. )",   {0, 4, 8},           "+ ( +5, aug. )",   lowestnote},
    TypeRow{"minor 6th",        {0, 3, 7, 9},        "minor 6th",        0},
    TypeRow{"sus (sus4 no 3)",  {0, 5, 7},           "sus (sus4 no 3)",  0},
    TypeRow{"mmaj7th",          {0, 3, 7, 11},       "mmaj7th",          0},
    TypeRow{"-5",               {0, 4, 6},           "-5",               0},
    TypeRow{"7 sus 4",          {0, 5, 10},          "sus (sus4 no 3)",  5},  // never read as itself
    TypeRow{"minor 9th",        {0, 2, 3, 7, 10},    "minor 9th",        0},
    TypeRow{"minor 11th",       {0, 2, 3, 5, 7, 10}, "minor 11th",       0},
    TypeRow{"7 maj 5",          {0, 4, 8, 10},       "7 maj 5",          0},
    TypeRow{"6th add 9",        {0, 2, 4, 7, 9},     "6th add 9",        0},
    TypeRow{"major 13th",       {0, 2, 4, 7, 9, 10}, "major 13th",       0},
    TypeRow{"minor 13th",       {0, 2, 3, 7, 9, 10}, "minor 13th",       0},
    TypeRow{"sus 2",            {0, 2, 7},           "sus (sus4 no 3)",  7},  // never read as itself
    TypeRow{"5 (1st and 5th)",  {0, 7},              "5 (1st and 5th)",  0},
    TypeRow{"sus 4   (3 no 5)", {0, 4, 5},           "sus 4   (3 no 5)", 0},
    TypeRow{"sus 4 (5 and 3)",  {0, 4, 5, 7},        "sus 4 (5 and 3)",  0},
    TypeRow{"major 6th no 5",   {0, 4, 9},           "minor",            9},  // never read as itself
    TypeRow{"minor 6th no 5",   {0, 3, 9},           "minor 6th no 5",   0}),
    [](const auto& row) { return tests::rowname(row.param.name); });
// clang-format on

TEST(ChordMatch, sevenFlatFive_isRootedOnItsLowestOrHighestNote)
{
    // clang-format off
    struct { std::vector<int> notes; int root; int other; } const rows[] = {
        {{0, 4, 6, 10},  0,  6},  // gaps 4 2 4
        {{1, 5, 7, 11},  1,  7},
        {{0, 2, 6,  8},  8,  2},  // gaps 2 4 2
        {{3, 5, 9, 11}, 11,  5},
    };
    // clang-format on
    for (const auto& row : rows) {
        Entry entry;
        entry.add(row.notes);
        EXPECT_EQ(entry.reading(), (Reading{17, row.root, row.other, "7-5", "7-5"})) << shown(row.notes);
    }
}

TEST(ChordMatch, rootlessNinths_neverDecide)
{
    int asked = 0;
    for (unsigned set = 0; set < 1U << 12; ++set) {
        const std::vector<int> notes = membersof(set);
        const std::string ninth = tests::rootlessninth(notes);
        if (ninth.empty())
            continue;
        ++asked;
        const std::string read = tests::readbygaps(notes, 0).name;
        EXPECT_EQ(read, ninth == "major 9th" ? "minor 6th" : "major 7th") << shown(notes);
        EXPECT_EQ(tests::readbygaps(notes, 0).also, ninth) << shown(notes);
    }
    EXPECT_EQ(asked, 4 + 4); // the lowest note is one of C to Eb: the pattern reaches eight semitones up
}

} // namespace
