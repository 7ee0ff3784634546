// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "custom/customtable.h"
#include "custom/entrybox.h"
#include "ui/companion.h"
#include "ui/rovingfocus.h"

#include <QBoxLayout>
#include <QGridLayout>

#include <array>
#include <optional>

namespace custom {

inline constexpr int columncount = 3;
inline constexpr int placesincolumn = static_cast<int>(placecount) / columncount;
static_assert(placesincolumn * columncount == static_cast<int>(placecount));

/// The screen on which the user changes the order of his tunings: one is dragged over another, or carried there with
/// the keyboard, and the two change places. Shows the table; free places have a number only.
class ArrangeScreen : public ui::Companion {
    Q_OBJECT

public:
    ArrangeScreen(const CustomTable& shown, const ui::Look& mainlook, QWidget* owner);

    /// Shows the table's state.
    void display();

Q_SIGNALS:
    void txtx_DragDrop(int target, int source); ///< places 0..50

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QGridLayout* addplaces();
    QBoxLayout* addend();
    void addplace(QGridLayout* grid, int place);
    void choose(int place);
    int neighbour(int place, Qt::Key pressed) const;
    std::optional<int> nextused(int place, int step) const;

    const CustomTable& table;
    ui::RovingFocus* roving;
    std::array<EntryBox*, placecount> txtx{};
    std::optional<int> carried; ///< the place that was picked up by keyboard
    std::string carriedname;
};

} // namespace custom
