// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/core/chordreading.h"

#include "tests/support/names.h"

#include <array>
#include <optional>
#include <ostream>

namespace tests {
namespace {

struct Pattern {
    const char* name;
    int type;
    std::vector<int> intervals;
    bool rootless = false; ///< read in this one position only, its lowest note taken as the root
};

// In the order in which they are tried, by number of notes.
// clang-format off
const std::vector<Pattern> tiers{
    { "major 11th",       8,  {0, 2, 4, 5, 7, 10} },
    { "minor 11th",       16, {0, 2, 3, 5, 7, 10} },
    { "major 13th",       20, {0, 2, 4, 7, 9, 10} },
    { "minor 13th",       21, {0, 2, 3, 7, 9, 10} },

    { "major 9th",        6,  {0, 2, 4, 7, 10} },
    { "minor 9th",        15, {0, 2, 3, 7, 10} },
    { "6th add 9",        19, {0, 2, 4, 7, 9} },

    { "diminished",       7,  {0, 3, 6, 9} },
    { "7th",              3,  {0, 4, 7, 10} },
    { "minor 7th",        4,  {0, 3, 7, 10} },
    { "major 7th",        5,  {0, 4, 7, 11} },
    { "minor 6th",        10, {0, 3, 7, 9} },
    { "mmaj7th",          12, {0, 3, 7, 11} },
    { "major 9th",        6,  {0, 2, 5, 8}, true },   // gaps 2 3 3
    { "minor 9th",        15, {0, 1, 5, 8}, true },   // gaps 1 4 3
    { "7 maj 5",          18, {0, 4, 8, 10} },
    { "7-5",              17, {0, 4, 6, 10} },
    { "sus 4 (5 and 3)",  25, {0, 4, 5, 7} },

    { "major",            0,  {0, 4, 7} },
    { "minor",            1,  {0, 3, 7} },
    { "+ ( +5, aug. )",   9,  {0, 4, 8} },
    { "sus (sus4 no 3)",  11, {0, 5, 7} },
    { "-5",               13, {0, 4, 6} },
    { "7 sus 4",          14, {0, 5, 10} },
    { "sus 2",            22, {0, 2, 7} },
    { "sus 4   (3 no 5)", 24, {0, 4, 5} },
    { "major 6th no 5",   26, {0, 4, 9} },
    { "minor 6th no 5",   27, {0, 3, 9} },

    { "5 (1st and 5th)",  23, {0, 7} },
};
// clang-format on

/// Gaps between neighbours of a sorted list, upward.
std::vector<int> gapsof(const std::vector<int>& notes)
{
    std::vector<int> gaps;
    for (std::size_t i = 1; i < notes.size(); ++i)
        gaps.push_back(notes[i] - notes[i - 1]);
    return gaps;
}

/// The pattern's notes from its k-th on, those before it an octave up.
std::vector<int> rotation(const Pattern& pattern, std::size_t k)
{
    std::vector<int> notes(pattern.intervals.begin() + static_cast<std::ptrdiff_t>(k), pattern.intervals.end());
    for (std::size_t i = 0; i < k; ++i)
        notes.push_back(pattern.intervals[i] + 12);
    return notes;
}

/// The slot of the root, where the notes are the pattern in some rotation.
std::optional<std::size_t> rootslot(const Pattern& pattern, const std::vector<int>& notes)
{
    const std::size_t count = pattern.intervals.size();
    if (count != notes.size())
        return std::nullopt;
    for (std::size_t k = 0; k < (pattern.rootless ? 1 : count); ++k)
        if (gapsof(rotation(pattern, k)) == gapsof(notes))
            return (count - k) % count;
    return std::nullopt;
}

void addalternate(Reading& reading, const std::vector<int>& notes, std::size_t root, int mode)
{
    const auto also = [&](int semitones, const char* name) {
        reading.other = (reading.root + semitones) % 12;
        reading.also = name;
    };
    const std::string kind = reading.name;
    if (kind == "minor 7th")
        also(3, "major 6th");
    else if (kind == "major 7th")
        also(12 - 3, "minor 9th");
    else if (kind == "minor 6th")
        also(12 - 7, "major 9th");
    else if (kind == "minor")
        also(3, "major 6th no 5");
    else if (kind == "major 6th no 5")
        also(9, "minor");
    else if (kind == "sus (sus4 no 3)")
        also(5, "sus 2");
    else if (kind == "diminished") {
        reading.other = notes[1];
        reading.also = ", " + written(notes[2], mode) + ", & " + written(notes[3], mode) + " dim.";
    } else if (kind == "+ ( +5, aug. )") {
        reading.other = notes[1];
        reading.also = "+ and " + written(notes[2], mode) + "+";
    } else if (kind == "7-5") {
        reading.other = notes[root == 0 ? 2 : 1];
        reading.also = "7-5";
    }
}

} // namespace

Reading readbygaps(const std::vector<int>& notes, int mode)
{
    for (const Pattern& pattern : tiers) {
        const auto root = rootslot(pattern, notes);
        if (!root)
            continue;
        Reading reading{.type = pattern.type, .root = notes[*root], .name = pattern.name, .also = " "};
        if (!pattern.rootless)
            addalternate(reading, notes, *root, mode);
        return reading;
    }
    return {.name = "cant find", .also = " "};
}

std::string rootlessninth(const std::vector<int>& notes)
{
    for (const Pattern& pattern : tiers)
        if (pattern.rootless && rootslot(pattern, notes))
            return pattern.name;
    return "";
}

std::ostream& operator<<(std::ostream& out, const Reading& reading)
{
    return out << "type " << reading.type << ", root " << reading.root << " \"" << reading.name << "\", other root "
               << reading.other << " \"" << reading.also << '"';
}

} // namespace tests
