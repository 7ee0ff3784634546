// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "mainscreen/session.h"
#include "print/typednumber.h"

#include <algorithm>

namespace mainscreen {
namespace {

using print::CameraMode;

std::array<bool, print::pianokeys> pressedkeys(const Keyboard& keyboard)
{
    std::array<bool, print::pianokeys> pressed{};
    std::transform(keyboard.key.begin(), keyboard.key.begin() + print::pianokeys, pressed.begin(),
                   [](const Key& key) { return key.back != core::lightgrey && key.back != core::white; });
    return pressed;
}

void widen(int& width, const std::string& line)
{
    width = std::max(width, static_cast<int>(core::charactercount(line)));
}

void trimnotes(std::string& line)
{
    while (line.size() > 2 && line.back() == ' ')
        line.pop_back();
}

} // namespace

void Session::photochord()
{
    if (camera.modechosen)
        chordsnap();
    else
        desktop.open(ui::Screen::camquestion);
}

void Session::cmdguitar_Click()
{
    desktop.close(ui::Screen::camquestion);
    setcameramode(CameraMode::strings);
    chordsnap();
}

void Session::cmdpiano_Click()
{
    desktop.close(ui::Screen::camquestion);
    setcameramode(CameraMode::keyboard);
    chordsnap();
}

void Session::mnuguitar_Click()
{
    setcameramode(CameraMode::strings);
}

void Session::mnupiano_Click()
{
    setcameramode(CameraMode::keyboard);
}

void Session::setcameramode(CameraMode mode)
{
    camera.mode = mode;
    menuchordtype();
}

void Session::menuchordtype()
{
    camera.marks.mnuguitar = camera.mode == CameraMode::strings;
    camera.marks.mnupiano = !camera.marks.mnuguitar;
    camera.modechosen = true;
}

void Session::chordsnap()
{
    print::count(camera.SnapshotCount);
    if (photograph())
        placesnapshot();
    else
        desktop.tell(ui::Icon::critical, "Problem with this print string.  Have to abort");
    showcamera();
}

/// Writes the current snapshot. False: a line is wider than the snapshot may be.
bool Session::photograph()
{
    auto& line = camera.snapshot.line;
    camera.fingering = print::chordlength(fretboard, PositionFret, page.chkalt);
    camera.BlockWidth = camera.fingering.width();
    line[print::chordnameline] = note[rootreadout] + " " + cordtyp1;
    line[print::alternateline] = note[alternatereadout] + " " + cordtyp2;
    line[print::notesline] = print::notenames(note);
    for (const std::size_t i : {print::chordnameline, print::alternateline, print::notesline})
        widen(camera.BlockWidth, line.at(i));
    trimnotes(line[print::notesline]);
    if (camera.mode == CameraMode::keyboard) {
        print::pianoprint(camera.snapshot, pressedkeys(keyboard));
        camera.BlockWidth = print::keyboardwidth;
        return print::pad(camera.snapshot, camera.BlockWidth);
    }
    print::stringlines(camera.snapshot, fretboard, hand(), camera.fingering);
    return hand() == instruments::Hand::left ? print::padmirrored(camera.snapshot, camera.BlockWidth)
                                             : print::pad(camera.snapshot, camera.BlockWidth);
}

void Session::placesnapshot()
{
    const print::JoinRoom room{print::typednumber(page.txtspace), print::typednumber(page.txtchar)};
    if (camera.pending()) {
        if (!page.chkmult && print::joins(camera, room)) {
            print::join(camera, room);
            return;
        }
        printfill();
    }
    print::place(camera);
    if (page.chkmult)
        printfill();
}

void Session::printfill()
{
    if (page.text.empty())
        page.text = camera.mode == CameraMode::keyboard
                        ? print::keyboardheading()
                        : print::stringsheading(cbotype.text, cbotuning.text, cboleft.text);
    if (camera.pending())
        page.text += print::takeblock(camera);
    page.getlinenumber();
}

void Session::allclear()
{
    camera.clear();
    page.clear();
}

void Session::mnuphotoclear_Click()
{
    if (desktop.ask("This will clear all photos and the \nprint page also.  Proceed?", "") != ui::Answer::no)
        allclear();
}

void Session::showcamera()
{
    camera.initdata();
    desktop.open(ui::Screen::ccamera);
    desktop.beep();
}

void Session::ccamera_cmdret_Click()
{
    desktop.close(ui::Screen::ccamera);
}

void Session::ccamera_cmdview_Click()
{
    openpage();
    printfill();
    desktop.close(ui::Screen::ccamera);
}

void Session::ccamera_cmdclear_Click()
{
    if (desktop.ask("This will clear all photos and the \nprint page also.  It will also clear\n"
                    "the current photo just taken.\nClick yes to proceed",
                    "") != ui::Answer::no)
        allclear();
    desktop.close(ui::Screen::ccamera);
}

} // namespace mainscreen
