// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

#include <algorithm>

namespace mainscreen {
namespace {

/// Whether a text holds "custom", in capitals or small letters.
bool namescustom(std::string_view text)
{
    constexpr std::string_view sought{"custom"};
    const auto same = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b; };
    return !std::ranges::search(text, sought, same).empty();
}

} // namespace

void Session::mnucustom_Click()
{
    if (!customshown)
        editform.formstart();
    customshown = true;
    desktop.open(ui::Screen::custom);
}

void Session::cmdsettings_Click()
{
    editform.cmdsettings_Click(cboleft.text, fretboard);
}

void Session::customexit()
{
    if (!customshown)
        return;
    customshown = false; // the screen's close event, which comes of closing it, ends here too
    if (customchanged && namescustom(cbotype.text)) {
        presets();
        gettuning();
    }
    desktop.close(ui::Screen::custom);
}

void Session::mnuarrange_Click()
{
    if (!arrangeshown)
        closegaps();
    arrangeshown = true;
    desktop.open(ui::Screen::arrange);
}

void Session::txtx_DragDrop(int target, int source)
{
    std::swap(customtable.at(static_cast<std::size_t>(target)), customtable.at(static_cast<std::size_t>(source)));
    customchanged = true;
    if (customshown && target != source)
        editform.textread();
}

/// Closes the gaps between the entries. An open edit screen whose place now holds another entry shows that one, so that
/// it is not overwritten unseen.
void Session::closegaps()
{
    const custom::Entry before = editform.stored();
    custom::datablankelim(customtable);
    if (customshown && editform.stored() != before)
        editform.textread();
}

void Session::endform()
{
    if (!arrangeshown)
        return;
    arrangeshown = false;
    if (customchanged) {
        presets();
        gettuning();
    }
    desktop.close(ui::Screen::arrange);
}

} // namespace mainscreen
