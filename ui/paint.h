// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QColor>
#include <QFocusEvent>
#include <QPainter>
#include <QString>
#include <QWidget>

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

/// What a control knows of its ring: the ring comes by a key and goes by a click. What comes back from a menu, a list
/// or another window leaves it as it was.
class FocusRing {
public:
    /// To be told of each time that the control gets the focus.
    void comes(const QFocusEvent& event);
    /// Whether a key brought the focus here.
    bool bykeys() const { return shown; }
    /// Paints the ring just inside `box`, if `control` has the focus by a key.
    void paint(QPainter& painter, const Look& look, const QWidget& control, const QRectF& box, double corner) const;

private:
    bool shown = false;
};

/// A solid triangle that points in a direction, centred in `box`.
void paintarrow(QPainter& painter, const Look& look, const QRectF& box, Qt::ArrowType direction, const QColor& colour);

} // namespace ui
