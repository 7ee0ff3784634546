// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QRegion>

namespace ui {

/// Paints a region one rectangle at a time, the painter clipped to it: a picture is copied only into a rectangle; into
/// a region of several it is drawn span by span. `paint` gets the rectangle. The painter is left as it was.
template <typename Paint>
void paintparts(QPainter& painter, const QRegion& region, Paint paint)
{
    for (const QRect& part : region) {
        painter.save();
        painter.setClipRect(part);
        paint(part);
        painter.restore();
    }
}

} // namespace ui
