// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/paper.h"
#include "tests/screens/screentest.h"
#include "tests/support/huge.h"

namespace {

/// A page of ten megabytes, open.
class HugePage : public tests::ScreenTest {
protected:
    HugePage()
    {
        constexpr std::size_t linecount = 138'000;
        for (std::size_t i = 0; i < linecount; ++i)
            text += "E *|-|-|+|    E *|-|-|+|-|         E -|*|-|-|-|            E -|-|-|*| \n";
        directory.write("page.txt", text);
        desktop.files.emplace_back(directory.path / "page.txt");
        pick(QStringLiteral("mnuviewprint"));
        control<QAction>(QStringLiteral("mnuload"), companion("mprint"))->trigger();
        paper = control<print::Paper>(QStringLiteral("rtbprint"), companion("mprint"));
    }

    template <typename Act>
    static double secondsof(Act act)
    {
        const tests::Stopwatch watch;
        act();
        return watch.seconds();
    }

    std::string text;
    print::Paper* paper;
};

constexpr int strokes = 20;
#ifdef __OPTIMIZE__
constexpr double limit = 0.05; // seconds for one of them
#else
constexpr double limit = 0.5;
#endif

TEST_F(HugePage, keys_takeNoTimeToSpeakOf)
{
    ASSERT_EQ(session.page.text, text);
    paper->moveCursor(QTextCursor::End);
    const double typing = secondsof([&] {
        for (int i = 0; i < strokes; ++i)
            QTest::keyClick(paper, Qt::Key_X);
    });
    EXPECT_EQ(session.page.text, text + std::string(strokes, 'x'));
    EXPECT_LT(typing / strokes, limit);
}

TEST_F(HugePage, acts_takeNoTimeToSpeakOf)
{
    const double acting = secondsof([&] {
        for (int i = 0; i < strokes; ++i)
            QTest::mouseClick(control(QStringLiteral("key_0")), Qt::LeftButton);
    });
    EXPECT_LT(acting / strokes, limit);
}

TEST_F(HugePage, anotherFont_takesUnderASecond)
{
    EXPECT_LT(secondsof([&] { control<QAbstractButton>(QStringLiteral("cmddownfont"), companion("mprint"))->click(); }),
              1);
}

} // namespace
