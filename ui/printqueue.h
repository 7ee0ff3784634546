// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace ui {

/// Why the system's print queue refused the job that was just sent to it, in its own words. Empty: it took the job, or
/// this system does not say.
std::string queuerefusal();

} // namespace ui
