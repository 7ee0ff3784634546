// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/button.h"

#include "ui/keys.h"
#include "ui/marks.h"

#include <QFontMetricsF>
#include <QPainter>

namespace ui {

Button::Button(const Look& shownlook, const QString& caption, QWidget* parent, Shape drawn)
    : Button(shownlook, caption, parent, drawn, Qt::NoArrow)
{
}

Button::Button(const Look& shownlook, Qt::ArrowType pointing, QWidget* parent)
    : Button(shownlook, QString(), parent, Shape::box, pointing)
{
}

Button::Button(const Look& shownlook, const QString& caption, QWidget* parent, Shape drawn, Qt::ArrowType pointing)
    : QPushButton(caption, parent), look(shownlook), shape(drawn), arrow(pointing)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void Button::setchosen(bool chosen)
{
    if (chosenface == chosen)
        return;
    chosenface = chosen;
    update();
}

void Button::setbackColor(const QColor& colour)
{
    if (back == colour)
        return;
    back = colour;
    update();
}

void Button::setbold(bool bold)
{
    if (font().bold() == bold)
        return;
    QFont changed = font();
    changed.setBold(bold);
    setFont(changed);
}

QSize Button::sizeHint() const
{
    const QFontMetricsF metrics(look.font(Type::text));
    return {qRound(metrics.horizontalAdvance(caption()) + 28 * look.zoom()), qRound(28 * look.zoom())};
}

QString Button::caption() const
{
    return text().remove(QLatin1Char('&'));
}

QColor Button::face() const
{
    const Theme& theme = look.theme();
    if (back.isValid())
        return back;
    if (chosenface || isDown())
        return theme.pressed;
    return isEnabled() && underMouse() ? theme.hover : theme.button;
}

QColor Button::ink() const
{
    const Theme& theme = look.theme();
    if (!isEnabled())
        return theme.label;
    if (back.isValid())
        return markink();
    return chosenface || isDown() ? theme.pressedtext : theme.text;
}

void Button::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const double corner = shape == Shape::pill ? height() / 2.0 / look.zoom() : 5;
    const QColor filled = face();
    paintbox(painter, look, rect(), filled, chosenface ? filled : look.theme().hairline, corner);
    if (arrow != Qt::NoArrow)
        paintarrow(painter, look, rect(), arrow, ink());
    const double margin = 2 * look.zoom();
    painttext(painter, look, QRectF(rect()).adjusted(margin, 0, -margin, 0), caption(),
              look.font(font().bold() ? Type::strong : Type::text), ink());
    ring.paint(painter, look, *this, rect(), corner);
}

/// Enter presses the button that shows the ring; else it is left to the screen.
void Button::keyPressEvent(QKeyEvent* event)
{
    if (!isenter(*event))
        QPushButton::keyPressEvent(event);
    else if (isplain(*event) && ring.bykeys())
        click();
    else
        event->ignore();
}

void Button::focusInEvent(QFocusEvent* event)
{
    ring.comes(*event);
    QPushButton::focusInEvent(event);
}

} // namespace ui
