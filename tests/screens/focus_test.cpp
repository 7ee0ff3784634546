// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/companionrows.h"
#include "ui/notebutton.h"

#include <QMenuBar>

// Who works by keyboard sees where: each control looks different while it has the focus by a key.

namespace {

using tests::str;

bool isreached(const QWidget& control, const QWidget& screen)
{
    return control.isVisible() && control.isEnabled() && control.window() == &screen &&
           ((control.focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<const ui::NoteButton*>(&control));
}

/// The control with the focus by a key, and without any; the focus is given by hand.
void expectdifference(QWidget& screen, QWidget& control)
{
    if (screen.focusWidget())
        screen.focusWidget()->clearFocus();
    const QImage without = control.grab().toImage();
    control.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(control.hasFocus()) << str(control.objectName());
    EXPECT_NE(control.grab().toImage(), without) << str(control.objectName());
}

int expectdifferences(QWidget& screen)
{
    QApplication::setActiveWindow(&screen);
    screen.setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
    int seen = 0;
    for (QWidget* each : screen.findChildren<QWidget*>())
        if (isreached(*each, screen)) {
            expectdifference(screen, *each);
            ++seen;
        }
    return seen;
}

using MainFocus = tests::ScreenTest;

TEST_F(MainFocus, everyControl_showsThatItHasTheKeyboard)
{
    QApplication::setCursorFlashTime(0);
    EXPECT_EQ(expectdifferences(program.mainscreen), 25 + 120 + 28 + 4 + 11); // keys, cells, chords, lists, the rest
}

using CompanionFocus = tests::CompanionTest;

TEST_P(CompanionFocus, everyControl_showsThatItHasTheKeyboard)
{
    EXPECT_GT(expectdifferences(screen), 0);
}

INSTANTIATE_TEST_SUITE_P(Screens, CompanionFocus, testing::ValuesIn(tests::companionrows), tests::rowname);

} // namespace
