// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/companion.h"

#include "ui/keys.h"
#include "ui/partstyle.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace ui {
namespace {

constexpr double usable = 0.92; ///< of the display's free area, at most; the rest is the window's frame
constexpr double smallestzoom = 0.5;
constexpr double leaststep = 0.98; ///< by which a screen that does not fit is made smaller

double shareof(QSize room, QSize wanted)
{
    return std::min(static_cast<double>(room.width()) / wanted.width(),
                    static_cast<double>(room.height()) / wanted.height());
}

/// A dialog is read out as one when it opens.
QAccessibleInterface* dialoginterface(const QString& /*type*/, QObject* object)
{
    auto* companion = qobject_cast<Companion*>(object);
    if (!companion || companion->windowType() != Qt::Dialog)
        return nullptr;
    return new QAccessibleWidget(companion, QAccessible::Dialog);
}

} // namespace

Companion::Companion(const Look& mainlook, QWidget* owner, Qt::WindowType kind)
    : QMainWindow(owner, kind), look(mainlook), followed(mainlook), partstyle(new PartStyle(look, this))
{
    QAccessible::installFactory(dialoginterface);
    fit([this] {
        look.followpalette(QGuiApplication::palette());
        setPalette(look.palettefor(look.theme().surface));
    });
}

void Companion::fit(Handler change)
{
    change();
    changes.push_back(std::move(change));
}

void Companion::applyzoom(double zoom)
{
    look.setzoom(zoom);
    for (const Handler& change : changes)
        change();
    for (QWidget* each : findChildren<QWidget*>())
        each->updateGeometry(); // what they want is kept from the zoom before
}

QSize Companion::withmenus(QSize content) const
{
    const auto* bar = findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    return content + QSize(0, bar ? bar->sizeHint().height() : 0);
}

QSize Companion::smallest() const
{
    return withmenus(openingsize() ? centralWidget()->minimumSizeHint() : centralWidget()->sizeHint());
}

/// Texts that break their lines do not shrink evenly, so once may not be enough.
void Companion::shrinkinto(QSize room)
{
    while (look.zoom() > smallestzoom && shareof(room, smallest()) < 1)
        applyzoom(std::max(smallestzoom, look.zoom() * std::min(leaststep, shareof(room, smallest()))));
}

void Companion::takesize(double zoombefore, QSize room)
{
    const std::optional<QSize> opening = openingsize();
    if (!opening)
        setFixedSize(smallest());
    else if (!isMaximized() && !isFullScreen())
        takefreesize(*opening, zoombefore, room);
}

/// What a person has given the screen is kept in proportion to the zoom, also where the display had no room for it
/// meanwhile.
void Companion::takefreesize(QSize opening, double zoombefore, QSize room)
{
    if (!opened)
        freesize = QSizeF(opening) / look.zoom();
    else if (size() != given)
        freesize = QSizeF(size()) / zoombefore;
    given = (freesize * look.zoom()).toSize().expandedTo(smallest()).boundedTo(room);
    resize(given);
}

void Companion::dress()
{
    const double before = look.zoom();
    const QSize sizebefore = size();
    const QSize room = screen()->availableGeometry().size() * usable;
    applyzoom(followed.zoom());
    shrinkinto(room);
    takesize(before, room);
    if (!opened)
        centre();
    if (!opened || size() != sizebefore) // where a person has put it, it may stay as long as it does not grow
        keepondisplay();
    opened = true;
    dressed();
}

void Companion::followlook()
{
    if (isVisible())
        dress();
}

void Companion::centre()
{
    const QRect room = screen()->availableGeometry();
    const double left = room.left() + (room.width() - width()) / 2.0;
    const double top = room.top() + (room.height() - height()) / 2.0;
    move(qRound(left), qRound(top));
}

/// A screen that has grown may not reach beyond the display's edges.
void Companion::keepondisplay()
{
    const QRect room = screen()->availableGeometry();
    const QRect taken = frameGeometry();
    const int left = std::max(room.left(), std::min(taken.left(), room.right() + 1 - taken.width()));
    const int top = std::max(room.top(), std::min(taken.top(), room.bottom() + 1 - taken.height()));
    if (QPoint(left, top) != taken.topLeft())
        move(left, top);
}

void Companion::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous())
        return; // back from the desktop's edge, where it stood
    opened = false;
    dress();
    if (pressedbyenter)
        pressedbyenter->setFocus(Qt::OtherFocusReason);
}

void Companion::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && isplain(*event))
        close();
    else if (isenter(*event) && isplain(*event) && pressedbyenter)
        pressedbyenter->click();
    else
        QMainWindow::keyPressEvent(event);
}

void Companion::closeEvent(QCloseEvent* event)
{
    Q_EMIT closed();
    event->accept();
}

} // namespace ui
