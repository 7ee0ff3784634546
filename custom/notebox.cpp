// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/notebox.h"

#include <QPainter>

namespace custom {

NoteBox::NoteBox(const ui::Look& shownlook, QWidget* parent) : NoteButton(shownlook, core::nocolour, parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void NoteBox::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double corner = 4;
    QPainter painter(this);
    const ui::Theme& theme = look.theme();
    ui::paintbox(painter, look, rect(), underMouse() ? theme.hover : theme.button,
                 underMouse() ? theme.accent : theme.hairline, corner);
    ui::painttext(painter, look, rect(), text(), look.font(ui::Type::strong), theme.text);
    ring.paint(painter, look, *this, rect(), corner);
}

} // namespace custom
