// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ranges>
#include <string_view>

namespace instruments {

using core::Twips;

inline constexpr int rowcount = 6;   ///< strings of the grid, row 0 at the top
inline constexpr int fretcount = 20; ///< columns of the grid, fret 0 the open strings
inline constexpr int cellcount = rowcount * fretcount;
inline constexpr int lastrow = rowcount - 1;

/// How many strings the grid shows. The numbers are kept in the data file, as characters of a custom tuning.
enum class StringLayout : std::uint8_t { shortfifth = 0, fourstrings = 1, fivestrings = 2, sixstrings = 3 };

/// The short fifth string of a banjo begins at this fret, so its open note is the note of this fret.
inline constexpr int shortstringfret = 5;

/// What a layout shows and where. Rows `firstrow`..5 are visible.
struct LayoutRow {
    std::string_view name;            ///< of the operation that chooses it
    int firstrow;                     ///< highest visible row
    std::array<Twips, rowcount> tops; ///< upper edge of each row, hidden rows included
    int firstline;                    ///< highest visible one of the six string lines
    int linecount;                    ///< how many are visible from there on
};

// Four- and five-string boards move up to begin at the upper positions; the banjo keeps the places of six strings.
// clang-format off
inline constexpr std::array<LayoutRow, 4> layouts{{
//  operation       first row   tops of rows 0..5                       string lines
  { "string5banjo", 1,        { 5640, 5880, 6120, 6360, 6600, 6840 },   1, 5 },
  { "string4b",     2,        { 5640, 5880, 5880, 6120, 6360, 6600 },   1, 4 },
  { "string5b",     1,        { 5640, 5640, 5880, 6120, 6360, 6600 },   0, 5 },
  { "string6g",     0,        { 5640, 5880, 6120, 6360, 6600, 6840 },   0, 6 },
}};
// clang-format on

inline constexpr Twips rowheight = 240;
/// Heights of the six string lines, each through the middle of a row of cells.
inline constexpr std::array<Twips, rowcount> linetops{5760, 6000, 6240, 6480, 6720, 6960};

constexpr const LayoutRow& layoutrow(StringLayout layout)
{
    return layouts.at(static_cast<std::size_t>(layout));
}

namespace detail {
constexpr bool linesmeetrows(const LayoutRow& l)
{
    for (int row = l.firstrow; row < rowcount; ++row) {
        const auto line = static_cast<std::size_t>(l.firstline + row - l.firstrow);
        if (linetops.at(line) != l.tops.at(static_cast<std::size_t>(row)) + rowheight / 2)
            return false;
    }
    return l.linecount == rowcount - l.firstrow;
}
} // namespace detail
static_assert(std::ranges::all_of(layouts, detail::linesmeetrows));

enum class Hand : std::uint8_t { right, left };

/// Left edge of one fret's column of cells, for either hand. The two are close to mirror images, not quite.
struct ColumnPosition {
    Twips right;
    Twips left;

    constexpr Twips operator[](Hand hand) const { return hand == Hand::left ? left : right; }
};

// clang-format off
inline constexpr std::array<ColumnPosition, fretcount> columns{{
//  right   left     fret
  { 1190,   8820 },  // 0
  { 1620,   8220 },  // 1
  { 2100,   7740 },  // 2
  { 2580,   7260 },  // 3
  { 3060,   6780 },  // 4
  { 3540,   6300 },  // 5
  { 4020,   5880 },  // 6
  { 4440,   5460 },  // 7
  { 4860,   5040 },  // 8
  { 5280,   4620 },  // 9
  { 5700,   4200 },  // 10
  { 6120,   3780 },  // 11
  { 6600,   3300 },  // 12
  { 7020,   2880 },  // 13
  { 7440,   2520 },  // 14
  { 7800,   2160 },  // 15
  { 8160,   1800 },  // 16
  { 8520,   1440 },  // 17
  { 8880,   1080 },  // 18
  { 9240,   720  },  // 19
}};
// clang-format on
static_assert(std::ranges::is_sorted(columns, std::less{}, &ColumnPosition::right));
static_assert(std::ranges::is_sorted(columns, std::greater{}, &ColumnPosition::left));

/// What else changes sides with the hand.
struct HandRow {
    Twips segmentleft;  ///< the short piece of string beyond the last fret, from here
    Twips segmentright; ///< to here
    Twips captionleft;  ///< left edge of the caption beside the board
};
inline constexpr HandRow righthanded{9600, 10260, 180};
inline constexpr HandRow lefthanded{75, 735, 9180};

constexpr const HandRow& handrow(Hand hand)
{
    return hand == Hand::left ? lefthanded : righthanded;
}

} // namespace instruments
