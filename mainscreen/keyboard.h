// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "core/notes.h"

#include <array>
#include <span>
#include <string>

namespace mainscreen {

inline constexpr int pianokeys = 25; ///< two octaves from C to C; key k is note k
inline constexpr int resetkey = 25;  ///< the Reset button, a member of the same array

/// What a key shows.
struct Key {
    std::string caption; ///< of a black key one name or, with "show both", two: "C# Db"
    core::Colour back = core::white;

    bool operator==(const Key&) const = default;
};

/// The piano and its Reset button.
struct Keyboard {
    std::array<Key, pianokeys + 1> key;

    /// Captions as they stand before the first spelling; keys at rest.
    Keyboard();

    /// Every piano key's colour at rest. The Reset button keeps its own.
    void keyreset();

    /// Colours the piano after these note names: darkgrey in the lower octave, midgrey in the upper.
    void keyupdate(std::span<const std::string> notes);

    /// Captions the black keys: in the current mode, or with both names.
    void flatkey(const core::NoteSpelling& spelling);
};

} // namespace mainscreen
