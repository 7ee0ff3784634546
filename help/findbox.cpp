// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/findbox.h"

#include "ui/keys.h"

namespace help {
namespace {

/// Not every desktop gives a key with Ctrl its character, so these two keys are known by themselves as well.
bool bringslineend(const QKeyEvent& event)
{
    const bool lineendkey = event.key() == Qt::Key_M || event.key() == Qt::Key_J;
    return event.text() == QLatin1String("\r") || event.text() == QLatin1String("\n") ||
           (lineendkey && event.modifiers() == Qt::ControlModifier);
}

} // namespace

void FindBox::keyPressEvent(QKeyEvent* event)
{
    if (ui::isenter(*event) || !bringslineend(*event))
        return QLineEdit::keyPressEvent(event);
    event->accept();
    Q_EMIT returnPressed();
}

} // namespace help
