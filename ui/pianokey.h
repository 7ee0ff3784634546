// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/notebutton.h"

namespace ui {

/// A key of the piano, white or black. It sounds no note: it enters one.
class PianoKey : public NoteButton {
    Q_OBJECT

public:
    enum class Kind : std::uint8_t { white, black };

    PianoKey(const Look& shownlook, Kind made, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintbody(QPainter& painter) const;
    void paintshape(QPainter& painter) const;
    void paintcaption(QPainter& painter) const;

    Kind kind;
};

} // namespace ui
