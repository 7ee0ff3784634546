// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/fulldisk.h"
#include "tests/support/headers.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using tests::Asked;
using tests::guitar;
using tests::PickAsked;
using tests::settings;
using tests::Started;
using tests::Told;
using ui::Answer;

const Asked overwrite{"Overwrite existing file?", "Overwrite File Message"};

/// A session beside which files can be picked.
class LoadSave : public testing::Test {
protected:
    fs::path named(const std::string& name) const { return directory.path / name; }

    void save(const std::string& name)
    {
        s.desktop.files.push_back(named(name));
        s.session.mnusave_Click();
    }
    void load(const std::string& name)
    {
        s.desktop.files.push_back(named(name));
        s.session.mnuload_Click();
    }

    tests::Directory directory;
    Started s{directory};
};

TEST_F(LoadSave, dialogs_offerTheirFilters)
{
    s.session.mnuload_Click();
    s.session.mnusave_Click();
    EXPECT_EQ(s.desktop.pickasked,
              (std::vector<PickAsked>{{ui::Direction::open, {"All Files (*.*)|*.*", "Text Files(*.txt)|*.txt"}},
                                      {ui::Direction::save, {"Text Files (*.txt)|*.txt"}}}));
}

TEST_F(LoadSave, cancel_changesNothing)
{
    const fs::path before = s.session.datapath;
    s.session.mnuload_Click();
    s.session.mnusave_Click();
    EXPECT_EQ(directory.names(), "");
    EXPECT_EQ(s.session.datapath, before);
    EXPECT_FALSE(s.session.customchanged);
    EXPECT_TRUE(s.desktop.told.empty() && s.desktop.asked.empty());
}

TEST_F(LoadSave, emptyPage_savesTheDataAlone)
{
    s.session.customtable[2] = {"A", "0349279B"};
    save("mine.txt");
    EXPECT_EQ(directory.read("mine.txt"), guitar + "A;0349279B;\r\n");
    EXPECT_EQ(s.session.datapath, named("mine.txt"));
    EXPECT_TRUE(s.desktop.asked.empty());
    EXPECT_FALSE(s.session.customchanged);
    EXPECT_EQ(s.session.customtable[0].name, "A"); // the gaps are closed
}

TEST_F(LoadSave, page_standsBeforeTheData)
{
    s.session.page.text = "C major\n\nD";
    save("mine.txt");
    EXPECT_EQ(directory.read("mine.txt"), "C major\n\nD\r\n" + guitar + "\r\n");
}

TEST_F(LoadSave, nameWithoutEnding_getsTxt)
{
    const std::pair<const char*, const char*> names[] = {
        {"mine", "mine.txt"}, {"v1.5 mine", "v1.5 mine"}, {"mine.dat", "mine.dat"}, {".hidden", ".hidden.txt"}};
    for (const auto& [typed, written] : names) {
        save(typed);
        EXPECT_EQ(directory.names(), written) << typed;
        fs::remove(written);
    }
}

TEST_F(LoadSave, existingFile_isOverwrittenAfterYesOnly)
{
    directory.write("mine.txt", "old");
    for (const char* typed : {"mine.txt", "mine"}) { // also the name that it gets
        save(typed);
        EXPECT_EQ(directory.read("mine.txt"), "old");
    }
    s.desktop.answers.push_back(Answer::yes);
    save("mine");
    EXPECT_EQ(directory.read("mine.txt"), guitar + "\r\n");
    EXPECT_EQ(s.desktop.asked, (std::vector<Asked>{overwrite, overwrite, overwrite}));
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST_F(LoadSave, fileThatCannotBeWritten_isToldByNameAndReason)
{
    save("no/where.txt");
    EXPECT_EQ(s.desktop.told, (std::vector<Told>{{ui::Icon::critical, "Cannot write " + named("no/where.txt").string() +
                                                                          "\nNo such file or directory"}}));
}

TEST_F(LoadSave, fileThatCannotBeRead_isToldAndChangesNothing)
{
    s.session.page.text = "page";
    s.session.customtable[0] = {"A", "0349279B"};
    fs::create_directory("folder");
    load("none.txt");
    load("folder");
    EXPECT_EQ(s.desktop.told,
              (std::vector<Told>{
                  {ui::Icon::critical, "Cannot read " + named("none.txt").string() + "\nNo such file or directory"},
                  {ui::Icon::critical, "Cannot read " + named("folder").string() + "\nIs a directory"}}));
    EXPECT_EQ(s.session.page.text, "page");
    EXPECT_EQ(s.session.customtable[0].name, "A");
    EXPECT_FALSE(s.session.customchanged);
}

TEST_F(LoadSave, data_isAppliedAndSavedAtTheEnd)
{
    directory.write("mine.txt", "tonefret:       CUSTOM;10 60 2 910 1 5310 0;open;1149279B;\r\n");
    load("mine.txt");
    EXPECT_EQ(s.session.datapath, named("mine.txt"));
    EXPECT_EQ(s.session.cbotuning.text, "open");
    EXPECT_EQ(s.opennotes(), "E A D G");
    EXPECT_EQ(s.session.cboleft.text, "Left Hand");
    EXPECT_EQ(s.session.pagesettings.charactersperline, 60);
    EXPECT_EQ(s.mode(), 3);
    EXPECT_EQ(s.rowtext(5).substr(0, 8), "E F F# G");
    EXPECT_TRUE(s.session.marks.mnusharp && s.session.marks.mnuboth);
    EXPECT_EQ(s.session.keyboard.key[1].caption, "C# Db");
    EXPECT_TRUE(s.session.customchanged);
    EXPECT_TRUE(s.desktop.told.empty());
    s.session.tonefretexit();
    EXPECT_EQ(directory.read("tonefret.txt"), "Tonefret:       CUSTOM;10 60 2 910 1 5310 0;open;1149279B;\r\n");
}

TEST_F(LoadSave, data_leavesThePage)
{
    s.session.page.text = "page";
    directory.write("mine.txt", guitar);
    load("mine.txt");
    EXPECT_EQ(s.session.page.text, "page");
}

TEST_F(LoadSave, brokenData_isToldAndWhatIsWholeTaken)
{
    s.session.customtable[0] = {"former", "0349279B"};
    directory.write("mine.txt", guitar + "A;0349279B;B;03");
    load("mine.txt");
    EXPECT_EQ(s.desktop.told,
              (std::vector<Told>{{ui::Icon::information, "Problem with Option Custom Data; am aborting"}}));
    EXPECT_EQ(s.session.customtable[0].name, "A");
    EXPECT_EQ(s.session.customtable[1].name, "");
    EXPECT_TRUE(s.session.customchanged);
    EXPECT_EQ(directory.read("mine.txt"), guitar + "A;0349279B;B;03");
}

TEST_F(LoadSave, pageWithData_loadsBoth)
{
    s.session.page.text = "C major\n";
    s.session.customtable[0] = {"A", "0349279B"};
    save("both.txt");
    s.session.page.text.clear();
    s.session.customtable = {};
    load("both.txt");
    EXPECT_EQ(s.session.page.text, "C major\n");
    EXPECT_EQ(s.session.customtable[0].name, "A");
    EXPECT_TRUE(s.session.customchanged);
}

TEST_F(LoadSave, otherText_isAPage)
{
    s.session.customtable[0] = {"A", "0349279B"};
    for (const char* bytes : {"TONEFRET:x", "C\r\nTonefret:;", "Caf\xE9", ""}) {
        directory.write("page.txt", bytes);
        s.session.page.text = "former";
        load("page.txt");
        EXPECT_EQ(s.session.customtable[0].name, "A") << bytes;
        EXPECT_FALSE(s.session.customchanged) << bytes;
    }
    EXPECT_EQ(s.session.page.text, "");
    directory.write("page.txt", "Caf\xE9\r\nD\r\n");
    load("page.txt");
    EXPECT_EQ(s.session.page.text, "Caf\xC3\xA9\nD\n");
    directory.write("page.txt", "C\rD\r\rE");
    load("page.txt");
    EXPECT_EQ(s.session.page.text, "C\nD\n\nE");
    const std::string withnulls("C\0D\n\0", 5);
    directory.write("page.txt", withnulls);
    load("page.txt");
    EXPECT_EQ(s.session.page.text, withnulls);
}

TEST_F(LoadSave, saveToAPickedFile_isNotWhatTheEndCompares)
{
    s.session.tonefretexit();
    Started again(directory);
    again.session.dosharps();
    again.desktop.files.push_back(named("mine.txt"));
    again.session.mnusave_Click();
    EXPECT_FALSE(again.session.customchanged);
    again.session.tonefretexit();
    EXPECT_EQ(directory.read("tonefret.txt"), "Tonefret:       GUITAR;00 72 4 801 3 6300 0;\r\n");
}

TEST_F(LoadSave, openEditScreen_showsTheFirstFreePlaceAndKeepsItsChoices)
{
    s.session.mnucustom_Click();
    s.session.editform.chkleft_Click();
    s.session.editform.Option2_Click(instruments::StringLayout::fourstrings);
    s.session.editform.cmdret_Click(5);
    directory.write("mine.txt", guitar + "A;03292692;B;03292692;");
    load("mine.txt");
    const custom::EditForm& form = s.session.editform;
    EXPECT_EQ(form.txtnum(), " 2");
    EXPECT_TRUE(form.chkleft);
    EXPECT_EQ(form.Option2, instruments::StringLayout::fourstrings);
    EXPECT_EQ(form.txtnote.at(custom::selectionbox), "E");
}

TEST_F(LoadSave, nameWithALineEnd_comesBackFromBehindAPage)
{
    s.session.customtable[0] = {"A\nB", "0349279B"};
    s.session.page.text = "page\nTonefret: quoted\nmore";
    save("mine.txt");
    s.session.customtable = {};
    s.session.page.text.clear();
    load("mine.txt");
    EXPECT_EQ(s.session.customtable[0].name, "A\nB");
    EXPECT_EQ(s.session.page.text, "page\nTonefret: quoted\nmore");
}

TEST_F(LoadSave, dataFileItself_isWrittenAloneAtTheEnd)
{
    s.session.customtable[0] = {"A", "0349279B"};
    s.session.page.text = "page";
    directory.write("tonefret.txt", guitar);
    s.desktop.answers = {Answer::yes};
    save("tonefret.txt");
    EXPECT_EQ(directory.read("tonefret.txt"), "page\r\n" + guitar + "A;0349279B;\r\n");
    s.session.tonefretexit();
    EXPECT_EQ(directory.read("tonefret.txt"), guitar + "A;0349279B;\r\n");
}

TEST(LoadSaveDamaged, dataFileItself_isKeptBeforeASaveOverIt)
{
    const tests::Directory directory;
    directory.write("tonefret.txt", guitar + "broken");
    Started s{directory};
    s.desktop.files.push_back(directory.path / "tonefret.txt");
    s.desktop.answers = {Answer::yes};
    s.session.mnusave_Click();
    EXPECT_EQ(directory.read("tonefret.damaged.txt"), guitar + "broken");
    EXPECT_EQ(directory.read("tonefret.txt"), guitar + "\r\n");
}

TEST_F(LoadSave, pageSavedOverTheDataFile_isKeptBesideAtTheEnd)
{
    directory.write("tonefret.txt", guitar);
    s.session.page.text = "page";
    s.desktop.answers = {Answer::yes};
    s.desktop.files.push_back(directory.path / "tonefret.txt");
    s.session.mprint_mnusave_Click();
    EXPECT_EQ(directory.read("tonefret.txt"), "page\r\n");
    s.session.tonefretexit();
    EXPECT_EQ(directory.read("tonefret.txt"), guitar + "\r\n");
    EXPECT_EQ(directory.read("tonefret.damaged.txt"), "page\r\n");
}

TEST(LoadSaveDamaged, dataFileThatCannotBeKept_isNotSavedOver)
{
    const tests::Directory directory;
    const std::string damaged = guitar + std::string(5000, 'x');
    directory.write("tonefret.txt", damaged);
    Started s{directory};
    s.desktop.files.push_back(directory.path / "tonefret.txt");
    s.desktop.answers = {Answer::yes};
    const tests::FullDisk disk(1000);
    s.session.mnusave_Click();
    ASSERT_EQ(s.desktop.told.size(), 1U);
    EXPECT_TRUE(s.desktop.told[0].text.starts_with("Cannot keep the file ")) << s.desktop.told[0].text;
    EXPECT_EQ(directory.names(), "tonefret.txt");
    EXPECT_EQ(directory.read("tonefret.txt"), damaged);
}

} // namespace
