// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/menukeys.h"

#include <QMenu>
#include <QShortcut>

namespace ui {
namespace {

void openmenu(QMenuBar& bar, QAction& title)
{
    bar.setActiveAction(&title);
    for (QAction* item : title.menu()->actions())
        if (item->isEnabled() && !item->isSeparator())
            return title.menu()->setActiveAction(item);
}

} // namespace

void addmenukeys(QMenuBar& bar)
{
    bar.setAccessibleName(QStringLiteral("Menus"));
    QString taken;
    for (QAction* title : bar.actions()) {
        if (title->menu())
            title->menu()->setAccessibleName(title->text());
        const QChar letter = title->text().front().toUpper();
        if (!title->menu() || taken.contains(letter))
            continue;
        taken += letter;
        auto* keys = new QShortcut(QKeyCombination(Qt::AltModifier, static_cast<Qt::Key>(letter.unicode())), &bar);
        QObject::connect(keys, &QShortcut::activated, &bar, [&bar, title] { openmenu(bar, *title); });
    }
}

} // namespace ui
