// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace ui {

/// What assistive technology knows of a `SelectorBox`: named as "Family: GUITAR", with its list below it, opened by a
/// press. The toolkit's own would name it by its value alone. Null for other objects.
QAccessibleInterface* selectorinterface(const QString& type, QObject* object);

} // namespace ui
