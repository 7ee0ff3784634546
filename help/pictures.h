// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

#include <QGridLayout>
#include <QPixmap>

#include <functional>

namespace help {

/// Pictures of the main screen, with its parts numbered.
struct Portrait {
    QPixmap whole;
    QPixmap upper; ///< keyboard, readouts and chord buttons
    QPixmap lower; ///< selectors and fretboard
};

/// Keeps the pictures as they look in the theme of the moment.
class Portraits {
public:
    /// `camera` takes the pictures, in the desktop's colours.
    explicit Portraits(std::function<Portrait()> camera) : take(std::move(camera)) {}

    /// The pictures, taken again if the look's theme is another than that of the last ones.
    const Portrait& in(const ui::Look& look);

private:
    std::function<Portrait()> take;
    Portrait taken;
    const ui::Theme* theme = nullptr; ///< that of the pictures; none: not yet taken
};

/// Paints a number in a disc around `middle`, as the pictures bear it.
void paintbadge(QPainter& painter, const QPointF& middle, int number, const ui::Look& look);

/// Shows one of the pictures at a width in pixels at zoom 1, as the screen's zoom and theme are. `portraits` belongs to
/// the screen.
QLabel* image(ui::Companion& screen, Portraits& portraits, QPixmap Portrait::*part, int widthatone);

/// The captions of the pictures beside their numbers, so many to a row. `prefix` stands before the captions' names.
QGridLayout* captiongrid(ui::Companion& screen, int inrow, const char* prefix = "");

} // namespace help
