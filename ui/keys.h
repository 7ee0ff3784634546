// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace ui {

/// Whether a key was pressed by itself and not held until it repeats: a held key must not answer the screen that its
/// first press opened.
inline bool isplain(const QKeyEvent& event)
{
    return !event.isAutoRepeat() && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Whether a key is Enter, on either part of the keyboard.
inline bool isenter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace ui
