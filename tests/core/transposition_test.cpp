// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/transposition.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

namespace {

using core::Shift;
using tests::spelling;

std::string line(const core::ScaleRow& row)
{
    std::string names;
    for (const std::string& name : row)
        names += (names.empty() ? "" : " ") + name;
    return names;
}

struct ScaleCase {
    int first;
    int mode;
    const char* names;
};

class ScaleFrom : public testing::TestWithParam<ScaleCase> {};

TEST_P(ScaleFrom, firstNote_fifteenNamesUpward)
{
    EXPECT_EQ(line(core::scalefrom(GetParam().first, spelling(GetParam().mode))), GetParam().names);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, ScaleFrom, testing::Values(
    //       first mode
    ScaleCase{ 0,   0, "C Db D Eb E F Gb G Ab A Bb B C Db D"},
    ScaleCase{ 0,   3, "C C# D D# E F F# G G# A A# B C C# D"},
    ScaleCase{ 1,   3, "C# D D# E F F# G G# A A# B C C# D D#"},
    ScaleCase{ 1,   0, "Db D Eb E F Gb G Ab A Bb B C Db D Eb"},
    ScaleCase{ 7,   2, "G G# A Bb B C C# D Eb E F F# G G# A"},
    ScaleCase{11,   1, "B C C# D Eb E F F# G Ab A Bb B C C#"}), // the last member is note 25
    [](const auto& row) { return std::to_string(row.param.first) + "_mode" + std::to_string(row.param.mode); });
// clang-format on

TEST(Shifted, everyRowInEveryMode_movesASemitoneAndWraps)
{
    for (int mode = 0; mode < tests::modecount; ++mode)
        for (int first = 0; first < 12; ++first) {
            const core::ScaleRow row = core::scalefrom(first, spelling(mode));
            EXPECT_EQ(core::shifted(row, Shift::right, spelling(mode)).front(), tests::written((first + 1) % 12, mode));
            EXPECT_EQ(core::shifted(row, Shift::left, spelling(mode)).front(), tests::written((first + 11) % 12, mode));
        }
}

TEST(Shifted, cLeftward_beginsOnB)
{
    EXPECT_EQ(line(core::shifted(core::scalefrom(0, spelling(0)), Shift::left, spelling(0))),
              "B C Db D Eb E F Gb G Ab A Bb B C Db");
}

TEST(Shifted, thereAndBack_isTheSameRow)
{
    const core::ScaleRow row = core::scalefrom(5, spelling(2));
    EXPECT_EQ(core::shifted(core::shifted(row, Shift::right, spelling(2)), Shift::left, spelling(2)), row);
}

TEST(Shifted, rowInAnOlderSpelling_takesTheCurrentOne)
{
    const core::ScaleRow flats = core::scalefrom(0, spelling(0));
    EXPECT_EQ(core::shifted(flats, Shift::right, spelling(3)), core::scalefrom(1, spelling(3)));
}

} // namespace
