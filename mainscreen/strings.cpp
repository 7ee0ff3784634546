// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {
namespace {

constexpr std::string_view lefthand{"Left Hand"};
constexpr std::string_view righthand{"Right Hand"};
constexpr std::size_t notesinshowall = 4; ///< "show all notes" looks at the first four readouts only

} // namespace

void Session::cbotype_Click(int item)
{
    cbotype.choose(item);
    presets();
    gettuning();
}

void Session::cbotuning_Click(int item)
{
    cbotuning.choose(item);
    gettuning();
}

void Session::cboleft_Click(int item)
{
    cboleft.choose(item);
    dorightlefthand();
}

void Session::cbopreset_Click(int item)
{
    cbopreset.choose(item);
    guitarcolor();
}

void Session::presets()
{
    const auto family = instruments::familyof(cbotype.text);
    if (!family)
        return;
    cbotuning.items.clear();
    if (*family == instruments::Family::custom) {
        for (const custom::Entry& entry : customtable) {
            if (entry.name.empty())
                break;
            cbotuning.items.push_back(entry.name);
        }
    } else {
        for (const instruments::Tuning& tuning : instruments::tunings)
            if (tuning.family == *family)
                cbotuning.items.emplace_back(tuning.name);
    }
    cbotuning.settext(cbotuning.items.empty() ? std::string() : cbotuning.items.front());
}

void Session::gettuning()
{
    const auto family = instruments::familyof(cbotype.text);
    if (!family)
        return;
    if (*family == instruments::Family::custom) {
        if (!applycustom())
            return;
    } else {
        const instruments::Tuning* tuning = instruments::findtuning(*family, cbotuning.text);
        if (!tuning)
            return;
        fretboard.tune(*tuning, spelling);
    }
    guitarcolor();
}

bool Session::applycustom()
{
    if (customtable.front().name.empty() || cbotuning.text.empty())
        return false;
    const auto place = custom::findentry(customtable, cbotuning.text);
    if (!place) {
        desktop.tell(ui::Icon::critical, "Error, cannot find that stored item");
        return false;
    }
    const custom::Entry& entry = customtable.at(*place);
    cboleft.settext(custom::dataat(entry, 0) == '0' ? righthand : lefthand);
    dorightlefthand();
    fretboard.arrange(custom::layoutof(custom::dataat(entry, 1)));
    for (int k = 0; k < instruments::rowcount; ++k)
        fretboard.doline(instruments::lastrow - k,
                         custom::getnotename(custom::dataat(entry, static_cast<std::size_t>(k) + 2), spelling),
                         spelling);
    return true;
}

void Session::dorightlefthand()
{
    fretboard.hand = hand();
    guitarcolor();
}

std::span<const std::string> Session::firstnotes(std::size_t count) const
{
    return std::span(note).first(count);
}

instruments::Hand Session::hand() const
{
    return cboleft.text == lefthand ? instruments::Hand::left : instruments::Hand::right;
}

void Session::guitarcolor()
{
    gureset();
    if (cbopreset.text.size() < instruments::prefixlength)
        return;
    if (cbopreset.text.starts_with(instruments::showall)) {
        fretboard.mark({0, instruments::cellcount - 1}, firstnotes(notesinshowall));
        capomarker.getcapo(0, hand());
        return;
    }
    const instruments::CapoSpan& choice = instruments::capospan(cbopreset.text);
    PositionFret = choice.fret;
    capomarker.getcapo(PositionFret, hand());
    fretboard.mark(choice.span, firstnotes(chordslots.notes.size()));
    fretboard.fadefurther(choice.span);
}

void Session::optu_Click()
{
    if (hand() == instruments::Hand::left)
        presetstepdown();
    else
        presetstepup();
}

void Session::optd_Click()
{
    if (hand() == instruments::Hand::left)
        presetstepup();
    else
        presetstepdown();
}

void Session::presetstepup()
{
    const int last = static_cast<int>(cbopreset.items.size()) - 1;
    cbopreset_Click(cbopreset.index >= last ? 0 : cbopreset.index + 1);
}

void Session::presetstepdown()
{
    const int last = static_cast<int>(cbopreset.items.size()) - 1;
    cbopreset_Click(cbopreset.index < 1 ? last : cbopreset.index - 1);
}

void Session::cmdret_Click(int index)
{
    retune.note = index;
    stringretune();
    desktop.close(ui::Screen::frmretune);
}

void Session::frmretune_Unload()
{
    retune.note = 0;
}

void Session::stringretune()
{
    if (retune.note < 1 || retune.note > 12 || retune.row > instruments::lastrow)
        return;
    fretboard.doline(retune.row, spelling.nameof(retune.note - 1), spelling);
    guitarcolor();
}

} // namespace mainscreen
