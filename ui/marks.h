// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"

#include <QColor>
#include <QString>

namespace ui {

/// Ink on the given greys and on white: dark enough to read on the darkest of them, in every theme.
inline QColor markink()
{
    return {0x0B, 0x0C, 0x0E};
}

/// Whether a key or a cell of this colour shows a note of the chord.
inline bool ismark(core::Colour colour)
{
    return colour == core::darkgrey || colour == core::midgrey;
}

/// How the colour of a key or a cell is read aloud, behind its name; empty for one at rest.
inline QString spokenmark(core::Colour colour)
{
    return ismark(colour) ? QStringLiteral(", in the chord") : QString();
}

/// Not valid for `nocolour`.
inline QColor tocolour(core::Colour colour)
{
    return colour == core::nocolour ? QColor() : QColor::fromRgb(colour);
}

} // namespace ui
