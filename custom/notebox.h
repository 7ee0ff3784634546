// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QAbstractButton>

namespace custom {

/// The box of a string's open note. Nobody types into it: a click, or Space, writes the selected note there.
class NoteBox : public QAbstractButton {
    Q_OBJECT

public:
    NoteBox(const ui::Look& shownlook, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    const ui::Look& look;
    bool ring = false; ///< the keyboard brought the focus here
};

} // namespace custom
