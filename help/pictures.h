// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QGridLayout>
#include <QPixmap>

namespace help {

/// A number in a disc, as the pictures of the main screen bear it; `ratio` is that of the display's pixels.
QPixmap numberbadge(int number, const ui::Look& look, double ratio);

/// Paints the same disc around `middle`.
void paintbadge(QPainter& painter, const QPointF& middle, int number, const ui::Look& look);

/// The picture at a width in logical pixels, smooth.
QPixmap scaledtowidth(const QPixmap& picture, int width, double ratio);

/// The captions of the basic help beside their numbers, so many to a row.
QGridLayout* captiongrid(const ui::Look& look, int inrow, QWidget* screen);

} // namespace help
