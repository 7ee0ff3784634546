// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "instruments/fretboard.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace print {

/// What a snapshot is read from.
enum class CameraMode : std::uint8_t { strings = 0, keyboard = 1 };

inline constexpr int pianokeys = 25; ///< two octaves from C to C
inline constexpr int widest = 255;   ///< characters of a snapshot or of a block
inline constexpr int keyboardwidth = 31;

/// One chord in eleven lines; a line that is not used is empty.
///
///     0..5   the strings from the top row of the grid (stringed), or the keyboard's picture from line 1 on
///     6      numbers of the frets, or names of the white keys
///     7..9   the chord, its alternate, its notes
///     10     the keyboard's columns, their last digits; never printed
struct ChordSnapshot {
    std::array<std::string, 11> line;
};
inline constexpr std::size_t rulerline = 6;
inline constexpr std::size_t chordnameline = 7;
inline constexpr std::size_t alternateline = 8;
inline constexpr std::size_t notesline = 9;
inline constexpr std::size_t columnsline = 10;
inline constexpr std::size_t printedlines = 10; ///< lines 0..9

/// Which frets a snapshot shows.
struct Fingering {
    std::array<int, instruments::rowcount> PressedFret{};   ///< 0..19 by string; 0 too where none is marked
    std::array<int, instruments::rowcount> AlternateFret{}; ///< 0: none
    int TopFret = 0;                                        ///< highest fret shown, 0..19

    /// Characters of a string's line.
    int width() const { return 2 * TopFret + 4; }
};

/// Reads the marks of the board: on each of the six strings, hidden ones too, the lowest dark grey cell. With
/// `alternates`, also the first mid grey cell above it, up to four frets above `PositionFret`.
Fingering chordlength(const instruments::Fretboard& board, int PositionFret, bool alternates);

/// The line of string `s` (0..5), not padded: the open note in two characters, then two for each fret. A banjo's short
/// string shows nothing before its sixth fret.
std::string chordline(int s, const instruments::Fretboard& board, const Fingering& frets);

/// The numbers of the frets 0..`TopFret` over their cells. For the left hand, whose lines are turned round, those from
/// 10 on are written backward.
std::string fretnumbers(int TopFret, instruments::Hand hand);

/// Writes lines 0..6: the strings that the board's layout has, and the numbers of the frets.
void stringlines(ChordSnapshot& shot, const instruments::Fretboard& board, instruments::Hand hand,
                 const Fingering& frets);

/// Writes lines 0..6 and 10: the keyboard with a "*" on each pressed key of the lower octave and a "+" on each of the
/// upper.
void pianoprint(ChordSnapshot& shot, const std::array<bool, pianokeys>& pressed);

/// The note names with a blank behind each; blank ones are left out.
std::string notenames(const std::array<std::string, 8>& note);

/// Brings lines 0..9 to `width` characters with blanks before them; empty lines stay empty.
/// False at the first line that is longer: it and those below it stay as they are.
bool pad(ChordSnapshot& shot, int width);

/// As `pad`, with the strings' lines and the ruler turned round for a left hand; the open notes still read forward.
bool padmirrored(ChordSnapshot& shot, int width);

} // namespace print
