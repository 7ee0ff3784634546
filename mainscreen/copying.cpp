// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"

namespace mainscreen {
namespace {

std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// "C major", "C+", "cant find": a chord type's name goes on behind its root after a blank, a sign does so at once.
std::string chordname(const std::string& rootname, const std::string& type)
{
    const std::string name = trimmed(type);
    const bool sign = name.starts_with('+') || name.starts_with(',');
    return trimmed(rootname + (sign ? "" : " ") + name);
}

} // namespace

std::string Session::chordtext() const
{
    const std::string notes = trimmed(print::notenames(note));
    const std::string name = chordname(note[rootreadout], cordtyp1);
    return name.empty() || notes.empty() ? notes : name + ": " + notes;
}

std::string Session::announcement() const
{
    const std::string alternate = chordname(note[alternatereadout], cordtyp2);
    return alternate.empty() ? chordtext() : chordtext() + "; also " + alternate;
}

void Session::mnucopychord_Click()
{
    if (cancopychord())
        desktop.copy(chordtext());
}

void Session::mnucopychart_Click()
{
    if (cancopychart())
        desktop.copy(print::lastchart(camera));
}

} // namespace mainscreen
