// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/readout.h"

#include "ui/access.h"
#include "ui/paint.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace ui {
namespace {

class ReadoutInterface : public QAccessibleWidget {
public:
    explicit ReadoutInterface(Readout* read) : QAccessibleWidget(read, QAccessible::StaticText), readout(*read) {}

    QString text(QAccessible::Text which) const override
    {
        switch (which) {
        case QAccessible::Name:
            return readout.spokenname();
        case QAccessible::Value:
            return readout.text().trimmed();
        default:
            return QAccessibleWidget::text(which);
        }
    }

private:
    const Readout& readout;
};

} // namespace

Readout::Readout(const Look& shownlook, Type written, Frame drawn, Qt::Alignment placed, QWidget* parent)
    : QWidget(parent), look(shownlook), type(written), frame(drawn), alignment(placed)
{
    QAccessible::installFactory(interfaceof<Readout, ReadoutInterface>);
}

void Readout::settext(const QString& text)
{
    if (shown == text)
        return;
    shown = text;
    update();
    tellrenamed(this);
}

QString Readout::spokenname() const
{
    QString value = shown.trimmed();
    if (accessibleName().isEmpty())
        return value;
    if (frame == Frame::none)
        return accessibleName();
    return QStringLiteral("%1: %2").arg(accessibleName(), value.isEmpty() ? QStringLiteral("none") : value);
}

void Readout::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const Theme& theme = look.theme();
    const bool filled = frame == Frame::root && !shown.trimmed().isEmpty();
    if (frame != Frame::none)
        paintbox(painter, look, rect(), filled ? theme.accent : theme.button, filled ? theme.accent : theme.hairline,
                 5);
    QColor ink = filled ? theme.accenttext : theme.text;
    if (frame == Frame::none && type != Type::strong)
        ink = theme.label;
    const double margin = alignment.testFlag(Qt::AlignLeft) && frame != Frame::none ? 8 * look.zoom() : look.zoom();
    const QRectF room = QRectF(rect()).adjusted(margin, 0, -look.zoom(), 0);
    painttext(painter, look, room, shown, fitted(look, look.font(type), widest, room.width()), ink,
              alignment | Qt::AlignVCenter);
}

} // namespace ui
