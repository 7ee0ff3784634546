// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "ui/look.h"

#include <QAbstractButton>

namespace ui {

/// A key of the piano, white or black. It sounds no note: it enters one.
class PianoKey : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QColor backColor READ backColor)

public:
    enum class Kind : std::uint8_t { white, black };

    PianoKey(const Look& shownlook, Kind made, QWidget* parent);

    void display(const QString& caption, core::Colour colour);
    QColor backColor() const { return QColor::fromRgb(back); }
    QSize sizeHint() const override { return {}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintbody(QPainter& painter) const;
    void paintcaption(QPainter& painter) const;

    const Look& look;
    Kind kind;
    core::Colour back;
};

} // namespace ui
