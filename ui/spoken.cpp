// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/spoken.h"

#include "ui/access.h"

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

} // namespace

Spoken::Spoken(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(interfaceof<Spoken, SpokenInterface>);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(1, 1); // what has no place on the screen is not read
}

void Spoken::say(const QString& words)
{
    if (said == words)
        return;
    said = words;
    tellrenamed(this);
    if (said.isEmpty() || !QAccessible::isActive())
        return;
    QAccessibleEvent appeared(this, QAccessible::ObjectShow); // a notice is read when it appears
    QAccessible::updateAccessibility(&appeared);
}

} // namespace ui
