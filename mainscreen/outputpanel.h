// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"
#include "ui/spoken.h"

namespace mainscreen {

/// What the program found: the chord, its alternate and its notes; with the buttons that start over and keep a picture.
class OutputPanel : public Panel {
public:
    OutputPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

    /// Where the keyboard acts after a choice from a list; it shows there for those who chose by keys.
    void focusreset(bool bykeys) { reset->setFocus(bykeys ? Qt::ShortcutFocusReason : Qt::OtherFocusReason); }

private:
    void addcaptions();
    void addreadouts();

    std::array<ui::Readout*, 8> note{};
    ui::Readout* cordtyp1 = nullptr;
    ui::Readout* cordtyp2 = nullptr;
    ui::Button* reset = nullptr;
    ui::Button* cordcam = nullptr;
    ui::Spoken* spoken;
};

} // namespace mainscreen
