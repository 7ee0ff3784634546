// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/spoken.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace ui {
namespace {

class SpokenInterface : public QAccessibleWidget {
public:
    explicit SpokenInterface(Spoken* spoken) : QAccessibleWidget(spoken, QAccessible::Notification), notice(*spoken) {}

    QString text(QAccessible::Text which) const override
    {
        if (which != QAccessible::Name)
            return QAccessibleWidget::text(which);
        return notice.words().isEmpty() ? QStringLiteral("no chord") : notice.words();
    }

private:
    const Spoken& notice;
};

QAccessibleInterface* spokeninterface(const QString& /*type*/, QObject* object)
{
    auto* spoken = qobject_cast<Spoken*>(object);
    return spoken ? new SpokenInterface(spoken) : nullptr;
}

} // namespace

Spoken::Spoken(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(spokeninterface);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(1, 1); // what has no place on the screen is not read
}

void Spoken::say(const QString& words)
{
    if (said == words)
        return;
    said = words;
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    if (said.isEmpty())
        return;
    QAccessibleEvent appeared(this, QAccessible::ObjectShow); // a notice is read when it appears
    QAccessible::updateAccessibility(&appeared);
}

} // namespace ui
