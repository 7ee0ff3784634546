// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {

void Session::mnubhelp_Click()
{
    desktop.open(ui::Screen::mhelp);
}

void Session::mnuchelp_Click()
{
    desktop.open(ui::Screen::helpinfo);
}

void Session::mnuabout_Click()
{
    desktop.open(ui::Screen::frmAbout);
}

void Session::cmdhelp2_Click()
{
    desktop.open(ui::Screen::helpinfo);
    desktop.close(ui::Screen::mhelp);
}

} // namespace mainscreen
