// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "instruments/fretboard.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace instruments {

/// The capo choices as they are listed. The first is shown by no selector; the last, empty one ends the list.
inline constexpr std::array<std::string_view, 19> capolist{
    "select ------------>",
    "0 normal - open",
    "1st fret  capo / bar",
    "2nd fret  capo / bar",
    "3rd fret  capo / bar",
    "4th fret  capo / bar",
    "5th fret  capo / bar",
    "6th fret  capo / bar",
    "7th fret  capo / bar",
    "8th fret  capo / bar",
    "9th fret  capo / bar",
    "10th fret  capo / bar",
    "11th fret  capo / bar",
    "12th fret  capo / bar",
    "13th fret  capo / bar",
    "14th fret  capo / bar",
    "15th fret  capo / bar",
    "show all notes",
    "",
};

inline constexpr std::size_t prefixlength = 4; ///< characters of a choice that are looked at
inline constexpr std::string_view showall{"show"};

/// What a capo choice, known by its first four characters, examines for notes of the chord.
struct CapoSpan {
    std::string_view prefix;
    CellSpan span;
    int fret; ///< of the capo; 0: none
};

// The span is five frets from the capo's. Those of the 12th, 13th and 14th are a cell or so off the pattern on purpose;
// see docs/behaviour.md.
// clang-format off
inline constexpr std::array<CapoSpan, 16> capospans{{
  { "0 no", {  0,  29 },  0 },
  { "1st ", {  6,  35 },  1 },
  { "2nd ", { 12,  41 },  2 },
  { "3rd ", { 18,  47 },  3 },
  { "4th ", { 24,  53 },  4 },
  { "5th ", { 30,  59 },  5 },
  { "6th ", { 36,  65 },  6 },
  { "7th ", { 42,  71 },  7 },
  { "8th ", { 48,  77 },  8 },
  { "9th ", { 54,  83 },  9 },
  { "10th", { 60,  89 }, 10 },
  { "11th", { 66,  95 }, 11 },
  { "12th", { 71, 101 }, 12 },
  { "13th", { 77, 107 }, 13 },
  { "14th", { 84, 114 }, 14 },
  { "15th", { 90, 119 }, 15 },
}};
// clang-format on
static_assert(std::ranges::all_of(capospans, [](const CapoSpan& c) {
    return c.prefix.size() == prefixlength && c.span.first >= 0 && c.span.last < cellcount &&
           capolist.at(static_cast<std::size_t>(c.fret) + 1).starts_with(c.prefix);
}));

/// The span of a capo choice. A text that is no fret's examines the open position.
constexpr const CapoSpan& capospan(std::string_view choice)
{
    const auto* found =
        std::ranges::find_if(capospans, [&](const CapoSpan& c) { return choice.starts_with(c.prefix); });
    return found == capospans.end() ? capospans.front() : *found;
}

/// Left edge of the bar at one fret, for either hand.
// clang-format off
inline constexpr std::array<ColumnPosition, 15> barpositions{{
//  right   left     fret
  { 1680,   8280 },  // 1
  { 2160,   7800 },  // 2
  { 2640,   7320 },  // 3
  { 3120,   6840 },  // 4
  { 3600,   6360 },  // 5
  { 4050,   5910 },  // 6
  { 4470,   5490 },  // 7
  { 4890,   5070 },  // 8
  { 5310,   4650 },  // 9
  { 5730,   4230 },  // 10
  { 6150,   3810 },  // 11
  { 6630,   3330 },  // 12
  { 7050,   2910 },  // 13
  { 7440,   2520 },  // 14
  { 7800,   2160 },  // 15
}};
// clang-format on
static_assert(std::ranges::all_of(barpositions, [](ColumnPosition p) { return p.right + p.left == 9960; }));

inline constexpr Twips followerdistance = 120; ///< from the bar's left edge to its follower's

/// The capo as it is drawn: a bar and a thin line that follows it.
struct CapoMarker {
    bool barvisible = false;
    Twips barleft = barpositions.front().right;
    bool followervisible = false;
    Twips followerleft = barpositions.front().right + followerdistance;

    /// Shows the marker at fret `capo` (1..15) for a hand; 0 hides it.
    void getcapo(int capo, Hand hand);
};

} // namespace instruments
