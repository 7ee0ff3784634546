// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/ending/runningprogram.h"
#include "tests/pointer/xserver.h"
#include "tests/support/directory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>

// The program itself, killed while it ends: its window is closed, and some moment later the process is gone.
// TONEFRET_KILLS gives another number of kills.

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr int usualkills = 20;
constexpr const char* datafile = "tonefret.txt";

int kills()
{
    const char* wanted = std::getenv("TONEFRET_KILLS");
    return wanted ? std::atoi(wanted) : usualkills;
}

std::string entries()
{
    std::string all;
    for (int i = 0; i < 51; ++i)
        all += "tuning " + std::to_string(i) + ";0349279B;";
    return all;
}

// The program names the family in another way than this file, so it has something to write.
const std::string settings = ";00 72 4 801 3 6000 0;" + entries();
const std::string before = "Tonefret:GUITAR" + settings;
const std::string after = "Tonefret:       GUITAR" + settings + "\r\n";

void passtime(microseconds time)
{
    const auto end = Clock::now() + time;
    while (Clock::now() < end) {
    }
}

class Ending : public testing::Test {
protected:
    void SetUp() override
    {
        if (const QString missing = tests::XServer::missing(); !missing.isEmpty())
            GTEST_SKIP() << "a window needs " << missing.toStdString();
        server.emplace();
        qputenv("QT_QPA_PLATFORM", "xcb");
    }

    /// Closes the window and leaves the program alone; returns how long it took until the file was written.
    microseconds undisturbed() const
    {
        directory.write(datafile, before);
        tests::RunningProgram program;
        program.closewindow();
        const auto begin = Clock::now();
        while (directory.read(datafile) != after && Clock::now() < begin + std::chrono::seconds(30)) {
        }
        const auto took = std::chrono::duration_cast<microseconds>(Clock::now() - begin);
        EXPECT_TRUE(program.endswell());
        EXPECT_EQ(directory.read(datafile), after);
        return took;
    }

    std::optional<tests::XServer> server;
    tests::Directory directory;
};

TEST_F(Ending, killedAtAnyMoment_leavesTheOldFileOrTheNewOne)
{
    auto span = undisturbed().count(); // follows the moment of writing, so that about half of the kills come before it
    std::mt19937_64 random(1);
    int olds = 0;
    int news = 0;
    for (int i = 0; i < kills() && !HasFailure(); ++i) {
        directory.write(datafile, before);
        tests::RunningProgram program;
        program.closewindow();
        passtime(microseconds(span / 2 + static_cast<long>(random() % static_cast<unsigned long>(span))));
        program.kill();
        const std::string left = directory.read(datafile);
        olds += left == before ? 1 : 0;
        news += left == after ? 1 : 0;
        span += left == before ? span / 8 : -span / 8;
        EXPECT_EQ(olds + news, i + 1) << "torn: " << left;
        EXPECT_EQ(directory.names().find("damaged"), std::string::npos);
    }
    std::printf("%d old files, %d new ones; written after about %ld us\n", olds, news, static_cast<long>(span));
    undisturbed(); // what the killed ones left behind is no hindrance
}

} // namespace
