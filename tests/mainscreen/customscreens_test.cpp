// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/directory.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using tests::Started;
using ui::Screen;

struct WithEntries : Started {
    WithEntries()
    {
        session.customtable[0] = {"one", "03000000"};
        session.customtable[1] = {"two", "13222222"};
        session.customtable[2] = {"three", "03444444"};
    }
    std::string names() const
    {
        return session.customtable[0].name + " " + session.customtable[1].name + " " + session.customtable[2].name;
    }
};

TEST(CustomScreen, opened_startsAtTheFirstFreePlace)
{
    WithEntries s;
    s.session.mnucustom_Click();
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::custom});
    EXPECT_EQ(s.session.editform.txtnum(), " 3");
}

TEST(CustomScreen, openedAgain_keepsWhatIsWritten)
{
    WithEntries s;
    s.session.mnucustom_Click();
    s.session.editform.txtname_Change("half written");
    s.session.mnucustom_Click();
    EXPECT_EQ(s.session.editform.txtname, "half written");
    EXPECT_EQ(s.desktop.opened, (std::vector{Screen::custom, Screen::custom})); // brought to the front
    s.session.customexit();
    s.session.mnucustom_Click();
    EXPECT_EQ(s.session.editform.txtname, "");
}

TEST(CustomScreen, settings_comeFromTheMainScreen)
{
    Started s;
    s.pickfamily("        BANJO");
    s.session.cboleft_Click(1);
    s.session.mnucustom_Click();
    s.session.cmdsettings_Click();
    EXPECT_TRUE(s.session.editform.chkleft);
    EXPECT_EQ(s.session.editform.Option2, instruments::StringLayout::shortfifth);
    for (std::size_t box = 0; box < 6; ++box)
        EXPECT_EQ(s.session.editform.txtnote.at(box), s.session.fretboard.cell.at(5 - box).text) << box;
}

struct ExitRow {
    const char* family;
    bool changed;
    bool rebuilt;
};

TEST(CustomScreen, closing_rebuildsTheTuningsOfCustomWhenChanged)
{
    // clang-format off
    constexpr ExitRow rows[] = {
        {"       CUSTOM", true,  true },
        {"       CUSTOM", false, false},
        {"       GUITAR", true,  false},
    };
    // clang-format on
    for (const ExitRow& row : rows) {
        SCOPED_TRACE(std::string(row.family) + (row.changed ? " changed" : ""));
        WithEntries s;
        s.pickfamily(row.family);
        s.session.cbotuning_Click(1);
        s.session.mnucustom_Click();
        s.session.customchanged = row.changed;
        s.session.customexit();
        EXPECT_EQ(s.session.cbotuning.index, row.rebuilt ? 0 : 1);
        EXPECT_EQ(s.desktop.closed, std::vector{Screen::custom});
    }
}

TEST(CustomScreen, savedEntry_isListedAfterClosing)
{
    WithEntries s;
    s.pickfamily("       CUSTOM");
    s.session.mnucustom_Click();
    s.session.editform.txtname_Change("four");
    s.session.cmdsettings_Click();
    s.session.editform.cmdsave_Click();
    EXPECT_EQ(s.session.cbotuning.items.size(), 3U);
    s.session.customexit();
    EXPECT_EQ(s.session.cbotuning.items, (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(s.session.cbotuning.text, "one");
    s.picktuning("four");
    EXPECT_EQ(s.opennotes(), "C C C C C C");
}

TEST(CustomScreen, loadWhileOpen_showsTheFirstFreePlace)
{
    const tests::Directory folder;
    WithEntries s;
    s.session.mnucustom_Click();
    s.desktop.files = {folder.path / "kept.txt"};
    s.session.mnusave_Click();
    s.session.customtable[2] = {};
    s.session.editform.cmddown_Click();
    s.desktop.files = {folder.path / "kept.txt"};
    s.session.mnuload_Click();
    EXPECT_EQ(s.names(), "one two three");
    EXPECT_EQ(s.session.editform.txtnum(), " 3");
    EXPECT_EQ(s.session.editform.txtinfo, "- blank -");
}

TEST(CustomScreen, closedTwice_closesOnce)
{
    Started s;
    s.session.mnucustom_Click();
    s.session.customexit();
    s.session.customexit();
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::custom});
}

TEST(ArrangeScreen, opened_closesGapsFirst)
{
    WithEntries s;
    s.session.customtable[0] = {};
    s.session.mnuarrange_Click();
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::arrange});
    EXPECT_EQ(s.names(), "two three ");
    EXPECT_FALSE(s.session.customchanged);
}

TEST(ArrangeScreen, drop_exchangesNameAndData)
{
    WithEntries s;
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(2, 0);
    EXPECT_EQ(s.names(), "three two one");
    EXPECT_EQ(s.session.customtable[0].data, "03444444");
    EXPECT_EQ(s.session.customtable[2].data, "03000000");
    EXPECT_TRUE(s.session.customchanged);
}

TEST(ArrangeScreen, dropOnItself_changesNothingButIsSaved)
{
    WithEntries s;
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(1, 1);
    EXPECT_EQ(s.names(), "one two three");
    EXPECT_EQ(s.session.customtable[1].data, "13222222");
    EXPECT_TRUE(s.session.customchanged);
}

TEST(ArrangeScreen, returning_listsTheNewOrder)
{
    WithEntries s;
    s.pickfamily("       CUSTOM");
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(0, 2);
    EXPECT_EQ(s.session.cbotuning.items.front(), "one");
    s.session.endform();
    EXPECT_EQ(s.session.cbotuning.items, (std::vector<std::string>{"three", "two", "one"}));
    EXPECT_EQ(s.session.cbotuning.text, "three");
    EXPECT_EQ(s.opennotes(), "E E E E E E");
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::arrange});
}

TEST(ArrangeScreen, returningUnderAnotherFamily_showsItsFirstTuning)
{
    WithEntries s;
    s.picktuning("Drop D tuning");
    s.session.mnuarrange_Click();
    s.session.endform();
    EXPECT_EQ(s.session.cbotuning.text, "Drop D tuning"); // nothing changed
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(0, 2);
    s.session.endform();
    EXPECT_EQ(s.session.cbotuning.text, "Standard 6 or 12 string");
}

TEST(ArrangeScreen, drop_isSeenByTheEditScreen)
{
    WithEntries s;
    s.session.mnucustom_Click();
    s.session.editform.cmddown_Click();
    EXPECT_EQ(s.session.editform.txtname, "three");
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(0, 2);
    EXPECT_EQ(s.session.editform.txtname, "one");
    EXPECT_TRUE(s.session.editform.guarded());
}

TEST(Shutdown, openScreens_areNotLeftByTheirOwnWay)
{
    WithEntries s;
    s.pickfamily("       CUSTOM");
    s.session.cbotuning_Click(1);
    s.session.mnucustom_Click();
    s.session.mnuarrange_Click();
    s.session.customchanged = true;
    s.session.tonefretexit();
    s.session.customexit(); // what closing the screens calls
    s.session.endform();
    EXPECT_EQ(s.session.cbotuning.index, 1);
    EXPECT_TRUE(s.desktop.closed.empty());
    EXPECT_EQ(s.desktop.left, 1);
}

TEST(CustomScreen, gapThatCloses_showsTheEntryThatCameToThePlace)
{
    WithEntries s;
    s.session.customtable[0] = {};
    s.session.mnucustom_Click();
    ASSERT_EQ(s.session.editform.txtnum(), " 0");
    s.session.editform.txtname_Change("half written");
    s.session.mnuarrange_Click();
    EXPECT_EQ(s.session.editform.txtname, "two");
    EXPECT_TRUE(s.session.editform.guarded());
}

TEST(CustomScreen, gapThatClosesFurtherOn_leavesWhatIsWritten)
{
    WithEntries s;
    s.session.customtable[4] = {"five", "03555555"};
    s.session.mnucustom_Click();
    s.session.editform.cmddown_Click();
    s.desktop.answers = {ui::Answer::yes};
    s.session.editform.txtname_Click();
    s.session.editform.txtname_Change("half written");
    s.session.mnuarrange_Click();
    EXPECT_EQ(s.session.editform.txtname, "half written");
    EXPECT_EQ(s.session.customtable[3].name, "five");
}

TEST(ArrangeScreen, dropOnItself_leavesWhatIsWritten)
{
    WithEntries s;
    s.session.mnucustom_Click();
    s.session.editform.txtname_Change("half written");
    s.session.mnuarrange_Click();
    s.session.txtx_DragDrop(1, 1);
    EXPECT_EQ(s.session.editform.txtname, "half written");
    EXPECT_TRUE(s.session.customchanged);
    s.session.txtx_DragDrop(1, 0);
    EXPECT_EQ(s.session.editform.txtname, "");
}

} // namespace
