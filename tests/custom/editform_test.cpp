// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/editform.h"
#include "tests/support/names.h"
#include "tests/support/recordingdesktop.h"

#include <gtest/gtest.h>

namespace {

using enum instruments::StringLayout;
using custom::Entry;
using tests::Told;
using ui::Answer;

const tests::Asked protection{"Wish to Edit Existing Data here?\nThat will eliminate the old entry", ""};
const tests::Asked overwriting{"You already have data entered here\nDo you wish to overwrite it?", ""};
const tests::Asked deleting{"This will delete this data item from your\ncustom data file.  Do you want to continue?",
                            ""};
constexpr const char* twentyfive = "1234567890123456789012345";
constexpr const char* lastplace = " 50";

class EditForm : public testing::Test {
protected:
    void open(std::initializer_list<Entry> entries)
    {
        std::ranges::copy(entries, table.begin());
        form.formstart();
    }
    void fillall()
    {
        for (std::size_t i = 0; i < table.size(); ++i)
            table.at(i) = {"name " + std::to_string(i), "03444444"};
    }
    /// Writes a name and these notes into the boxes from 0 upward.
    void write(const std::string& name, std::string_view notes)
    {
        form.txtname_Change(name);
        for (std::size_t box = 0; const int pitch : tests::pitches(notes)) {
            form.cmdret_Click(pitch + 1);
            form.txtnote_Click(box++);
        }
    }
    void answer(Answer given) { desktop.answers.push_back(given); }

    /// Boxes 0..5, an empty one as "-".
    std::string boxes() const
    {
        std::string line;
        for (std::size_t box = 0; box < 6; ++box)
            line += (box == 0 ? "" : " ") + (form.txtnote.at(box).empty() ? "-" : form.txtnote.at(box));
        return line;
    }
    void expecttold(std::vector<Told> messages)
    {
        EXPECT_EQ(desktop.told, messages);
        desktop.told.clear();
    }
    void expectasked(const tests::Asked& question)
    {
        EXPECT_EQ(desktop.asked, std::vector{question});
        EXPECT_TRUE(desktop.answers.empty());
        desktop.asked.clear();
    }
    void expectcleared()
    {
        EXPECT_EQ(form.txtname, "");
        EXPECT_EQ(boxes(), "- - - - - -");
        EXPECT_EQ(form.txtnote[6], "");
        EXPECT_FALSE(form.chkleft);
        EXPECT_EQ(form.Option2, sixstrings);
    }

    custom::CustomTable table;
    core::NoteSpelling spelling;
    bool changed = false;
    tests::RecordingDesktop desktop;
    custom::EditForm form{table, spelling, changed, desktop};
};

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

TEST_F(EditForm, saving_storesAndMovesOn)
{
    open({});
    form.chkleft_Click();
    write("mine", "E A D G B C#");
    form.cmdsave_Click();
    expecttold({});
    EXPECT_EQ(table[0].name, "mine");
    EXPECT_EQ(table[0].data, "13492"
                             "7B1");
    EXPECT_TRUE(changed);
    EXPECT_EQ(form.txtnum(), " 1");
    EXPECT_EQ(form.txtinfo, "- blank -");
    EXPECT_EQ(form.txtname, "");
    EXPECT_TRUE(form.chkleft);
}

TEST_F(EditForm, savingFewerStrings_storesHiddenBoxesAsTheyStand)
{
    open({});
    write("hidden empty", "C D E F");
    form.Option2_Click(fourstrings);
    form.cmdsave_Click();
    EXPECT_EQ(table[0].data, "010245??");
    form.Option2_Click(sixstrings);
    write("hidden written", "C D E F G A");
    form.Option2_Click(shortfifth);
    form.cmdsave_Click();
    EXPECT_EQ(table[1].data, "00024579");
}

TEST_F(EditForm, savingAnEditedEntry_replacesItAndShowsTheNext)
{
    open({{"mine", "03444444"}, {"next", "03555555"}});
    form.cmddown_Click();
    form.cmddown_Click();
    answer(Answer::yes);
    form.txtname_Click();
    form.txtname_Change("yours");
    form.cmdsave_Click();
    EXPECT_EQ(table[0].name, "yours");
    EXPECT_EQ(table[0].data, "03444444");
    EXPECT_EQ(form.txtname, "next");
    EXPECT_TRUE(form.guarded());
}

TEST_F(EditForm, savingAtTheLastPlace_storesAndStays)
{
    fillall();
    table[50] = {};
    form.formstart();
    write("last", "C C C C C C");
    form.cmdsave_Click();
    EXPECT_EQ(table[50].name, "last");
    expecttold({{ui::Icon::information, "50 items is maximum, sorry"}});
    EXPECT_EQ(form.txtnum(), lastplace);
    EXPECT_EQ(form.txtname, "last");
    EXPECT_EQ(form.txtinfo, "- blank -"); // until the place is shown anew
    EXPECT_FALSE(form.guarded());
}

struct SaveRow {
    const char* name;
    const char* notes;
    instruments::StringLayout choice;
    const char* message; ///< empty: stored
};

class SaveChecks : public EditForm, public testing::WithParamInterface<SaveRow> {};

TEST_P(SaveChecks, form_isStoredOrRefused)
{
    const SaveRow& row = GetParam();
    open({});
    write(row.name, row.notes);
    form.Option2_Click(row.choice);
    form.cmdsave_Click();
    const bool refused = *row.message != '\0';
    EXPECT_EQ(table[0].name, refused ? "" : row.name);
    EXPECT_EQ(table[0].data.empty(), refused);
    EXPECT_EQ(form.txtnum(), refused ? " 0" : " 1");
    EXPECT_EQ(form.txtname, refused ? row.name : "");
    EXPECT_TRUE(changed); // either way
    expecttold(refused ? std::vector<Told>{{ui::Icon::critical, row.message}} : std::vector<Told>{});
}

constexpr const char* noname = "You need to enter a name for this option first\n as requested as item 2";
constexpr const char* nonotes = "You need to enter note names\n as requested as item 5";
constexpr const char* toolong = "Please reduce name size (item 2)\nTo less than 25 characters.  Thanks";
constexpr const char* semicolon =
    "Please remove semicolon(s) ';' from name (item 2)\nThey are needed for control characters.  Thanks";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Forms, SaveChecks, testing::Values(
    //      name                          notes          strings
    SaveRow{"mine",                       "C C C C C C", sixstrings,  ""        },
    SaveRow{" ",                          "C C C C C C", sixstrings,  ""        }, // a blank is a name
    SaveRow{"",                           "C C C C C C", sixstrings,  noname    },
    SaveRow{"",                           "",            sixstrings,  noname    }, // the first objection is told
    SaveRow{"mine",                       "",            sixstrings,  nonotes   },
    SaveRow{"mine",                       "C C C C C",   sixstrings,  nonotes   },
    SaveRow{"mine",                       "C C C C C",   fivestrings, ""        },
    SaveRow{"mine",                       "C C C C C",   shortfifth,  ""        },
    SaveRow{"mine",                       "C C C C",     fourstrings, ""        }, // hidden boxes are not looked at
    SaveRow{"mine",                       "C C C C",     shortfifth,  nonotes   },
    SaveRow{"mine",                       "C C C",       fourstrings, nonotes   },
    SaveRow{"1234567890123456789012345",  "C C C C C C", sixstrings,  ""        },
    SaveRow{"12345678901234567890123456", "C C C C C C", sixstrings,  toolong   },
    SaveRow{"1234567890123456789012345;", "C C C C C C", sixstrings,  toolong   },
    SaveRow{"12345678901234567890123456", "C C C C C",   sixstrings,  nonotes   },
    SaveRow{"a;b",                        "C C C C C C", sixstrings,  semicolon },
    SaveRow{";",                          "C C C C C C", sixstrings,  semicolon },
    SaveRow{"123456789012345678901234;",  "C C C C C C", sixstrings,  semicolon },
    // characters, not bytes: 25 and 26 of two bytes, 25 of four
    SaveRow{"ééééééééééééééééééééééééé",  "C C C C C C", sixstrings,  ""        },
    SaveRow{"éééééééééééééééééééééééééé", "C C C C C C", sixstrings,  toolong   },
    SaveRow{"🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸", "C C C C C C", sixstrings, "" },
    SaveRow{"🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸🎸", "C C C C C C", sixstrings, toolong }));
// clang-format on

TEST_F(EditForm, movingUp_saysWhatIsToBeDoneFirst)
{
    open({});
    form.cmdup_Click();
    expecttold({{ui::Icon::information, "Please fill in title (item #2)\nand save work (item #6)\nbefore advancing"}});
    form.txtname_Change("mine");
    form.cmdup_Click();
    expecttold({{ui::Icon::information, "Please save work (item #6)\nbefore advancing"}});
    EXPECT_EQ(form.txtnum(), " 0");
    EXPECT_EQ(form.txtname, "mine");
}

TEST_F(EditForm, movingUpBehindAGap_isRefused)
{
    open({{"a", "03444444"}, {"b", "03444444"}});
    form.cmddown_Click();
    table[0] = {};
    form.cmdup_Click();
    expecttold({{ui::Icon::information, "Cannot go above highest blank area, Sorry"}});
    EXPECT_EQ(form.txtnum(), " 1");
}

TEST_F(EditForm, movingUpFromTheLastPlace_isRefused)
{
    fillall();
    form.formstart();
    form.cmdup_Click();
    expecttold({{ui::Icon::information, "50 items is maximum, sorry"}});
    table[50] = {};
    form.textread();
    form.cmdup_Click();
    expecttold({{ui::Icon::information, "Please fill in title (item #2)\nand save work (item #6)\nbefore advancing"}});
    EXPECT_EQ(form.txtnum(), lastplace);
}

TEST_F(EditForm, movingDown_endsAtZero)
{
    open({{"a", "03444444"}});
    form.txtname_Change("lost");
    form.cmddown_Click();
    EXPECT_EQ(form.txtname, "a");
    form.cmddown_Click();
    expecttold({{ui::Icon::information, "Cannot go below 0, sorry"}});
    EXPECT_EQ(form.txtnum(), " 0");
}

TEST_F(EditForm, deleting_movesLaterEntriesUp)
{
    open({{"a", "03444444"}, {"b", "11555555"}, {"c", "03777777"}});
    form.cmddown_Click();
    form.cmddown_Click();
    form.cmddown_Click();
    answer(Answer::yes);
    form.cmddelentry_Click();
    expectasked(deleting);
    EXPECT_TRUE(changed);
    EXPECT_EQ(table[0].name + table[1].name + table[2].name, "bc");
    EXPECT_EQ(table[2].data, "");
    EXPECT_EQ(form.txtnum(), " 0");
    EXPECT_EQ(form.txtname, "b");
    EXPECT_TRUE(form.guarded());
}

TEST_F(EditForm, deletingTheLastEntry_leavesAClearedForm)
{
    open({{"a", "11444444"}});
    form.cmddown_Click();
    answer(Answer::yes);
    form.cmddelentry_Click();
    EXPECT_EQ(form.txtinfo, "- blank -");
    EXPECT_EQ(custom::indexnew(table), 0U);
    expectcleared();
}

TEST_F(EditForm, deletingAnsweredNo_changesNothing)
{
    open({{"a", "11444444"}});
    form.cmddown_Click();
    answer(Answer::no);
    form.cmddelentry_Click();
    expectasked(deleting);
    EXPECT_FALSE(changed);
    EXPECT_EQ(table[0].name, "a");
    EXPECT_EQ(form.txtname, "a");
}

TEST_F(EditForm, deletingAFreePlace_asksAndClearsTheForm)
{
    open({{"a", "11444444"}});
    write("typed", "C C");
    answer(Answer::yes);
    form.cmddelentry_Click();
    expectasked(deleting);
    EXPECT_TRUE(changed);
    EXPECT_EQ(form.txtnum(), " 1");
    EXPECT_EQ(table[0].name, "a");
    expectcleared();
}

struct SettingsRow {
    const char* cboleft;
    instruments::StringLayout layout;
    bool left;
};

class LoadedSettings : public EditForm, public testing::WithParamInterface<SettingsRow> {};

TEST_P(LoadedSettings, mainScreensStrings_areTaken)
{
    instruments::Fretboard board;
    for (int row = 0; const char* note : {"E", "B", "G", "D", "A", "Eb"})
        board.doline(row++, note, spelling);
    board.arrange(GetParam().layout);
    open({});
    form.txtname_Change("mine");
    form.cmdsettings_Click(GetParam().cboleft, board);
    EXPECT_EQ(form.chkleft, GetParam().left);
    EXPECT_EQ(form.Option2, GetParam().layout);
    EXPECT_EQ(boxes(), "Eb A D G B E"); // the lowest string first, hidden ones too
    EXPECT_EQ(form.txtname, "mine");
    for (std::size_t box = 0; box < 6; ++box)
        EXPECT_EQ(form.boxvisible(box), board.cell.at(5 - box).visible) << box;
    form.cmdsave_Click();
    EXPECT_EQ(table[0].data, std::string(GetParam().left ? "1" : "0") +
                                 std::to_string(static_cast<int>(GetParam().layout)) + "3927B4");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Hands, LoadedSettings, testing::Values(
    SettingsRow{"Right Hand", sixstrings,  false},
    SettingsRow{"Left Hand",  fivestrings, true },
    SettingsRow{"Right Hand", fourstrings, false},
    SettingsRow{"Left Hand",  shortfifth,  true }));
// clang-format on

TEST_F(EditForm, settingsOverAStoredEntry_askAndOnYesLiftTheGuard)
{
    const instruments::Fretboard board;
    open({{"a", "11444444"}});
    form.cmddown_Click();
    answer(Answer::no);
    form.cmdsettings_Click("Right Hand", board);
    expectasked(overwriting);
    EXPECT_TRUE(form.chkleft);
    EXPECT_EQ(boxes(), "E E E E E E");
    EXPECT_TRUE(form.guarded());
    answer(Answer::yes);
    form.cmdsettings_Click("Right Hand", board);
    expectasked(overwriting);
    EXPECT_FALSE(form.chkleft);
    EXPECT_EQ(form.Option2, sixstrings);
    EXPECT_FALSE(form.guarded());
    answer(Answer::yes); // it still holds data
    form.cmdsettings_Click("Right Hand", board);
    expectasked(overwriting);
}

TEST_F(EditForm, unusedString_isKept)
{
    instruments::Fretboard board;
    for (int row = 0; row < 6; ++row)
        board.doline(row, row == 2 ? "?" : "C", spelling);
    open({});
    form.txtname_Change(twentyfive);
    form.cmdsettings_Click("Right Hand", board);
    EXPECT_EQ(boxes(), "C C C ? C C");
    form.cmdsave_Click();
    EXPECT_EQ(table[0].data, "03000?00");
}

} // namespace
