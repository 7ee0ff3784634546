// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QPainter>
#include <QWidget>

#include <functional>
#include <vector>

namespace ui {

/// An area on which controls have their places in twips. It is drawn at the zoom that fits it and keeps its
/// proportions; what is left over is margin. Behind the controls stand backdrops.
class Canvas : public QWidget {
    Q_OBJECT

public:
    using Painting = std::function<void(QPainter&, const Look&)>;

    /// `shownlook` follows this canvas's zoom from now on.
    Canvas(Look& shownlook, QSize twips, QWidget* parent = nullptr);

    /// Puts a control, made with this canvas as its parent, at its place.
    void place(QWidget* control, const TwipRect& where);
    /// Changes or moves many controls, all of which stay `within` an area: it is painted once, at the end, instead of
    /// with each of them.
    void atonce(const std::vector<QWidget*>& changed, const TwipRect& within, const std::function<void()>& change);
    /// Paints behind the controls, over the backdrops added before, whenever something within `where` is painted.
    void addbackdrop(const TwipRect& where, Painting paint) { backdrops.push_back({where, std::move(paint)}); }

    const Look& look() const { return shown; }
    QSize sizeat(double zoom) const;
    /// The largest zoom at which everything fits into `room`.
    double zoomin(QSize room) const;
    QSize sizeHint() const override { return sizeat(1); }
    QSize minimumSizeHint() const override { return sizeat(smallestzoom); }

    static constexpr double smallestzoom = 0.75;
    static constexpr double largestzoom = 4;

Q_SIGNALS:
    void zoomed(); ///< the zoom has changed

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Placed {
        QWidget* control;
        TwipRect where;
    };
    struct Backdrop {
        TwipRect where;
        Painting paint;
    };

    void layoutcontrols();
    void move(const Placed& placed);

    Look& shown;
    QSize area;
    QPoint origin;
    std::vector<Placed> controls;
    std::vector<Backdrop> backdrops;
};

} // namespace ui
