// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {

void Session::topl_Click()
{
    shiftrow(upperrow, core::Shift::left);
}

void Session::topr_Click()
{
    shiftrow(upperrow, core::Shift::right);
}

void Session::botl_Click()
{
    shiftrow(lowerrow, core::Shift::left);
}

void Session::botr_Click()
{
    shiftrow(lowerrow, core::Shift::right);
}

void Session::shiftrow(std::size_t row, core::Shift direction)
{
    trans1.at(row) = core::shifted(trans1.at(row), direction, spelling);
    if (row == lowerrow)
        transpose(static_cast<int>(direction), Reread::fromnotes);
    fixflat();
}

void Session::transpose(int semitones, Reread reread)
{
    for (std::size_t i = 0; i < chordslots.notes.size(); ++i)
        if (!core::isblank(note.at(i)))
            setnote(i, spelling.nameof(core::notenumber(note.at(i)) + semitones));
    if (reread == Reread::fromnotes) {
        core::PitchClass first = core::notenumber(note[0]);
        noteentry(first);
        // Entered notes were read before Auto could re-spell them: once more, so that slots and readouts agree.
        first = core::notenumber(note[0]);
        core::chordmatch(first, chordslots, chordindex, spelling);
    } else {
        findchord(chordindex);
    }
    keyupdate();
    guitarcolor();
}

} // namespace mainscreen
