// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace core {

using Colour = std::uint32_t; ///< 0xRRGGBB
using Twips = int; ///< 1/1440 inch, the unit of every position and size on a screen; the origin is the upper left

inline constexpr Colour darkgrey = 0x808080;  ///< marks a note of the chord
inline constexpr Colour midgrey = 0xC0C0C0;   ///< marks a further one: upper octave, higher up the string
inline constexpr Colour lightgrey = 0xE0E0E0; ///< a black key at rest
inline constexpr Colour nocolour = 0x1000000; ///< none of the program's: the desktop's own
inline constexpr Colour white = 0xFFFFFF;     ///< a white key and a fretboard cell at rest, in every theme

} // namespace core
