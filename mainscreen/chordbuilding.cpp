// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

#include <algorithm>

namespace mainscreen {

void Session::Crd_Click(int index)
{
    findchord(index);
}

void Session::findchord(int index)
{
    chordindex = index;
    if (core::isblank(note[0])) {
        desktop.tell(ui::Icon::information, "Please enter a note using your mouse\n"
                                            "left clicking on a piano or guitar note\n"
                                            "first, before using this function");
        return;
    }
    setnote(7, std::string(core::blank));
    setcordtyp2(std::string(core::blank));
    setnote(6, note[0]);
    buildslots(index, core::notenumber(note[0]));
    for (std::size_t i = 0; i < note.size(); ++i)
        if (i != 6)
            setnote(i, spelling.notename(chordslots.slot(static_cast<int>(i))));
    setcordtyp1(chordslots.name);
    setcordtyp2(chordslots.alternate);
    keyupdate();
    guitarcolor();
}

void Session::buildslots(int index, core::PitchClass root)
{
    chordslots.alternateroot = core::nonote;
    chordslots.alternate.clear();
    if (index < 0 || index >= static_cast<int>(core::chordtypes.size()))
        return;
    const core::ChordType& type = core::chordtypes.at(static_cast<std::size_t>(index));
    chordslots.notes.fill(core::nonote);
    for (std::size_t k = 0; const int semitones : type.intervals)
        chordslots.notes.at(k++) = root + semitones;
    chordslots.name = type.name;
    if (type.frombutton.text == core::AlternateText::none)
        return;
    chordslots.alternateroot = root + type.frombutton.root;
    chordslots.alternate = core::alternatetext(type.frombutton, chordslots.notes[2], chordslots.notes[3], spelling);
}

int Session::shownchord() const
{
    const auto* found = std::ranges::find(core::chordtypes, cordtyp1, &core::ChordType::name);
    return found == core::chordtypes.end() ? -1 : static_cast<int>(found - core::chordtypes.begin());
}

} // namespace mainscreen
