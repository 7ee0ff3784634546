// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>

namespace ui {

/// Tells assistive technology, where there is any, that a control is called something else now.
inline void tellrenamed(QWidget* control)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent renamed(control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

/// What assistive technology knows of a `Control`, for `QAccessible::installFactory`. Null for other objects.
template <typename Control, typename Interface>
QAccessibleInterface* interfaceof(const QString& /*type*/, QObject* object)
{
    auto* control = qobject_cast<Control*>(object);
    return control ? new Interface(control) : nullptr;
}

} // namespace ui
