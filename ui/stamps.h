// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/kept.h"

#include <QPainter>
#include <QPixmap>

#include <cstdint>
#include <functional>

namespace ui {

/// A small shape as it looks at one zoom.
struct Stamp {
    enum class Kind : std::uint8_t { box, whitekey, blackkey };

    Kind kind;
    QSizeF size; ///< in pixels
    QRgb face;
    QRgb edge = 0;
    double corner = 0; ///< radius, in pixels at zoom 1
    bool pressed = false;
    QPointF within{};       ///< the upper left corner, in parts of a pixel; set when it is put
    double devicescale = 1; ///< device pixels to a pixel; set when it is put

    friend bool operator==(const Stamp&, const Stamp&) = default;
    friend size_t qHash(const Stamp& stamp, size_t seed) noexcept;
};

/// Pictures of shapes that are painted many times over: to copy one is many times faster than to paint it. They hold
/// for one zoom. A copy of this begins with none.
class Stamps {
public:
    /// Puts a shape's upper left corner at `place`. `paint` paints the shape with that corner at `Stamp::within`.
    /// Not kept, but painted each time, are large shapes, and all of them where device pixels are no whole part of a
    /// pixel: a copy would be blurred there.
    void put(QPainter& painter, const QPointF& place, Stamp stamp,
             const std::function<void(QPainter&, const QPointF& within)>& paint);

    void clear() { kept.clear(); }

private:
    static constexpr int mostbytes = 2 << 20;

    Kept<Stamp, QPixmap> kept{mostbytes};
};

} // namespace ui
