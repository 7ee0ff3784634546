// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

namespace app {

/// Reads the desktop's list of fonts in a thread of its own. The first text that is measured has to wait for that list,
/// a fifth of the work of a start, so it is read while the toolkit looks for its display and the screens are made. To
/// be joined before that first text: what is half read would be read twice. Where the system has another kind of list,
/// there is no thread.
std::jthread warmfonts();

} // namespace app
