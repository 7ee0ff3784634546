// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/flag.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace core {

/// A note without an octave: 0 is C, 11 is B. 12 to 24 name the same notes one and two octaves up (piano key k is note
/// k).
using PitchClass = int;
inline constexpr int octave = 12;             ///< semitones
inline constexpr PitchClass nonote = 99;      ///< an empty slot; named " "
inline constexpr std::string_view blank{" "}; ///< what a readout without a note or a chord shows

/// Which name each of the five black keys gets. The numbers are kept in the data file; a higher one, from a file that
/// was edited, gives the names of the second mix.
enum class SpellingMode : std::uint8_t {
    mostlyflats = 0,  ///< Db Eb Gb Ab Bb
    mix1 = 1,         ///< C# Eb F# Ab Bb
    mix2 = 2,         ///< C# Eb F# G# Bb
    mostlysharps = 3, ///< C# D# F# G# A#
};

/// How notes are written: the three settings that the user chooses and the data file keeps.
/// Numbers stay as they are when a setting changes; only their names do.
struct NoteSpelling {
    SpellingMode mode = SpellingMode::mostlyflats;
    Flag automatic = false; ///< the current chord chooses the mode
    Flag both = false;      ///< the piano's black keys show both their names, whatever the mode

    /// Names note `n` in the current mode: "C", "Db", " " for `nonote`.
    /// Rewrites `n`: above 24 or below 0 it is folded by octaves into 0..24; callers read it back.
    std::string notename(PitchClass& n) const;
    /// The same name for a number that need not be read back.
    std::string nameof(PitchClass n) const { return notename(n); }

    /// Re-spells a black key's name in the current mode. Any other text stays as it is.
    void noteflat(std::string& name) const;

    /// Replaces a note's name by the one a semitone higher, in the current mode. Any other text stays as it is.
    void noteup(std::string& name) const;

    /// Re-spells every black key's name inside a longer text, such as ", Eb, & A dim.".
    void respell(std::string& text) const;
};

/// Number of a note's name, 0..11, spelled in either way and all in capitals or all in small letters ("Eb", "eb", not
/// "EB"). `nonote` for " ", the empty text and anything else.
PitchClass notenumber(std::string_view name);

/// Whether pitch class `n` (0..24) is one of the piano's black keys.
constexpr bool isblack(PitchClass n)
{
    const PitchClass p = n % octave;
    return p == 1 || p == 3 || p == 6 || p == 8 || p == 10;
}

/// True for "" and " ": a readout that holds no note and no chord.
constexpr bool isblank(std::string_view text)
{
    return text.empty() || text == blank;
}

/// The twelve names in sharp spelling, from C.
inline constexpr std::array<std::string_view, 12> sharpnames{"C",  "C#", "D",  "D#", "E",  "F",
                                                             "F#", "G",  "G#", "A",  "A#", "B"};
/// The twelve names in flat spelling, from C.
inline constexpr std::array<std::string_view, 12> flatnames{"C",  "Db", "D",  "Eb", "E",  "F",
                                                            "Gb", "G",  "Ab", "A",  "Bb", "B"};

/// Both names of a black key, 0..11, the sharp one first: "C# Db".
std::string bothnames(PitchClass pitch);

} // namespace core
