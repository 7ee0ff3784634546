// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "ui/look.h"

#include <QAbstractButton>

namespace ui {

/// A place on the neck: the name of its note in a pill that sits on the string.
class NoteCell : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QColor backColor READ backColor)

public:
    NoteCell(const Look& shownlook, QWidget* parent);

    void display(const QString& note, core::Colour colour);
    QColor backColor() const { return QColor::fromRgb(back); }
    QSize sizeHint() const override { return {}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    const Look& look;
    core::Colour back = core::white;
};

} // namespace ui
