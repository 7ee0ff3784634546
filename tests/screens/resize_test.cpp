// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"
#include "ui/button.h"
#include "ui/canvas.h"
#include "ui/spoken.h"

#include <QMenu>
#include <QMenuBar>

// The main screen at every size that it can have. Runs once for each scale of the display.

namespace {

using tests::str;

constexpr std::array zooms{0.75, 0.9, 1.0, 1.25, 1.6, 2.0, 2.7, 4.0};

class Resize : public tests::ScreenTest {
protected:
    Resize()
    {
        session.key_Click(0);
        program.stage.act([this] { session.Crd_Click(11); }); // the longest name of a chord
    }

    void sizeto(double zoom)
    {
        program.mainscreen.resize(canvas->sizeat(zoom) + QSize(0, qRound(100 * zoom))); // the width decides
        QApplication::processEvents();                                                  // the menus are laid out
        ASSERT_NEAR(program.look.zoom(), zoom, 0.01);
    }

    /// What is there to be seen.
    QList<QWidget*> controls() const
    {
        auto all = canvas->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        all.removeIf([](QWidget* each) { return !each->isVisible() || qobject_cast<ui::Spoken*>(each); });
        return all;
    }

    /// Where the controls that can be seen lie, in pixels at zoom 1 from the upper left of what is drawn.
    std::map<std::string, QRectF> places() const
    {
        std::map<std::string, QRectF> found;
        const double zoom = program.look.zoom();
        const QSizeF margin = QSizeF(canvas->size() - canvas->sizeat(zoom)) / 2;
        for (const QWidget* each : controls())
            found[str(each->objectName())] =
                QRectF((each->x() - margin.width()) / zoom, (each->y() - margin.height()) / zoom, each->width() / zoom,
                       each->height() / zoom);
        return found;
    }

    ui::Canvas* canvas = static_cast<ui::Canvas*>(program.mainscreen.centralWidget());
};

TEST_F(Resize, everySize_keepsAllControlsInTheirProportions)
{
    sizeto(1);
    const auto atone = places();
    ASSERT_GT(atone.size(), 200U);
    for (const double zoom : zooms) {
        sizeto(zoom);
        const auto now = places();
        ASSERT_EQ(now.size(), atone.size()) << "at " << zoom;
        for (const auto& [name, place] : atone) {
            const QRectF other = now.at(name);
            const double pixel = 1 + 2 / zoom; // each end is on a whole pixel, at both sizes
            EXPECT_NEAR(other.left(), place.left(), pixel) << name << " at " << zoom;
            EXPECT_NEAR(other.top(), place.top(), pixel) << name << " at " << zoom;
            EXPECT_NEAR(other.width(), place.width(), pixel) << name << " at " << zoom;
            EXPECT_NEAR(other.height(), place.height(), pixel) << name << " at " << zoom;
        }
    }
}

TEST_F(Resize, everySize_hasAllControlsInsideTheWindow)
{
    for (const double zoom : zooms) {
        sizeto(zoom);
        for (const QWidget* each : controls())
            EXPECT_TRUE(canvas->rect().contains(each->geometry())) << str(each->objectName()) << " at " << zoom;
        const auto* menus = program.mainscreen.menuBar();
        for (QAction* title : menus->actions()) {
            EXPECT_TRUE(menus->rect().contains(menus->actionGeometry(title))) << str(title->text()) << " at " << zoom;
            EXPECT_EQ(title->menu()->font(), menus->font()) << str(title->text()) << " at " << zoom;
        }
    }
}

/// How much the pixels of a column differ around the middle: the ink of a text that crosses it.
int inkin(const QImage& picture, int x)
{
    int darkest = 255;
    int lightest = 0;
    for (int y = picture.height() / 3; y <= picture.height() * 2 / 3; ++y) {
        const int lightness = picture.pixelColor(x, y).lightness();
        darkest = std::min(darkest, lightness);
        lightest = std::max(lightest, lightness);
    }
    return lightest - darkest;
}

/// A button's text is painted into a box that ends two pixels, at zoom 1, before its edges. A text that was cut there
/// would leave ink up to the box's end; of one that just fits only the soft edge of a letter can reach it.
TEST_F(Resize, everySize_leavesTheTextsOfButtonsWhole)
{
    constexpr int softedge = 100;
    for (const double zoom : zooms) {
        sizeto(zoom);
        for (auto* button : canvas->findChildren<ui::Button*>()) {
            const QImage picture = button->grab().toImage();
            const int outside = std::max(1, static_cast<int>(2 * zoom * picture.devicePixelRatio()) - 1);
            EXPECT_LT(inkin(picture, outside), softedge) << str(button->objectName()) << " at " << zoom;
            EXPECT_LT(inkin(picture, picture.width() - 1 - outside), softedge)
                << str(button->objectName()) << " at " << zoom;
        }
    }
}

TEST_F(Resize, smallestWindow_isThatOfTheSmallestZoom)
{
    program.mainscreen.resize(10, 10);
    QApplication::processEvents();
    EXPECT_GE(program.mainscreen.width(), canvas->sizeat(ui::Canvas::smallestzoom).width());
    EXPECT_GE(canvas->height(), canvas->sizeat(ui::Canvas::smallestzoom).height());
    EXPECT_DOUBLE_EQ(program.look.zoom(), ui::Canvas::smallestzoom);
}

} // namespace
