// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/chordtypes.h"
#include "instruments/layouts.h"

#include <array>
#include <string_view>

namespace mainscreen {

/// The tips that are no fixed texts: 0 to 27 of the chord buttons, 32 to 46 of single controls; the rest is unused.
using TipStore = std::array<std::string_view, 47>;

/// The pop-up tip of every control of the main screen that has one, by the control's name. Empty: none.
/// The arrays begin empty but for what is the control's own; `complete` fills them.
struct Tips {
    std::array<std::string_view, instruments::cellcount> Text1{};
    std::array<std::string_view, 26> key{};
    std::array<std::string_view, 30> trans1{};
    std::array<std::string_view, core::chordtypes.size()> Crd{};
    std::array<std::string_view, 8> note{};
    std::string_view optd = "option adjust lower";
    std::string_view optu = "option adjust higher";
    std::string_view cbopreset = "options - arrows adjust either to move up and down, or to select";
    std::string_view cordtyp1 = "chord readout";
    std::string_view cordtyp2 = "alternate chord readout (that can be made with the same notes)";
    std::string_view topl = "left adjust";
    std::string_view topr = "right adjust";
    std::string_view botl = "left adjust";
    std::string_view botr = "right adjust";
    std::string_view cordcam = "Snapshot Chord Text";
    std::string_view cboleft = "Right hand Left hand";
    std::string_view cbotype = "instrument type";
    std::string_view cbotuning = "preset tunings";

    /// A control's own tips in place, the common ones still missing.
    Tips();

    /// Gives the members of the arrays their common tip; a chord button that has a tip of its own keeps it.
    void complete();

    /// Copies the tips that are no fixed texts, by their numbers in the store.
    TipStore toolstore() const;
    /// Gives every control its tip again: the members of most arrays their common one, the rest theirs from the store.
    void toolon(const TipStore& tipstore);
    /// Leaves no control a tip.
    void tooloff();

    bool operator==(const Tips&) const = default;

private:
    void fillarrays();
};

} // namespace mainscreen
