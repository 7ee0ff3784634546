// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"
#include "ui/selectorbox.h"

namespace mainscreen {

/// What stands above the neck: family, hand, tuning and capo, and the arrows that step the capo.
class SelectorPanel : public Panel {
public:
    /// `chosen` runs after each choice of a family or a tuning, to take the keyboard from the list.
    SelectorPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered,
                  const std::function<void(bool bykeys)>& chosen);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    struct List {
        const char* name;
        const char* captionname;
        const char* caption;
        ui::TwipRect where;
        Selector Session::*state;
        void (Session::*handler)(int);
        std::string_view Tips::*tip;
        bool givesfocusback;
        ui::SelectorBox* box = nullptr;
    };

    std::array<List, 4> lists;
    ui::Button* optd = nullptr;
    ui::Button* optu = nullptr;
};

} // namespace mainscreen
