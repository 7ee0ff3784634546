// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/pictures.h"

#include "help/basictexts.h"

#include <QPainter>

#include <string>

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

namespace {

void paintframe(QPixmap& picture, const ui::Look& look)
{
    QPainter painter(&picture);
    painter.setPen(QPen(look.theme().hairline, 2)); // half of it falls outside
    painter.drawRect(QRectF(QPointF(), picture.deviceIndependentSize()));
}

/// The disc by itself; `ratio` is that of the display's pixels.
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

} // namespace

const Portrait& Portraits::in(const ui::Look& look)
{
    if (theme != &look.theme())
        taken = take();
    theme = &look.theme();
    return taken;
}

QLabel* image(ui::Companion& screen, Portraits& portraits, QPixmap Portrait::*part, int widthatone)
{
    auto* label = new QLabel(&screen);
    screen.fit([&screen, &portraits, part, widthatone, label] {
        const double ratio = screen.devicePixelRatioF();
        const QPixmap& picture = portraits.in(screen.shownlook()).*part;
        QPixmap scaled = picture.scaledToWidth(qRound(screen.scaled(widthatone) * ratio), Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(ratio);
        paintframe(scaled, screen.shownlook());
        label->setPixmap(scaled);
    });
    return label;
}

QGridLayout* captiongrid(ui::Companion& screen, int inrow, const char* prefix)
{
    auto* grid = new QGridLayout;
    screen.fitroom(grid, 0, 6);
    for (int i = 0; const BasicCaption& caption : basiccaptions) {
        auto* badge = new QLabel(&screen);
        badge->setAccessibleName(QString::number(i + 1));
        screen.fit([&screen, badge, number = i + 1] {
            badge->setPixmap(numberbadge(number, screen.shownlook(), screen.devicePixelRatioF()));
        });
        auto* text = screen.caption((std::string(prefix) + caption.label).c_str(), caption.text, ui::Type::text);
        grid->addWidget(badge, i / inrow, i % inrow * 2);
        grid->addWidget(text, i / inrow, i % inrow * 2 + 1);
        grid->setColumnStretch(i % inrow * 2 + 1, 1);
        ++i;
    }
    return grid;
}

} // namespace help
