// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/panel.h"
#include "ui/notecell.h"
#include "ui/rovingfocus.h"

#include <QPixmap>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace mainscreen {

/// The neck with its 120 cells, its strings and its capo.
class NeckPanel : public Panel {
public:
    NeckPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered);

    void display() override;
    void displaytips(const Tips& tips) override;

private:
    /// What the neck's picture depends on.
    struct Pictured {
        instruments::Hand hand;
        instruments::StringLayout layout;
        double zoom;
        const ui::Theme* theme;
        double devicescale; ///< device pixels to a pixel

        friend bool operator==(const Pictured&, const Pictured&) = default;
    };

    /// What a cell shows, and the name of its string, by which it is read aloud.
    struct Shown {
        instruments::Cell state;
        std::string open;

        friend bool operator==(const Shown&, const Shown&) = default;
    };

    void paintbackdrop(QPainter& painter, const ui::Look& look);
    Shown wanted(int index) const;
    std::vector<int> changedcells() const;
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
    std::vector<QWidget*> movable; ///< what changes places with the hand: the cells and the caption
    std::optional<Pictured> pictured;
    QPixmap picture;
    std::array<std::optional<Shown>, instruments::cellcount> onscreen;
    instruments::Hand shownhand = instruments::Hand::right;
    instruments::StringLayout shownlayout = instruments::StringLayout::sixstrings;
};

} // namespace mainscreen
