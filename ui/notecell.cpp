// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/notecell.h"

#include "ui/marks.h"

#include <QPainter>

namespace ui {

void NoteCell::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const bool marked = ismark(back);
    const double gap = look.zoom();
    const QRectF pill = QRectF(rect()).adjusted(0, gap, 0, -gap);
    const QColor edge = marked ? markink() : underMouse() ? look.theme().accent : QColor(0xCF, 0xCA, 0xBE);
    paintbox(painter, look, pill, tocolour(back), edge, pill.height() / 2 / look.zoom());
    const QRectF room = pill.adjusted(gap, 0, -gap, 0);
    painttext(painter, look, room, text(),
              fitted(look, look.font(marked ? Type::mark : Type::note), widestname(), room.width()), markink());
    ring.paint(painter, look, *this, pill, pill.height() / 2 / look.zoom());
}

} // namespace ui
