// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/autospelling.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int notchosen = -1;

int suiting(const char* chord, const char* root)
{
    const auto mode = core::suitingmode(chord, root);
    return mode ? static_cast<int>(*mode) : notchosen;
}

struct RootRow {
    const char* root;
    int minor; ///< mode for a minor chord
    int other; ///< mode for any other
};

class SuitingMode : public testing::TestWithParam<RootRow> {};

TEST_P(SuitingMode, everyChordNameOnTheRoot_isSpelledByIt)
{
    const RootRow& row = GetParam();
    for (const char* chord : {"minor", "minor 6th", "minor 7th", "minor 9th", "minor 13th", "minor 6th no 5"})
        EXPECT_EQ(suiting(chord, row.root), row.minor) << row.root << ' ' << chord;
    for (const char* chord : {"major", "7th", "diminished", "mmaj7th", "sus 2", "cant find", "+ ( +5, aug. )"})
        EXPECT_EQ(suiting(chord, row.root), row.other) << row.root << ' ' << chord;
}

INSTANTIATE_TEST_SUITE_P(Roots, SuitingMode,
                         testing::Values(
                             // root  minor  other
                             RootRow{"G", 0, 2}, RootRow{"C", 0, 1}, RootRow{"F", 0, 1}, RootRow{"Bb", 0, 0},
                             RootRow{"A#", 0, 0}, RootRow{"Eb", 0, 0}, RootRow{"D#", 0, 0}, RootRow{"A", 1, 3},
                             RootRow{"D", 1, 2}, RootRow{"B", 2, 3}, RootRow{"E", 2, 3}, RootRow{"F#", 3, 0},
                             RootRow{"C#", 3, 0}, RootRow{"G#", 3, 0}, RootRow{"Ab", 3, 0}, RootRow{"Db", 3, 0},
                             RootRow{"Gb", 3, 0}, RootRow{"H", 0, 1}, // no note: a mode all the same
                             RootRow{"C# Db", 0, 1}),                 // both names are no name
                         [](const auto& row) { return tests::rowname(row.param.root); });

struct WordRow {
    const char* chord;
    int mode; ///< on E, which is spelled 2 for a minor chord and 3 for any other
};

TEST(SuitingMode, wordMinor_isFoundAnywhereInAnyCase)
{
    // clang-format off
    for (const WordRow& row : std::to_array<WordRow>({
        { "minor",       2 },
        { "MINOR",       2 },
        { "Minor 7th",   2 },
        { "a mINOr one", 2 },
        { "mino",        3 },
        { "min or",      3 },
        { "m",           3 },
    }))
        EXPECT_EQ(suiting(row.chord, "E"), row.mode) << row.chord;
    // clang-format on
}

TEST(SuitingMode, blankChordOrRoot_choosesNothing)
{
    for (const char* blank : {"", " "}) {
        EXPECT_EQ(suiting(blank, "C"), notchosen) << "chord \"" << blank << '"';
        EXPECT_EQ(suiting("minor", blank), notchosen) << "root \"" << blank << '"';
        EXPECT_EQ(suiting(blank, blank), notchosen);
    }
}

} // namespace
