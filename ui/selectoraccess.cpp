// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/selectoraccess.h"

#include "ui/access.h"
#include "ui/selectorbox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace ui {
namespace {

class SelectorInterface : public QAccessibleWidget {
public:
    explicit SelectorInterface(SelectorBox* read) : QAccessibleWidget(read, QAccessible::ComboBox), box(*read) {}

    QString text(QAccessible::Text which) const override
    {
        switch (which) {
        case QAccessible::Name:
            return QStringLiteral("%1: %2").arg(box.accessibleName(), box.shownText().trimmed());
        case QAccessible::Value:
            return box.shownText().trimmed();
        default:
            return QAccessibleWidget::text(which);
        }
    }

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override
    {
        if (index != 0)
            return nullptr;
        box.view()->setAccessibleName(box.accessibleName());
        return QAccessible::queryAccessibleInterface(box.view());
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child->object() == box.view() ? 0 : -1;
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& /*action*/) override
    {
        if (box.view()->isVisible())
            box.hidePopup();
        else
            box.showPopup();
    }

private:
    SelectorBox& box;
};

} // namespace

QAccessibleInterface* selectorinterface(const QString& type, QObject* object)
{
    return interfaceof<SelectorBox, SelectorInterface>(type, object);
}

} // namespace ui
