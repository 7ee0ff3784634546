// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "core/notes.h"
#include "instruments/layouts.h"
#include "instruments/tunings.h"

#include <array>
#include <span>
#include <string>

namespace instruments {

using core::Colour;

/// One place on the neck.
struct Cell {
    std::string text;          ///< the note that sounds there; "?" on an unused string, empty before the first tuning
    Colour back = core::white; ///< darkgrey or midgrey where it marks a note of the chord
    bool visible = true;

    bool operator==(const Cell&) const = default;
};

/// The cells to examine for notes of the chord, `first` to `last`.
struct CellSpan {
    int first;
    int last;
};

/// The neck: 120 cells, cell = row + 6 * fret.
///
///             fret 0   fret 1   fret 2  ...  fret 19
///     row 0      0        6       12          114      highest string
///     row 1      1        7       13          115
///     ...
///     row 5      5       11       17          119      lowest string, or a banjo's short fifth
class Fretboard {
public:
    std::array<Cell, cellcount> cell;
    std::array<Twips, rowcount> rowtop = layoutrow(StringLayout::sixstrings).tops;
    std::array<bool, rowcount> linevisible{true, true, true, true, true, true};
    StringLayout layout = StringLayout::sixstrings;
    Hand hand = Hand::right;

    /// Fills row `row` (0 top .. 5 bottom) from its open note, each fret a semitone above the one before.
    /// On the banjo's short string (row 5, layout shortfifth) frets 0..5 all hold the open note: it starts at the fifth
    /// fret. A text that is no note's name fills the row unchanged. A row outside 0..5 is ignored.
    void doline(int row, std::string note, const core::NoteSpelling& spelling);

    /// Fills every row again from the note that its open cell shows.
    void doalldoline(const core::NoteSpelling& spelling);

    /// Shows the rows of a layout at their places; texts and colours stay.
    void arrange(StringLayout newlayout);

    /// Lays out and fills the board for a tuning of the catalogue. Rows that it does not write keep their text.
    void tune(const Tuning& tuning, const core::NoteSpelling& spelling);

    /// Gives every cell the colour of a cell at rest.
    void resetcolours();

    /// Colours the cells of the span that show one of these notes: darkgrey; blanks mark nothing.
    /// Hidden cells are coloured like the others.
    void mark(CellSpan span, std::span<const std::string> notes);

    /// In each of the span's six rows, turns every marked cell after the row's first midgrey.
    void fadefurther(CellSpan span);
};

} // namespace instruments
