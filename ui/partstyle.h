// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QAbstractScrollArea>
#include <QProxyStyle>
#include <QStyleOption>

namespace ui {

/// The desktop's style for the platform's own controls, with edges, marks and the ring of the keyboard in the program's
/// look: check boxes and option buttons that grow with the text beside them, boxes and areas for text, their scroll
/// bars, lists that open below their box, and menu bars whose titles stand apart as their type is large.
class PartStyle : public QProxyStyle {
public:
    PartStyle(const Look& shownlook, QObject* owner);

    /// Gives an area its look, and its scroll bars, which take no style from it. The style has to outlive it.
    void dress(QAbstractScrollArea& area);

    /// The height of a menu bar whose type is `typepixels` high. It takes no font: the size of a window is asked for
    /// before its first text.
    static int menubarheight(int typepixels);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    void paintmark(QPainter& painter, const QStyleOption& option, bool round) const;
    void painthandle(QPainter& painter, const QStyleOptionSlider& bar, const QRectF& place) const;
    void paintedge(QPainter& painter, const QStyleOption& option) const;

    const Look& look;
};

} // namespace ui
