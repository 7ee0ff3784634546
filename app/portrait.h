// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

namespace app {

/// Pictures of the main screen for the help, with its parts numbered: a screen of their own, which shows a C major
/// chord on a guitar whatever the program shows at the moment.
struct Portrait {
    QPixmap whole;
    QPixmap upper; ///< keyboard, readouts and chord buttons
    QPixmap lower; ///< selectors and fretboard
};

/// Takes the pictures, in the desktop's colours.
Portrait portrait();

/// The program's icon, drawn as packaging/tonefret.svg is. `size` is in logical pixels, `ratio` that of the display's.
QPixmap programicon(int size, double ratio);

} // namespace app
