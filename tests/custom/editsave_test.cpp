// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/custom/editformtest.h"

namespace {

using EditForm = tests::EditFormTest;
using tests::Told;
using ui::Answer;
using enum instruments::StringLayout;

const tests::Asked overwriting{"You already have data entered here\nDo you wish to overwrite it?", ""};
const tests::Asked deleting{"This will delete this data item from your\ncustom data file.  Do you want to continue?",
                            ""};
constexpr const char* twentyfive = "1234567890123456789012345";
constexpr const char* lastplace = " 50";

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
