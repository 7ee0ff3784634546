// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/session.h"
#include "tests/support/directory.h"
#include "tests/support/recordingdesktop.h"

#include <optional>
#include <string>
#include <string_view>

namespace tests {

/// A session after its start, on a recording desktop. What it saves is in a folder of its own, or in the current one
/// given.
struct Started {
    std::optional<Directory> own;
    RecordingDesktop desktop;
    mainscreen::Session session{desktop};

    Started();
    explicit Started(const Directory& current);

    /// Clicks a key of the lower octave for each name of "C E G".
    void enter(std::string_view names);

    void reset() { session.key_Click(mainscreen::resetkey); }

    /// Picks the spelling of mode 0..3 from the menu.
    void pickmode(int mode);

    int mode() const { return static_cast<int>(session.spelling.mode); }

    /// Readouts 0..5 as "C E G", those without a note left out.
    std::string notes() const;

    /// Picks a family and one of its tunings by the texts that the selectors show.
    void pickfamily(std::string_view text);
    void picktuning(std::string_view text);
    void pickcapo(std::string_view text);

    /// The texts of row 0..5 from fret 0 to fret 19: "E F F# ...".
    std::string rowtext(int row) const;

    /// The open notes from row 5 upward to row 0; a hidden one is left out.
    std::string opennotes() const;

    /// The row of the board from fret 0, a character for each cell: "#" dark grey, "+" mid grey, "." at rest.
    std::string rowmarks(int row) const;

    const instruments::Cell& cell(int row, int fret) const;
};

} // namespace tests
