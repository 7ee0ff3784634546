// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/paint.h"

#include <QPainterPath>

namespace ui {

void paintbox(QPainter& painter, const Look& look, const QRectF& box, const QColor& face, const QColor& edge,
              double corner)
{
    const Stamp stamp{
        .kind = Stamp::Kind::box, .size = box.size(), .face = face.rgba(), .edge = edge.rgba(), .corner = corner};
    look.stamps().put(painter, box.topLeft(), stamp, [&](QPainter& on, const QPointF& place) {
        const double line = qMax(1.0, look.zoom());
        const double half = line / 2;
        on.setRenderHint(QPainter::Antialiasing);
        on.setPen(QPen(edge, line));
        on.setBrush(face);
        on.drawRoundedRect(QRectF(place, box.size()).adjusted(half, half, -half, -half), corner * look.zoom(),
                           corner * look.zoom());
    });
}

QFont fitted(const Look& look, const QFont& font, const QString& text, double width)
{
    const double needed = look.lettering().line(text, font).size().width();
    if (needed <= width)
        return font;
    QFont smaller = font;
    smaller.setPixelSize(qMax(1, static_cast<int>(font.pixelSize() * width / needed)));
    return smaller;
}

void painttext(QPainter& painter, const Look& look, const QRectF& box, const QString& text, const QFont& font,
               const QColor& colour, Qt::Alignment alignment)
{
    if (text.isEmpty())
        return;
    const QFont used = fitted(look, font, text, box.width());
    const QStaticText& line = look.lettering().line(text, used);
    const QSizeF room = box.size() - line.size();
    const double left = alignment.testFlag(Qt::AlignLeft)    ? 0
                        : alignment.testFlag(Qt::AlignRight) ? room.width()
                                                             : room.width() / 2;
    painter.setFont(used);
    painter.setPen(colour);
    painter.drawStaticText(box.topLeft() + QPointF(left, room.height() / 2), line);
}

void paintfocus(QPainter& painter, const Look& look, const QRectF& box, double corner)
{
    const double line = 2 * look.zoom();
    const double half = line / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.theme().accent, line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), corner * look.zoom(), corner * look.zoom());
}

void FocusRing::comes(const QFocusEvent& event)
{
    if (event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
        event.reason() == Qt::MenuBarFocusReason)
        return;
    shown = event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
            event.reason() == Qt::ShortcutFocusReason;
}

void FocusRing::paint(QPainter& painter, const Look& look, const QWidget& control, const QRectF& box,
                      double corner) const
{
    if (shown && control.hasFocus())
        paintfocus(painter, look, box, corner);
}

void paintarrow(QPainter& painter, const Look& look, const QRectF& box, Qt::ArrowType direction, const QColor& colour)
{
    const double reach = 3 * look.zoom();
    const double towards = direction == Qt::LeftArrow || direction == Qt::UpArrow ? -reach : reach;
    const bool upright = direction == Qt::UpArrow || direction == Qt::DownArrow;
    const auto at = [&](double along, double across) {
        return box.center() + (upright ? QPointF(across, along) : QPointF(along, across));
    };
    QPainterPath path(at(towards, 0));
    path.lineTo(at(-towards, -1.3 * reach));
    path.lineTo(at(-towards, 1.3 * reach));
    path.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
}

} // namespace ui
