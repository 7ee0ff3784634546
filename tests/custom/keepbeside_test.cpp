// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/keepbeside.h"
#include "tests/support/directory.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using custom::keepbeside;

class KeepBeside : public testing::Test {
protected:
    tests::Directory directory;
    fs::path file = directory.path / "tonefret.txt";
};

TEST_F(KeepBeside, severalTimes_takesANewNameEachTime)
{
    for (const char* bytes : {"one", "two", "three\xFF"}) {
        directory.write("tonefret.txt", bytes);
        EXPECT_FALSE(keepbeside(file));
        EXPECT_EQ(directory.read("tonefret.txt"), bytes);
    }
    EXPECT_EQ(directory.names(), "tonefret.damaged-2.txt tonefret.damaged-3.txt tonefret.damaged.txt tonefret.txt");
    EXPECT_EQ(directory.read("tonefret.damaged.txt"), "one");
    EXPECT_EQ(directory.read("tonefret.damaged-2.txt"), "two");
    EXPECT_EQ(directory.read("tonefret.damaged-3.txt"), "three\xFF");
}

TEST_F(KeepBeside, takenNameOfAnyKind_isNotTouched)
{
    directory.write("tonefret.txt", "one");
    fs::create_directory("tonefret.damaged.txt");
    fs::create_symlink("nowhere", "tonefret.damaged-2.txt");
    EXPECT_FALSE(keepbeside(file));
    EXPECT_EQ(directory.read("tonefret.damaged-3.txt"), "one");
    EXPECT_FALSE(fs::exists("nowhere"));
}

TEST_F(KeepBeside, noFile_isNothingToKeep)
{
    EXPECT_FALSE(keepbeside(file));
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(keepbeside(file));
    EXPECT_EQ(directory.names(), "tonefret.txt");
}

TEST_F(KeepBeside, fileThatCannotBeRead_isRenamed)
{
    directory.write("tonefret.txt", "x");
    fs::resize_file(file, (std::uintmax_t{1} << 30U) + 1); // more than is read
    directory.write("tonefret.damaged.txt", "taken");
    EXPECT_FALSE(keepbeside(file));
    EXPECT_EQ(directory.names(), "tonefret.damaged-2.txt tonefret.damaged.txt");
    EXPECT_EQ(fs::file_size("tonefret.damaged-2.txt"), (std::uintmax_t{1} << 30U) + 1);
    EXPECT_EQ(directory.read("tonefret.damaged.txt"), "taken");
}

} // namespace
