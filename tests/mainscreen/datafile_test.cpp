// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/fulldisk.h"
#include "tests/support/headers.h"
#include "tests/support/huge.h"
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using tests::Directory;
using tests::guitar;
using tests::settings;
using tests::Started;
using tests::Told;

const std::string custom = "Tonefret:       CUSTOM;" + settings + ";";
constexpr const char* datafile = "tonefret.txt";
const Told aborting{ui::Icon::information, "Problem with Option Custom Data; am aborting"};

/// The data of a test with a data file of its own.
class DataFile : public testing::Test {
protected:
    /// Starts, acts and quits; returns the file that is left.
    template <typename Act>
    std::string session(const Act& act)
    {
        Started s(directory);
        act(s);
        s.session.tonefretexit();
        EXPECT_EQ(s.desktop.left, 1);
        return directory.read(datafile);
    }
    std::string session()
    {
        return session([](Started&) {});
    }

    Directory directory;
};

TEST_F(DataFile, firstQuit_writesTheSettingsOfAFirstStart)
{
    EXPECT_EQ(session(), guitar + "\r\n");
    EXPECT_EQ(directory.names(), datafile);
}

TEST_F(DataFile, nothingChanged_writesNothing)
{
    directory.write(datafile, guitar + "A;0349279B;\n\n");
    EXPECT_EQ(session(), guitar + "A;0349279B;\n\n"); // not even its line end
}

struct ChangeRow {
    const char* row;
    void (*act)(Started&);
    const char* header;
};

class Change : public DataFile, public testing::WithParamInterface<ChangeRow> {};

TEST_P(Change, quitAndStart_keepsIt)
{
    const ChangeRow& row = GetParam();
    session();
    const std::string written = session(row.act);
    EXPECT_EQ(written, "Tonefret:" + std::string(row.header) + ";\r\n");
    EXPECT_EQ(session(), written);
    const Started again(directory);
    Started first;
    row.act(first);
    EXPECT_EQ(again.session.cbotype.text, first.session.cbotype.text);
    EXPECT_EQ(again.session.cbotype.index, first.session.cbotype.index);
    EXPECT_EQ(again.session.cboleft.text, first.session.cboleft.text);
    EXPECT_EQ(again.session.fretboard.hand, first.session.fretboard.hand);
    EXPECT_EQ(again.opennotes(), first.opennotes());
    EXPECT_EQ(again.session.keyboard.key, first.session.keyboard.key);
    EXPECT_EQ(again.session.marks.mnuboth, first.session.marks.mnuboth);
    EXPECT_EQ(again.session.marks.bold, first.session.marks.bold);
    EXPECT_EQ(again.mode(), first.mode());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Acts, Change, testing::Values(
    ChangeRow{"nothing",   [](Started&) {},                                      "       GUITAR;00 72 4 801 3 6000 0"},
    ChangeRow{"bass",      [](Started& s) { s.pickfamily("         BASS"); },    "         BASS;00 72 4 801 3 6000 0"},
    ChangeRow{"steel",     [](Started& s) { s.pickfamily(" STEEL, DOBRO"); },    " STEEL, DOBRO;00 72 4 801 3 6000 0"},
    ChangeRow{"left hand", [](Started& s) { s.session.cboleft_Click(1); },       "       GUITAR;10 72 4 801 3 6000 0"},
    ChangeRow{"mix1",      [](Started& s) { s.session.domix1(); },               "       GUITAR;00 72 4 801 3 6100 0"},
    ChangeRow{"mix2",      [](Started& s) { s.session.domix2(); },               "       GUITAR;00 72 4 801 3 6200 0"},
    ChangeRow{"sharps",    [](Started& s) { s.session.dosharps(); },             "       GUITAR;00 72 4 801 3 6300 0"},
    ChangeRow{"auto",      [](Started& s) { s.session.doauto(); },               "       GUITAR;00 72 4 801 3 6101 0"},
    ChangeRow{"show both", [](Started& s) { s.session.mnuboth_Click(); },        "       GUITAR;00 72 4 801 3 6010 0"}),
    [](const auto& row) { return tests::rowname(row.param.row); });
// clang-format on

TEST_F(DataFile, tuningNotesAndCapo_areNotKept)
{
    session();
    EXPECT_EQ(session([](Started& s) {
                  s.picktuning("Drop D tuning");
                  s.pickcapo("3rd fret  capo / bar");
                  s.enter("C E G");
              }),
              guitar + "\r\n");
    const Started s(directory);
    EXPECT_EQ(s.opennotes(), "E A D G B E");
}

TEST_F(DataFile, pageSettings_areKept)
{
    EXPECT_EQ(session([](Started& s) { s.session.pagesettings = {145, 20, 14, true, false, 30, 9}; }),
              "Tonefret:       GUITAR;0014520141030 9000 0;\r\n");
    const Started s(directory);
    const print::PageSettings& page = s.session.pagesettings;
    EXPECT_EQ(page.charactersperline, 145);
    EXPECT_EQ(page.spacing, 20);
    EXPECT_EQ(page.fontsize, 14);
    EXPECT_TRUE(page.multiple);
    EXPECT_FALSE(page.alternate);
    EXPECT_EQ(page.topmargin, 30);
    EXPECT_EQ(page.leftmargin, 9);
}

TEST_F(DataFile, customFamily_isListedAndAppliedAtTheStart)
{
    directory.write(datafile, custom + "mine;1149279B;other;03000000;\r\n");
    const Started s(directory);
    EXPECT_EQ(s.session.cbotype.text, "       CUSTOM");
    EXPECT_EQ(s.session.cbotuning.items, (std::vector<std::string>{"mine", "other"}));
    EXPECT_EQ(s.session.cbotuning.text, "mine");
    EXPECT_EQ(s.session.cboleft.text, "Left Hand"); // the entry's, though the settings have the right one
    EXPECT_EQ(s.opennotes(), "E A D G");
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST_F(DataFile, gapInTheTable_isClosedWhenItIsWritten)
{
    EXPECT_EQ(session([](Started& s) {
                  s.session.customtable[1] = {"A", "0349279B"};
                  s.session.customtable[50] = {"B", "13??????"};
              }),
              guitar + "A;0349279B;B;13??????;\r\n");
}

TEST_F(DataFile, dataOfAnotherLength_isToldAndCutsTheFile)
{
    Started s(directory);
    s.session.customtable[0] = {"A", "0349279B"};
    s.session.customtable[1] = {"B", "034"};
    s.session.customtable[2] = {"C", "0349279B"};
    s.session.tonefretexit();
    EXPECT_EQ(s.desktop.told, (std::vector<Told>{{ui::Icon::critical, "option data for custom information:  1\n"
                                                                      "is not the right length.  Caution, data\n"
                                                                      "file may be cut short"}}));
    EXPECT_EQ(directory.read(datafile), guitar + "A;0349279B;\r\n");
    EXPECT_EQ(s.desktop.left, 1);
}

struct FileRow {
    const char* row;
    std::string bytes;
    bool told;
    bool kept;
    std::string after; ///< the file after start and quit
};

class AnyFile : public DataFile, public testing::WithParamInterface<FileRow> {};

TEST_P(AnyFile, startAndQuit_losesNothing)
{
    const FileRow& row = GetParam();
    directory.write(datafile, row.bytes);
    Started s(directory);
    EXPECT_EQ(s.desktop.told, row.told ? std::vector<Told>{aborting} : std::vector<Told>{});
    EXPECT_EQ(directory.read(datafile), row.bytes); // until something is written, nothing is kept
    EXPECT_EQ(directory.names(), datafile);
    s.session.tonefretexit();
    EXPECT_EQ(directory.read(datafile), row.after);
    EXPECT_EQ(directory.names(), row.kept ? "tonefret.damaged.txt tonefret.txt" : datafile);
    if (row.kept) {
        EXPECT_EQ(directory.read("tonefret.damaged.txt"), row.bytes);
    }
}

constexpr const char* ascii = "A;0349279B;";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, AnyFile, testing::Values(
    //      row                  bytes                                                told   kept   after
    FileRow{"whole",             guitar + ascii,                                      false, false, guitar + ascii},
    FileRow{"empty",             "",                                                  false, false, guitar + "\r\n"},
    FileRow{"line end",          "\r\n",                                              false, false, guitar + "\r\n"},
    FileRow{"signature",         "Tonefret:",                                         false, false, guitar + "\r\n"},
    FileRow{"mark",              "\xEF\xBB\xBF" + guitar + ascii,                     false, false, "\xEF\xBB\xBF" + guitar + ascii},
    FileRow{"family in blanks",  "Tonefret: GUITAR ;" + settings + ";",               false, false, guitar + "\r\n"},
    FileRow{"family, no blanks", "Tonefret:STEEL,DOBRO;" + settings + ";",            false, false, "Tonefret: STEEL, DOBRO;" + settings + ";\r\n"},
    FileRow{"unknown family",    "Tonefret:BANJOS;" + settings + ";",                 false, false, guitar + "\r\n"},
    FileRow{"no family",         "Tonefret:;" + settings + ";",                       false, false, guitar + "\r\n"},
    FileRow{"no numbers",        "Tonefret:       GUITAR;0?x xxxx??xxxxx???xx;",      false, false, "Tonefret:       GUITAR;00  0 0 000 0 0000 0;\r\n"},
    FileRow{"below zero",        "Tonefret:       GUITAR;00-72-4-801-3-6000 0;",      false, false, "Tonefret:       GUITAR;00  0 0 001 0 0000 0;\r\n"},
    FileRow{"digits above 1",    "Tonefret:       GUITAR;00 72 4 879 3 6060 0;",      false, false, "Tonefret:       GUITAR;00 72 4 879 3 6060 0;"},
    FileRow{"mode above 3",      "Tonefret:       GUITAR;00 72 4 801 3 6705 0;",      false, false, "Tonefret:       GUITAR;00 72 4 801 3 6705 0;"},
    FileRow{"8 bit",             guitar + "Caf\xE9;0349279B;",                        false, false, guitar + "Caf\xE9;0349279B;"},
    FileRow{"8 bit, changed",    "Tonefret:GUITAR;" + settings + ";Caf\xE9;0349279B;", false, false, guitar + "Caf\xC3\xA9;0349279B;\r\n"},
    FileRow{"other text",        "C major\r\n",                                       false, true,  guitar + "\r\n"},
    FileRow{"binary",            std::string("\x7F" "ELF\0\0\xFF;;", 9),              false, true,  guitar + "\r\n"},
    FileRow{"capitals",          "TONEFRET:" + guitar.substr(9),                      false, true,  guitar + "\r\n"},
    FileRow{"family alone",      "Tonefret:       GUITAR;",                           true,  true,  guitar + "\r\n"},
    FileRow{"broken settings",   "Tonefret:         BASS;00 72;" + std::string(ascii), true, true,  guitar + "\r\n"},
    FileRow{"broken, same settings", guitar + ascii + "B;034",                        true,  false, guitar + ascii + "B;034"},
    FileRow{"broken, other family",  "Tonefret:BASS;" + settings + ";A;0349279B;B;",  true,  true,  "Tonefret:         BASS;" + settings + ";A;0349279B;\r\n"},
    FileRow{"loose, other family",   "Tonefret:BASS;" + settings + ";A;0349279B;B",   false, true,  "Tonefret:         BASS;" + settings + ";A;0349279B;\r\n"}),
    [](const auto& row) { return tests::rowname(row.param.row); });
// clang-format on

TEST_F(DataFile, digitsAboveOne_meanNo)
{
    directory.write(datafile, "Tonefret:       GUITAR;00 72 4 822 3 6022 0;");
    const Started s(directory);
    EXPECT_FALSE(s.session.pagesettings.multiple);
    EXPECT_FALSE(s.session.pagesettings.alternate);
    EXPECT_FALSE(s.session.spelling.both);
    EXPECT_FALSE(s.session.marks.mnuboth);
    EXPECT_FALSE(s.session.spelling.automatic);
}

TEST_F(DataFile, unknownMode_namesAsTheSecondMixAndMarksNone)
{
    directory.write(datafile, "Tonefret:       GUITAR;00 72 4 801 3 6700 0;");
    Started s(directory);
    EXPECT_EQ(s.rowtext(0), "E F F# G G# A Bb B C C# D Eb E F F# G G# A Bb B");
    EXPECT_FALSE(s.session.marks.mnuflat || s.session.marks.mnumix1 || s.session.marks.mnumix2 ||
                 s.session.marks.mnusharp || s.session.marks.mnuauto);
    EXPECT_EQ(s.session.marks.bold, mainscreen::BoldButton::none);
    s.enter("C E G# Bb");
    EXPECT_EQ(s.notes(), "C E G# Bb");
}

TEST_F(DataFile, moreThan51Entries_keepsTheFirst)
{
    std::string entries;
    for (int i = 0; i < 60; ++i)
        entries += std::to_string(i) + ";0349279B;";
    directory.write(datafile, custom + entries);
    const Started s(directory);
    EXPECT_EQ(s.session.cbotuning.items.size(), 51U);
    EXPECT_EQ(s.session.cbotuning.items.back(), "50");
    EXPECT_EQ(s.desktop.told, std::vector<Told>{aborting});
}

TEST_F(DataFile, damagedTwice_isKeptTwice)
{
    for (const char* bytes : {"one, damaged", "two, damaged"}) {
        directory.write(datafile, bytes);
        session();
    }
    EXPECT_EQ(directory.read("tonefret.damaged.txt"), "one, damaged");
    EXPECT_EQ(directory.read("tonefret.damaged-2.txt"), "two, damaged");
}

TEST_F(DataFile, damagedFileThatCannotBeKept_isNotOverwritten)
{
    const std::string damaged = "something else" + std::string(5000, 'x');
    directory.write(datafile, damaged);
    Started s(directory);
    {
        const tests::FullDisk disk(1000);
        s.session.tonefretexit();
    }
    EXPECT_EQ(s.desktop.told,
              (std::vector<Told>{{ui::Icon::critical,
                                  "Cannot keep the file " + (directory.path / datafile).string() + " beside itself" +
                                      "\nFile too large\nIt is left as it is, and the settings are not saved"}}));
    EXPECT_EQ(directory.names(), datafile);
    EXPECT_EQ(directory.read(datafile), damaged);
    EXPECT_EQ(s.desktop.left, 1);
}

TEST_F(DataFile, whatIsNoFile_isLeftAsItIs)
{
    for (const bool pipe : {false, true}) {
        if (pipe)
            ASSERT_EQ(::mkfifo(datafile, 0600), 0);
        else
            fs::create_directory(datafile);
        Started s(directory);
        EXPECT_EQ(s.opennotes(), "E A D G B E");
        s.session.tonefretexit();
        EXPECT_TRUE(s.desktop.told.empty());
        EXPECT_EQ(s.desktop.left, 1);
        EXPECT_EQ(directory.names(), datafile);
        fs::remove(datafile);
    }
}

TEST_F(DataFile, unwritableFolder_isQuietAndLeavesTheProgram)
{
    Started s(directory);
    fs::remove(directory.path);
    s.session.tonefretexit();
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_EQ(s.desktop.left, 1);
}

TEST_F(DataFile, exceptionWhileSaving_isToldAndLeavesTheProgram)
{
    struct Throwing : tests::RecordingDesktop {
        void tell(ui::Icon icon, const std::string& text) override
        {
            RecordingDesktop::tell(icon, text);
            if (told.size() == 1)
                throw std::runtime_error("no such thing");
        }
    } desktop;
    mainscreen::Session session(desktop);
    session.Form_Load();
    session.customtable[0] = {"A", "short"};
    session.tonefretexit();
    EXPECT_EQ(desktop.left, 1);
    ASSERT_EQ(desktop.told.size(), 2U);
    EXPECT_EQ(desktop.told.back(), (Told{ui::Icon::critical, "no such thing"}));
}

TEST_F(DataFile, hundredMegabytes_startInUnderASecond)
{
    for (const std::string& front : {std::string("\xFF"), guitar, custom + "mine;0349279B;\xFF"}) {
        directory.write(datafile, front);
        fs::resize_file(datafile, tests::hugesize);
        const tests::Stopwatch watch;
        const Started s(directory);
        EXPECT_LT(watch.seconds(), 1) << front;
        EXPECT_TRUE(s.desktop.told.empty()) << front;
        EXPECT_EQ(s.session.cbotuning.text, front.starts_with(custom) ? "mine" : "Standard 6 or 12 string");
    }
}

} // namespace
