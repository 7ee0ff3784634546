// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"

namespace mainscreen {

/// The two scales to line up, with the buttons that choose how notes are spelled.
class TransposePanel : public Panel {
public:
    TransposePanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    struct ShiftButton {
        const char* name;
        std::size_t row;
        Qt::ArrowType arrow;
        void (Session::*handler)();
        std::string_view Tips::*tip;
        ui::Button* button = nullptr;
    };

    void addshifts();
    void addspellings();

    std::array<std::array<ui::Readout*, 15>, 2> trans1{};
    std::array<ShiftButton, 4> shifts;
    ui::Button* cmdsharp = nullptr;
    ui::Button* cmdflat = nullptr;
    ui::Button* cmdauto = nullptr;
};

} // namespace mainscreen
