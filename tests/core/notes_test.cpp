// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/notes.h"

#include <gtest/gtest.h>

namespace {

TEST(NoteName, abovefoldrange_foldsIntoSecondOctave)
{
    core::PitchClass n = 25;
    EXPECT_EQ(core::NoteSpelling{core::SpellingMode::mix1}.notename(n), "C#");
    EXPECT_EQ(n, 13);
}

} // namespace
