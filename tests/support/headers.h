// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tests {

/// The settings of a first start, packed, and the header of a data file that holds them.
inline const std::string settings = "00 72 4 801 3 6000 0";
inline const std::string guitar = "Tonefret:       GUITAR;" + settings + ";";

} // namespace tests
