// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace core {

/// Up to six notes of a chord as semitones above its root, each 0..11, in the order in which they fill the note slots.
struct Intervals {
    std::array<std::int8_t, 6> semitones{};
    int count = 0;

    constexpr Intervals(std::initializer_list<int> notes)
    {
        for (const int note : notes)
            semitones.at(static_cast<std::size_t>(count++)) = static_cast<std::int8_t>(note);
    }
    constexpr const std::int8_t* begin() const { return semitones.data(); }
    constexpr const std::int8_t* end() const { return begin() + count; }
    constexpr bool operator==(const Intervals&) const = default;
};

/// What a second reading of a chord's notes looks like.
enum class AlternateText : std::uint8_t {
    none,    ///< the notes have one name
    type,    ///< another chord type on another root: `Alternate::type` is its number
    dimlist, ///< the other roots of a diminished chord: ", Gb, & A dim." behind the first of them
    auglist, ///< the other roots of an augmented chord: "+ and G#+" behind the first of them
};

/// The second reading: another root and what is written behind it.
struct Alternate {
    AlternateText text = AlternateText::none;
    std::int8_t root{}; ///< semitones above the chord's own root; not always one of its notes
    std::int8_t type{}; ///< number of the other chord type
};

/// A row of the catalogue. Its place in the table is the type's number, 0..27, and the index of its button.
struct ChordType {
    std::string_view name;    ///< as the chord readout shows it, blanks included
    Intervals intervals;      ///< root first
    Alternate frombutton;     ///< the alternate when the chord is built from its button
    Alternate fromnotes;      ///< the alternate when the chord is read from its notes
    std::string_view caption; ///< of its button
    std::string_view tip;     ///< of its button; empty: the buttons' common tip
};

namespace detail {
inline constexpr Alternate none{};
inline constexpr Alternate dim{AlternateText::dimlist, 3};
inline constexpr Alternate aug{AlternateText::auglist, 4};
constexpr Alternate also(int root, int type)
{
    return {AlternateText::type, static_cast<std::int8_t>(root), static_cast<std::int8_t>(type)};
}
} // namespace detail

// The two alternate columns differ on purpose where a chord has one in one direction only: see docs/behaviour.md.
// clang-format off
inline constexpr auto chordtypes = [] {
using namespace detail;
return std::to_array<ChordType>({
//  name                 intervals             by button       by notes        caption              tip
  { "major",             {0, 4, 7},            none,           none,           "major",             "" },
  { "minor",             {0, 3, 7},            also(3, 26),    also(3, 26),    "minor",             "" },
  { "major 6th",         {0, 4, 7, 9},         also(9, 4),     none,           "major 6th",         "" },
  { "7th",               {0, 4, 7, 10},        none,           none,           "7th",               "dominant 7th (adds flatted 7th note)" },
  { "minor 7th",         {0, 3, 7, 10},        also(3, 2),     also(3, 2),     "minor 7th",         "" },
  { "major 7th",         {0, 4, 7, 11},        also(9, 15),    also(9, 15),    "major 7th",         "" },
  { "major 9th",         {0, 2, 4, 7, 10},     none,           none,           "major 9th",         "" },
  { "diminished",        {0, 3, 6, 9},         dim,            dim,            "diminished",        "all notes in a diminished chord would yield the same chord as the base note" },
  { "major 11th",        {0, 2, 4, 5, 7, 10},  none,           none,           "major 11th",        "" },
  { "+ ( +5, aug. )",    {0, 4, 8},            aug,            aug,            "+ ( +5, aug. )",    "augmented chord, also called \"+5\" or simply \"+\"" },
  { "minor 6th",         {0, 3, 7, 9},         also(5, 6),     also(5, 6),     "minor 6th",         "" },
  { "sus (sus4 no 3)",   {0, 5, 7},            also(5, 22),    also(5, 22),    "sus (sus4 no 3)",   "sus 4 is also simply called \"sus\"; chord contains the 5th but not the 3rd" },
  { "mmaj7th",           {0, 3, 7, 11},        none,           none,           "mmaj7th",           "combination of a minor chord with a major 7th added" },
  { "-5",                {0, 4, 6},            none,           none,           "-5",                "flatting the fifth note of the chord" },
  { "7 sus 4",           {0, 5, 10},           also(5, 11),    none,           "7 sus 4",           "combination dom 7th with sus 4th" },
  { "minor 9th",         {0, 2, 3, 7, 10},     none,           none,           "minor 9th",         "" },
  { "minor 11th",        {0, 2, 3, 5, 7, 10},  none,           none,           "minor 11th",        "" },
  { "7-5",               {0, 4, 6, 10},        none,           also(6, 17),    "7-5",               "combination dom 7th with flatted 5th (-5)" },
  { "7 maj 5",           {0, 4, 8, 10},        none,           none,           "7 maj 5",           "Combination Dom 7th with + 5 (aug)" },
  { "6th add 9",         {0, 2, 4, 7, 9},      none,           none,           "6th add 9",         "" },
  { "major 13th",        {0, 2, 4, 7, 9, 10},  none,           none,           "major 13th",        "" },
  { "minor 13th",        {0, 2, 3, 7, 9, 10},  none,           none,           "minor 13th",        "" },
  { "sus 2",             {0, 2, 7},            also(7, 11),    none,           "sus 2",             "" },
  { "5 (1st and 5th)",   {0, 7},               none,           none,           "5 (1st and 5th)",   "just two notes - the primary and the fifth; also called \"no 3rd\"" },
  { "sus 4   (3 no 5)",  {0, 4, 5},            none,           none,           "sus 4 (3 no 5)",    "contains the 3rd but not the 5th" },
  { "sus 4 (5 and 3)",   {0, 4, 5, 7},         none,           none,           "sus 4 (5 and 3)",   "contains the sus 4th, plus both 3rd and 5th" },
  { "major 6th no 5",    {0, 4, 9},            also(9, 1),     also(9, 1),     "major 6th no 5",    "" },
  { "minor 6th no 5",    {0, 3, 9},            none,           none,           "minor 6th no 5",    "" },
});
}();
// clang-format on

/// A set of pitch classes: bit n stands for note n.
using NoteSet = std::uint16_t;

/// The notes of a chord of these intervals on `root` (0..11).
constexpr NoteSet notesof(const Intervals& intervals, PitchClass root)
{
    unsigned set = 0;
    for (const int semitones : intervals)
        set |= 1U << ((root + semitones) % octave);
    return static_cast<NoteSet>(set);
}

namespace detail {
constexpr bool rootfirst(const ChordType& t)
{
    return t.intervals.count >= 2 && t.intervals.semitones[0] == 0 && std::ranges::is_sorted(t.intervals) &&
           std::ranges::all_of(t.intervals, [](int s) { return s < 12; });
}

/// An alternate that is a type of the catalogue contains every note of the chord it renames.
constexpr bool alternatefits(const ChordType& t, const Alternate& a)
{
    if (a.text != AlternateText::type)
        return true;
    const NoteSet notes = notesof(t.intervals, 0);
    return (notes & notesof(chordtypes[static_cast<std::size_t>(a.type)].intervals, a.root)) == notes;
}
} // namespace detail

static_assert(chordtypes.size() == 28);
static_assert(std::ranges::all_of(chordtypes, detail::rootfirst));
static_assert(std::ranges::all_of(chordtypes, [](const ChordType& t) {
    return detail::alternatefits(t, t.frombutton) && detail::alternatefits(t, t.fromnotes);
}));

} // namespace core
