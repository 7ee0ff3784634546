// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/neckpicture.h"

#include "mainscreen/places.h"
#include "ui/paint.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace mainscreen {
namespace {

using instruments::Fretboard;
using instruments::Hand;
using places::px;
using ui::Look;
using ui::TwipRect;
using ui::Twips;

constexpr std::array<int, 8> inlayfrets{3, 5, 7, 9, 12, 15, 17, 19};
constexpr Twips nutwidth = 6 * px;
constexpr Twips headreach = 11 * px; ///< of the strings beyond their open cells

Twips columnleft(int fret, Hand hand)
{
    return instruments::columns.at(static_cast<std::size_t>(fret))[hand];
}

Twips columnright(int fret, Hand hand)
{
    return columnleft(fret, hand) + places::cellwidth(fret, hand);
}

Twips columnmiddle(int fret, Hand hand)
{
    return (columnleft(fret, hand) + columnright(fret, hand)) / 2;
}

/// Where fret wire `fret` crosses: halfway between its cells and the next fret's. Wire 0 is the nut.
Twips wire(int fret, Hand hand)
{
    if (hand == Hand::right)
        return (columnright(fret, hand) + columnleft(fret + 1, hand)) / 2;
    return (columnleft(fret, hand) + columnright(fret + 1, hand)) / 2;
}

void paintwood(QPainter& painter, const Look& look, const TwipRect& neck)
{
    const QRectF wood = look.exact(neck);
    QLinearGradient grain(wood.topLeft(), wood.bottomLeft());
    grain.setColorAt(0, QColor(0x63, 0x40, 0x33));
    grain.setColorAt(0.5, QColor(0x4A, 0x2E, 0x25));
    grain.setColorAt(1, QColor(0x38, 0x22, 0x1B));
    painter.setPen(Qt::NoPen);
    painter.setBrush(grain);
    painter.drawRoundedRect(wood, 3 * look.zoom(), 3 * look.zoom());
}

void paintdot(QPainter& painter, const Look& look, Twips x, Twips y, double radius)
{
    const QPointF middle(look.pixels(x), look.pixels(y));
    QLinearGradient pearl(middle - QPointF(radius, radius) * look.zoom(),
                          middle + QPointF(radius, radius) * look.zoom());
    pearl.setColorAt(0, QColor(0xFA, 0xF6, 0xEC));
    pearl.setColorAt(1, QColor(0xC9, 0xBF, 0xAE));
    painter.setPen(Qt::NoPen);
    painter.setBrush(pearl);
    painter.drawEllipse(middle, radius * look.zoom(), radius * look.zoom());
}

/// Dots along the lower edge, where no cell hides them.
void paintinlays(QPainter& painter, const Look& look, const TwipRect& neck, Hand hand)
{
    const Twips y = neck.bottom() - places::neckmargin / 2;
    for (const int fret : inlayfrets) {
        const Twips x = columnmiddle(fret, hand);
        const Twips apart = fret == 12 ? 4 * px : 0;
        paintdot(painter, look, x - apart, y, 2.2);
        if (apart > 0)
            paintdot(painter, look, x + apart, y, 2.2);
    }
}

/// An upright bar with smooth sides, a pixel wide or more: the pixels between them, and a paler column on either side.
/// To smooth them row by row takes ten times as long. It is filled in pieces: what is higher the toolkit shares among
/// threads, and to wake them takes longer than the filling.
void paintbar(QPainter& painter, const QRectF& bar, const QColor& colour)
{
    const double scale = painter.device()->devicePixelRatioF();
    const double piece = 64 / scale;
    const int pieces = static_cast<int>(std::ceil(bar.height() / piece));
    const double left = bar.left() * scale;
    const double right = bar.right() * scale;
    const double within = std::ceil(left);
    const double beyond = std::max(within, std::floor(right));
    const auto fill = [&](double from, double to, double covered) {
        QColor shade = colour;
        shade.setAlphaF(shade.alphaF() * static_cast<float>(covered));
        for (int i = 0; i < pieces; ++i) {
            const double top = bar.top() + i * piece;
            painter.fillRect(QRectF(from / scale, top, (to - from) / scale, std::min(piece, bar.bottom() - top)),
                             shade);
        }
    };
    painter.setRenderHint(QPainter::Antialiasing, false);
    fill(within - 1, within, within - left);
    fill(within, beyond, 1);
    fill(beyond, beyond + 1, right - beyond);
    painter.setRenderHint(QPainter::Antialiasing);
}

void paintnut(QPainter& painter, const Look& look, const TwipRect& neck, Hand hand)
{
    const TwipRect place{wire(0, hand) - nutwidth / 2, neck.top, nutwidth, neck.height};
    const QRectF nut = look.exact(place);
    paintbar(painter, nut.translated((hand == Hand::right ? 1.2 : -1.2) * look.zoom(), 0), QColor(0, 0, 0, 90));
    ui::paintbox(painter, look, nut, QColor(0xF1, 0xE8, 0xD6), QColor(0xB9, 0xAD, 0x96), 1.5);
}

void paintwires(QPainter& painter, const Look& look, const TwipRect& neck, Hand hand)
{
    const QRectF wood = look.exact(neck);
    for (int fret = 1; fret + 1 < instruments::fretcount; ++fret) {
        const double x = look.pixels(wire(fret, hand));
        paintbar(painter, QRectF(x - 0.2 * look.zoom(), wood.top(), 1.9 * look.zoom(), wood.height()),
                 QColor(0, 0, 0, 90));
        paintbar(painter, QRectF(x - look.zoom(), wood.top(), 1.6 * look.zoom(), wood.height()),
                 QColor(0xD8, 0xC8, 0x9E));
    }
    paintnut(painter, look, neck, hand);
}

struct StringKind {
    double weight; ///< pixels at zoom 1
    bool wound;
};

/// The string on row `row`: heavier downward, the lower half wound; of a banjo's only the fourth is, and its short
/// fifth is as thin as its first.
StringKind stringkind(int row, instruments::StringLayout layout)
{
    const int first = instruments::layoutrow(layout).firstrow;
    const int place = row - first;
    if (layout == instruments::StringLayout::shortfifth)
        return row == instruments::lastrow ? StringKind{0.9, false} : StringKind{0.9 + 0.25 * place, place == 3};
    const int strings = instruments::rowcount - first;
    return {0.9 + 0.3 * place, place >= strings - strings / 2};
}

/// From where to where a string is seen: over the neck and a piece beyond either end. A banjo's fifth begins at its
/// peg.
TwipRect stringplace(const Fretboard& board, bool shortstring, Twips height)
{
    const instruments::HandRow& ends = instruments::handrow(board.hand);
    const Twips peg = wire(instruments::shortstringfret, board.hand);
    if (board.hand == Hand::right) {
        const Twips from = shortstring ? peg : columnleft(0, board.hand) - headreach;
        return {from, height, ends.segmentright - from, 0};
    }
    const Twips to = shortstring ? peg : columnright(0, board.hand) + headreach;
    return {ends.segmentleft, height, to - ends.segmentleft, 0};
}

/// The string along line `line` (0 top .. 5 bottom).
void paintstring(QPainter& painter, const Look& look, const Fretboard& board, int line)
{
    const instruments::LayoutRow& shown = instruments::layoutrow(board.layout);
    const int row = shown.firstrow + line - shown.firstline;
    const bool shortstring = board.layout == instruments::StringLayout::shortfifth && row == instruments::lastrow;
    const Twips height = instruments::linetops.at(static_cast<std::size_t>(line));
    const StringKind kind = stringkind(row, board.layout);
    const double half = kind.weight * look.zoom() / 2;
    const QRectF metal = look.exact(stringplace(board, shortstring, height)).adjusted(0, -half, 0, half);
    painter.fillRect(metal.translated(0, 0.8 * look.zoom()), QColor(0, 0, 0, 60));
    painter.fillRect(metal, kind.wound ? QColor(0xC2, 0x9C, 0x57) : QColor(0xB9, 0xB7, 0xB1));
    if (shortstring)
        paintdot(painter, look, wire(instruments::shortstringfret, board.hand), height, 3);
}

void paintnumbers(QPainter& painter, const Look& look, const TwipRect& neck, Hand hand)
{
    for (const int fret : inlayfrets) {
        const TwipRect where{columnmiddle(fret, hand) - 15 * px, neck.bottom() + places::numbergap, 30 * px,
                             places::numberheight};
        ui::painttext(painter, look, look.exact(where), QString::number(fret), look.font(ui::Type::heading),
                      look.theme().label);
    }
}

} // namespace

TwipRect neckplace(const Fretboard& fretboard)
{
    const auto& shown = instruments::layoutrow(fretboard.layout);
    const Twips top = fretboard.rowtop.at(static_cast<std::size_t>(shown.firstrow)) - places::neckmargin;
    const Twips bottom = fretboard.rowtop.back() + instruments::rowheight + places::neckmargin;
    const int last = instruments::fretcount - 1;
    const Hand hand = fretboard.hand;
    const Twips end = hand == Hand::right ? columnright(last, hand) : columnleft(last, hand);
    const Twips left = hand == Hand::right ? wire(0, hand) : end - places::cellgap;
    const Twips right = hand == Hand::right ? end + places::cellgap : wire(0, hand);
    return {left, top, right - left, bottom - top};
}

TwipRect neckreach(const Fretboard& fretboard)
{
    const TwipRect wood = neckplace(fretboard);
    const instruments::HandRow& ends = instruments::handrow(fretboard.hand);
    const Twips left = std::min(ends.segmentleft, columnleft(0, fretboard.hand) - headreach);
    const Twips right = std::max(ends.segmentright, columnright(0, fretboard.hand) + headreach);
    return {left, wood.top, right - left, wood.height + places::numbergap + places::numberheight};
}

void paintneck(QPainter& painter, const Look& look, const Fretboard& fretboard)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const TwipRect neck = neckplace(fretboard);
    paintwood(painter, look, neck);
    paintwires(painter, look, neck, fretboard.hand);
    paintinlays(painter, look, neck, fretboard.hand);
    for (int line = 0; line < instruments::rowcount; ++line)
        if (fretboard.linevisible.at(static_cast<std::size_t>(line)))
            paintstring(painter, look, fretboard, line);
    paintnumbers(painter, look, neck, fretboard.hand);
}

} // namespace mainscreen
