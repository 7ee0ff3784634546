// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

using mainscreen::Session;
using tests::Started;
using tests::Told;
using ui::Icon;
using ui::Screen;

TEST(PageStart, boxes_showTheSettings)
{
    const Started s;
    EXPECT_FALSE(s.session.page.open);
    EXPECT_EQ(s.session.page.txtchar, "72");
    EXPECT_EQ(s.session.page.txtspace, "4");
    EXPECT_EQ(s.session.page.txtfont, "8");
    EXPECT_FALSE(s.session.page.chkmult);
    EXPECT_TRUE(s.session.page.chkalt);
    EXPECT_EQ(s.session.page.fontsize, 8);
}

TEST(PageOpening, firstTime_fitsTheFontToTheWidth)
{
    Started s;
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.desktop.opened, std::vector{Screen::mprint});
    EXPECT_EQ(s.session.page.txtfont, "11"); // 72 characters and a margin of 6
    EXPECT_EQ(s.session.page.fontsize, 11);
    EXPECT_EQ(s.session.pagesettings.fontsize, 11);
    EXPECT_EQ(s.session.page.txtlines, "0");
}

TEST(PageOpening, numbersNeverSet_areThoseOfAFirstStart)
{
    Started s;
    s.session.pagesettings.charactersperline = 0;
    s.session.pagesettings.spacing = 0;
    s.session.pagesettings.fontsize = 0;
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.session.pagesettings.charactersperline, 72);
    EXPECT_EQ(s.session.pagesettings.spacing, 4);
    EXPECT_EQ(s.session.page.txtchar, "72");
    EXPECT_EQ(s.session.page.txtspace, "4");
    EXPECT_EQ(s.session.page.txtfont, "11");
}

TEST(PageOpening, openAlready_keepsWhatItShows)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.txtchar_Change("50");
    s.session.page.kept = "an old page";
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.session.page.txtchar, "50");
    EXPECT_EQ(s.session.page.text, "");
    EXPECT_EQ(s.desktop.opened, (std::vector{Screen::mprint, Screen::mprint}));
}

TEST(PageOpening, emptyText_isTakenFromTheCopy)
{
    Started s;
    s.session.page.kept = "title\n";
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.session.page.text, "title\n");
    EXPECT_EQ(s.session.page.txtlines, "1");
    s.session.mexit();
    s.session.page.text = "other";
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.session.page.text, "other");
}

struct PageButton {
    const char* name;
    void (Session::*press)();
    std::string print::Page::*box;
    const char* limit;
    const char* within;
    const char* moved;
    const char* refusal;
    const char* font; ///< what the font's box shows after the move
};

class PageButtons : public testing::TestWithParam<PageButton> {};

TEST_P(PageButtons, atTheLimit_refusesAndElseMoves)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.page.*GetParam().box = GetParam().limit;
    (s.session.*GetParam().press)();
    EXPECT_EQ(s.desktop.told, (std::vector{Told{Icon::information, GetParam().refusal}}));
    EXPECT_EQ(s.session.page.*GetParam().box, GetParam().limit);
    s.session.page.*GetParam().box = GetParam().within;
    (s.session.*GetParam().press)();
    EXPECT_EQ(s.session.page.*GetParam().box, GetParam().moved);
    EXPECT_EQ(s.session.page.txtfont, GetParam().font);
    EXPECT_EQ(std::to_string(s.session.page.fontsize), GetParam().font);
    EXPECT_EQ(s.desktop.told.size(), 1U);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Buttons, PageButtons, testing::Values(
    PageButton{"cmdchardown",  &Session::cmdchardown_Click,  &print::Page::txtchar,  "40",  "70",  "69",  "sorry, cannot go lower than 40",   "12"},
    PageButton{"cmdcharup",    &Session::cmdcharup_Click,    &print::Page::txtchar,  "145", "144", "145", "sorry, cannot go higher than 145", "5"},
    PageButton{"cmdspacedown", &Session::cmdspacedown_Click, &print::Page::txtspace, "1",   "2",   "1",   "sorry, cannot go lower than 1",    "11"},
    PageButton{"cmdspaceup",   &Session::cmdspaceup_Click,   &print::Page::txtspace, "20",  "19",  "20",  "sorry, cannot go higher than 20",  "11"},
    PageButton{"cmddownfont",  &Session::cmddownfont_Click,  &print::Page::txtfont,  "5",   "6",   "5",   "sorry, cannot go lower than 5",    "5"},
    PageButton{"cmdupfont",    &Session::cmdupfont_Click,    &print::Page::txtfont,  "14",  "13",  "14",  "sorry, cannot go higher than 14",  "14"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(CharSize, noNumberOfCharacters_changesNothing)
{
    for (const char* typed : {"", "wide", "0", "0.5"}) {
        Started s;
        s.session.txtchar_Change(typed);
        s.session.charsize();
        EXPECT_EQ(s.session.page.txtfont, "8") << typed;
        EXPECT_EQ(s.session.page.fontsize, 8) << typed;
    }
}

TEST(CharSize, storedMargin_counts)
{
    Started s;
    s.session.pagesettings.leftmargin = 0;
    s.session.charsize();
    EXPECT_EQ(s.session.page.txtfont, "12");
    s.session.pagesettings.leftmargin = 10;
    s.session.charsize();
    EXPECT_EQ(s.session.page.txtfont, "11");
}

TEST(FontHelp, isTold)
{
    Started s;
    s.session.cmdfonthelp_Click();
    EXPECT_EQ(s.desktop.told,
              (std::vector{Told{Icon::information,
                                "Adjust to suit but ensure no 'word wrap'\n(long text that overlaps the next line).\n\n"
                                "Note that this font size may be adjusted\nAutomatically if 'characters per line'\n"
                                "is changed."}}));
}

TEST(PageButtons, show_bringsThePendingBlock)
{
    Started s;
    s.session.mnuguitar_Click();
    s.session.photochord();
    s.session.cmdshow_Click();
    EXPECT_FALSE(s.session.camera.pending());
    EXPECT_NE(s.session.page.text.find("E *|\n"), std::string::npos);
}

TEST(PageButtons, clear_asksNothing)
{
    Started s;
    s.session.mnuguitar_Click();
    s.session.photochord();
    s.session.cmdshow_Click();
    s.session.mprint_cmdclear_Click();
    EXPECT_EQ(s.session.page.text, "");
    EXPECT_EQ(s.session.camera.SnapshotCount, 0);
    EXPECT_TRUE(s.desktop.asked.empty());
}

TEST(Leaving, boxes_areStored)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.txtchar_Change("80");
    s.session.txtspace_Change("7");
    s.session.txtfont_Change("9");
    s.session.chkmult_Click(true);
    s.session.chkalt_Click(false);
    s.session.mexit();
    const print::PageSettings& kept = s.session.pagesettings;
    EXPECT_EQ(kept.charactersperline, 80);
    EXPECT_EQ(kept.spacing, 7);
    EXPECT_EQ(kept.fontsize, 9);
    EXPECT_TRUE(kept.multiple);
    EXPECT_FALSE(kept.alternate);
    EXPECT_FALSE(s.session.page.open);
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::mprint});
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST(Leaving, twice_leavesOnce)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.mexit();
    s.session.txtchar_Change("80");
    s.session.mexit(); // the screen that closes
    EXPECT_EQ(s.session.pagesettings.charactersperline, 72);
    EXPECT_EQ(s.desktop.closed.size(), 1U);
}

TEST(Leaving, numberOutOfRange_isToldAndTheRestIsStored)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.txtchar_Change("99999");
    s.session.txtspace_Change("7");
    s.session.txtfont_Change("256");
    s.session.mexit();
    EXPECT_EQ(s.desktop.told,
              (std::vector{Told{Icon::critical, "one of the print variables is set wrong\n"
                                                "Please ensure that numbers are set to\nreasonable numbers only"}}));
    EXPECT_EQ(s.session.pagesettings.charactersperline, 72);
    EXPECT_EQ(s.session.pagesettings.spacing, 7);
    EXPECT_EQ(s.session.pagesettings.fontsize, 11);
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::mprint});
}

TEST(Leaving, text_isKeptOrItsCopyEmptied)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.rtbprint_Change("My chords\n");
    s.session.mexit();
    EXPECT_EQ(s.session.page.kept, "My chords\n");
    s.session.mnuviewprint_Click();
    EXPECT_EQ(s.session.page.text, "My chords\n");
    s.session.rtbprint_Change("");
    s.session.mexit();
    EXPECT_EQ(s.session.page.kept, "");
}

TEST(Leaving, program_leavesThePageFirst)
{
    Started s;
    s.session.mnuviewprint_Click();
    s.session.txtspace_Change("9");
    s.session.tonefretexit();
    EXPECT_EQ(s.session.pagesettings.spacing, 9);
    EXPECT_TRUE(s.session.customchanged);
    EXPECT_EQ(s.desktop.left, 1);
}

TEST(Leaving, pendingBlock_stays)
{
    Started s;
    s.session.mnuguitar_Click();
    s.session.mnuviewprint_Click();
    s.session.photochord();
    s.session.mexit();
    EXPECT_TRUE(s.session.camera.pending());
    EXPECT_EQ(s.session.camera.SnapshotCount, 1);
}

TEST(PageText, manyEditsFontsAndClosings_stays)
{
    Started s;
    std::mt19937 random(5);
    std::string text;
    s.session.mnuviewprint_Click();
    for (int edit = 0; edit < 1000; ++edit) {
        const std::size_t at = random() % (text.size() + 1);
        if (random() % 3 != 0)
            text.insert(at, std::array{"\n", "x", "  ", "E -|*|\n", "\xC3\xA4"}[random() % 5]);
        else
            text.erase(at, random() % 4);
        s.session.rtbprint_Change(text);
        switch (random() % 4) {
        case 0:
            s.session.cmdupfont_Click();
            break;
        case 1:
            s.session.cmddownfont_Click();
            break;
        case 2:
            s.session.mexit();
            s.session.mnuviewprint_Click();
            break;
        default:
            s.session.cmdcharup_Click();
        }
        ASSERT_EQ(s.session.page.text, text) << "edit " << edit;
    }
}

struct EditRow {
    print::Edit edit;
    const char* text;
};

TEST(PageText, editedPart_takesThePlaceOfWhatWentThere)
{
    const EditRow rows[] = {{{0, 0, "zero "}, "zero one two"}, {{4, 3, ""}, "one "},        {{3, 4, "!"}, "one!"},
                            {{4, 99, "three"}, "one three"},   {{7, 0, "\n"}, "one two\n"}, {{0, 7, ""}, ""}};
    for (const EditRow& row : rows) {
        Started s;
        s.session.rtbprint_Change("one two");
        s.session.rtbprint_Edit(row.edit);
        EXPECT_EQ(s.session.page.text, row.text);
    }
}

TEST(LoadPage, text_replacesPageAndSnapshots)
{
    Started s;
    s.session.mnupiano_Click();
    s.session.photochord();
    s.session.printfill();
    s.session.photochord();
    s.session.loadpage("one\r\ntwo\rthree\n");
    EXPECT_EQ(s.session.page.text, "one\ntwo\nthree\n");
    EXPECT_EQ(s.session.page.kept, "one\ntwo\nthree\n");
    EXPECT_EQ(s.session.page.txtlines, "3");
    EXPECT_FALSE(s.session.camera.pending());
    EXPECT_EQ(s.session.camera.SnapshotCount, 0);
    EXPECT_EQ(s.session.camera.mode, print::CameraMode::keyboard);
}

struct Saving {
    const char* name;
    const char* text;
    const char* bytes;
    bool told;
};

class SavePage : public testing::TestWithParam<Saving> {};

TEST_P(SavePage, text_isWrittenWithOneLineEnd)
{
    const tests::Directory directory;
    Started s(directory);
    s.session.mnuguitar_Click();
    s.session.photochord(); // what is pending is not seen, and not saved
    s.session.rtbprint_Change(GetParam().text);
    s.desktop.files = {directory.path / "mine"};
    s.session.mprint_mnusave_Click();
    EXPECT_EQ(directory.read("mine.txt"), GetParam().bytes);
    EXPECT_EQ(s.desktop.pickasked, (std::vector{tests::PickAsked{ui::Direction::save, {"Text Files (*.txt)|*.txt"}}}));
    EXPECT_EQ(s.desktop.told, GetParam().told
                                  ? (std::vector{Told{Icon::information, "Problem:  No data in chord printout area,\n"
                                                                         "have to abort, sorry"}})
                                  : std::vector<Told>{});
    EXPECT_TRUE(s.session.camera.pending());
    EXPECT_EQ(s.session.datapath, directory.path / "mine.txt");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, SavePage, testing::Values(
    Saving{"oneLine",  "title",              "title\r\n",              false},
    Saving{"lines",    "C\n\nE -|*|\n",      "C\n\nE -|*|\n\r\n",      false},
    Saving{"blanks",   "  ",                 "  \r\n",                 false},
    Saving{"umlaut",   "Gr\xC3\xBC\xC3\x9F""e", "Gr\xC3\xBC\xC3\x9F""e\r\n", false},
    Saving{"nothing",  "",                   "",                       true}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(SavePage, fileThatExists_isOverwrittenOnlyWithAYes)
{
    for (const ui::Answer answer : {ui::Answer::yes, ui::Answer::no}) {
        const tests::Directory directory;
        directory.write("mine.txt", "old");
        Started s(directory);
        s.desktop.files = {directory.path / "mine.txt"};
        s.desktop.answers = {answer};
        s.session.mprint_mnusave_Click(); // an empty page empties the file
        EXPECT_EQ(s.desktop.asked, (std::vector{tests::Asked{"Overwrite existing file?", "Overwrite File Message"}}));
        EXPECT_EQ(directory.read("mine.txt"), answer == ui::Answer::yes ? "" : "old");
        EXPECT_EQ(s.desktop.told.size(), answer == ui::Answer::yes ? 1U : 0U);
    }
}

TEST(SavePage, folderThatIsNotThere_isTold)
{
    Started s;
    s.session.rtbprint_Change("title");
    const std::filesystem::path file = s.session.workdir / "none" / "mine.txt";
    s.desktop.files = {file};
    s.session.mprint_mnusave_Click();
    EXPECT_EQ(s.desktop.told,
              (std::vector{Told{Icon::critical, "Cannot write " + file.string() + "\nNo such file or directory"}}));
}

TEST(SavePage, loadedAgain_isTheSameAndItsLineEnd)
{
    const tests::Directory directory;
    Started s(directory);
    s.session.mnuguitar_Click();
    s.session.photochord();
    s.session.cmdshow_Click();
    const std::string text = s.session.page.text;
    s.desktop.files = {directory.path / "mine.txt", directory.path / "mine.txt"};
    s.session.mprint_mnusave_Click();
    s.session.mprint_cmdclear_Click();
    s.session.userload();
    EXPECT_EQ(s.session.page.text, text + "\n");
    EXPECT_EQ(s.session.page.kept, text + "\n");
}

TEST(LoadSettings, openPage_showsTheLoadedNumbersAndCounts)
{
    const tests::Directory directory;
    directory.write("mine.txt", "one\ntwo\nTonefret:       GUITAR;00 80 7 911 2 3000 0;\r\n");
    Started s(directory);
    s.session.mnuviewprint_Click();
    s.desktop.files = {directory.path / "mine.txt"};
    s.session.userload();
    EXPECT_EQ(s.session.page.text, "one\ntwo");
    EXPECT_EQ(s.session.page.txtlines, "1");
    EXPECT_EQ(s.session.page.txtchar, "80");
    EXPECT_EQ(s.session.page.txtspace, "7");
    EXPECT_EQ(s.session.page.txtfont, "9");
    EXPECT_EQ(s.session.page.fontsize, 9);
    EXPECT_TRUE(s.session.page.chkmult);
    EXPECT_TRUE(s.session.page.chkalt);
}

} // namespace
