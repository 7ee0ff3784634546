// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/companionrows.h"
#include "tests/screens/soundness.h"
#include "ui/canvas.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPixmapCache>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

#include <ranges>

// Every screen over the main screen takes part in what changes while it is open.

namespace {

using tests::str;

class Companions : public tests::CompanionTest {
protected:
    ~Companions() override { usepalette(before); }

    static void usepalette(const QPalette& palette)
    {
        QApplication::setPalette(palette);
        QApplication::processEvents();
    }
    static void usedark() { usepalette(QPalette(QColor(0x2D, 0x30, 0x35), QColor(0x20, 0x20, 0x20))); }

    /// Sizes the main screen, as a person does.
    void zoomto(double zoom)
    {
        auto* canvas = static_cast<ui::Canvas*>(program.mainscreen.centralWidget());
        program.mainscreen.resize(canvas->sizeat(zoom) + QSize(0, qRound(100 * zoom))); // the width decides
        QApplication::processEvents();                                                  // all is laid out
        ASSERT_NEAR(program.look.zoom(), zoom, 0.01);
    }

    QColor ground() const { return screen.grab().toImage().pixelColor(3, screen.height() / 2); }

    /// Sizes of the type of all that shows text by itself, by the names of the controls.
    std::map<std::string, int> typesizes() const
    {
        std::map<std::string, int> sizes;
        for (const QWidget* each : screen.findChildren<QWidget*>())
            if ((qobject_cast<const QLabel*>(each) && !qobject_cast<const QLabel*>(each)->text().isEmpty()) ||
                (qobject_cast<const QLineEdit*>(each) && !each->objectName().startsWith(QLatin1String("qt_"))) ||
                qobject_cast<const QMenuBar*>(each))
                if (each->window() == &screen)
                    sizes[str(each->objectName())] = each->font().pixelSize();
        return sizes;
    }

    bool isondisplay() const { return screen.screen()->availableGeometry().contains(screen.frameGeometry()); }

private:
    QPalette before = QApplication::palette();
};

TEST_P(Companions, darkAndLightTheme_areTakenOverWhileOpen)
{
    const QImage light = screen.grab().toImage();
    const QColor lightground = ground();
    EXPECT_GT(lightground.lightness(), 200);
    for (int turn = 0; turn < 2; ++turn) {
        usedark();
        EXPECT_EQ(ground(), screen.shownlook().theme().surface) << turn;
        EXPECT_LT(ground().lightness(), 80) << turn;
        for (const auto* label : screen.findChildren<QLabel*>())
            EXPECT_GT(label->palette().color(QPalette::WindowText).lightness(), 150) << str(label->objectName());
        for (const auto* box : screen.findChildren<QLineEdit*>())
            EXPECT_EQ(box->palette().color(QPalette::Base), screen.shownlook().theme().card) << str(box->objectName());
        usepalette(QPalette(QColor(0xF0, 0xF0, 0xF0)));
        EXPECT_EQ(ground(), lightground) << turn;
    }
    EXPECT_EQ(screen.grab().toImage().size(), light.size()) << "a theme is no reason to change the size";
}

TEST_P(Companions, typeAndSize_followTheMainScreensZoom)
{
    zoomto(0.75);
    const auto small = typesizes();
    const QSize smallsize = screen.size();
    zoomto(1);
    const auto large = typesizes();
    ASSERT_FALSE(large.empty());
    if (screen.shownlook().zoom() < 1)
        GTEST_SKIP() << "the display has no room for it at 100 %";
    for (const auto& [name, size] : large) {
        EXPECT_TRUE(size == 10 || size == 11 || size == 14) << name << " has type of " << size;
        EXPECT_GT(size, small.at(name)) << name;
    }
    EXPECT_GT(screen.width(), smallsize.width() * 1.05);
    EXPECT_GT(screen.height(), smallsize.height() * 1.05);
    zoomto(0.75);
    EXPECT_EQ(typesizes(), small);
    EXPECT_NEAR(screen.width(), smallsize.width(), 2);
}

TEST_P(Companions, everyZoom_leavesTheScreenOnTheDisplayWithAllItHas)
{
    for (const double zoom : {0.75, 1.3, 2.0, 4.0, 1.0}) {
        zoomto(zoom);
        EXPECT_TRUE(isondisplay()) << "at " << zoom;
        for (const QWidget* each : screen.findChildren<QWidget*>()) {
            if (each->objectName().isEmpty() || each->objectName().startsWith(QLatin1String("qt_")) ||
                !each->isVisible() || each->isWindow() || each->parentWidget()->inherits("QAbstractScrollArea"))
                continue;
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry()))
                << str(each->objectName()) << " at " << zoom;
        }
    }
}

TEST_P(Companions, screenAtTheDisplaysEdge_growsInwards)
{
    zoomto(0.75);
    const QRect room = screen.screen()->availableGeometry();
    screen.move(room.right() - screen.width(), room.bottom() - screen.height());
    zoomto(2);
    EXPECT_TRUE(isondisplay());
}

TEST_P(Companions, openedAgainAndAgain_comeToNeedNoMoreMemory)
{
    const auto reopen = [this] {
        open(GetParam());
        QApplication::processEvents(); // it is painted
        companion(GetParam().screen)->close();
        desktop.answers.assign(1, ui::Answer::yes);
        session.mnuphotoclear_Click(); // what was photographed on the way
        desktop.asked.clear();
        desktop.told.clear();
        settle();
        QPixmapCache::clear();
    };
    // What the toolkit keeps of glyphs and the like fills within the first stretches; a leak is in each of them.
    constexpr int times = 25;
    constexpr std::size_t noise = 64; // bytes for each time
    bool steady = false;
    for (int stretch = 0; stretch < 20 && !steady; ++stretch) {
        const std::size_t held = tests::allocated();
        for (int i = 0; i < times; ++i)
            reopen();
        steady = tests::allocated() < held + times * noise;
    }
    EXPECT_TRUE(steady);
}

INSTANTIATE_TEST_SUITE_P(Screens, Companions, testing::ValuesIn(tests::companionrows), tests::rowname);

class CompanionKeys : public tests::ScreenTest {};

TEST_F(CompanionKeys, enter_pressesTheScreensOwnButton)
{
    pick(QStringLiteral("mnuabout"));
    QWidget* about = companion("frmAbout");
    QTest::keyClick(about, Qt::Key_Enter);
    EXPECT_FALSE(about->isVisible());
    session.rtbprint_Change("a page");
    pick(QStringLiteral("mnuprintchord"));
    QTest::keyClick(control(QStringLiteral("txttop"), companion("printdialog")), Qt::Key_Return);
    EXPECT_EQ(desktop.printed.size(), 1U);
}

TEST_F(CompanionKeys, enterOnAButtonWithTheRing_pressesThatButton)
{
    pick(QStringLiteral("mnuabout"));
    QWidget* about = companion("frmAbout");
    QWidget* other = control(QStringLiteral("cmdSysInfo"), about);
    other->setFocus();
    QFocusEvent bytab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(other, &bytab);
    QTest::keyClick(other, Qt::Key_Return);
    EXPECT_EQ(desktop.told.size(), 1U);
    EXPECT_TRUE(about->isVisible());
}

TEST_F(CompanionKeys, enterHeldOrWithAnotherKey_pressesNothing)
{
    session.rtbprint_Change("a page");
    pick(QStringLiteral("mnuprintchord"));
    QWidget* dialog = companion("printdialog");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(dialog, &held);
    QTest::keyClick(dialog, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(dialog, Qt::Key_Escape, Qt::ShiftModifier);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(desktop.printed.size(), 0U);
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_EQ(desktop.printed.size(), 1U);
}

TEST_F(CompanionKeys, screenWithAnOwnButton_opensWithTheKeyboardThere)
{
    session.rtbprint_Change("a page");
    pick(QStringLiteral("mnuprintchord"));
    EXPECT_EQ(companion("printdialog")->focusWidget(), control(QStringLiteral("cmdprint"), companion("printdialog")));
    pick(QStringLiteral("mnubhelp"));
    EXPECT_EQ(companion("mhelp")->focusWidget(), control(QStringLiteral("cmdreturn"), companion("mhelp")));
}

TEST_F(CompanionKeys, documentInAnotherLook_staysWhereItWasRead)
{
    pick(QStringLiteral("mnuchelp"));
    QWidget* help = companion("helpinfo");
    auto* list = control<QComboBox>(QStringLiteral("cbo1"), help);
    list->setCurrentIndex(40);
    Q_EMIT list->activated(40);
    auto* area = control<QTextEdit>(QStringLiteral("helptext"), help);
    const auto attop = [area] { return area->cursorForPosition(QPoint(area->width() / 2, 2)).block().blockNumber(); };
    const int block = attop();
    const std::string selected = str(area->textCursor().selectedText());
    ASSERT_GT(block, 50);
    program.mainscreen.resize(program.mainscreen.size() * 0.8);
    EXPECT_NEAR(attop(), block, 1);
    EXPECT_EQ(str(area->textCursor().selectedText()), selected);
}

TEST_F(CompanionKeys, documentWhileTheWindowIsDragged_staysWhereItIsRead)
{
    pick(QStringLiteral("mnuchelp"));
    const auto* area = control<QTextEdit>(QStringLiteral("helptext"), companion("helpinfo"));
    QScrollBar* bar = area->verticalScrollBar();
    for (const double place : {0.1, 0.5, 0.9}) {
        EXPECT_GT(area->document()->size().height(), 1000); // all of it is laid out
        bar->setValue(qRound(place * bar->maximum()));
        for (const int step : {1, 1, 1, 1, 1, 1, -1, -1, -1, -1, -1, -1})
            program.mainscreen.resize(program.mainscreen.size() - QSize(9, 7) * step);
        EXPECT_GT(area->document()->size().height(), 1000);
        EXPECT_NEAR(static_cast<double>(bar->value()) / bar->maximum(), place, 0.02);
    }
}

TEST_F(CompanionKeys, findInAnotherLook_goesOn)
{
    pick(QStringLiteral("mnuchelp"));
    QWidget* help = companion("helpinfo");
    control<QLineEdit>(QStringLiteral("findtext"), help)->setText(QStringLiteral("chord"));
    const auto* area = control<QTextEdit>(QStringLiteral("helptext"), help);
    auto* find = control<QAbstractButton>(QStringLiteral("findbut"), help);
    int last = -1;
    for (int turn = 0; turn < 12; ++turn) {
        find->click();
        EXPECT_GT(area->textCursor().selectionStart(), last) << turn;
        last = area->textCursor().selectionStart();
        program.mainscreen.resize(program.mainscreen.size() * (turn % 2 == 0 ? 0.9 : 1.1));
    }
}

} // namespace
