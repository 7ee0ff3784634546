// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/mainscreen.h"

#include "mainscreen/chordpanel.h"
#include "mainscreen/neckpanel.h"
#include "mainscreen/outputpanel.h"
#include "mainscreen/pianopanel.h"
#include "mainscreen/places.h"
#include "mainscreen/selectorpanel.h"
#include "mainscreen/transposepanel.h"
#include "ui/partstyle.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMenu>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <array>

namespace mainscreen {
namespace {

constexpr std::array<double, 5> openingzooms{2, 1.5, 1.25, 1, ui::Canvas::smallestzoom};
constexpr std::array<double, 8> zooms{ui::Canvas::smallestzoom, 1, 1.25, 1.5, 2, 2.5, 3, ui::Canvas::largestzoom};
constexpr double nearly = 0.01;     ///< zooms this close are the same
constexpr double menupixels = 12;   ///< size of the menus' type at zoom 1
constexpr double comfortable = 0.9; ///< of the display's free area, at most

int menupixelsat(double zoom)
{
    return qRound(menupixels * zoom);
}

} // namespace

MainScreen::MainScreen(Session& shown, ui::Stage& entered, ui::Look& shared)
    : session(shown),
      stage(entered),
      look(shared),
      canvas(new ui::Canvas(look, QSize(places::area.width, places::area.height), this))
{
    setObjectName(QStringLiteral("tonefret"));
    setWindowTitle(QStringLiteral("tonefret"));
    setCentralWidget(canvas);
    connect(canvas, &ui::Canvas::zoomed, this, &MainScreen::lookchanged);
    canvas->hide();
}

void MainScreen::furnish()
{
    menuBar()->setStyle(new ui::PartStyle(look, this)); // while it is empty: menus would be measured for each style
    menus = std::make_unique<Menus>(*menuBar(), session, stage);
    dressmenubar();
    scalemenubar(canvas->zoomin(size()));
    panels.push_back(std::make_unique<PianoPanel>(*canvas, session, stage));
    auto output = std::make_unique<OutputPanel>(*canvas, session, stage);
    auto takefocus = [panel = output.get()](bool bykeys) { panel->focusreset(bykeys); };
    panels.push_back(std::move(output));
    panels.push_back(std::make_unique<TransposePanel>(*canvas, session, stage));
    panels.push_back(std::make_unique<ChordPanel>(*canvas, session, stage));
    panels.push_back(std::make_unique<SelectorPanel>(*canvas, session, stage, takefocus));
    panels.push_back(std::make_unique<NeckPanel>(*canvas, session, stage));
    addnotekeys();
    addzoomkeys();
}

void MainScreen::onkeys(const QKeySequence& keys, std::function<void()> act)
{
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, std::move(act));
}

/// A letter plays the key of its name in the lower octave, with Shift the black key above it; Escape is Reset.
void MainScreen::addnotekeys()
{
    const auto play = [this](int k) { return [this, k] { stage.act([this, k] { session.key_Click(k); }); }; };
    for (int k = 0; k < core::octave; ++k) {
        const std::string_view name = core::sharpnames.at(static_cast<std::size_t>(k));
        const auto letter = static_cast<Qt::Key>(Qt::Key_A + (name.front() - 'A'));
        onkeys(QKeyCombination(core::isblack(k) ? Qt::ShiftModifier : Qt::NoModifier, letter), play(k));
    }
    onkeys(Qt::Key_Escape, play(resetkey));
}

void MainScreen::addzoomkeys()
{
    const auto larger = [this] {
        const auto next = std::ranges::find_if(zooms, [this](double z) { return z > look.zoom() + nearly; });
        sizeto(next == zooms.end() ? zooms.back() : *next);
    };
    const auto smaller = [this] {
        const auto next =
            std::ranges::find_if(zooms.rbegin(), zooms.rend(), [this](double z) { return z < look.zoom() - nearly; });
        sizeto(next == zooms.rend() ? zooms.front() : *next);
    };
    onkeys(Qt::CTRL | Qt::Key_Plus, larger);
    onkeys(Qt::CTRL | Qt::Key_Equal, larger); // the same key without Shift
    onkeys(Qt::CTRL | Qt::Key_Minus, smaller);
    onkeys(Qt::CTRL | Qt::Key_0, [this] { sizeto(1); });
}

void MainScreen::sizeto(double zoom)
{
    scalemenubar(zoom);
    layout()->activate(); // a lower bar lets the window be smaller
    resize(canvas->sizeat(zoom) + QSize(0, ui::PartStyle::menubarheight(menupixelsat(zoom))));
}

void MainScreen::display()
{
    menus->display();
    for (const auto& panel : panels)
        panel->display();
    displaytips();
    menuBar()->show();
    canvas->show();
}

void MainScreen::displaytips()
{
    if (showntips == session.tips)
        return;
    showntips = session.tips;
    for (const auto& panel : panels)
        panel->displaytips(session.tips);
}

void MainScreen::centre()
{
    const QRect room = screen()->availableGeometry();
    for (const double zoom : openingzooms) {
        sizeto(zoom);
        if (width() <= room.width() * comfortable && height() <= room.height() * comfortable)
            break;
    }
    const double left = room.left() + (room.width() - width()) / 2.0;
    const double top = room.top() + (room.height() - height()) / 2.0;
    move(qRound(left), qRound(top));
}

/// The menus stand on a card of their own above the paper.
void MainScreen::dressmenubar()
{
    if (!menus)
        return;
    for (QWidget* each : barandmenus())
        each->setPalette(look.palettefor(look.theme().card));
}

QWidgetList MainScreen::barandmenus() const
{
    QWidgetList all{menuBar()};
    for (QMenu* menu : menuBar()->findChildren<QMenu*>())
        all.append(menu);
    return all;
}

void MainScreen::scalemenubar(double zoom)
{
    if (!menus)
        return;
    const int pixels = menupixelsat(zoom);
    QFont font = menuBar()->font();
    font.setPixelSize(pixels);
    for (QWidget* each : barandmenus())
        each->setFont(font);
    menuBar()->setFixedHeight(ui::PartStyle::menubarheight(pixels));
}

// By the window, not by the canvas: the canvas gets what the menus leave, so each would chase the other.
void MainScreen::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    scalemenubar(canvas->zoomin(size()));
}

void MainScreen::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    look.followpalette(palette());
    dressmenubar();
    canvas->update();
    Q_EMIT lookchanged();
}

void MainScreen::closeEvent(QCloseEvent* event)
{
    stage.act([this] { session.tonefretexit(); });
    event->accept();
}

} // namespace mainscreen
