// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {

void Session::key_Click(int index)
{
    keyboard.key.at(static_cast<std::size_t>(index)).back = core::darkgrey; // Reset too: it keeps that colour
    noteentry(index);
    guitarcolor();
}

void Session::Text1_Click(int index)
{
    if (index < instruments::rowcount) {
        retune.row = index;
        desktop.open(ui::Screen::frmretune);
        return;
    }
    core::PitchClass entered = core::notenumber(fretboard.cell.at(static_cast<std::size_t>(index)).text);
    if (entered == core::nonote)
        return;
    noteentry(entered);
    keyupdate();
}

void Session::noteentry(int& ent)
{
    const bool reset = ent == resetkey;
    if (reset) {
        ent = core::rereadnotes;
    } else {
        if (ent > core::highestentered)
            ent -= core::octave;
        chordslots.root = core::nonote;
        chordslots.alternateroot = core::nonote;
        chordslots.name = core::blank;
        chordslots.alternate = core::blank;
    }
    if (ent < core::rereadnotes) {
        for (std::size_t i = 0; i < chordslots.notes.size(); ++i)
            chordslots.notes.at(i) = core::notenumber(note.at(i));
        core::chordmatch(ent, chordslots, chordindex, spelling);
        setcordtyp1(chordslots.name);
        setcordtyp2(chordslots.alternate);
    } else {
        clearnotes();
    }
    for (std::size_t i = 0; i < note.size(); ++i)
        setnote(i, spelling.notename(chordslots.slot(static_cast<int>(i))));
    if (!core::isblank(note[1]))
        guitarcolor();
}

void Session::clearnotes()
{
    chordslots.notes.fill(core::nonote);
    chordslots.root = core::nonote;
    chordslots.alternateroot = core::nonote;
    gureset();
    setcordtyp1(std::string(core::blank));
    setcordtyp2(std::string(core::blank));
    keyboard.keyreset();
}

void Session::keyupdate()
{
    keyboard.keyupdate(firstnotes(chordslots.notes.size()));
}

// A readout's text and the chord's name are set here only, so that a spelling chosen by the chord follows at once.
void Session::setnote(std::size_t i, const std::string& text)
{
    if (note.at(i) == text)
        return;
    note.at(i) = text;
    note_Change(i);
}

void Session::setcordtyp1(const std::string& text)
{
    if (cordtyp1 == text)
        return;
    cordtyp1 = text;
    cordtyp1_Change();
}

void Session::setcordtyp2(std::string text)
{
    spelling.respell(text); // it was composed before the chord's name could change the spelling
    cordtyp2 = std::move(text);
}

void Session::note_Change(std::size_t i)
{
    if (i == rootreadout && spelling.automatic)
        autobrain();
}

void Session::cordtyp1_Change()
{
    if (spelling.automatic)
        autobrain();
}

} // namespace mainscreen
