// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"
#include "ui/pianokey.h"
#include "ui/rovingfocus.h"

#include <array>
#include <optional>

namespace mainscreen {

/// The two octaves of keys in their case.
class PianoPanel : public Panel {
public:
    PianoPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    void addkey(int k);

    std::array<ui::PianoKey*, pianokeys> key{};
    ui::RovingFocus* roving = nullptr;
    std::array<std::optional<Key>, pianokeys> onscreen;
};

} // namespace mainscreen
