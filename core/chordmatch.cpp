// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/chordmatch.h"

#include <algorithm>
#include <bit>

namespace core {
namespace {

constexpr std::int8_t notype = -1;

/// What a set of notes reads as.
struct Reading {
    std::int8_t type = notype;
    std::int8_t root = 0;
};

// The types in the order in which they are tried; among sets of one size the first that fits gives the reading.
// "major 6th", "7 sus 4", "sus 2" and "major 6th no 5" share their notes with an earlier type and never get their turn;
// nor would the two rootless ninths, C D F Ab and C Db F Ab, which is why they are not listed.
// clang-format off
constexpr auto tryorder = std::to_array<std::int8_t>({
    8, 16, 20, 21,                       // six notes
    6, 15, 19,                           // five
    7, 3, 4, 5, 10, 12, 18, 17, 25,      // four
    0, 1, 9, 11, 13, 14, 22, 24, 26, 27, // three
    23,                                  // two
});
// clang-format on

constexpr bool holds(NoteSet set, PitchClass n)
{
    return ((set >> n) & 1U) != 0;
}

/// The root that `type` has in `set`, or `nonote`: the lowest note if it can be, otherwise the highest that can.
/// Only chords that repeat within the octave leave a choice.
constexpr PitchClass rootin(NoteSet set, const ChordType& type)
{
    const auto roots = [&](PitchClass n) { return holds(set, n) && notesof(type.intervals, n) == set; };
    if (const PitchClass lowest = std::countr_zero(set); roots(lowest))
        return lowest;
    for (PitchClass n = octave - 1; n >= 0; --n)
        if (roots(n))
            return n;
    return nonote;
}

constexpr Reading read(NoteSet set)
{
    for (const std::int8_t type : tryorder) {
        const ChordType& row = chordtypes[static_cast<std::size_t>(type)];
        if (row.intervals.count != std::popcount(set))
            continue;
        if (const PitchClass root = rootin(set, row); root != nonote)
            return {type, static_cast<std::int8_t>(root)};
    }
    return {};
}

/// The reading of every set of notes; computed once, on first use.
const std::array<Reading, 1U << octave>& readings()
{
    static const auto table = [] {
        std::array<Reading, 1U << octave> all{};
        for (std::size_t set = 1; set < all.size(); ++set)
            all[set] = read(static_cast<NoteSet>(set));
        return all;
    }();
    return table;
}

void addnote(PitchClass n, std::array<PitchClass, 6>& notes)
{
    for (std::size_t i = 0; i < notes.size(); ++i)
        if (notes[i] != nonote && std::ranges::count(notes, notes[i]) > 1)
            notes[i] = nonote;
    std::ranges::copy_backward(notes.begin(), notes.end() - 1, notes.end());
    notes.front() = n;
}

} // namespace

std::string alternatetext(const Alternate& alternate, PitchClass slot2, PitchClass slot3, const NoteSpelling& spelling)
{
    switch (alternate.text) {
    case AlternateText::type:
        return std::string(chordtypes.at(static_cast<std::size_t>(alternate.type)).name);
    case AlternateText::dimlist:
        return ", " + spelling.notename(slot2) + ", & " + spelling.notename(slot3) + " dim.";
    case AlternateText::auglist:
        return "+ and " + spelling.notename(slot2) + "+";
    case AlternateText::none:
        break;
    }
    return {};
}

void chordmatch(PitchClass& n, ChordSlots& slots, int& chordindex, const NoteSpelling& spelling)
{
    auto& notes = slots.notes;
    if (n == highestentered)
        n = 0;
    if (n != rereadnotes && std::ranges::find(notes, n) == notes.end())
        addnote(n, notes);
    std::ranges::sort(notes);

    NoteSet set = 0;
    int count = 0;
    for (const PitchClass note : notes)
        if (note < octave) {
            set = static_cast<NoteSet>(set | (1U << note));
            ++count;
        }
    if (count < 2)
        return;

    const Reading reading = count == std::popcount(set) ? readings()[set] : Reading{};
    slots.root = nonote;
    slots.alternateroot = nonote;
    slots.name = cantfind;
    slots.alternate = blank;
    if (reading.type == notype)
        return;

    const ChordType& type = chordtypes[static_cast<std::size_t>(reading.type)];
    slots.root = reading.root;
    slots.name = type.name;
    chordindex = reading.type;
    if (type.fromnotes.text != AlternateText::none) {
        slots.alternateroot = (reading.root + type.fromnotes.root) % octave;
        slots.alternate = alternatetext(type.fromnotes, notes[2], notes[3], spelling);
    }
}

} // namespace core
