// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/chordpanel.h"

#include "mainscreen/places.h"

namespace mainscreen {

ChordPanel::ChordPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered) : Panel(drawn, shown, entered)
{
    caption("chordinput", "Chord Input", ui::Type::heading, places::inputcaption);
    for (std::size_t i = 0; i < Crd.size(); ++i) {
        const int index = static_cast<int>(i);
        Crd.at(i) = put(new ui::Button(canvas.look(), totext(core::chordtypes.at(i).caption), &canvas),
                        membername("Crd", index), places::chordplace(index));
        onclick(Crd.at(i), &Session::Crd_Click, index);
    }
}

void ChordPanel::display()
{
    const int shown = session.shownchord();
    for (std::size_t i = 0; i < Crd.size(); ++i)
        Crd.at(i)->setchosen(static_cast<int>(i) == shown);
}

void ChordPanel::displaytips(const Tips& tips)
{
    for (std::size_t i = 0; i < Crd.size(); ++i)
        settip(Crd.at(i), tips.Crd.at(i));
}

} // namespace mainscreen
