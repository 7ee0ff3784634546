// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "instruments/layouts.h"
#include "mainscreen/keyboard.h"
#include "ui/look.h"

#include <algorithm>
#include <array>

/// Where everything stands on the main screen. Only the grid's own positions come with the instruments.
namespace mainscreen::places {

using ui::TwipRect;
using ui::Twips;

inline constexpr Twips px = 15; ///< a pixel at zoom 1

inline constexpr TwipRect area{0, 0, 692 * px, 504 * px};

// Piano
inline constexpr TwipRect keycase{12 * px, 8 * px, 376 * px, 126 * px};
inline constexpr TwipRect felt{keycase.left + 4 * px, keycase.top + 5 * px, 368 * px, 3 * px};
inline constexpr Twips keytop = felt.bottom();
inline constexpr Twips whitewidth = 368;
inline constexpr Twips whiteheight = 112 * px;
inline constexpr Twips blackwidth = 264;
inline constexpr Twips blackheight = 66 * px;
inline constexpr Twips tallestblack = 1000; ///< a key up to this height is a black one

/// How far each black key of an octave stands off the crack between its white neighbours.
struct BlackOffset {
    core::PitchClass pitch;
    Twips offset;
};
inline constexpr std::array<BlackOffset, 5> blackoffsets{{{1, -36}, {3, 36}, {6, -40}, {8, 0}, {10, 40}}};

/// White keys to the left of key `k`'s left edge or, for a black key, of its crack.
constexpr int whitesbefore(int k)
{
    int count = 0;
    for (int below = 0; below < k; ++below)
        count += core::isblack(below) ? 0 : 1;
    return count;
}

constexpr TwipRect keyplace(int k)
{
    const Twips edge = felt.left + whitesbefore(k) * whitewidth;
    if (!core::isblack(k))
        return {edge, keytop, whitewidth, whiteheight};
    const auto* found = std::ranges::find(blackoffsets, k % core::octave, &BlackOffset::pitch);
    return {edge + found->offset - blackwidth / 2, keytop, blackwidth, blackheight};
}
static_assert(keyplace(0).height > tallestblack && keyplace(1).height <= tallestblack);
static_assert(keyplace(pianokeys - 1).right() == felt.right());

// Readouts
inline constexpr TwipRect outputcaption{16 * px, 140 * px, 120 * px, 14 * px};
inline constexpr TwipRect outputcard{16 * px, 158 * px, 368 * px, 76 * px};
inline constexpr TwipRect chordcaption{26 * px, 168 * px, 38 * px, 24 * px};
inline constexpr TwipRect root{64 * px, 168 * px, 32 * px, 24 * px};
inline constexpr TwipRect chordname{100 * px, 168 * px, 118 * px, 24 * px};
inline constexpr TwipRect alsocaption{226 * px, 168 * px, 28 * px, 24 * px};
inline constexpr TwipRect alsoroot{254 * px, 168 * px, 26 * px, 24 * px};
inline constexpr TwipRect alsoname{284 * px, 168 * px, 92 * px, 24 * px};
inline constexpr TwipRect notescaption{26 * px, 200 * px, 38 * px, 24 * px};
constexpr TwipRect noteplace(int i)
{
    return {(64 + 33 * i) * px, 200 * px, 30 * px, 24 * px};
}
inline constexpr TwipRect reset{266 * px, 200 * px, 44 * px, 24 * px};
inline constexpr TwipRect camera{314 * px, 200 * px, 62 * px, 24 * px};

// Transposition and spelling
inline constexpr TwipRect transposecaption{16 * px, 244 * px, 62 * px, 18 * px};
inline constexpr TwipRect lineupcaption{78 * px, 244 * px, 110 * px, 18 * px};
inline constexpr TwipRect sharps{236 * px, 243 * px, 48 * px, 20 * px};
inline constexpr TwipRect flats{286 * px, 243 * px, 48 * px, 20 * px};
inline constexpr TwipRect automatic{336 * px, 243 * px, 48 * px, 20 * px};
constexpr Twips rowtop(std::size_t row)
{
    return (268 + 24 * static_cast<int>(row)) * px;
}
constexpr TwipRect shiftleft(std::size_t row)
{
    return {16 * px, rowtop(row), 20 * px, 20 * px};
}
constexpr TwipRect shiftright(std::size_t row)
{
    return {364 * px, rowtop(row), 20 * px, 20 * px};
}
constexpr TwipRect scaleplace(std::size_t row, int k)
{
    return {40 * px + k * 320, rowtop(row), 290, 20 * px};
}

// Chord buttons: three columns in number order, top to bottom
inline constexpr int chordrows = 10;
inline constexpr TwipRect inputcaption{402 * px, 8 * px, 120 * px, 14 * px};
constexpr TwipRect chordplace(int i)
{
    return {(402 + 93 * (i / chordrows)) * px, (26 + 29 * (i % chordrows)) * px, 90 * px, 25 * px};
}

// Selectors
inline constexpr Twips selectorcaptiontop = 318 * px;
inline constexpr Twips selectortop = 335 * px;
constexpr TwipRect captionabove(const TwipRect& selector)
{
    return {selector.left, selectorcaptiontop, selector.width, 14 * px};
}
inline constexpr TwipRect familylist{16 * px, selectortop, 108 * px, 24 * px};
inline constexpr TwipRect handlist{132 * px, selectortop, 88 * px, 24 * px};
inline constexpr TwipRect tuninglist{228 * px, selectortop, 196 * px, 24 * px};
inline constexpr TwipRect capolist{432 * px, selectortop, 190 * px, 24 * px};
inline constexpr TwipRect optiondown{628 * px, selectortop, 24 * px, 24 * px};
inline constexpr TwipRect optionup{656 * px, selectortop, 24 * px, 24 * px};

// Neck
inline constexpr Twips necktop = selectortop + 24 * px;
inline constexpr TwipRect neckarea{0, necktop, area.width, area.height - necktop}; ///< with all that stands around it
inline constexpr Twips numbergap = 2 * px; ///< between the wood and the numbers of the frets
inline constexpr Twips numberheight = 14 * px;
inline constexpr Twips widestcell = 345;
inline constexpr Twips cellgap = 45;     ///< between neighbours where the columns stand closest
inline constexpr Twips neckmargin = 105; ///< of wood above the first string's cells and below the last's

/// Width of a column's cells: pills narrow where the columns stand closer, and never touch.
constexpr Twips cellwidth(int fret, instruments::Hand hand)
{
    const auto distance = [&](int other) {
        if (other < 0 || other >= instruments::fretcount)
            return widestcell + cellgap;
        const Twips d = instruments::columns.at(static_cast<std::size_t>(other))[hand] -
                        instruments::columns.at(static_cast<std::size_t>(fret))[hand];
        return d < 0 ? -d : d;
    };
    return std::min({widestcell, distance(fret - 1) - cellgap, distance(fret + 1) - cellgap});
}

} // namespace mainscreen::places
