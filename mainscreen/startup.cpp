// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

#include <exception>
#include <system_error>

namespace mainscreen {

void Session::Form_Load()
{
    initmain();
    loadcustom();
    initvariables();
    doflatsetup();
}

void Session::initmain()
{
    std::error_code unreadable;
    workdir = std::filesystem::current_path(unreadable);
    datafilename = "membank.txt";
    startdir = workdir;
    pagesettings = {};
    page.show(pagesettings);
}

void Session::initvariables()
{
    trans1.fill(core::scalefrom(0, spelling));
    presets();
    gettuning();
    dataload();
    gureset();
    keyboard.keyreset();
    tips.complete();
    toolstore();
}

void Session::dataload()
{
    for (std::size_t i = 1; i < instruments::capolist.size() && !instruments::capolist.at(i).empty(); ++i)
        cbopreset.items.emplace_back(instruments::capolist.at(i));
    cbopreset.settext("pull down menu --- >");
    cbotype.items.assign(instruments::familylist.begin(), instruments::familylist.end());
    cbotype.settext(cbotype.text);
}

void Session::gureset()
{
    fretboard.resetcolours();
}

/// A step of the end: what it throws is told, and the end goes on.
void Session::guarded(void (Session::*step)())
{
    try {
        (this->*step)();
    } catch (const std::exception& failure) {
        desktop.tell(ui::Icon::critical, failure.what());
    }
}

void Session::saveatend()
{
    checksave();
    if (customchanged)
        savecustom();
}

void Session::tonefretexit()
{
    if (ended)
        return;
    ended = true;
    customshown = false;
    arrangeshown = false;
    guarded(&Session::mexit);
    guarded(&Session::saveatend);
    desktop.leave();
}

} // namespace mainscreen
