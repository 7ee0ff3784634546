// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"

namespace mainscreen {

/// The 28 chord types as buttons.
class ChordPanel : public Panel {
public:
    ChordPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    std::array<ui::Button*, core::chordtypes.size()> Crd{};
};

} // namespace mainscreen
