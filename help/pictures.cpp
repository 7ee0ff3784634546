// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/pictures.h"

#include "help/basictexts.h"

#include <QLabel>
#include <QPainter>

namespace help {
namespace {

constexpr double diameter = 15; ///< pixels at zoom 1

} // namespace

void paintbadge(QPainter& painter, const QPointF& middle, int number, const ui::Look& look)
{
    const double size = diameter * look.zoom();
    const QRectF box(middle.x() - size / 2, middle.y() - size / 2, size, size);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.theme().accent);
    painter.drawEllipse(box);
    painter.setFont(look.font(ui::Type::heading));
    painter.setPen(look.theme().accenttext);
    painter.drawText(box, Qt::AlignCenter, QString::number(number));
}

QPixmap numberbadge(int number, const ui::Look& look, double ratio)
{
    const double size = diameter * look.zoom();
    QPixmap badge(QSizeF(size * ratio, size * ratio).toSize());
    badge.setDevicePixelRatio(ratio);
    badge.fill(Qt::transparent);
    QPainter painter(&badge);
    paintbadge(painter, QPointF(size / 2, size / 2), number, look);
    return badge;
}

QPixmap scaledtowidth(const QPixmap& picture, int width, double ratio)
{
    QPixmap scaled = picture.scaledToWidth(qRound(width * ratio), Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

QGridLayout* captiongrid(const ui::Look& look, int inrow, QWidget* screen)
{
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(qRound(5 * look.zoom()));
    grid->setHorizontalSpacing(qRound(6 * look.zoom()));
    for (int i = 0; const BasicCaption& caption : basiccaptions) {
        auto* badge = new QLabel(screen);
        badge->setPixmap(numberbadge(i + 1, look, screen->devicePixelRatioF()));
        badge->setAccessibleName(QString::number(i + 1));
        auto* text = new QLabel(QString::fromLatin1(caption.text), screen);
        text->setObjectName(QString::fromLatin1(caption.label));
        text->setFont(look.font(ui::Type::text));
        grid->addWidget(badge, i / inrow, i % inrow * 2);
        grid->addWidget(text, i / inrow, i % inrow * 2 + 1);
        grid->setColumnStretch(i % inrow * 2 + 1, 1);
        ++i;
    }
    return grid;
}

} // namespace help
