// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

namespace {

using tests::member;
using tests::str;

class ArrangeScreenTest : public tests::ScreenTest {
protected:
    void open(int entries)
    {
        for (int i = 0; i < entries; ++i)
            session.customtable.at(static_cast<std::size_t>(i)) = {"entry " + std::to_string(i), "03444444"};
        pick(QStringLiteral("mnuarrange"));
    }

    QWidget* screen() { return companion("arrange"); }
    QWidget* box(int place) { return control(member("txtx", place), screen()); }
    std::string text(const QString& name) { return str(control(name, screen())->property("text").toString()); }
    void key(int place, Qt::Key pressed) { QTest::keyClick(box(place), pressed); }
    const std::string& name(std::size_t place) { return session.customtable.at(place).name; }
};

TEST_F(ArrangeScreenTest, opened_showsTheTable)
{
    open(20);
    EXPECT_TRUE(screen()->isVisible());
    EXPECT_EQ(str(screen()->windowTitle()), "Arrange the Order (position) of custom data");
    for (int place = 0; place < 51; ++place) {
        EXPECT_EQ(text(member("lblx", place)), std::to_string(place));
        EXPECT_EQ(box(place)->isVisible(), place < 20) << place;
        EXPECT_EQ(text(member("txtx", place)), place < 20 ? "entry " + std::to_string(place) : "");
    }
    EXPECT_EQ(text(QStringLiteral("cmdret")), "Done ! Return !");
    EXPECT_EQ(text(QStringLiteral("Label1")),
              "To swap the location of two pieces of custom data, drag one over the other. How to drag it? Click on "
              "the first data item to be moved with your mouse. Hold down the left mouse button while you drag its "
              "image over the item to be changed. Note that you cannot move data to unused space - but can only change "
              "data items in the occupied data area.");
}

TEST_F(ArrangeScreenTest, withoutEntries_allBoxesAreHidden)
{
    open(0);
    for (int place = 0; place < 51; ++place)
        EXPECT_FALSE(box(place)->isVisible()) << place;
}

TEST_F(ArrangeScreenTest, fullTable_standsInThreeColumnsWithoutScrolling)
{
    open(51);
    for (int place = 0; place < 51; ++place) {
        EXPECT_TRUE(screen()->rect().contains(QRect(box(place)->mapTo(screen(), QPoint()), box(place)->size())));
        const int column = place / 17;
        EXPECT_EQ(box(place)->x(), box(17 * column)->x()) << place;
        EXPECT_EQ(box(place)->y(), box(place % 17)->y()) << place;
    }
    EXPECT_LT(box(0)->geometry().right(), box(17)->x());
    EXPECT_LT(box(17)->geometry().right(), box(34)->x());
}

TEST_F(ArrangeScreenTest, buttonThatGoesDownAndUp_dropsOnItself)
{
    open(3);
    QTest::mouseClick(box(1), Qt::RightButton);
    EXPECT_FALSE(session.customchanged);
    QTest::mouseClick(box(1), Qt::LeftButton);
    EXPECT_TRUE(session.customchanged);
    EXPECT_EQ(name(0) + name(1) + name(2), "entry 0entry 1entry 2");
}

TEST_F(ArrangeScreenTest, keys_pickUpCarryAndDrop)
{
    open(20);
    for (const Qt::Key act : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        session.customchanged = false;
        const std::string first = name(0);
        const std::string other = name(18);
        key(0, act);
        EXPECT_EQ(str(box(0)->accessibleName()), "place 0, " + first + ", picked up");
        EXPECT_FALSE(session.customchanged);
        key(0, Qt::Key_Right);
        key(17, Qt::Key_Down);
        key(18, act);
        EXPECT_EQ(name(18), first);
        EXPECT_EQ(name(0), other);
        EXPECT_EQ(text(member("txtx", 0)), other);
        EXPECT_EQ(str(box(18)->accessibleName()), "place 18, " + first);
        EXPECT_TRUE(session.customchanged);
    }
}

TEST_F(ArrangeScreenTest, escape_putsBack)
{
    open(3);
    key(0, Qt::Key_Space);
    key(2, Qt::Key_Escape);
    EXPECT_EQ(str(box(0)->accessibleName()), "place 0, entry 0");
    key(2, Qt::Key_Space); // picks up, drops nothing
    EXPECT_EQ(name(0), "entry 0");
    EXPECT_FALSE(session.customchanged);
    EXPECT_TRUE(screen()->isVisible());
}

struct ArrowRow {
    int from;
    Qt::Key arrow;
    int to;
};

TEST_F(ArrangeScreenTest, arrows_moveAmongUsedPlaces)
{
    // clang-format off
    constexpr ArrowRow rows[] = {
        { 0,  Qt::Key_Down,  1  },
        { 1,  Qt::Key_Up,    0  },
        { 0,  Qt::Key_Up,    0  },
        { 16, Qt::Key_Down,  17 },
        { 0,  Qt::Key_Right, 17 },
        { 2,  Qt::Key_Right, 19 },
        { 3,  Qt::Key_Right, 3  }, // place 20 is free
        { 19, Qt::Key_Left,  2  },
        { 2,  Qt::Key_Left,  2  },
        { 19, Qt::Key_Down,  19 },
    };
    // clang-format on
    open(20);
    for (const ArrowRow& row : rows) {
        box(row.from)->setFocus();
        key(row.from, row.arrow);
        EXPECT_EQ(screen()->focusWidget(), box(row.to)) << row.from << " to " << row.to;
    }
}

TEST_F(ArrangeScreenTest, gapInFront_isPassedByKeys)
{
    open(3);
    session.customtable[0] = {};
    program.stage.act([] {});
    box(1)->setFocus();
    key(1, Qt::Key_End);
    key(1, Qt::Key_Home);
    key(1, Qt::Key_Up);
    EXPECT_TRUE(box(0)->isHidden());
    EXPECT_EQ(box(1)->focusPolicy(), Qt::TabFocus);
}

TEST_F(ArrangeScreenTest, everyWayOut_rebuildsTheTunings)
{
    session.cbotype_Click(8);
    const std::function<void()> ways[] = {
        [this] { QTest::mouseClick(control(QStringLiteral("cmdret"), screen()), Qt::LeftButton); },
        [this] { screen()->close(); },
    };
    for (const auto& leave : ways) {
        open(3);
        session.txtx_DragDrop(0, 2);
        const QPointer<QWidget> left = screen();
        leave();
        EXPECT_TRUE(!left || !left->isVisible());
        EXPECT_FALSE(session.arrangeshown);
        EXPECT_EQ(shown(QStringLiteral("cbotuning"), "currentText"), "entry 2");
    }
}

TEST_F(ArrangeScreenTest, place_isFreedUnderTheHand)
{
    open(3);
    key(2, Qt::Key_Space);
    session.customtable[2] = {};
    program.stage.act([] {});
    EXPECT_FALSE(box(2)->isVisible());
    key(0, Qt::Key_Space);
    EXPECT_FALSE(session.customchanged);
    EXPECT_EQ(str(box(0)->accessibleName()), "place 0, entry 0, picked up");
}

} // namespace
