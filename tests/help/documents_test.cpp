// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/documents.h"
#include "tests/support/ordinaryuser.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;

/// Two folders of the test's own.
class Documents : public testing::Test {
protected:
    void SetUp() override
    {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        root = fs::path(testing::TempDir()) / (std::string("tonefret_documents_") + test->name());
        fs::remove_all(root);
        first = root / "first";
        second = root / "second";
        fs::create_directories(first);
        fs::create_directories(second);
    }
    void TearDown() override
    {
        std::error_code left;
        fs::remove_all(root, left);
    }

    static void write(const fs::path& folder, const std::string& bytes)
    {
        std::ofstream(folder / "helpmc.rtf", std::ios::binary) << bytes;
    }
    std::optional<std::string> load() const { return help::loaddata("helpmc.rtf", {first, second}); }

    fs::path root;
    fs::path first;
    fs::path second;
};

TEST(DocumentNames, names_areThoseOfTheInstalledFiles)
{
    EXPECT_EQ(help::completehelp, "helpmc.rtf");
    EXPECT_EQ(help::basichelp, "helpmb.rtf");
}

TEST_F(Documents, documentInNeitherFolder_isNothing)
{
    EXPECT_EQ(load(), std::nullopt);
}

TEST_F(Documents, documentInBothFolders_isTheFirst)
{
    write(first, "one");
    write(second, "two");
    EXPECT_EQ(load(), "one");
}

TEST_F(Documents, documentInTheSecondFolder_isRead)
{
    write(second, std::string("t\0w\r\no", 6));
    EXPECT_EQ(load(), std::string("t\0w\r\no", 6));
}

TEST_F(Documents, emptydocument_isEmptyAndNotNothing)
{
    write(first, "");
    write(second, "two");
    EXPECT_EQ(load(), "");
}

TEST_F(Documents, folderOfThatName_isPassedOver)
{
    fs::create_directory(first / "helpmc.rtf");
    write(second, "two");
    EXPECT_EQ(load(), "two");
}

TEST_F(Documents, unreadabledocument_isPassedOver)
{
    fs::create_symlink("helpmc.rtf", first / "helpmc.rtf"); // leads to itself; also unreadable for who may read all
    write(second, "two");
    EXPECT_EQ(load(), "two");
}

TEST_F(Documents, protecteddocument_isPassedOver)
{
    write(first, "one");
    write(second, "two");
    fs::permissions(first / "helpmc.rtf", fs::perms::none);
    const tests::OrdinaryUser user;
    EXPECT_EQ(load(), "two");
}

TEST_F(Documents, hugedocument_isReadInPart)
{
    write(first, "{\\rtf");
    fs::resize_file(first / "helpmc.rtf", std::uintmax_t{1} << 32U);
    EXPECT_EQ(load()->size(), std::size_t{16} << 20U);
}

TEST(HelpFolders, startfolder_comesBeforeTheProgramsOwn)
{
    const std::vector<fs::path> expected{"here", "/opt/bin/../share/tonefret"};
    EXPECT_EQ(help::helpfolders("here", "/opt/bin", ""), expected);
    EXPECT_EQ(help::helpfolders("here", "/opt/bin", "/usr/share/tonefret").at(2), "/usr/share/tonefret");
}

} // namespace
