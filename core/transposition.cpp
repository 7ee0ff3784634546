// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/transposition.h"

namespace core {

ScaleRow scalefrom(PitchClass first, const NoteSpelling& spelling)
{
    ScaleRow row;
    for (std::string& name : row)
        name = spelling.nameof(first++);
    return row;
}

ScaleRow shifted(const ScaleRow& row, Shift direction, const NoteSpelling& spelling)
{
    const PitchClass first = notenumber(row.front()) + static_cast<int>(direction) + octave;
    return scalefrom(first % octave, spelling);
}

} // namespace core
