// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>

namespace ui {

/// Alt with the first letter of its caption opens each menu of the bar, with its first item chosen; the captions stay
/// as they are. Of two menus with one letter the first has it. Menus and bar get the names by which they are read
/// aloud. The bar keeps the menus that it has now.
void addmenukeys(QMenuBar& bar);

} // namespace ui
