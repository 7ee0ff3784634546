// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"
#include "ui/notecell.h"
#include "ui/rovingfocus.h"

namespace mainscreen {

/// The neck with its 120 cells, its strings and its capo.
class NeckPanel : public Panel {
public:
    NeckPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    void displaycell(int index);
    QString spokenname(int index) const;
    void displaycapo();
    void placecells();
    int neighbour(int index, Qt::Key pressed) const;
    int stepped(int index, int step, int first, int last) const;

    QWidget* capobar = nullptr;
    QWidget* capofollower = nullptr;
    ui::Readout* fretcaption = nullptr;
    ui::RovingFocus* roving = nullptr;
    std::array<ui::NoteCell*, instruments::cellcount> Text1{};
    instruments::Hand shownhand = instruments::Hand::right;
    instruments::StringLayout shownlayout = instruments::StringLayout::sixstrings;
};

} // namespace mainscreen
