// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/places.h"
#include "tests/screens/screentest.h"

namespace {

using NeckTest = tests::ScreenTest;
using tests::member;
using tests::str;

double zoom(const app::Program& program)
{
    return program.look.zoom();
}

TEST_F(NeckTest, cells_standAtTheirColumnsForBothHands)
{
    for (const int item : {0, 1}) {
        choose(QStringLiteral("cboleft"), item);
        const auto hand = item == 1 ? instruments::Hand::left : instruments::Hand::right;
        for (int i = 0; i < instruments::cellcount; ++i) {
            const auto fret = static_cast<std::size_t>(i / instruments::rowcount);
            const double wanted = instruments::columns.at(fret)[hand] / 15.0 * zoom(program);
            EXPECT_NEAR(control(member("Text1", i))->x(), wanted, 1) << "cell " << i << " hand " << item;
        }
    }
}

TEST_F(NeckTest, retunedString_isReadAloudByItsNewName)
{
    choose(QStringLiteral("cbotype"), 0);
    EXPECT_EQ(str(control(QStringLiteral("Text1_23"))->accessibleName()), "E string, fret 3, G");
    session.retune.row = 5;
    program.stage.act([&] { session.cmdret_Click(3); });
    EXPECT_EQ(str(control(QStringLiteral("Text1_5"))->accessibleName()), "D string, open");
    for (int fret = 1; fret < instruments::fretcount; ++fret)
        EXPECT_TRUE(control(member("Text1", 5 + 6 * fret))->accessibleName().startsWith(QLatin1String("D string, ")))
            << fret;
}

TEST_F(NeckTest, cells_neverTouch)
{
    for (const int item : {0, 1}) {
        choose(QStringLiteral("cboleft"), item);
        for (int i = 0; i < instruments::cellcount; ++i)
            for (int j = 0; j < i; ++j)
                EXPECT_FALSE(
                    control(member("Text1", i))->geometry().intersects(control(member("Text1", j))->geometry()))
                    << i << " and " << j;
    }
}

TEST_F(NeckTest, banjo_hidesTheShortStringsFirstFrets)
{
    choose(QStringLiteral("cbotype"), 3);
    for (int i = 0; i < instruments::cellcount; ++i) {
        const bool wanted = i % 6 != 0 && !(i % 6 == 5 && i > 5 && i < 36);
        EXPECT_EQ(control(member("Text1", i))->isVisible(), wanted) << "cell " << i;
    }
}

TEST_F(NeckTest, capo_showsBarAndFollower)
{
    QWidget* bar = control(QStringLiteral("capobar"));
    QWidget* follower = control(QStringLiteral("capofollower"));
    EXPECT_FALSE(bar->isVisible() || follower->isVisible());
    choose(QStringLiteral("cbopreset"), 3);
    EXPECT_TRUE(bar->isVisible() && follower->isVisible());
    EXPECT_NEAR(bar->x(), 2640 / 15.0 * zoom(program), 1);
    EXPECT_NEAR(follower->x(), 2760 / 15.0 * zoom(program), 1);
    choose(QStringLiteral("cboleft"), 1);
    EXPECT_NEAR(bar->x(), 7320 / 15.0 * zoom(program), 1);
    choose(QStringLiteral("cbopreset"), 16);
    EXPECT_FALSE(bar->isVisible() || follower->isVisible());
}

TEST_F(NeckTest, arrows_followTheMirroredNeck)
{
    click(QStringLiteral("optu"));
    EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), "0 normal - open");
    click(QStringLiteral("optu"));
    EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), "1st fret  capo / bar");
    choose(QStringLiteral("cboleft"), 1);
    click(QStringLiteral("optu"));
    EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), "0 normal - open");
    click(QStringLiteral("optu"));
    EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), "show all notes");
}

class RetuneTest : public tests::ScreenTest {
protected:
    QWidget* opened()
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == QLatin1String("frmretune") && top->isVisible())
                return top;
        return nullptr;
    }
};

TEST_F(RetuneTest, openString_opensTheModalRetuneScreen)
{
    click(QStringLiteral("Text1_4"));
    ASSERT_TRUE(opened());
    EXPECT_TRUE(opened()->isModal());
    EXPECT_EQ(shown(QStringLiteral("note_0")), "");
    constexpr const char* captions[] = {"no retune", "C", "C# Db", "D", "D# Eb", "E", "F",
                                        "F# Gb",     "G", "G# Ab", "A", "A# Bb", "B"};
    for (int i = 0; const char* caption : captions)
        EXPECT_EQ(str(control(member("cmdret", i++), opened())->property("text").toString()), caption);
    EXPECT_EQ(
        str(control(QStringLiteral("Label2"), opened())->property("text").toString()),
        "Note: if you had just wanted to enter a note using the guitar / strings area - please use a note that is "
        "on the actual fretboard and not on the end such as this one.");
}

TEST_F(RetuneTest, noteButton_retunesTheStringAndCloses)
{
    click(QStringLiteral("Text1_4"));
    QTest::mouseClick(control(member("cmdret", 12), opened()), Qt::LeftButton);
    EXPECT_FALSE(opened());
    EXPECT_EQ(shown(QStringLiteral("Text1_4")), "B");
    EXPECT_EQ(shown(QStringLiteral("Text1_10")), "C");
    EXPECT_EQ(shown(QStringLiteral("cbotuning"), "currentText"), "Standard 6 or 12 string");
    EXPECT_EQ(session.retune.note, 0);
}

TEST_F(RetuneTest, noRetuneCloseBoxAndEscape_changeNothing)
{
    const std::function<void()> waysout[] = {
        [this] { QTest::mouseClick(control(member("cmdret", 0), opened()), Qt::LeftButton); },
        [this] { opened()->close(); },
        [this] { QTest::keyClick(opened(), Qt::Key_Escape); },
    };
    for (const auto& leave : waysout) {
        click(QStringLiteral("Text1_4"));
        session.retune.note = 5; // left from a choice that was never carried out
        leave();
        EXPECT_FALSE(opened());
        EXPECT_EQ(shown(QStringLiteral("Text1_4")), "A");
        EXPECT_EQ(session.retune.note, 0);
    }
}

} // namespace
