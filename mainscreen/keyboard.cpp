// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/keyboard.h"

#include <algorithm>
#include <cctype>

namespace mainscreen {
namespace {

/// Whether a caption names a note. A letter must be the whole caption, or "C" would match "C# Db".
bool names(std::string_view caption, std::string_view note)
{
    if (core::isblank(note))
        return false;
    if (note.size() == 1)
        return caption == note;
    const auto same = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    return !std::ranges::search(caption, note, same).empty();
}

} // namespace

Keyboard::Keyboard()
{
    for (int k = 0; k < pianokeys; ++k) {
        const core::PitchClass pitch = k % core::octave;
        key.at(static_cast<std::size_t>(k)).caption =
            core::isblack(pitch) ? core::bothnames(pitch)
                                 : std::string(core::sharpnames.at(static_cast<std::size_t>(pitch)));
    }
    key.at(resetkey) = {"Reset", core::nocolour};
    keyreset();
}

void Keyboard::keyreset()
{
    for (int k = 0; k < pianokeys; ++k)
        key.at(static_cast<std::size_t>(k)).back = core::isblack(k) ? core::lightgrey : core::white;
}

void Keyboard::keyupdate(std::span<const std::string> notes)
{
    keyreset();
    for (int k = 0; k < pianokeys; ++k) {
        Key& shown = key.at(static_cast<std::size_t>(k));
        if (std::ranges::any_of(notes, [&](const std::string& note) { return names(shown.caption, note); }))
            shown.back = k < core::octave ? core::darkgrey : core::midgrey;
    }
}

void Keyboard::flatkey(const core::NoteSpelling& spelling)
{
    for (int k = 0; k < pianokeys; ++k)
        if (core::isblack(k))
            key.at(static_cast<std::size_t>(k)).caption =
                spelling.both ? core::bothnames(k % core::octave) : spelling.nameof(k);
}

} // namespace mainscreen
