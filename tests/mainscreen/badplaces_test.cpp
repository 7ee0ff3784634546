// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/fulldisk.h"
#include "tests/support/names.h"
#include "tests/support/ordinaryuser.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

// Start and end where the data file cannot be read or written: what was there stays, nothing is said that
// docs/data-file.md does not promise, and the end always comes.

namespace {

namespace fs = std::filesystem;
using tests::Directory;
using tests::Started;

constexpr const char* datafile = "tonefret.txt";
constexpr const char* elsewhere = "kept/mine.txt";
const std::string settings = ";00 72 4 801 3 6000 0;A;0349279B;";
const std::string before = "Tonefret:GUITAR" + settings; // named otherwise than the program does, so it is written anew
const std::string after = "Tonefret:       GUITAR" + settings + "\r\n";
const std::string firsttime = "Tonefret:       GUITAR;00 72 4 801 3 6000 0;\r\n";

void protect(const fs::path& file, unsigned permissions)
{
    fs::permissions(file, fs::perms{permissions});
}

void writable(const Directory& directory, const std::string& bytes)
{
    directory.write(datafile, bytes);
    protect(datafile, 0666);
}

void linkto(const char* target)
{
    fs::create_symlink(target, datafile);
}

/// A file at the end of more links than the system follows.
void linkfarto(const Directory& directory)
{
    directory.write("kept/0", before);
    protect("kept/0", 0666);
    for (int i = 1; i < 60; ++i)
        fs::create_symlink(std::to_string(i - 1), "kept/" + std::to_string(i));
    linkto("kept/59");
}

struct PlaceRow {
    const char* row;
    void (*prepare)(const Directory&);
    bool told;         ///< a message says that nothing is saved
    std::string names; ///< of what is in the folder afterwards
    std::string file;  ///< what the data file's name leads to then; empty: to no file that can be read
};

class BadPlace : public testing::TestWithParam<PlaceRow> {
protected:
    Directory directory;
};

TEST_P(BadPlace, startAndQuit_losesNothingAndComesToItsEnd)
{
    const PlaceRow& row = GetParam();
    fs::create_directory("kept");
    fs::permissions("kept", fs::perms{0777});
    fs::permissions(directory.path, fs::perms{0777});
    row.prepare(directory);
    const bool link = fs::is_symlink(datafile);
    {
        const tests::OrdinaryUser user;
        Started s(directory);
        s.session.tonefretexit();
        EXPECT_EQ(s.desktop.left, 1);
        EXPECT_EQ(s.desktop.told.size(), row.told ? 1U : 0U);
    }
    fs::permissions(directory.path, fs::perms::owner_all);
    EXPECT_EQ(directory.names(), row.names);
    EXPECT_EQ(fs::is_symlink(datafile), link);
    std::error_code circle;
    const bool isfile = fs::is_regular_file(datafile, circle);
    EXPECT_EQ(isfile ? directory.read(datafile) : std::string(), row.file);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Places, BadPlace, testing::Values(
    //       row                     prepare                                                            told   names                  file
    PlaceRow{"read-only folder",     [](const Directory& d) { writable(d, before); protect(d.path, 0555); }, false, "kept tonefret.txt",   before},
    PlaceRow{"read-only, no file",   [](const Directory& d) { protect(d.path, 0555); },                 false, "kept",                ""},
    PlaceRow{"write-protected file", [](const Directory& d) { writable(d, before); protect(datafile, 0444); }, false, "kept tonefret.txt", before},
    PlaceRow{"unreadable file",      [](const Directory& d) { writable(d, before); protect(datafile, 0200); }, false, "kept tonefret.damaged.txt tonefret.txt", firsttime},
    PlaceRow{"unreadable for good",  [](const Directory& d) { writable(d, before); protect(datafile, 0200); protect(d.path, 0555); }, true, "kept tonefret.txt", before},
    PlaceRow{"folder",               [](const Directory&)   { fs::create_directories("tonefret.txt/mine"); }, false, "kept tonefret.txt", ""},
    PlaceRow{"pipe",                 [](const Directory&)   { ASSERT_EQ(::mkfifo(datafile, 0666), 0); },  false, "kept tonefret.txt",   ""},
    PlaceRow{"link to a file",       [](const Directory& d) { d.write(elsewhere, before); protect(elsewhere, 0666); linkto(elsewhere); }, false, "kept tonefret.txt", after},
    PlaceRow{"dangling link",        [](const Directory&)   { linkto(elsewhere); },                     false, "kept tonefret.txt",   firsttime},
    PlaceRow{"link into nowhere",    [](const Directory&)   { linkto("gone/mine.txt"); },               false, "kept tonefret.txt",   ""},
    PlaceRow{"link to a folder",     [](const Directory&)   { linkto("kept"); },                        false, "kept tonefret.txt",   ""},
    PlaceRow{"link to a pipe",       [](const Directory&)   { ASSERT_EQ(::mkfifo("kept/pipe", 0666), 0); linkto("kept/pipe"); }, false, "kept tonefret.txt", ""},
    PlaceRow{"link to a device",     [](const Directory&)   { linkto("/dev/zero"); },                   false, "kept tonefret.txt",   ""},
    PlaceRow{"link in a circle",     [](const Directory&)   { linkto(datafile); },                      true,  "kept tonefret.txt",   ""},
    PlaceRow{"link over many",       linkfarto,                                                         true,  "kept tonefret.txt",   ""}),
    [](const auto& row) { return tests::rowname(row.param.row); });
// clang-format on

TEST(FileBehindManyLinks, startAndQuit_leaveItAndTheLinks)
{
    const Directory directory;
    fs::create_directory("kept");
    linkfarto(directory);
    {
        Started s(directory);
        s.session.tonefretexit();
    }
    EXPECT_EQ(directory.read("kept/0"), before);
    for (int i = 1; i < 60; ++i)
        EXPECT_TRUE(fs::is_symlink("kept/" + std::to_string(i))) << i;
}

TEST(SomebodyElsesFile, thatCannotBeReadOrRenamed_staysAndAMessageSaysSo)
{
    if (!tests::OrdinaryUser::haveothers())
        GTEST_SKIP() << "only root can make somebody else's file";
    const Directory directory;
    directory.write(datafile, before);
    protect(datafile, 0200);
    protect(directory.path, 01777);
    {
        const tests::OrdinaryUser user;
        Started s(directory);
        s.session.tonefretexit();
        EXPECT_EQ(s.desktop.told.size(), 1U);
    }
    EXPECT_EQ(directory.names(), datafile);
    EXPECT_EQ(directory.read(datafile), before);
}

TEST(FullDisk, endOfAChangedSession_leavesTheOldFile)
{
    const Directory directory;
    directory.write(datafile, before);
    Started s(directory);
    {
        const tests::FullDisk disk(before.size() - 1);
        s.session.tonefretexit();
    }
    EXPECT_EQ(s.desktop.left, 1);
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_EQ(directory.names(), datafile);
    EXPECT_EQ(directory.read(datafile), before);
}

TEST(VanishedFolder, startAndQuit_comesToItsEnd)
{
    const Directory directory;
    fs::remove(directory.path);
    Started s(directory);
    EXPECT_EQ(s.opennotes(), "E A D G B E");
    s.session.tonefretexit();
    EXPECT_EQ(s.desktop.left, 1);
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_FALSE(fs::exists(directory.path));
}

} // namespace
