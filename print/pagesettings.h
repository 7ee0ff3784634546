// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/flag.h"

#include <cstdint>

namespace print {

/// How chords are laid out on the print page; the values are those of a first start.
struct PageSettings {
    std::int16_t charactersperline = 72; ///< width of the page
    std::int16_t spacing = 4;            ///< characters between chords side by side
    std::int16_t fontsize = 8;           ///< points
    core::Flag multiple = false;         ///< one chord per line only
    core::Flag alternate = true;         ///< charts show alternate fingerings too
    std::int16_t topmargin = 3;          ///< lines
    std::int16_t leftmargin = 6;         ///< characters
};

} // namespace print
