// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/notebutton.h"

namespace ui {

/// A place on the neck: the name of its note in a pill that sits on the string.
class NoteCell : public NoteButton {
    Q_OBJECT

public:
    NoteCell(const Look& shownlook, QWidget* parent) : NoteButton(shownlook, core::white, parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
