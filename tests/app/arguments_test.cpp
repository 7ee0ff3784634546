// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include "tests/screens/screentest.h"
#include "tests/support/names.h"

#include <gmock/gmock.h>

namespace {

using testing::StartsWith;

struct CommandCase {
    const char* words; ///< behind the program's name
    bool userdata;
    bool refused;
    const char* answer; ///< how it begins
};

class Command : public testing::TestWithParam<CommandCase> {
protected:
    static app::Arguments read(const char* words)
    {
        return app::readarguments(QStringLiteral("tonefret %1").arg(QLatin1String(words)).simplified().split(u' '));
    }
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, Command, testing::Values(
//               words                      userdata  refused  answer
    CommandCase{ "",                        false,    false,   "" },
    CommandCase{ "--user-data",             true,     false,   "" },
    CommandCase{ "-user-data",              true,     false,   "" },
    CommandCase{ "--help",                  false,    false,   "Usage: tonefret [--user-data]\n" },
    CommandCase{ "-h",                      false,    false,   "Usage: tonefret [--user-data]\n" },
    CommandCase{ "--user-data --help",      false,    false,   "Usage: tonefret [--user-data]\n" },
    CommandCase{ "--version",               false,    false,   "tonefret " TONEFRET_VERSION "\n" },
    CommandCase{ "-v",                      false,    false,   "tonefret " TONEFRET_VERSION "\n" },
    CommandCase{ "--help --version",        false,    false,   "Usage: " },
    CommandCase{ "--userdata",              false,    true,    "tonefret: Unknown option 'userdata'.\nTry " },
    CommandCase{ "--user-data --loud",      false,    true,    "tonefret: Unknown option 'loud'.\nTry " },
    CommandCase{ "--help --loud",           false,    true,    "tonefret: Unknown option 'loud'.\nTry " },
    CommandCase{ "--version=3",             false,    true,    "tonefret: Unexpected value after '--version'.\nTry " },
    CommandCase{ "song.txt",                false,    true,    "tonefret: no file or word is expected, but \"song.txt\"" },
    CommandCase{ "--user-data -- --help",   false,    true,    "tonefret: no file or word is expected, but \"--help\"" }),
    [](const testing::TestParamInfo<CommandCase>& row) { return tests::rowname(row.param.words); });
// clang-format on

TEST_P(Command, words_areAnsweredOrTaken)
{
    const app::Arguments read = Command::read(GetParam().words);
    EXPECT_EQ(read.userdata, GetParam().userdata);
    EXPECT_EQ(read.refused, GetParam().refused);
    EXPECT_THAT(read.answer, StartsWith(GetParam().answer));
    EXPECT_EQ(read.answer.empty(), std::string_view(GetParam().answer).empty());
}

class UserData : public testing::Test {
protected:
    ~UserData() override { qputenv("XDG_DATA_HOME", former); }

    static void sethome(const std::filesystem::path& home) { qputenv("XDG_DATA_HOME", home.c_str()); }

    tests::Directory directory;
    const QByteArray former = qgetenv("XDG_DATA_HOME");
};

TEST_F(UserData, missingFolder_isMadeAndCurrent)
{
    sethome(directory.path / "local" / "share");
    EXPECT_EQ(app::enteruserdata(), "");
    EXPECT_EQ(std::filesystem::current_path(), directory.path / "local" / "share" / "tonefret");
}

TEST_F(UserData, secondStart_findsWhatTheFirstOneSaved)
{
    sethome(directory.path);
    ASSERT_EQ(app::enteruserdata(), "");
    {
        tests::QuietDesktop desktop;
        app::Program program(desktop);
        program.open();
        program.start();
        program.session.cbotype_Click(3);
        program.mainscreen.close();
    }
    EXPECT_EQ(directory.names(), "tonefret");

    std::filesystem::current_path(directory.path);
    ASSERT_EQ(app::enteruserdata(), "");
    tests::QuietDesktop desktop;
    app::Program program(desktop);
    program.open();
    program.start();
    EXPECT_EQ(program.session.cbotype.text, "        BANJO");
    EXPECT_EQ(program.session.startdir, directory.path / "tonefret");
}

TEST_F(UserData, placeTakenByAFile_saysSoAndStays)
{
    directory.write("tonefret", "a file");
    sethome(directory.path);
    EXPECT_EQ(app::enteruserdata(), (directory.path / "tonefret").string() + ": Not a directory");
    EXPECT_EQ(std::filesystem::current_path(), directory.path);
    EXPECT_EQ(directory.read("tonefret"), "a file");
}

} // namespace
