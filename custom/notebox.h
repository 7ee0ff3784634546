// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/notebutton.h"

namespace custom {

/// The box of a string's open note. Nobody types into it: a click, Space or Enter writes the selected note there.
class NoteBox : public ui::NoteButton {
    Q_OBJECT

public:
    NoteBox(const ui::Look& shownlook, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace custom
