// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QAbstractButton>
#include <QBackingStore>
#include <QMenuBar>

#include <algorithm>
#include <cstdlib>
#include <random>

// What is on the display after each act, which paints only what has changed, against the whole screen painted anew.
// Runs once for each scale of the display.

namespace {

/// By how much a red, green or blue of the two differs at most; 256: they have not one size.
int difference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return 256;
    int most = 0;
    for (int y = 0; y < one.height() && one != other; ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = std::max(
                {most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    return most;
}

class Repaint : public tests::ScreenTest {
protected:
    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance); }

    void act()
    {
        switch (random(8)) {
        case 0:
            return click(tests::member("key", random(26)));
        case 1:
            return click(tests::member("Crd", random(28)));
        case 2:
            return choose(QStringLiteral("cboleft"), random(2));
        case 3:
            return choose(QStringLiteral("cbotype"), random(8));
        case 4:
            return choose(QStringLiteral("cbotuning"),
                          random(control<QComboBox>(QStringLiteral("cbotuning"))->count()));
        case 5:
            return choose(QStringLiteral("cbopreset"), random(17));
        case 6:
            return click(QLatin1String(random(2) == 0 ? "cmdsharp" : "cmdflat"));
        default:
            return click(QStringLiteral("botr"));
        }
    }

    /// Without a display the window is painted into a picture in memory.
    QImage ondisplay()
    {
        QApplication::processEvents();
        const auto* picture = dynamic_cast<QImage*>(program.mainscreen.backingStore()->paintDevice());
        return picture ? picture->copy().convertToFormat(QImage::Format_RGB32) : QImage();
    }
    QImage paintedanew() { return program.mainscreen.grab().toImage().convertToFormat(QImage::Format_RGB32); }

private:
    std::mt19937 chance{1}; // NOLINT(cert-msc32-c,cert-msc51-cpp): the same acts in every run
};

TEST_F(Repaint, everyAct_leavesTheScreenAsPaintedAnew)
{
    const QImage first = ondisplay();
    ASSERT_FALSE(first.isNull());
    for (int step = 0; step < 200; ++step) {
        act();
        const QImage shown = ondisplay();
        // At 1.5 the edges of a part are rounded otherwise than those of the whole.
        ASSERT_LE(difference(shown, paintedanew()), shown.devicePixelRatio() == 1.5 ? 1 : 0) << "after step " << step;
    }
    EXPECT_NE(first, ondisplay());
}

TEST_F(Repaint, windowOfItsOwn_isThereBeforeItsControls)
{
    tests::QuietDesktop quiet;
    app::Program other(quiet);
    other.open();
    EXPECT_TRUE(other.mainscreen.isVisible());
    EXPECT_TRUE(other.mainscreen.findChildren<QAbstractButton*>().isEmpty());
    const QRect place = other.mainscreen.geometry();
    other.start();
    QApplication::processEvents();
    EXPECT_EQ(other.mainscreen.geometry(), place);
    EXPECT_TRUE(control(QStringLiteral("key_0"), &other.mainscreen)->isVisible());
    EXPECT_EQ(other.mainscreen.menuBar()->geometry().bottom() + 1, other.mainscreen.centralWidget()->y());
}

} // namespace
