// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/custom/editformtest.h"

namespace {

using EditForm = tests::EditFormTest;
using tests::Told;
using ui::Answer;
using enum instruments::StringLayout;

const tests::Asked protection{"Wish to Edit Existing Data here?\nThat will eliminate the old entry", ""};
constexpr const char* lastplace = " 50";

TEST_F(EditForm, openingOnAnEmptyTable_showsPlaceZeroCleared)
{
    open({});
    EXPECT_EQ(form.txtnum(), " 0");
    EXPECT_EQ(form.txtinfo, "- blank -");
    EXPECT_FALSE(form.guarded());
    expectcleared();
    EXPECT_FALSE(changed);
}

TEST_F(EditForm, opening_showsTheFirstFreePlace)
{
    open({{"a", "13444444"}, {"b", "13444444"}});
    EXPECT_EQ(form.txtnum(), " 2");
    EXPECT_EQ(form.txtinfo, "- blank -");
    expectcleared();
}

TEST_F(EditForm, openingOnAFullTable_showsTheLastPlace)
{
    fillall();
    form.formstart();
    EXPECT_EQ(form.txtnum(), lastplace);
    EXPECT_EQ(form.txtinfo, "- DATA -");
    EXPECT_EQ(form.txtname, "name 50");
    EXPECT_TRUE(form.guarded());
}

TEST_F(EditForm, storedEntry_isShownAndGuarded)
{
    open({{"mine", "12A024?B"}});
    form.cmdret_Click(5);
    form.cmddown_Click();
    EXPECT_EQ(form.txtnum(), " 0");
    EXPECT_EQ(form.txtinfo, "- DATA -");
    EXPECT_EQ(form.txtname, "mine");
    EXPECT_TRUE(form.chkleft);
    EXPECT_EQ(form.Option2, fivestrings);
    EXPECT_EQ(boxes(), "Bb C D E ? B");
    EXPECT_EQ(form.txtnote[6], ""); // the selected note is forgotten
    EXPECT_TRUE(form.guarded());
}

TEST_F(EditForm, blankPlace_keepsHandStringsAndSelection)
{
    open({{"mine", "11444444"}});
    form.cmddown_Click();
    form.cmdret_Click(3);
    form.cmdup_Click();
    EXPECT_EQ(form.txtinfo, "- blank -");
    EXPECT_EQ(form.txtname, "");
    EXPECT_EQ(boxes(), "- - - - - -");
    EXPECT_TRUE(form.chkleft);
    EXPECT_EQ(form.Option2, fourstrings);
    EXPECT_EQ(form.txtnote[6], "D");
    form.txtnote_Click(0);
    EXPECT_EQ(boxes(), "D - - - - -");
}

TEST_F(EditForm, blankPlace_emptiesItsData)
{
    table[0].data = "03444444"; // no name: free
    form.formstart();
    EXPECT_EQ(table[0].data, "");
}

TEST_F(EditForm, boxes_followTheStringChoice)
{
    constexpr std::pair<instruments::StringLayout, std::size_t> rows[] = {
        {shortfifth, 5}, {fourstrings, 4}, {fivestrings, 5}, {sixstrings, 6}};
    open({});
    for (const auto& [choice, count] : rows) {
        form.Option2_Click(choice);
        for (std::size_t box = 0; box < 6; ++box)
            EXPECT_EQ(form.boxvisible(box), box < count) << static_cast<int>(choice) << " box " << box;
        EXPECT_TRUE(form.boxvisible(6));
    }
}

TEST_F(EditForm, noteWithoutSelection_asksForOne)
{
    open({});
    form.txtnote_Click(0);
    expecttold({{ui::Icon::information, "Please press a gray note button first"}});
    EXPECT_EQ(boxes(), "- - - - - -");
}

TEST_F(EditForm, selectedNote_isWrittenInTheSpellingOfTheMoment)
{
    open({});
    form.cmdret_Click(2);
    EXPECT_EQ(form.txtnote[6], "Db");
    form.txtnote_Click(0);
    spelling = tests::spelling(3);
    form.txtnote_Click(5);
    EXPECT_EQ(boxes(), "Db - - - - C#");
    form.cmdret_Click(2);
    EXPECT_EQ(form.txtnote[6], "C#");
}

TEST_F(EditForm, boxOfTheSelectedNote_takesNone)
{
    open({});
    form.txtnote_Click(6);
    expecttold({});
    form.cmdret_Click(1);
    form.txtnote_Click(6);
    EXPECT_EQ(form.txtnote[6], "C");
    EXPECT_EQ(boxes(), "- - - - - -");
}

struct ClickRow {
    const char* name;
    void (*click)(custom::EditForm&);
    bool (*done)(const custom::EditForm&); ///< the click took effect
};

// clang-format off
const ClickRow guardedclicks[] = {
  { "txtname",   [](custom::EditForm& f) { f.txtname_Click(); f.txtname_Change("new"); },
                 [](const custom::EditForm& f) { return f.txtname == "new"; } },
  { "txtnote_0", [](custom::EditForm& f) { f.cmdret_Click(12); f.txtnote_Click(0); },
                 [](const custom::EditForm& f) { return f.txtnote[0] == "B"; } },
  { "txtnote_5", [](custom::EditForm& f) { f.cmdret_Click(12); f.txtnote_Click(5); },
                 [](const custom::EditForm& f) { return f.txtnote[5] == "B"; } },
  { "chkleft",   [](custom::EditForm& f) { f.chkleft_Click(); },
                 [](const custom::EditForm& f) { return !f.chkleft; } },
  { "Option2_1", [](custom::EditForm& f) { f.Option2_Click(fourstrings); },
                 [](const custom::EditForm& f) { return f.Option2 == fourstrings; } },
};
// clang-format on

TEST_F(EditForm, clickOnAStoredEntry_asksAndOnYesActsWithoutFurtherQuestion)
{
    for (const ClickRow& row : guardedclicks) {
        SCOPED_TRACE(row.name);
        open({{"mine", "13444444"}});
        form.cmddown_Click();
        answer(Answer::yes);
        row.click(form);
        expectasked(protection);
        EXPECT_TRUE(row.done(form));
        EXPECT_FALSE(form.guarded());
        form.chkleft_Click();
        EXPECT_TRUE(desktop.asked.empty());
    }
}

TEST_F(EditForm, clickOnAStoredEntry_onNoPutsTheControlBack)
{
    for (const ClickRow& row : guardedclicks) {
        SCOPED_TRACE(row.name);
        open({{"mine", "12444444"}});
        form.cmddown_Click();
        answer(Answer::no);
        row.click(form);
        expectasked(protection);
        EXPECT_TRUE(form.guarded());
        EXPECT_EQ(form.txtname, "mine");
        EXPECT_EQ(boxes(), "E E E E E E");
        EXPECT_TRUE(form.chkleft);
        EXPECT_EQ(form.Option2, fivestrings);
    }
}

TEST_F(EditForm, noOnAClearedForm_putsBackTheClickedControlOnly)
{
    open({{"mine", "11444447"}});
    form.cmddown_Click();
    form.cmdclear_Click();
    expectcleared();
    EXPECT_TRUE(form.guarded());
    EXPECT_EQ(form.txtinfo, "- DATA -");
    answer(Answer::no);
    form.txtnote_Click(5);
    EXPECT_EQ(boxes(), "- - - - - G");
    EXPECT_EQ(form.txtname, "");
    answer(Answer::no);
    form.txtname_Click();
    EXPECT_EQ(form.txtname, "mine");
    answer(Answer::no);
    form.Option2_Click(sixstrings);
    EXPECT_EQ(form.Option2, fourstrings);
    EXPECT_FALSE(form.chkleft);
    answer(Answer::no);
    form.chkleft_Click();
    EXPECT_TRUE(form.chkleft);
}

TEST_F(EditForm, yesWithoutASelectedNote_asksForOneNext)
{
    open({{"mine", "12444444"}});
    form.cmddown_Click();
    answer(Answer::yes);
    form.txtnote_Click(0);
    expectasked(protection);
    expecttold({{ui::Icon::information, "Please press a gray note button first"}});
    EXPECT_EQ(boxes(), "E E E E E E");
}

TEST_F(EditForm, storedNote_isPutBackInTheSpellingOfTheMoment)
{
    open({{"mine", "12111111"}});
    form.cmddown_Click();
    spelling = tests::spelling(3);
    answer(Answer::no);
    form.txtnote_Click(0);
    EXPECT_EQ(boxes(), "C# Db Db Db Db Db");
}

TEST_F(EditForm, typingWhileGuarded_changesNothing)
{
    open({{"mine", "12111111"}});
    form.cmddown_Click();
    form.txtname_Change("other");
    EXPECT_EQ(form.txtname, "mine");
}

TEST_F(EditForm, gray_notesAndMovingOn_askNothing)
{
    open({{"mine", "12111111"}});
    form.cmddown_Click();
    form.cmdret_Click(1);
    form.txtnote_Click(6);
    form.cmdup_Click();
    EXPECT_TRUE(desktop.asked.empty());
}

TEST_F(EditForm, guard_standsAgainWhenThePlaceIsShownAnew)
{
    open({{"mine", "12111111"}});
    form.cmddown_Click();
    answer(Answer::yes);
    form.chkleft_Click();
    form.cmdup_Click();
    form.cmddown_Click();
    EXPECT_TRUE(form.guarded());
    EXPECT_TRUE(form.chkleft); // the change was not stored
}

} // namespace
