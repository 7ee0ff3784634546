// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/entrybox.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace custom {
namespace {

constexpr double corner = 4;

QString dragformat()
{
    return QStringLiteral("application/x-tonefret-place");
}

/// The box of the same screen that is being dragged; none for anything else.
EntryBox* sourceof(const QDropEvent& event)
{
    return qobject_cast<EntryBox*>(event.source());
}

} // namespace

EntryBox::EntryBox(const ui::Look& shownlook, int place, QWidget* parent)
    : QWidget(parent), look(shownlook), index(place)
{
    setAcceptDrops(true);
    setCursor(Qt::OpenHandCursor);
}

void EntryBox::display(const QString& shownname, bool pickedup)
{
    setVisible(!shownname.isEmpty());
    if (name == shownname && held == pickedup && !accessibleName().isEmpty())
        return;
    name = shownname;
    held = pickedup;
    setAccessibleName(
        QStringLiteral("place %1, %2%3").arg(index).arg(name, held ? QStringLiteral(", picked up") : QString()));
    update();
}

void EntryBox::mousePressEvent(QMouseEvent* event)
{
    armed = event->button() == Qt::LeftButton;
}

// The drag begins with the button's going down. As long as the pointer rests there is nothing of it to be seen, and a
// button that comes up again has dropped the box on itself.
void EntryBox::mouseMoveEvent(QMouseEvent* event)
{
    if (!armed)
        return;
    armed = false;
    drag(event->position().toPoint());
}

void EntryBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (armed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT dropped(index);
    armed = false;
}

void EntryBox::drag(const QPoint& grip)
{
    auto* carried = new QMimeData;
    carried->setData(dragformat(), QByteArray::number(index));
    auto* dragged = new QDrag(this);
    dragged->setMimeData(carried);
    dragged->setPixmap(grab());
    dragged->setHotSpot(grip);
    dragged->exec(Qt::MoveAction);
}

void EntryBox::setaimed(bool target)
{
    aimed = target;
    update();
}

void EntryBox::dragEnterEvent(QDragEnterEvent* event)
{
    if (!sourceof(*event))
        return;
    event->acceptProposedAction();
    setaimed(true);
}

void EntryBox::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    setaimed(false);
}

void EntryBox::dropEvent(QDropEvent* event)
{
    setaimed(false);
    const EntryBox* source = sourceof(*event);
    if (!source)
        return;
    event->acceptProposedAction();
    Q_EMIT dropped(source->index);
}

void EntryBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Q_EMIT chosen();
    default:
        QWidget::keyPressEvent(event);
    }
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    ring.comes(*event);
    update();
}

void EntryBox::focusOutEvent(QFocusEvent* /*event*/)
{
    update();
}

void EntryBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ui::Theme& theme = look.theme();
    const QColor face = held ? theme.pressed : aimed ? theme.hover : theme.button;
    ui::paintbox(painter, look, rect(), face, aimed ? theme.accent : theme.hairline, corner);
    const double margin = 7 * look.zoom();
    ui::painttext(painter, look, QRectF(rect()).adjusted(margin, 0, -margin, 0), name, look.font(ui::Type::text),
                  held ? theme.pressedtext : theme.text, Qt::AlignLeft | Qt::AlignVCenter);
    if (aimed)
        ui::paintfocus(painter, look, rect(), corner);
    ring.paint(painter, look, *this, rect(), corner);
}

} // namespace custom
