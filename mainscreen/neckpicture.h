// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "instruments/fretboard.h"
#include "ui/look.h"

class QPainter;

namespace mainscreen {

/// Where the wood of the neck lies for a layout and a hand.
ui::TwipRect neckplace(const instruments::Fretboard& fretboard);

/// The same with all that is painted around the wood: the strings' ends and the numbers of the frets.
ui::TwipRect neckreach(const instruments::Fretboard& fretboard);

/// Paints the neck behind the cells: wood, nut, frets, inlays, strings and the numbers of the frets.
void paintneck(QPainter& painter, const ui::Look& look, const instruments::Fretboard& fretboard);

} // namespace mainscreen
