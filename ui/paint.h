// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QColor>
#include <QFocusEvent>
#include <QPainter>
#include <QString>

namespace ui {

/// A rounded box with a hairline edge that lies inside `box`; `corner` in pixels at zoom 1.
void paintbox(QPainter& painter, const Look& look, const QRectF& box, const QColor& face, const QColor& edge,
              double corner);

/// The widest of the notes' names, in which all have one size.
inline QString widestname()
{
    return QStringLiteral("G#");
}

/// The font, in a smaller size where `text` would be wider than `width` pixels.
QFont fitted(const Look& look, const QFont& font, const QString& text, double width);

/// Text on one line, half way down `box` and at the side that `alignment` names, else in the middle; in a smaller size
/// where it would not fit.
void painttext(QPainter& painter, const Look& look, const QRectF& box, const QString& text, const QFont& font,
               const QColor& colour, Qt::Alignment alignment = Qt::AlignCenter);

/// The ring that shows where the keyboard acts, just inside `box`.
void paintfocus(QPainter& painter, const Look& look, const QRectF& box, double corner);

/// Whether a control got the focus by a key, so that it shows the ring. What comes back from a menu, a list or another
/// window is as it was `before`.
bool bykeyboard(const QFocusEvent& event, bool before);

/// A solid triangle that points left or right, centred in `box`.
void paintarrow(QPainter& painter, const Look& look, const QRectF& box, Qt::ArrowType direction, const QColor& colour);

} // namespace ui
