// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textfile.h"
#include "tests/support/directory.h"
#include "tests/support/fulldisk.h"
#include "tests/support/ordinaryuser.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <random>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using core::createtext;
using core::readtext;
using core::replacetext;

class TextFile : public testing::Test {
protected:
    tests::Directory directory;
};

TEST_F(TextFile, bytes_areReadAsTheyAre)
{
    const std::string bytes("a\0\r\n\xFF", 5);
    directory.write("file", bytes);
    EXPECT_EQ(readtext("file").bytes, bytes);
    EXPECT_FALSE(readtext("file").failure);
}

TEST_F(TextFile, noFile_isMissing)
{
    EXPECT_TRUE(readtext("none").missing());
    EXPECT_TRUE(readtext("no/where").missing());
    fs::create_symlink("nowhere", "link");
    EXPECT_TRUE(readtext("link").missing());
}

TEST_F(TextFile, emptyFile_isReadAsEmpty)
{
    directory.write("empty", "");
    EXPECT_FALSE(readtext("empty").failure);
    EXPECT_EQ(readtext("empty").bytes, "");
}

TEST_F(TextFile, whatIsNoFile_isRefusedAndStays)
{
    fs::create_directory("folder");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    fs::create_symlink("pipe", "link");
    for (const char* name : {"folder", "pipe", "link", "/dev/zero"}) {
        EXPECT_TRUE(readtext(name).failure) << name;
        EXPECT_FALSE(readtext(name).missing()) << name;
        EXPECT_TRUE(readtext(name).bytes.empty()) << name;
        EXPECT_TRUE(replacetext(name, "new")) << name;
    }
    EXPECT_TRUE(fs::is_directory("folder"));
    EXPECT_TRUE(fs::is_fifo("pipe"));
    EXPECT_EQ(directory.names(), "folder link pipe");
}

TEST_F(TextFile, hugeFile_isRefusedUnread)
{
    directory.write("huge", "x");
    fs::resize_file("huge", (std::uintmax_t{1} << 30U) + 1);
    EXPECT_EQ(readtext("huge").failure, std::errc::file_too_large);
}

TEST_F(TextFile, replacement_isWholeAndLeavesNothingBeside)
{
    for (const char* bytes : {"one", "", "a longer text\r\n"}) {
        EXPECT_FALSE(replacetext("file", bytes));
        EXPECT_EQ(directory.read("file"), bytes);
        EXPECT_EQ(directory.names(), "file");
    }
}

TEST_F(TextFile, replacement_keepsPermissions)
{
    directory.write("file", "old");
    for (const auto kept : {fs::perms{0600}, fs::perms{0644}, fs::perms{0660}}) {
        fs::permissions("file", kept);
        EXPECT_FALSE(replacetext("file", "new"));
        EXPECT_EQ(fs::status("file").permissions(), kept);
    }
}

TEST_F(TextFile, newFile_obeysTheUsersMask)
{
    const mode_t former = ::umask(027);
    EXPECT_FALSE(replacetext("file", "new"));
    ::umask(former);
    EXPECT_EQ(fs::status("file").permissions(), fs::perms{0640});
}

TEST_F(TextFile, endOfAFileAfterAnInterruption_isItsEnd)
{
    directory.write("empty", "");
    errno = EINTR; // as an interrupted call leaves it
    EXPECT_FALSE(readtext("empty").failure);
}

TEST_F(TextFile, link_staysAndItsTargetIsReplaced)
{
    fs::create_directory("folder");
    directory.write("folder/target", "old");
    fs::create_symlink("folder/target", "link");
    fs::create_symlink(directory.path / "link", "second");
    fs::create_symlink("folder/later", "ahead");
    EXPECT_FALSE(replacetext("second", "new"));
    EXPECT_FALSE(replacetext("ahead", "also new"));
    EXPECT_EQ(directory.read("folder/target"), "new");
    EXPECT_EQ(directory.read("folder/later"), "also new");
    for (const char* link : {"link", "second", "ahead"})
        EXPECT_TRUE(fs::is_symlink(link)) << link;
    EXPECT_EQ(directory.names(), "ahead folder link second");
}

TEST_F(TextFile, chainOfLinks_isFollowedAsFarAsTheSystemFollowsIt)
{
    directory.write("0", "old");
    for (int i = 1; i <= 60; ++i)
        fs::create_symlink(std::to_string(i - 1), std::to_string(i));
    for (int i = 1; i <= 60; ++i) {
        const std::string name = std::to_string(i);
        const std::string before = readtext("0").bytes;
        const bool follows = !readtext(name).failure;
        EXPECT_EQ(!replacetext(name, "new " + name), follows) << name;
        EXPECT_EQ(readtext("0").bytes, follows ? "new " + name : before) << name;
        EXPECT_TRUE(fs::is_symlink(name)) << name;
    }
    EXPECT_FALSE(readtext("20").failure);
    EXPECT_TRUE(readtext("60").failure);
}

TEST_F(TextFile, linkInACircle_isRefused)
{
    fs::create_symlink("b", "a");
    fs::create_symlink("a", "b");
    EXPECT_TRUE(readtext("a").failure);
    EXPECT_TRUE(replacetext("a", "new"));
    EXPECT_EQ(directory.names(), "a b");
}

TEST_F(TextFile, missingFolder_isRefused)
{
    EXPECT_EQ(replacetext("no/where", "new"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(directory.names(), "");
}

TEST_F(TextFile, takenName_isNotCreatedAgain)
{
    EXPECT_FALSE(createtext("file", "one"));
    EXPECT_EQ(createtext("file", "two"), std::errc::file_exists);
    EXPECT_EQ(directory.read("file"), "one");
}

TEST_F(TextFile, leftoverOfAKilledProcess_isNoHindrance)
{
    directory.write("file.new-1", "half");
    EXPECT_FALSE(replacetext("file", "whole"));
    EXPECT_EQ(directory.read("file"), "whole");
    EXPECT_EQ(directory.read("file.new-1"), "half");
}

TEST_F(TextFile, fullDisk_leavesTheOldFileWhole)
{
    const std::string old(3000, 'o');
    const std::string fresh(5000, 'n');
    directory.write("file", old);
    {
        const tests::FullDisk disk(4096);
        EXPECT_EQ(replacetext("file", fresh), std::errc::file_too_large);
        EXPECT_EQ(createtext("other", fresh), std::errc::file_too_large);
        EXPECT_EQ(directory.names(), "file");
        EXPECT_EQ(directory.read("file"), old);
        EXPECT_FALSE(replacetext("file", old + "!"));
    }
    EXPECT_FALSE(replacetext("file", fresh));
    EXPECT_EQ(directory.read("file"), fresh);
}

TEST_F(TextFile, readOnlyFolder_leavesTheOldFileWhole)
{
    directory.write("file", "old");
    fs::permissions("file", fs::perms{0666});
    fs::permissions(directory.path, fs::perms{0555});
    {
        const tests::OrdinaryUser user;
        EXPECT_EQ(replacetext("file", "new"), std::errc::permission_denied);
        EXPECT_EQ(createtext("other", "new"), std::errc::permission_denied);
    }
    EXPECT_EQ(directory.names(), "file");
    EXPECT_EQ(directory.read("file"), "old");
}

TEST_F(TextFile, protectedFile_isNeitherReadNorReplaced)
{
    directory.write("file", "old");
    fs::permissions("file", fs::perms::none);
    fs::permissions(directory.path, fs::perms{0777});
    {
        const tests::OrdinaryUser user;
        EXPECT_EQ(readtext("file").failure, std::errc::permission_denied);
        EXPECT_FALSE(readtext("file").missing());
        EXPECT_EQ(replacetext("file", "new"), std::errc::permission_denied);
    }
    EXPECT_EQ(directory.names(), "file");
    fs::permissions("file", fs::perms{0600});
    EXPECT_EQ(directory.read("file"), "old");
}

TEST_F(TextFile, folderThatCannotBeListed_takesFiles)
{
    fs::permissions(directory.path, fs::perms{0333});
    {
        const tests::OrdinaryUser user;
        EXPECT_FALSE(replacetext("file", "new"));
        EXPECT_FALSE(createtext("other", "new"));
    }
    fs::permissions(directory.path, fs::perms::owner_all);
    EXPECT_EQ(directory.read("file"), "new");
    EXPECT_EQ(directory.names(), "file other");
}

TEST_F(TextFile, somebodyElsesFile_staysWhereOnlyItsOwnerMayTakeItsName)
{
    if (!tests::OrdinaryUser::haveothers())
        GTEST_SKIP() << "only root can make somebody else's file";
    directory.write("file", "old");
    fs::permissions("file", fs::perms{0666});
    fs::permissions(directory.path, fs::perms{01777});
    {
        const tests::OrdinaryUser user;
        EXPECT_EQ(replacetext("file", "new"), std::errc::operation_not_permitted);
    }
    EXPECT_EQ(directory.names(), "file");
    EXPECT_EQ(directory.read("file"), "old");
}

/// Replaces a file over and over, by one text and by the other, until it is killed.
pid_t startwriter(const std::array<std::string, 2>& texts)
{
    const pid_t child = ::fork();
    if (child == 0)
        for (std::size_t i = 0;; ++i)
            if (replacetext("file", texts.at(i % 2)))
                ::_exit(1);
    return child;
}

TEST_F(TextFile, writerKilledAtAnyMoment_leavesNoTornFile)
{
    const std::array<std::string, 2> texts{std::string(40'000, 'a'), std::string(70'000, 'b')};
    ASSERT_FALSE(replacetext("file", texts[0]));
    std::mt19937 random(1);
    int killed = 0;
    for (int i = 0; i < 1000; ++i) {
        const pid_t writer = startwriter(texts);
        ASSERT_GT(writer, 0);
        const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 3000);
        while (std::chrono::steady_clock::now() < end) {
        }
        ::kill(writer, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        killed += WIFSIGNALED(status) ? 1 : 0;
        const std::string left = readtext("file").bytes;
        ASSERT_TRUE(left == texts[0] || left == texts[1]) << "torn at kill " << i << ": " << left.size() << " bytes";
    }
    EXPECT_EQ(killed, 1000); // nothing failed before it was killed, the leftovers of others hindered nobody
}

} // namespace
