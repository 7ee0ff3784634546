// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/pianokey.h"

#include "ui/marks.h"
#include "ui/paintparts.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace ui {
namespace {

/// A key is square where it meets the case and rounded at the player's end.
QPainterPath keyshape(const QRectF& box, double corner)
{
    const QSizeF round(2 * corner, 2 * corner);
    QPainterPath path(box.topLeft());
    path.lineTo(box.topRight());
    path.arcTo(QRectF(box.bottomRight() - QPointF(2 * corner, 2 * corner), round), 0, -90);
    path.arcTo(QRectF(box.bottomLeft() - QPointF(0, 2 * corner), round), -90, -90);
    path.closeSubpath();
    return path;
}

} // namespace

PianoKey::PianoKey(const Look& shownlook, Kind made, QWidget* parent)
    : NoteButton(shownlook, made == Kind::white ? core::white : core::lightgrey, parent), kind(made)
{
}

void PianoKey::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    paintparts(painter, event->region(), [&](const QRect& /*part*/) { paintbody(painter); });
    paintcaption(painter);
    ring.paint(painter, look, *this, rect(), kind == Kind::white ? 4 : 3);
}

void PianoKey::paintbody(QPainter& painter) const
{
    const Stamp stamp{.kind = kind == Kind::white ? Stamp::Kind::whitekey : Stamp::Kind::blackkey,
                      .size = size(),
                      .face = back,
                      .pressed = isDown()};
    look.stamps().put(painter, QPointF(), stamp, [this](QPainter& on, const QPointF& /*place*/) { paintshape(on); });
}

void PianoKey::paintshape(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = look.zoom();
    const bool white = kind == Kind::white;
    const QRectF box = QRectF(rect()).adjusted(line / 2, -line, -line / 2, -line / 2);
    const QPainterPath shape = keyshape(box, (white ? 4 : 3) * look.zoom());
    painter.fillPath(shape, tocolour(back));

    QLinearGradient shade(box.topLeft(), box.bottomLeft());
    if (white) {
        shade.setColorAt(0, QColor(0, 0, 0, 26));
        shade.setColorAt(0.08, QColor(0, 0, 0, 0));
        shade.setColorAt(0.92, QColor(0, 0, 0, 0));
        shade.setColorAt(1, QColor(60, 50, 30, 22));
    } else {
        shade.setColorAt(0, QColor(0, 0, 0, 0));
        shade.setColorAt(0.86, QColor(0, 0, 0, 0));
        shade.setColorAt(0.88, QColor(0, 0, 0, 40));
        shade.setColorAt(1, QColor(0, 0, 0, 10));
    }
    if (!ismark(back))
        painter.fillPath(shape, shade);
    if (isDown()) // a mark becomes lighter, so that its name stays legible
        painter.fillPath(shape, ismark(back) ? QColor(255, 255, 255, 48) : QColor(0, 0, 0, 28));
    const QColor edge = white ? QColor(0x8C, 0x88, 0x7E) : QColor(0x1C, 0x1E, 0x22);
    painter.strokePath(shape, QPen(edge, white ? line : 1.3 * line));
}

void PianoKey::paintcaption(QPainter& painter) const
{
    const Type type = kind == Kind::black || ismark(back) ? Type::mark : Type::text;
    const QFont font = fitted(look, look.font(type), widestname(), width() - look.zoom());
    const double lineheight = 13 * look.zoom();
    const QStringList names = text().split(QLatin1Char(' '));
    double top =
        height() - (kind == Kind::white ? 8 : 12) * look.zoom() - lineheight * static_cast<double>(names.size());
    for (const QString& name : names) {
        painttext(painter, look, QRectF(0, top, width(), lineheight), name, font, markink());
        top += lineheight;
    }
}

} // namespace ui
