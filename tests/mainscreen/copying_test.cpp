// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CopyCase {
    const char* entered;
    const char* copied; ///< empty: nothing
    const char* announced;
};

class Copying : public testing::TestWithParam<CopyCase> {};

TEST_P(Copying, chord_isCopiedAndAnnounced)
{
    tests::Started started;
    started.enter(GetParam().entered);
    EXPECT_EQ(started.session.announcement(), GetParam().announced);
    started.session.mnucopychord_Click();
    if (std::string(GetParam().copied).empty())
        EXPECT_THAT(started.desktop.copied, IsEmpty());
    else
        EXPECT_THAT(started.desktop.copied, ElementsAre(GetParam().copied));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Notes, Copying, testing::Values(
//           entered        copied                             announced
    CopyCase{"",            "",                                ""},
    CopyCase{"C",           "C",                               "C"},
    CopyCase{"C E G",       "C major: C E G",                  "C major: C E G"},
    CopyCase{"C Eb G Bb",   "C minor 7th: C Eb G Bb",          "C minor 7th: C Eb G Bb; also Eb major 6th"},
    CopyCase{"C Db D",      "cant find: C Db D",               "cant find: C Db D"},
    CopyCase{"C Eb Gb A",   "C diminished: C Eb Gb A",         "C diminished: C Eb Gb A; also Eb, Gb, & A dim."},
    CopyCase{"C E Ab",      "C+ ( +5, aug. ): C E Ab",         "C+ ( +5, aug. ): C E Ab; also E+ and Ab+"}));
// clang-format on

TEST(CopyingChart, withoutASnapshot_copiesNothing)
{
    tests::Started started;
    started.enter("C E G");
    EXPECT_FALSE(started.session.cancopychart());
    started.session.mnucopychart_Click();
    EXPECT_THAT(started.desktop.copied, IsEmpty());
}

TEST(CopyingChart, lastSnapshot_isCopiedAsThePageWouldGetIt)
{
    for (const bool keyboard : {false, true}) {
        tests::Started started;
        started.enter("C E G");
        keyboard ? started.session.mnupiano_Click() : started.session.mnuguitar_Click();
        started.session.photochord();
        started.session.mnucopychart_Click();
        ASSERT_EQ(started.desktop.copied.size(), 1U);
        const std::string& copied = started.desktop.copied.front();
        EXPECT_NE(copied.find("C major"), std::string::npos) << copied;
        EXPECT_NE(copied.front(), '\n');
        EXPECT_TRUE(started.session.camera.pending()) << "the copy took the block";
        started.session.printfill();
        EXPECT_TRUE(started.session.page.text.ends_with("\n\n" + copied)) << started.session.page.text;
    }
}

TEST(CopyingChart, cleared_isGone)
{
    tests::Started started;
    started.enter("C E G");
    started.session.mnuguitar_Click();
    started.session.photochord();
    EXPECT_TRUE(started.session.cancopychart());
    started.session.allclear();
    EXPECT_FALSE(started.session.cancopychart());
}

} // namespace
