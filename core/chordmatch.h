// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/chordtypes.h"
#include "core/notes.h"

#include <array>
#include <string>

namespace core {

/// The current chord: its notes, its two roots and its two names.
struct ChordSlots {
    std::array<PitchClass, 6> notes{nonote, nonote, nonote, nonote, nonote, nonote}; ///< slots 0..5
    PitchClass root = nonote;                                                        ///< slot 6
    PitchClass alternateroot = nonote;                                               ///< slot 7
    std::string name{blank};                                                         ///< slot 8
    std::string alternate{blank};                                                    ///< slot 9

    /// Slot 0..7 by its number, as the note readouts of the same number show it.
    PitchClass& slot(int i) { return i == 6 ? root : i == 7 ? alternateroot : notes.at(static_cast<std::size_t>(i)); }
};

inline constexpr PitchClass highestentered = 12;         ///< the upper C, read as 0
inline constexpr PitchClass rereadnotes = 13;            ///< for `chordmatch`: add nothing, read the notes again
inline constexpr std::string_view cantfind{"cant find"}; ///< slot 8 when no chord type has these notes

/// Text of an alternate reading; `slot2` and `slot3` are the notes of those slots. Empty when there is none.
std::string alternatetext(const Alternate& alternate, PitchClass slot2, PitchClass slot3, const NoteSpelling& spelling);

/// Adds note `n` (0..12, or `rereadnotes`) to the chord's notes, sorts them and reads the chord.
/// 12 is taken as 0 and written back. A note that is there already is not added twice; a new one pushes slot 5 out.
/// Precondition: slots 0..5 hold 0..11 or `nonote`.
/// With two notes or more the reading is written into slots 6 to 9 and the type's number into `chordindex`:
/// where no type fits, the roots are `nonote`, the name is "cant find", the alternate " ", and `chordindex` stays.
/// With fewer than two notes slots 6 to 9 stay as they are.
void chordmatch(PitchClass& n, ChordSlots& slots, int& chordindex, const NoteSpelling& spelling);

} // namespace core
