// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/places.h"
#include "tests/screens/screentest.h"
#include "ui/canvas.h"

#include <QMenu>
#include <QMenuBar>
#include <QPalette>

namespace {

using GeometryTest = tests::ScreenTest;
using tests::member;
using tests::str;

QList<QWidget*> controls(const app::Program& program)
{
    return program.mainscreen.centralWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

TEST_F(GeometryTest, keys_countAsBlackByTheirHeight)
{
    for (int k = 0; k < mainscreen::pianokeys; ++k) {
        const double twips = control(member("key", k))->height() * 15 / program.look.zoom();
        EXPECT_EQ(twips <= mainscreen::places::tallestblack, core::isblack(k)) << "key " << k;
    }
}

TEST_F(GeometryTest, blackKeys_leaveTheMiddleOfWhiteOnesFree)
{
    auto* canvas = program.mainscreen.centralWidget();
    for (int k = 0; k < mainscreen::pianokeys; ++k) {
        const QWidget* key = control(member("key", k));
        EXPECT_EQ(canvas->childAt(key->geometry().center()), key) << "key " << k;
    }
}

TEST_F(GeometryTest, panels_doNotOverlap)
{
    for (const QWidget* a : controls(program))
        for (const QWidget* b : controls(program)) {
            const bool piano =
                a->objectName().startsWith(QLatin1String("key_")) && b->objectName().startsWith(QLatin1String("key_"));
            if (a == b || piano || a->isHidden() || b->isHidden())
                continue;
            EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                << str(a->objectName()) << " " << str(b->objectName());
        }
}

TEST_F(GeometryTest, window_scalesKeepingProportions)
{
    auto* canvas = static_cast<ui::Canvas*>(program.mainscreen.centralWidget());
    for (const double zoom : {0.75, 1.0, 1.6, 2.0, 4.0}) {
        program.mainscreen.resize(canvas->sizeat(zoom) + QSize(0, qRound(100 * zoom))); // the width decides
        EXPECT_NEAR(program.look.zoom(), zoom, 0.01);
        for (const QWidget* each : controls(program))
            EXPECT_TRUE(canvas->rect().contains(each->geometry())) << str(each->objectName()) << " at " << zoom;
        EXPECT_NEAR(control(QStringLiteral("Text1_119"))->x(), 9240 / 15.0 * zoom, 1);
    }
}

TEST_F(GeometryTest, wideWindow_keepsTheScreenInItsMiddle)
{
    auto* canvas = static_cast<ui::Canvas*>(program.mainscreen.centralWidget());
    program.mainscreen.resize(canvas->sizeat(1) + QSize(300, program.mainscreen.height() - canvas->height()));
    EXPECT_NEAR(program.look.zoom(), 1, 0.01);
    EXPECT_NEAR(control(QStringLiteral("Text1_119"))->x(), 150 + 9240 / 15.0, 1);
}

TEST_F(GeometryTest, palette_choosesTheTheme)
{
    const QColor light = program.look.theme().surface;
    program.mainscreen.setPalette(QPalette(QColor(0x2D, 0x30, 0x35), QColor(0x20, 0x20, 0x20)));
    EXPECT_NE(program.look.theme().surface, light);
    EXPECT_LT(program.look.theme().surface.lightness(), program.look.theme().text.lightness());
    program.mainscreen.setPalette(QPalette(QColor(0xF0, 0xF0, 0xF0)));
    EXPECT_EQ(program.look.theme().surface, light);
}

TEST_F(GeometryTest, themeOfTheDesktop_isFollowedEachTimeByPaperAndMenus)
{
    const QPalette before = QApplication::palette();
    const auto ground = [this] { return program.mainscreen.grab().toImage().pixelColor(3, 60); };
    const auto menus = [this] {
        const QMenuBar* bar = program.mainscreen.menuBar();
        const QColor colour = bar->palette().color(QPalette::Window);
        for (const QAction* title : bar->actions())
            EXPECT_EQ(title->menu()->palette().color(QPalette::Window), colour);
        return colour;
    };
    const QColor light = ground();
    const QColor lightmenus = menus();
    for (int turn = 0; turn < 2; ++turn) {
        QApplication::setPalette(QPalette(QColor(0x2D, 0x30, 0x35), QColor(0x20, 0x20, 0x20)));
        QApplication::processEvents();
        EXPECT_EQ(ground(), program.look.theme().surface) << turn;
        EXPECT_LT(ground().lightness(), 80) << turn;
        EXPECT_LT(menus().lightness(), 80) << turn;
        QApplication::setPalette(before);
        QApplication::processEvents();
        EXPECT_EQ(ground(), light) << turn;
        EXPECT_EQ(menus(), lightmenus) << turn;
    }
}

} // namespace
