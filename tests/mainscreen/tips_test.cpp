// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using TipsTest = testing::Test;
using mainscreen::Tips;

struct StoreRow {
    std::size_t number;
    const char* tip;
};

TEST_F(TipsTest, start_storesTheTipsByTheirNumbers)
{
    const tests::Started started;
    constexpr StoreRow rows[] = {
        {0, "chords .. enter note first"},
        {3, "dominant 7th (adds flatted 7th note)"},
        {27, "chords .. enter note first"},
        {28, ""},
        {31, ""},
        {32, "option adjust lower"},
        {33, "option adjust higher"},
        {34, "options - arrows adjust either to move up and down, or to select"},
        {35, "chord readout"},
        {36, "alternate chord readout (that can be made with the same notes)"},
        {37, "left adjust"},
        {38, "right adjust"},
        {39, "left adjust"},
        {40, "right adjust"},
        {41, "reset all"},
        {42, ""},
        {43, "Snapshot Chord Text"},
        {44, "Right hand Left hand"},
        {45, "instrument type"},
        {46, "preset tunings"},
    };
    for (const StoreRow& row : rows)
        EXPECT_EQ(started.session.tipstore.at(row.number), row.tip) << row.number;
}

TEST_F(TipsTest, toggle_leavesNoTip)
{
    tests::Started started;
    started.session.mnutips_Click();
    EXPECT_FALSE(started.session.mnutips);
    const Tips& tips = started.session.tips;
    for (const auto* array :
         {tips.Text1.data(), tips.key.data(), tips.trans1.data(), tips.Crd.data(), tips.note.data()})
        EXPECT_EQ(*array, "");
    Tips none = tips;
    none.tooloff();
    EXPECT_EQ(tips, none);
    EXPECT_EQ(tips.key.back(), "");
    EXPECT_EQ(tips.Text1.back(), "");
    EXPECT_EQ(tips.cordtyp2, "");
}

TEST_F(TipsTest, toggledTwice_restoresEveryTip)
{
    tests::Started started;
    const Tips atstart = started.session.tips;
    for (int time = 1; time <= 3; ++time) {
        started.session.mnutips_Click();
        EXPECT_FALSE(started.session.tips == atstart);
        started.session.mnutips_Click();
        EXPECT_TRUE(started.session.mnutips);
        EXPECT_TRUE(started.session.tips == atstart);
    }
    EXPECT_EQ(started.session.tips.Crd.front(), "chords .. enter note first");
}

TEST_F(TipsTest, uncheckedMark_makesTheFirstToggleSwitchOn)
{
    tests::Started started;
    const Tips atstart = started.session.tips;
    started.session.mnutips = false;
    started.session.tipson();
    EXPECT_TRUE(started.session.mnutips);
    EXPECT_EQ(started.session.tips, atstart);
}

TEST(HelpMenu, items_openTheirScreens)
{
    tests::Started started;
    started.session.mnubhelp_Click();
    started.session.mnuchelp_Click();
    started.session.mnuabout_Click();
    using enum ui::Screen;
    EXPECT_EQ(started.desktop.opened, (std::vector{mhelp, helpinfo, frmAbout}));
}

TEST(HelpMenu, morehelp_opensTheCompleteHelpInPlaceOfTheBasic)
{
    tests::Started started;
    started.session.cmdhelp2_Click();
    EXPECT_EQ(started.desktop.opened, std::vector{ui::Screen::helpinfo});
    EXPECT_EQ(started.desktop.closed, std::vector{ui::Screen::mhelp});
}

} // namespace
