// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/canvas.h"

#include "ui/paintparts.h"

#include <QPaintEvent>
#include <QScopeGuard>

#include <algorithm>

namespace ui {

Canvas::Canvas(Look& shownlook, QSize twips, QWidget* parent) : QWidget(parent), shown(shownlook), area(twips)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize Canvas::sizeat(double zoom) const
{
    return {qRound(Look::pixelsat(zoom, area.width())), qRound(Look::pixelsat(zoom, area.height()))};
}

double Canvas::zoomin(QSize room) const
{
    const QSize atone = sizeat(1);
    const double fitting = std::min(static_cast<double>(room.width()) / atone.width(),
                                    static_cast<double>(room.height()) / atone.height());
    return std::clamp(fitting, smallestzoom, largestzoom);
}

void Canvas::place(QWidget* control, const TwipRect& where)
{
    const auto found = std::ranges::find(controls, control, &Placed::control);
    if (found == controls.end()) {
        controls.push_back({control, where});
        move(controls.back());
    } else {
        found->where = where;
        move(*found);
    }
}

void Canvas::atonce(const std::vector<QWidget*>& changed, const TwipRect& within, const std::function<void()>& change)
{
    const auto hold = [&](bool held) { // by the attribute alone: the function around it paints each control again
        setAttribute(Qt::WA_UpdatesDisabled, held);
        for (QWidget* control : changed)
            control->setAttribute(Qt::WA_UpdatesDisabled, held);
    };
    const auto release = qScopeGuard([&] {
        hold(false);
        update(shown.place(within).translated(origin));
    });
    hold(true);
    change();
}

void Canvas::move(const Placed& placed)
{
    const QRect target = shown.place(placed.where).translated(origin);
    if (placed.control->geometry() != target)
        placed.control->setGeometry(target);
}

void Canvas::layoutcontrols()
{
    const double before = shown.zoom();
    shown.setzoom(zoomin(size()));
    const QSize used = sizeat(shown.zoom());
    origin = QPoint(std::max(0, (width() - used.width()) / 2), std::max(0, (height() - used.height()) / 2));
    for (const Placed& placed : controls)
        move(placed);
    update();
    if (shown.zoom() != before)
        Q_EMIT zoomed();
}

void Canvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutcontrols();
}

void Canvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    paintparts(painter, event->region(), [&](const QRect& part) {
        painter.fillRect(part, shown.theme().surface);
        painter.translate(origin);
        for (const Backdrop& backdrop : backdrops)
            if (part.intersects(shown.place(backdrop.where).translated(origin)))
                backdrop.paint(painter, shown);
    });
}

} // namespace ui
