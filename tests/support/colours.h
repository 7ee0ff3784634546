// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"

namespace tests {

/// The colours of the marks on keys and cells, from a table of the tests' own.
inline constexpr core::Colour dark = 0x808080;
inline constexpr core::Colour mid = 0xC0C0C0;
inline constexpr core::Colour rest = 0xFFFFFF; ///< of a cell without a mark

} // namespace tests
