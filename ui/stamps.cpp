// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/stamps.h"

#include <QHashFunctions>
#include <QtMath>

#include <memory>

namespace ui {
namespace {

constexpr int largest = 1 << 15; ///< in device pixels

} // namespace

size_t qHash(const Stamp& stamp, size_t seed) noexcept
{
    return qHashMulti(seed, static_cast<int>(stamp.kind), stamp.size.width(), stamp.size.height(), stamp.face,
                      stamp.edge, stamp.corner, stamp.pressed, stamp.within.x(), stamp.within.y());
}

void Stamps::put(QPainter& painter, const QPointF& place, Stamp stamp,
                 const std::function<void(QPainter&, const QPointF& within)>& paint)
{
    const QPoint corner(qFloor(place.x()), qFloor(place.y()));
    stamp.within = place - corner;
    stamp.devicescale = painter.device()->devicePixelRatioF();
    const QSizeF reach(qCeil(stamp.within.x() + stamp.size.width()), qCeil(stamp.within.y() + stamp.size.height()));
    const QSize size = (reach * stamp.devicescale).toSize();
    const qint64 pixels = qint64{size.width()} * size.height();
    if (pixels > largest || stamp.devicescale != qRound(stamp.devicescale))
        return paint(painter, place);
    const QPixmap* picture = kept.object(stamp);
    if (!picture) {
        auto made = std::make_unique<QPixmap>(size);
        made->setDevicePixelRatio(stamp.devicescale);
        made->fill(Qt::transparent);
        QPainter maker(made.get());
        paint(maker, stamp.within);
        picture = made.get();
        kept.insert(stamp, made.release(), pixels * 4);
    }
    painter.drawPixmap(corner, *picture);
}

} // namespace ui
