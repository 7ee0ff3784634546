// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/snapshot.h"

#include "core/textcode.h"

#include <algorithm>

namespace print {
namespace {

using instruments::fretcount;
using instruments::rowcount;

constexpr int reach = 4; ///< frets above the capo in which an alternate is looked for
constexpr int lastfret = fretcount - 1;

std::size_t index(int s)
{
    return static_cast<std::size_t>(s);
}

/// The first fret from `first` to `last` where string `s` has this colour; -1 where none has.
int findfret(const instruments::Fretboard& board, int s, int first, int last, core::Colour colour)
{
    for (int fret = first; fret <= last; ++fret)
        if (board.cell.at(index(s + rowcount * fret)).back == colour)
            return fret;
    return -1;
}

void findalternates(const instruments::Fretboard& board, int PositionFret, Fingering& frets)
{
    const int last = std::min(PositionFret + reach, lastfret);
    const int limit = std::min(frets.TopFret, last);
    for (int s = 0; s < rowcount; ++s) {
        if (frets.PressedFret.at(index(s)) >= limit)
            continue;
        const int found = findfret(board, s, frets.PressedFret.at(index(s)), last, core::midgrey);
        frets.AlternateFret.at(index(s)) = std::max(found, 0);
        frets.TopFret = std::max(frets.TopFret, found);
    }
}

bool padto(std::string& line, int width, bool mirrored)
{
    if (line.empty())
        return true;
    const int length = static_cast<int>(core::charactercount(line));
    if (length > width)
        return false;
    const bool turned = mirrored && length >= 2;
    if (turned)
        std::swap(line[0], line[1]); // the open note's name, which is to read forward once the line is turned
    line.insert(0, index(width - length), ' ');
    if (turned)
        std::ranges::reverse(line);
    return true;
}

} // namespace

Fingering chordlength(const instruments::Fretboard& board, int PositionFret, bool alternates)
{
    Fingering frets;
    for (int s = 0; s < rowcount; ++s)
        frets.PressedFret.at(index(s)) = std::max(findfret(board, s, 0, lastfret, core::darkgrey), 0);
    frets.TopFret = *std::ranges::max_element(frets.PressedFret);
    if (alternates)
        findalternates(board, PositionFret, frets);
    return frets;
}

std::string chordline(int s, const instruments::Fretboard& board, const Fingering& frets)
{
    const bool shortstring = board.layout == instruments::StringLayout::shortfifth && s == instruments::lastrow;
    std::string line = board.cell.at(index(s)).text;
    if (line.size() < 2)
        line += ' ';
    for (int fret = 0; fret <= frets.TopFret; ++fret) {
        if (shortstring && fret <= instruments::shortstringfret)
            line += "  ";
        else if (fret == frets.PressedFret.at(index(s)))
            line += "*|";
        else if (fret > 0 && fret == frets.AlternateFret.at(index(s)))
            line += "+|";
        else
            line += "-|";
    }
    return line;
}

std::string fretnumbers(int TopFret, instruments::Hand hand)
{
    std::string line = "  0";
    for (int fret = 1; fret <= TopFret; ++fret) {
        std::string digits = std::to_string(fret);
        if (fret >= 10 && hand == instruments::Hand::left)
            std::ranges::reverse(digits);
        if (fret <= 10) // the blank before 10 brings its first digit over the cell's mark
            digits.insert(0, 1, ' ');
        line += digits;
    }
    return line;
}

void stringlines(ChordSnapshot& shot, const instruments::Fretboard& board, instruments::Hand hand,
                 const Fingering& frets)
{
    const int firstrow = instruments::layoutrow(board.layout).firstrow;
    for (int s = 0; s < rowcount; ++s)
        shot.line.at(index(s)) = s < firstrow ? std::string() : chordline(s, board, frets);
    shot.line[rulerline] = fretnumbers(frets.TopFret, hand);
}

std::string notenames(const std::array<std::string, 8>& note)
{
    std::string names;
    for (std::size_t i = 0; i < 6; ++i)
        if (!core::isblank(note.at(i)))
            names += note.at(i) + ' ';
    return names;
}

bool pad(ChordSnapshot& shot, int width)
{
    return std::all_of(shot.line.begin(), shot.line.begin() + printedlines,
                       [&](std::string& line) { return padto(line, width, false); });
}

bool padmirrored(ChordSnapshot& shot, int width)
{
    const auto afterboard = shot.line.begin() + rulerline + 1;
    return std::all_of(shot.line.begin(), afterboard, [&](std::string& line) { return padto(line, width, true); }) &&
           std::all_of(afterboard, shot.line.begin() + printedlines,
                       [&](std::string& line) { return padto(line, width, false); });
}

} // namespace print
