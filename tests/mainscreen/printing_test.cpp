// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using mainscreen::Session;
using tests::Asked;
using tests::Started;
using tests::Told;
using ui::Icon;
using ui::Screen;

constexpr const char* noprinter = "There is no printer.  Save the pages as a PDF file instead?";

/// A page of two lines, and the print dialog open over it.
struct TwoLines : Started {
    TwoLines()
    {
        session.mnuviewprint_Click();
        session.rtbprint_Change("one\ntwo");
        session.chordprint();
    }
};

TEST(PrintDialog, opening_showsTheMargins)
{
    const TwoLines s;
    EXPECT_EQ(s.desktop.opened, (std::vector{Screen::mprint, Screen::printdialog}));
    EXPECT_EQ(s.session.printdialog.txttop, "3");
    EXPECT_EQ(s.session.printdialog.txtleft, "6");
}

TEST(PrintDialog, marginsOfNothing_areThoseOfAFirstStart)
{
    TwoLines s;
    s.session.pagesettings.topmargin = 0;
    s.session.pagesettings.leftmargin = 0;
    s.session.chordprint();
    EXPECT_EQ(s.session.printdialog.txttop, "3");
    EXPECT_EQ(s.session.printdialog.txtleft, "6");
    EXPECT_EQ(s.session.pagesettings.topmargin, 3);
    EXPECT_EQ(s.session.pagesettings.leftmargin, 6);
}

TEST(PrintDialog, opening_bringsThePendingBlock)
{
    Started s;
    s.session.mnuguitar_Click();
    s.session.photochord();
    s.session.chordprint();
    EXPECT_FALSE(s.session.camera.pending());
    EXPECT_EQ(s.session.camera.PageBlockCount, 1);
}

struct MarginButton {
    const char* name;
    void (Session::*press)();
    std::string print::MarginBoxes::*box;
    std::int16_t print::PageSettings::*setting;
    const char* limit;
    const char* within;
    int moved;
    const char* refusal;
};

class MarginButtons : public testing::TestWithParam<MarginButton> {};

TEST_P(MarginButtons, atTheLimit_refusesAndElseMoves)
{
    TwoLines s;
    s.session.printdialog.*GetParam().box = GetParam().limit;
    (s.session.*GetParam().press)();
    EXPECT_EQ(s.desktop.told, (std::vector{Told{Icon::information, GetParam().refusal}}));
    EXPECT_EQ(s.session.printdialog.*GetParam().box, GetParam().limit);
    s.session.printdialog.*GetParam().box = GetParam().within;
    (s.session.*GetParam().press)();
    EXPECT_EQ(s.session.printdialog.*GetParam().box, std::to_string(GetParam().moved));
    EXPECT_EQ(s.session.pagesettings.*GetParam().setting, GetParam().moved);
    EXPECT_EQ(s.desktop.told.size(), 1U);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Buttons, MarginButtons, testing::Values(
    MarginButton{"cmdtopdown",  &Session::cmdtopdown_Click,  &print::MarginBoxes::txttop,  &print::PageSettings::topmargin,  "0",  "1",  0,  "sorry, cannot go lower than 0"},
    MarginButton{"cmdtopup",    &Session::cmdtopup_Click,    &print::MarginBoxes::txttop,  &print::PageSettings::topmargin,  "30", "29", 30, "sorry, cannot go higher than 30"},
    MarginButton{"cmdleftdown", &Session::cmdleftdown_Click, &print::MarginBoxes::txtleft, &print::PageSettings::leftmargin, "0",  "6",  5,  "sorry, cannot go lower than 0"},
    MarginButton{"cmdleftup",   &Session::cmdleftup_Click,   &print::MarginBoxes::txtleft, &print::PageSettings::leftmargin, "30", "6",  7,  "sorry, cannot go higher than 30"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Print, page_comesOutWithItsMargins)
{
    TwoLines s;
    s.session.cmdprint_Click();
    ASSERT_EQ(s.desktop.printed.size(), 1U);
    const ui::PrintJob& job = s.desktop.printed.front();
    EXPECT_EQ(job.pages, (std::vector<std::vector<std::string>>{{"", "", "", "      one", "      two"}}));
    EXPECT_EQ(job.points, 11);
    EXPECT_EQ(job.name, "tonefret chords");
    EXPECT_TRUE(job.pdf.empty());
    EXPECT_EQ(s.desktop.paperasked, std::vector{11});
    EXPECT_EQ(s.session.page.text, "one\ntwo");
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::printdialog});
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_TRUE(s.desktop.asked.empty());
}

TEST(Print, typedMargins_areStored)
{
    TwoLines s;
    s.session.txttop_Change("-4");
    s.session.txtleft_Change("44 characters");
    s.session.cmdprint_Click();
    EXPECT_EQ(s.session.pagesettings.topmargin, 0);
    EXPECT_EQ(s.session.pagesettings.leftmargin, 30);
    EXPECT_EQ(s.desktop.printed.front().pages.front().front(), std::string(30, ' ') + "one");
}

TEST(Print, moreLinesThanThePaperHas_takesMorePages)
{
    TwoLines s;
    s.desktop.room = {80, 3};
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.printed.front().pages,
              (std::vector<std::vector<std::string>>{{"", "", ""}, {"      one", "      two"}}));
}

TEST(Print, linesTooLong_areToldFirst)
{
    TwoLines s;
    s.desktop.room = {8, 60};
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.told, (std::vector{Told{Icon::information,
                                                "Lines too long for the paper: 2\nOnly 8 characters fit on a line in "
                                                "this font size;\nwhat is longer goes on in the next line."}}));
    EXPECT_EQ(s.desktop.printed.front().pages,
              (std::vector<std::vector<std::string>>{{"", "", "", "      on", "e", "      tw", "o"}}));
}

TEST(Print, failure_isTold)
{
    TwoLines s;
    s.desktop.printfailure = "out of paper";
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.told, (std::vector{Told{Icon::critical, "Cannot print\nout of paper"}}));
    EXPECT_EQ(s.session.page.text, "one\ntwo");
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::printdialog});
}

TEST(Print, emptyPage_getsItsHeading)
{
    Started s;
    s.session.mnupiano_Click();
    s.session.chordprint();
    s.session.rtbprint_Change("");
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.printed.front().pages.front().back(),
              "      Chords:  KEYBOARD     (* = keys to press, + = alternate choices)");
}

TEST(PrintDialog, cancel_printsNothing)
{
    TwoLines s;
    s.session.txttop_Change("20");
    s.session.cmdcancel_Click();
    EXPECT_TRUE(s.desktop.printed.empty());
    EXPECT_EQ(s.session.pagesettings.topmargin, 3);
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::printdialog});
}

TEST(NoPrinter, declined_printsNothing)
{
    TwoLines s;
    s.desktop.printer = false;
    s.desktop.answers = {ui::Answer::no};
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.asked, (std::vector{Asked{noprinter, ""}}));
    EXPECT_TRUE(s.desktop.pickasked.empty());
    EXPECT_TRUE(s.desktop.printed.empty());
    EXPECT_EQ(s.session.page.text, "one\ntwo");
    EXPECT_EQ(s.desktop.closed, std::vector{Screen::printdialog});
}

TEST(NoPrinter, accepted_writesThePickedFile)
{
    TwoLines s;
    s.desktop.printer = false;
    s.desktop.answers = {ui::Answer::yes};
    s.desktop.files = {s.session.workdir / "chords"};
    s.session.cmdprint_Click();
    EXPECT_EQ(s.desktop.pickasked, (std::vector{tests::PickAsked{ui::Direction::save, {"PDF Files (*.pdf)|*.pdf"}}}));
    ASSERT_EQ(s.desktop.printed.size(), 1U);
    EXPECT_EQ(s.desktop.printed.front().pdf, s.session.workdir / "chords.pdf");
    EXPECT_EQ(s.desktop.printed.front().pages.front().size(), 5U);
}

TEST(NoPrinter, cancelledFileDialog_printsNothing)
{
    TwoLines s;
    s.desktop.printer = false;
    s.desktop.answers = {ui::Answer::yes};
    s.session.cmdprint_Click();
    EXPECT_TRUE(s.desktop.printed.empty());
}

TEST(NoPrinter, fileThatExists_isAskedAbout)
{
    for (const ui::Answer answer : {ui::Answer::yes, ui::Answer::no}) {
        TwoLines s;
        s.desktop.printer = false;
        s.desktop.answers = {ui::Answer::yes, answer};
        s.desktop.files = {s.session.workdir / "chords.pdf"};
        std::ofstream(s.session.workdir / "chords.pdf") << "old";
        s.session.cmdprint_Click();
        EXPECT_EQ(s.desktop.asked,
                  (std::vector{Asked{noprinter, ""}, Asked{"Overwrite existing file?", "Overwrite File Message"}}));
        EXPECT_EQ(s.desktop.printed.empty(), answer == ui::Answer::no);
    }
}

} // namespace
