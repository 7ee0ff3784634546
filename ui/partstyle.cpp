// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/partstyle.h"

#include "ui/paint.h"

#include <QApplication>
#include <QPainterPath>
#include <QRadioButton>
#include <QScrollBar>

#include <algorithm>
#include <initializer_list>

namespace ui {
namespace {

constexpr double indicator = 14; ///< side of a check mark's box, in pixels at zoom 1
constexpr double boxcorner = 5;
constexpr double boxpadding = 4; ///< beside the text in a box, in pixels at zoom 1
constexpr double tickcorner = 3;
constexpr double handleinset = 3; ///< of a scroll bar's handle, from the edges of the bar
constexpr double itempadding = 7; ///< beside the text of a list's item, in pixels at zoom 1
constexpr int areaedge = 2;       ///< around an area for text, in pixels at every zoom: room for the ring

void painttick(QPainter& painter, const QRectF& box, const QColor& colour)
{
    const auto at = [&box](double x, double y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    QPainterPath path(at(0.25, 0.52));
    path.lineTo(at(0.43, 0.7));
    path.lineTo(at(0.76, 0.32));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(colour, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void paintdot(QPainter& painter, const QRectF& box, const QColor& colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(box.center(), box.width() / 5, box.height() / 5);
}

} // namespace

PartStyle::PartStyle(const Look& shownlook, QObject* owner)
    : QProxyStyle(QApplication::style()->name()), look(shownlook)
{
    setParent(owner);
}

void PartStyle::dress(QAbstractScrollArea& area)
{
    for (QWidget* part : std::initializer_list<QWidget*>{&area, area.verticalScrollBar(), area.horizontalScrollBar()})
        part->setStyle(this);
}

int PartStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return qRound(indicator * look.zoom());
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
        return qRound(QProxyStyle::pixelMetric(metric, option, widget) * look.zoom());
    case PM_FocusFrameHMargin:
        return qRound(itempadding * look.zoom());
    case PM_DefaultFrameWidth:
        return areaedge;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int PartStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    if (hint == SH_ComboBox_Popup) // a list below its box, of as many items as the box allows, not one over the screen
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

/// The ring is around the mark, so that it crosses no text.
QRect PartStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_CheckBoxFocusRect)
        return subElementRect(SE_CheckBoxIndicator, option, widget);
    if (element == SE_RadioButtonFocusRect)
        return subElementRect(SE_RadioButtonIndicator, option, widget);
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    if (element != SE_LineEditContents)
        return place;
    const int padding = qRound(boxpadding * look.zoom());
    return place.adjusted(padding, 0, -padding, 0);
}

QSize PartStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    if (type != CT_MenuBarItem || !widget)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    return {contents.width() + option->fontMetrics.height() * 6 / 5, menubarheight(widget->font().pixelSize())};
}

int PartStyle::menubarheight(int typepixels)
{
    return typepixels * 11 / 6;
}

void PartStyle::paintmark(QPainter& painter, const QStyleOption& option, bool round) const
{
    const Theme& theme = look.theme();
    const bool on = option.state.testFlag(State_On);
    const bool hovered = option.state.testFlag(State_MouseOver) && option.state.testFlag(State_Enabled);
    const QRectF box(option.rect);
    const double corner = round ? box.height() / 2 / look.zoom() : tickcorner;
    paintbox(painter, look, box,
             on        ? theme.pressed
             : hovered ? theme.hover
                       : theme.button,
             on ? theme.pressed : theme.outline, corner);
    if (on)
        (round ? paintdot : painttick)(painter, box, theme.pressedtext);
}

void PartStyle::paintedge(QPainter& painter, const QStyleOption& option) const
{
    const bool focused = option.state.testFlag(State_HasFocus);
    const double line = focused ? areaedge : 1;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(
        QPen(focused ? look.theme().accent : look.theme().hairline, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(option.rect).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

void PartStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const bool round = qobject_cast<const QRadioButton*>(widget) != nullptr;
    const QRectF box(option->rect);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        return paintmark(*painter, *option, round);
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange))
            paintfocus(*painter, look, box, round ? box.height() / 2 / look.zoom() : tickcorner);
        return;
    case PE_PanelLineEdit:
        paintbox(*painter, look, box, option->palette.color(QPalette::Base), look.theme().outline, boxcorner);
        if (option->state.testFlag(State_HasFocus))
            paintfocus(*painter, look, box, boxcorner);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

/// The handle of a scroll bar: the platform's is hardly seen on its groove.
void PartStyle::painthandle(QPainter& painter, const QStyleOptionSlider& bar, const QRectF& place) const
{
    const double inset = handleinset * look.zoom();
    const QRectF handle = place.adjusted(inset, inset, -inset, -inset);
    const bool held = bar.state.testFlag(State_Sunken) && bar.activeSubControls.testFlag(SC_ScrollBarSlider);
    const QColor& colour = held ? look.theme().text : look.theme().outline;
    paintbox(painter, look, handle, colour, colour, std::min(handle.width(), handle.height()) / 2 / look.zoom());
}

void PartStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    // All of it: the platform's style would keep a picture of each part for each palette, and never let go of its name.
    const auto place = [&](SubControl part) { return QRectF(subControlRect(control, bar, part, widget)); };
    const bool upright = bar->orientation == Qt::Vertical;
    painter->fillRect(bar->rect, look.theme().surface);
    paintarrow(*painter, look, place(SC_ScrollBarSubLine), upright ? Qt::UpArrow : Qt::LeftArrow, look.theme().label);
    paintarrow(*painter, look, place(SC_ScrollBarAddLine), upright ? Qt::DownArrow : Qt::RightArrow,
               look.theme().label);
    painthandle(*painter, *bar, place(SC_ScrollBarSlider));
}

void PartStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    if (element == CE_ShapedFrame)
        paintedge(*painter, *option);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace ui
