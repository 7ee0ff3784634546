// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using tests::Asked;
using tests::Started;
using tests::Told;
using ui::Icon;
using ui::Screen;

/// A session that takes snapshots of strings, with C major on them.
struct Strings : Started {
    Strings()
    {
        session.mnuguitar_Click();
        enter("C E G");
    }
};

TEST(FirstSnapshot, modeNotChosen_asksForIt)
{
    Started s;
    s.session.photochord();
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::camquestion});
    EXPECT_EQ(s.session.camera.SnapshotCount, 0);
    EXPECT_FALSE(s.session.camera.modechosen);
    EXPECT_FALSE(s.session.camera.marks.mnuguitar);
    EXPECT_FALSE(s.session.camera.marks.mnupiano);
    s.session.photochord(); // the question was closed without an answer
    EXPECT_EQ(s.desktop.opened, (std::vector{Screen::camquestion, Screen::camquestion}));
}

TEST(CameraQuestion, eitherButton_choosesAndPhotographs)
{
    for (const bool piano : {false, true}) {
        Started s;
        s.session.photochord();
        if (piano)
            s.session.cmdpiano_Click();
        else
            s.session.cmdguitar_Click();
        EXPECT_EQ(s.desktop.closed, std::vector{Screen::camquestion});
        EXPECT_EQ(s.desktop.opened, (std::vector{Screen::camquestion, Screen::ccamera}));
        EXPECT_EQ(s.session.camera.SnapshotCount, 1);
        EXPECT_EQ(s.session.camera.mode, piano ? print::CameraMode::keyboard : print::CameraMode::strings);
        EXPECT_EQ(s.session.camera.marks.mnuguitar, !piano);
        EXPECT_EQ(s.session.camera.marks.mnupiano, piano);
        EXPECT_EQ(s.session.camera.labels.lbltype, piano ? "KEYBOARD / PIANO" : "STRINGED INSTRUMENTS");
        EXPECT_EQ(s.desktop.beeps, 1);
    }
}

TEST(ModeMenus, choice_isMarkedAndAsksNoMore)
{
    Started s;
    s.session.mnupiano_Click();
    EXPECT_FALSE(s.session.camera.marks.mnuguitar);
    EXPECT_TRUE(s.session.camera.marks.mnupiano);
    s.session.mnuguitar_Click();
    EXPECT_TRUE(s.session.camera.marks.mnuguitar);
    EXPECT_FALSE(s.session.camera.marks.mnupiano);
    s.session.photochord();
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::ccamera});
}

TEST(Camera, afterASnapshot_showsItsChord)
{
    Strings s;
    s.session.photochord();
    const print::CameraLabels& labels = s.session.camera.labels;
    EXPECT_EQ(labels.lbltaken, "Chord Snapshots taken so far = 1");
    EXPECT_EQ(labels.lbllast, "Last snapshot:     C major,            ");
    EXPECT_EQ(labels.lbltype, "STRINGED INSTRUMENTS");
    EXPECT_EQ(labels.lblleft, "Snapshots Left:  3 or more");
    EXPECT_EQ(s.desktop.beeps, 1);
}

TEST(Roll, ofStrings_countsBlocks)
{
    Strings s;
    s.session.chkmult_Click(true);
    std::vector<std::string> left;
    for (int taken = 0; taken < 5; ++taken) {
        s.session.photochord();
        left.push_back(s.session.camera.labels.lblleft);
    }
    EXPECT_EQ(left, (std::vector<std::string>{"Snapshots Left:  2 or more", "Snapshots Left:  1 or more",
                                              "Snapshots Left:  maybe more", "Snapshots Left:  roll finished",
                                              "Snapshots Left:  roll finished"}));
}

TEST(Roll, ofKeyboards_countsSnapshots)
{
    Started s;
    s.session.mnupiano_Click();
    for (int taken = 1; taken <= 12; ++taken) {
        s.session.photochord();
        EXPECT_EQ(s.session.camera.labels.lblleft,
                  taken < 10 ? "Snapshots Left: " + std::to_string(10 - taken) : "Snapshots Left: Roll finished");
    }
}

TEST(Counters, atTheirLimit_stay)
{
    Strings s;
    s.session.chkmult_Click(true);
    s.session.camera.SnapshotCount = 32766;
    s.session.camera.PageBlockCount = 32766;
    for (int taken = 0; taken < 3; ++taken)
        s.session.photochord();
    EXPECT_EQ(s.session.camera.SnapshotCount, 32767);
    EXPECT_EQ(s.session.camera.PageBlockCount, 32767);
    EXPECT_EQ(s.session.camera.labels.lbltaken, "Chord Snapshots taken so far = 32767");
}

TEST(Snapshot, noMarkAnywhere_isOneFretWide)
{
    Started s;
    s.session.mnuguitar_Click();
    s.session.photochord();
    const auto& line = s.session.camera.snapshot.line;
    EXPECT_EQ(line[0], "E *|");
    EXPECT_EQ(line[5], "E *|");
    EXPECT_EQ(line[6], "   0");
    EXPECT_EQ(line[7], "    ");
    EXPECT_EQ(line[9], "");
    EXPECT_EQ(s.session.camera.BlockWidth, 4);
    EXPECT_EQ(s.session.camera.fingering.TopFret, 0);
}

TEST(Snapshot, boardNeverTuned_keepsItsLinesInWidth)
{
    Started s;
    s.session.mnuguitar_Click();
    for (auto& cell : s.session.fretboard.cell)
        cell.text.clear();
    s.session.photochord();
    EXPECT_EQ(s.session.camera.snapshot.line[0], "  *|");
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST(Snapshot, nameWiderThanAKeyboard_isDropped)
{
    Started s;
    s.session.mnupiano_Click();
    s.session.cordtyp1 = std::string(31, 'x');
    s.session.note[6] = "";
    s.session.photochord();
    EXPECT_EQ(s.desktop.told, (std::vector{Told{Icon::critical, "Problem with this print string.  Have to abort"}}));
    EXPECT_EQ(s.session.camera.SnapshotCount, 1);
    EXPECT_FALSE(s.session.camera.pending());
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::ccamera});
    s.session.cordtyp1 = std::string(30, 'x');
    s.session.photochord();
    EXPECT_EQ(s.desktop.told.size(), 1U);
    EXPECT_TRUE(s.session.camera.pending());
}

TEST(OneChordPerLine, tickedWhileABlockIsPending_writesItFirst)
{
    Strings s;
    s.session.photochord();
    const std::string pending = s.session.camera.PendingBlock.line[7];
    s.session.chkmult_Click(true);
    s.session.Crd_Click(3);
    s.session.photochord();
    EXPECT_EQ(s.session.camera.PageBlockCount, 2);
    EXPECT_NE(s.session.page.text.find("\n\n" + pending + "\n"), std::string::npos);
    EXPECT_FALSE(s.session.camera.pending());
}

/// Snapshots of a board and a mode, in a line.
struct Shot {
    const char* family;
    bool piano = false;
};

struct Join {
    const char* name;
    Shot first;
    Shot second;
    const char* txtchar;
    const char* txtspace;
    bool joined;
};

class Joins : public testing::TestWithParam<Join> {};

constexpr const char* six = "       GUITAR";
constexpr const char* four = "         BASS";
constexpr const char* five = "        BANJO";

void take(Started& s, const Shot& shot)
{
    s.pickfamily(shot.family);
    if (shot.piano)
        s.session.mnupiano_Click();
    else
        s.session.mnuguitar_Click();
    s.session.photochord();
}

TEST_P(Joins, secondSnapshot_joinsOrWritesTheFirst)
{
    Started s;
    s.enter("C E G");
    s.session.txtchar_Change(GetParam().txtchar);
    s.session.txtspace_Change(GetParam().txtspace);
    take(s, GetParam().first);
    const std::string first = s.session.camera.PendingBlock.line[2];
    take(s, GetParam().second);
    EXPECT_EQ(s.session.camera.PageBlockCount, GetParam().joined ? 0 : 1);
    EXPECT_EQ(s.session.camera.RowWidth > 0, GetParam().joined);
    EXPECT_EQ(s.session.camera.PendingBlock.line[2].starts_with(first) &&
                  s.session.camera.PendingBlock.line[2] != first,
              GetParam().joined);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pairs, Joins, testing::Values(
    Join{"six_six",             {six},        {six},        "60",   "5",   true},
    Join{"six_five",            {six},        {five},       "60",   "5",   true},
    Join{"six_four",            {six},        {four},       "60",   "5",   true},
    Join{"five_four",           {five},       {four},       "60",   "5",   true},
    Join{"four_four",           {four},       {four},       "60",   "5",   true},
    Join{"five_six",            {five},       {six},        "60",   "5",   false},
    Join{"four_six",            {four},       {six},        "60",   "5",   false},
    Join{"four_five",           {four},       {five},       "60",   "5",   false},
    Join{"six_keyboard",        {six},        {six, true},  "60",   "5",   true},
    Join{"four_keyboard",       {four},       {six, true},  "60",   "5",   false},
    Join{"keyboard_six",        {six, true},  {six},        "60",   "5",   false},
    Join{"keyboard_five",       {six, true},  {five},       "60",   "5",   true},
    Join{"keyboard_keyboard",   {six, true},  {six, true},  "60",   "5",   true},
    Join{"justFits",            {six, true},  {six, true},  "36",   "5",   true},   // its own width and the blanks only
    Join{"justFitsNot",         {six, true},  {six, true},  "35",   "5",   false},
    Join{"partsOfACharacter",   {six, true},  {six, true},  "36.2", "5.3", false},  // not rounded for the sum
    Join{"noSpacing",           {six, true},  {six, true},  "31",   "",    true},
    Join{"negativeSpacing",     {six, true},  {six, true},  "30",   "-4",  true},
    Join{"textForWidth",        {six},        {six},        "wide", "5",   false},
    Join{"passesTheLimit",      {six, true},  {six, true},  "9999", "194", false},
    Join{"meetsTheLimit",       {six, true},  {six, true},  "9999", "193", true},
    Join{"hugeSpacing",         {six, true},  {six, true},  "999999999999", "99999999999", false}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Joins, spacing_isRoundedToWholeBlanks)
{
    Started s;
    s.session.mnupiano_Click();
    s.session.txtspace_Change("2.6");
    s.session.photochord();
    s.session.photochord();
    EXPECT_EQ(s.session.camera.RowWidth, 31 + 3 + 31);
}

TEST(Joins, third_countsTheJoinedWidth)
{
    for (const bool fits : {true, false}) {
        Started s;
        s.session.mnupiano_Click();
        s.session.txtspace_Change("5");
        s.session.txtchar_Change(fits ? "103" : "102"); // 31 + 5 + 31, 5 more and 31 more
        for (int taken = 0; taken < 3; ++taken)
            s.session.photochord();
        EXPECT_EQ(s.session.camera.PageBlockCount, fits ? 0 : 1);
        EXPECT_EQ(s.session.camera.RowWidth, fits ? 103 : 0);
    }
}

TEST(PrintFill, nothingPending_writesTheHeadingOnce)
{
    Started s;
    s.session.printfill();
    EXPECT_EQ(s.session.page.text, "Chords:  GUITAR,  Standard 6 or 12 string,  Right Hand view\n");
    EXPECT_EQ(s.session.page.txtlines, "1");
    s.session.printfill();
    EXPECT_EQ(s.session.page.text, "Chords:  GUITAR,  Standard 6 or 12 string,  Right Hand view\n");
    s.session.allclear();
    s.session.mnupiano_Click();
    s.session.printfill();
    EXPECT_EQ(s.session.page.text, "Chords:  KEYBOARD     (* = keys to press, + = alternate choices)");
    EXPECT_EQ(s.session.page.txtlines, "0");
}

TEST(PrintFill, familyOfTwoWords_keepsTheBlankBetween)
{
    Started s;
    s.pickfamily(" STEEL, DOBRO");
    s.session.cboleft_Click(1);
    s.session.printfill();
    EXPECT_EQ(s.session.page.text.substr(0, 25), "Chords:  STEEL, DOBRO,  " + s.session.cbotuning.text.substr(0, 1));
    EXPECT_TRUE(s.session.page.text.ends_with(",  Left Hand view\n"));
}

TEST(PrintFill, familysText_losesBlanksWhileItHasThreeCharacters)
{
    EXPECT_EQ(print::stringsheading("    ab", "t", "h"), "Chords:  ab,  t,  h view\n");
    EXPECT_EQ(print::stringsheading("    a", "t", "h"), "Chords:   a,  t,  h view\n");
    EXPECT_EQ(print::stringsheading("    ", "t", "h"), "Chords:    ,  t,  h view\n");
    EXPECT_EQ(print::stringsheading("", "t", "h"), "Chords:  ,  t,  h view\n");
}

TEST(CameraButtons, okay_hides)
{
    Strings s;
    s.session.photochord();
    s.session.ccamera_cmdret_Click();
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::ccamera});
    EXPECT_TRUE(s.session.camera.pending());
}

TEST(CameraButtons, view_bringsTheBlockToThePage)
{
    Strings s;
    s.session.photochord();
    s.session.ccamera_cmdview_Click();
    EXPECT_EQ(s.desktop.opened, (std::vector{Screen::ccamera, Screen::mprint}));
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::ccamera});
    EXPECT_FALSE(s.session.camera.pending());
    EXPECT_TRUE(s.session.page.open);
    EXPECT_EQ(s.session.page.txtlines, std::to_string(std::ranges::count(s.session.page.text, '\n')));
}

constexpr const char* mainquestion = "This will clear all photos and the \nprint page also.  Proceed?";
constexpr const char* cameraquestion = "This will clear all photos and the \nprint page also.  It will also clear\n"
                                       "the current photo just taken.\nClick yes to proceed";

void fill(Strings& s)
{
    s.session.chkmult_Click(true);
    s.session.photochord();
    s.session.chkmult_Click(false);
    s.session.photochord();
    s.session.photochord();
    s.session.page.kept = "kept";
}

bool iscleared(const mainscreen::Session& session)
{
    const auto isempty = [](const std::string& line) { return line.empty(); };
    return session.page.text.empty() && session.page.kept.empty() && session.page.txtlines == "0" &&
           std::ranges::all_of(session.camera.snapshot.line, isempty) &&
           std::ranges::all_of(session.camera.PendingBlock.line, isempty) && session.camera.BlockWidth == 0 &&
           session.camera.RowWidth == 0 && session.camera.SnapshotCount == 0 && session.camera.PageBlockCount == 0;
}

TEST(Clear, answer_decides)
{
    for (const ui::Answer answer : {ui::Answer::yes, ui::Answer::no})
        for (const bool camera : {false, true}) {
            Strings s;
            fill(s);
            EXPECT_GT(s.session.camera.RowWidth, 0);
            s.desktop.answers = {answer};
            if (camera)
                s.session.ccamera_cmdclear_Click();
            else
                s.session.mnuphotoclear_Click();
            EXPECT_EQ(s.desktop.asked, (std::vector{Asked{camera ? cameraquestion : mainquestion, ""}}));
            EXPECT_EQ(iscleared(s.session), answer == ui::Answer::yes);
            EXPECT_EQ(s.desktop.closed.size(), camera ? 1U : 0U);
            EXPECT_TRUE(s.session.camera.modechosen);
        }
}

} // namespace
