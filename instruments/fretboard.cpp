// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/fretboard.h"

#include <algorithm>

namespace instruments {

void Fretboard::doline(int row, std::string note, const core::NoteSpelling& spelling)
{
    if (row < 0 || row > lastrow)
        return;
    const bool shortstring = row == lastrow && layout == StringLayout::shortfifth;
    spelling.noteflat(note);
    for (int fret = 0; fret < fretcount; ++fret) {
        if (fret > (shortstring ? shortstringfret : 0))
            spelling.noteup(note);
        cell.at(static_cast<std::size_t>(row + rowcount * fret)).text = note;
    }
}

void Fretboard::doalldoline(const core::NoteSpelling& spelling)
{
    for (int row = 0; row < rowcount; ++row)
        doline(row, cell.at(static_cast<std::size_t>(row)).text, spelling);
}

void Fretboard::arrange(StringLayout newlayout)
{
    const LayoutRow& shown = layoutrow(newlayout);
    const int shortstringend = lastrow + rowcount * shortstringfret;
    for (int i = 0; i < cellcount; ++i) {
        const int row = i % rowcount;
        const bool beforeshortstring =
            newlayout == StringLayout::shortfifth && row == lastrow && i > lastrow && i <= shortstringend;
        cell.at(static_cast<std::size_t>(i)).visible = row >= shown.firstrow && !beforeshortstring;
    }
    for (int line = 0; line < rowcount; ++line)
        linevisible.at(static_cast<std::size_t>(line)) =
            line >= shown.firstline && line < shown.firstline + shown.linecount;
    rowtop = shown.tops;
    layout = newlayout;
}

void Fretboard::tune(const Tuning& tuning, const core::NoteSpelling& spelling)
{
    arrange(tuning.layout);
    for (int row = tuning.toprow(); row < rowcount; ++row)
        doline(row, std::string(tuning.opennote(row)), spelling);
}

void Fretboard::resetcolours()
{
    for (Cell& c : cell)
        c.back = core::white;
}

void Fretboard::mark(CellSpan span, std::span<const std::string> notes)
{
    for (int i = span.first; i <= span.last; ++i) {
        Cell& c = cell.at(static_cast<std::size_t>(i));
        if (!core::isblank(c.text) && std::ranges::find(notes, c.text) != notes.end())
            c.back = core::darkgrey;
    }
}

void Fretboard::fadefurther(CellSpan span)
{
    for (int start = span.first; start < span.first + rowcount; ++start) {
        bool seen = false;
        for (int i = start; i <= span.last; i += rowcount) {
            Cell& c = cell.at(static_cast<std::size_t>(i));
            if (c.back != core::darkgrey)
                continue;
            if (seen)
                c.back = core::midgrey;
            seen = true;
        }
    }
}

} // namespace instruments
