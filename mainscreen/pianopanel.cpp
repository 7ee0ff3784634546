// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/pianopanel.h"

#include "mainscreen/places.h"
#include "ui/marks.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace mainscreen {
namespace {

void paintcase(QPainter& painter, const ui::Look& look)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1B, 0x1D, 0x21));
    const double corner = 6 * look.zoom();
    painter.drawRoundedRect(look.exact(places::keycase), corner, corner);
    painter.fillRect(look.place(places::felt), QColor(0x9E, 0x2B, 0x2B));
}

/// "C sharp key, lower octave, in the chord": how the key is read aloud.
QString spokenname(int k, core::Colour back)
{
    QString note = totext(core::sharpnames.at(static_cast<std::size_t>(k % core::octave)));
    note.replace(QLatin1Char('#'), QLatin1String(" sharp"));
    const char* octave = k < core::octave ? "lower octave" : k < 2 * core::octave ? "upper octave" : "top";
    return QString::fromLatin1("%1 key, %2%3").arg(note, QLatin1String(octave), ui::spokenmark(back));
}

/// To the sides by semitones, up and down by octaves.
int neighbour(int k, Qt::Key pressed)
{
    switch (pressed) {
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return pianokeys - 1;
    case Qt::Key_Left:
        return std::max(k - 1, 0);
    case Qt::Key_Right:
        return std::min(k + 1, pianokeys - 1);
    case Qt::Key_Up:
        return k + core::octave < pianokeys ? k + core::octave : k;
    default:
        return k >= core::octave ? k - core::octave : k;
    }
}

} // namespace

PianoPanel::PianoPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered)
    : Panel(drawn, shown, entered), roving(new ui::RovingFocus(neighbour, &canvas))
{
    canvas.addbackdrop(places::keycase, paintcase);
    for (int k = 0; k < pianokeys; ++k)
        if (!core::isblack(k))
            addkey(k);
    for (int k = 0; k < pianokeys; ++k)
        if (core::isblack(k))
            addkey(k); // after the white ones, so that it lies over them
    for (ui::PianoKey* each : key)
        roving->add(each);
}

void PianoPanel::addkey(int k)
{
    const auto kind = core::isblack(k) ? ui::PianoKey::Kind::black : ui::PianoKey::Kind::white;
    auto* made = put(new ui::PianoKey(canvas.look(), kind, &canvas), membername("key", k), places::keyplace(k));
    onclick(made, &Session::key_Click, k);
    key.at(static_cast<std::size_t>(k)) = made;
}

void PianoPanel::display()
{
    for (std::size_t k = 0; k < key.size(); ++k) {
        const Key& state = session.keyboard.key.at(k);
        if (std::exchange(onscreen.at(k), state) == state)
            continue;
        key.at(k)->display(totext(state.caption), state.back);
        rename(key.at(k), spokenname(static_cast<int>(k), state.back));
    }
}

void PianoPanel::displaytips(const Tips& tips)
{
    for (std::size_t k = 0; k < key.size(); ++k)
        settip(key.at(k), tips.key.at(k));
}

} // namespace mainscreen
