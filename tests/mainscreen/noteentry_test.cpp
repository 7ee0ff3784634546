// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"
#include "tests/support/recordingdesktop.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyClick, cAndEAndG_readCMajor)
{
    tests::RecordingDesktop desktop;
    mainscreen::Session session(desktop);
    session.Form_Load();
    for (const int key : {0, 4, 7})
        session.key_Click(key);
    EXPECT_EQ(session.note[6], "C");
    EXPECT_EQ(session.cordtyp1, "major");
}

} // namespace
