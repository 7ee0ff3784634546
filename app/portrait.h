// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/pictures.h"

namespace app {

/// Takes the pictures of the main screen for the help, in the desktop's colours: of a screen of their own, which shows
/// a C major chord on a guitar whatever the program shows at the moment.
help::Portrait portrait();

/// The program's icon, drawn as packaging/tonefret.svg is. `size` is in logical pixels, `ratio` that of the display's.
QPixmap programicon(int size, double ratio);

} // namespace app
