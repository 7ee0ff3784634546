// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"

#include <array>
#include <string>

namespace core {

/// Fifteen consecutive semitones by name, upward from the first: an octave and the three first names again.
using ScaleRow = std::array<std::string, 15>;

enum class Shift : int { left = -1, right = 1 };

/// The row that begins on `first` (0..11).
ScaleRow scalefrom(PitchClass first, const NoteSpelling& spelling);

/// The same row a semitone lower (left) or higher (right), in the current spelling.
/// Precondition: the row's first member is a note's name.
ScaleRow shifted(const ScaleRow& row, Shift direction, const NoteSpelling& spelling);

} // namespace core
