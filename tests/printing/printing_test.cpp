// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"
#include "tests/printing/scheduler.h"
#include "tests/support/directory.h"
#include "tests/support/recordingdesktop.h"
#include "ui/qtdesktop.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <sstream>

namespace {

using tests::Queue;
using tests::Scheduler;
using tests::Told;

constexpr const char* question = "There is no printer.  Save the pages as a PDF file instead?";

/// The real printing, without a person to ask.
class PrintingDesktop : public ui::QtDesktop {
public:
    std::vector<Told> told;
    std::vector<tests::Asked> asked;
    std::filesystem::path file; ///< to be picked

    void tell(ui::Icon icon, const std::string& text) override { told.push_back({icon, text}); }
    ui::Answer ask(const std::string& text, const std::string& title) override
    {
        asked.push_back({text, title});
        return ui::Answer::yes;
    }
    std::optional<std::filesystem::path> pickfile(ui::Direction /*direction*/,
                                                  std::span<const ui::FileFilter> /*filters*/) override
    {
        return file;
    }
    void open(ui::Screen /*screen*/) override {}
    void close(ui::Screen /*screen*/) override {}
};

class Printing : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        if (Scheduler::missing().isEmpty())
            scheduler.emplace();
    }
    static void TearDownTestSuite() { scheduler.reset(); }

    void SetUp() override
    {
        if (const QString missing = Scheduler::missing(); !missing.isEmpty())
            GTEST_SKIP() << "a scheduler of its own needs " << missing.toStdString();
        session.Form_Load();
    }

    void open(const std::string& page)
    {
        session.mnuviewprint_Click();
        session.rtbprint_Change(page);
        session.chordprint();
    }

    std::string received(int job) const
    {
        constexpr double pitchofsize = 0.6; // of the fonts that stand for Courier New too
        return scheduler->receivedtext(job, pitchofsize * session.page.fontsize);
    }

    static std::optional<Scheduler> scheduler;
    tests::Directory directory;
    PrintingDesktop desktop;
    mainscreen::Session session{desktop};
};

std::optional<Scheduler> Printing::scheduler;

/// The lines that have something on them, without the blanks that they all begin with.
std::vector<std::string> lines(const std::string& text)
{
    std::vector<std::string> found;
    std::size_t indent = std::string::npos;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) {
        std::erase(line, '\f');
        line.erase(line.find_last_not_of(' ') + 1);
        if (line.empty())
            continue;
        indent = std::min(indent, line.find_first_not_of(' '));
        found.push_back(line);
    }
    for (std::string& line : found)
        line.erase(0, indent);
    return found;
}

/// Numbered lines, more than a sheet of paper holds.
std::string longpage()
{
    std::string text;
    for (int number = 1; number <= 200; ++number)
        text += "line " + std::to_string(number) + (number % 2 == 0 ? "\n" : "   |--*--|-----|\n");
    return text;
}

TEST_F(Printing, page_isOneJobWithAllItsLines)
{
    scheduler->start(Queue::ready);
    const std::string pages[] = {"one\n  two\n\nthree  |--*--|", longpage()};
    int job = 0;
    for (const std::string& page : pages) {
        open(page);
        session.cmdprint_Click();
        EXPECT_EQ(lines(received(++job)), lines(page));
    }
    EXPECT_TRUE(desktop.told.empty());
    EXPECT_TRUE(desktop.asked.empty());
}

TEST_F(Printing, photographedChords_comeOutAsOnThePage)
{
    scheduler->start(Queue::ready);
    session.mnuguitar_Click();
    for (const int type : {0, 4, 9, 14, 27}) {
        session.key_Click(mainscreen::resetkey);
        session.key_Click(type % 12);
        session.Crd_Click(type);
        session.photochord();
    }
    session.mnuviewprint_Click();
    session.chordprint();
    session.cmdprint_Click();
    EXPECT_GT(lines(session.page.text).size(), 19U);
    EXPECT_EQ(lines(received(1)), lines(session.page.text));
    EXPECT_TRUE(desktop.told.empty());
}

TEST_F(Printing, queueThatTakesNoJobs_isTold)
{
    scheduler->start(Queue::rejecting);
    open("one");
    session.cmdprint_Click();
    ASSERT_EQ(desktop.told.size(), 1U);
    EXPECT_EQ(desktop.told.front().icon, ui::Icon::critical);
    EXPECT_THAT(desktop.told.front().text, testing::StartsWith("Cannot print\n"));
    EXPECT_EQ(session.page.text, "one");
}

TEST_F(Printing, withoutQueues_writesTheFile)
{
    scheduler->start(Queue::none);
    desktop.file = directory.path / "chords.pdf";
    open("one");
    session.cmdprint_Click();
    EXPECT_EQ(desktop.asked, (std::vector{tests::Asked{question, ""}}));
    EXPECT_TRUE(desktop.told.empty());
    EXPECT_EQ(directory.names(), "chords.pdf");
}

TEST_F(Printing, schedulerGoneBehindTheOpenDialog_writesTheFile)
{
    scheduler->start(Queue::ready);
    desktop.file = directory.path / "chords.pdf";
    open("one");
    scheduler->stop();
    session.cmdprint_Click();
    EXPECT_EQ(desktop.asked, (std::vector{tests::Asked{question, ""}}));
    EXPECT_TRUE(desktop.told.empty());
    EXPECT_EQ(directory.names(), "chords.pdf");
}

TEST_F(Printing, queueGoneBehindTheOpenDialog_writesTheFile)
{
    scheduler->start(Queue::ready);
    desktop.file = directory.path / "chords.pdf";
    open("one");
    scheduler->start(Queue::none);
    session.cmdprint_Click();
    EXPECT_EQ(desktop.asked, (std::vector{tests::Asked{question, ""}}));
    EXPECT_EQ(directory.names(), "chords.pdf");
}

TEST_F(Printing, schedulerGoneAtTheLastMoment_isTold)
{
    scheduler->start(Queue::ready);
    ASSERT_TRUE(desktop.hasprinter());
    scheduler->stop();
    EXPECT_EQ(desktop.print({.name = "chords", .points = 11, .pages = {{"one"}}, .pdf = {}}),
              "There is no printer any more");
}

} // namespace
