// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/tips.h"

#include <algorithm>

namespace mainscreen {

Tips::Tips()
{
    std::ranges::transform(core::chordtypes, Crd.begin(), &core::ChordType::tip);
    key.back() = "reset all";
}

void Tips::complete()
{
    Text1.fill("guitar readout / entry");
    std::fill_n(Text1.begin(), instruments::rowcount, "custom string retune");
    std::fill(key.begin(), key.end() - 1, "piano note entry / readout");
    trans1.fill("transpose readout");
    std::ranges::replace(Crd, std::string_view{}, std::string_view{"chords .. enter note first"});
    note.fill("data readout / no entry");
}

} // namespace mainscreen
