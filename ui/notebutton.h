// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "ui/paint.h"

#include <QAbstractButton>

namespace ui {

/// A place that holds a note and is played by a click, Space or Enter: a piano key or a cell of the neck.
class NoteButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QColor backColor READ backColor)

public:
    NoteButton(const Look& shownlook, core::Colour atrest, QWidget* parent);

    void display(const QString& caption, core::Colour colour);
    QColor backColor() const { return QColor::fromRgb(back); }
    QSize sizeHint() const override { return {}; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    const Look& look;
    core::Colour back;
    FocusRing ring;
};

} // namespace ui
