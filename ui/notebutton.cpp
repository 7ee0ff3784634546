// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/notebutton.h"

#include "ui/keys.h"

namespace ui {

NoteButton::NoteButton(const Look& shownlook, core::Colour atrest, QWidget* parent)
    : QAbstractButton(parent), look(shownlook), back(atrest)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

void NoteButton::display(const QString& caption, core::Colour colour)
{
    if (text() != caption)
        setText(caption);
    if (back == colour)
        return;
    back = colour;
    update();
}

void NoteButton::focusInEvent(QFocusEvent* event)
{
    ring.comes(*event);
    QAbstractButton::focusInEvent(event);
}

void NoteButton::keyPressEvent(QKeyEvent* event)
{
    if (isenter(*event))
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace ui
