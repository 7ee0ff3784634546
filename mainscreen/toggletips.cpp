// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {

void Session::toolstore()
{
    tipstore = tips.toolstore();
}

void Session::toolon()
{
    tips.toolon(tipstore);
}

void Session::tooloff()
{
    tips.tooloff();
}

void Session::tipson()
{
    mnutips = !mnutips;
    if (mnutips)
        toolon();
    else
        tooloff();
}

void Session::mnutips_Click()
{
    tipson();
}

} // namespace mainscreen
