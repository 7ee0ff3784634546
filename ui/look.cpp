// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/look.h"

#include <QGuiApplication>
#include <QRect>

namespace ui {
namespace {

const Theme& lighttheme()
{
    static const Theme theme{.surface = QColor(0xF4F2ED),
                             .card = QColor(0xFFFFFF),
                             .hairline = QColor(0xDAD6CC),
                             .outline = QColor(0x85888F),
                             .text = QColor(0x1E2126),
                             .label = QColor(0x62666D),
                             .button = QColor(0xFBFAF7),
                             .hover = QColor(0xF1EEE6),
                             .pressed = QColor(0x1E2126),
                             .pressedtext = QColor(0xFFFFFF),
                             .accent = QColor(0xA8482A),
                             .accenttext = QColor(0xFFFFFF)};
    return theme;
}

const Theme& darktheme()
{
    static const Theme theme{.surface = QColor(0x232528),
                             .card = QColor(0x2D3035),
                             .hairline = QColor(0x3D4147),
                             .outline = QColor(0x7E838B),
                             .text = QColor(0xECEAE4),
                             .label = QColor(0xAAAFB6),
                             .button = QColor(0x32363C),
                             .hover = QColor(0x3B4046),
                             .pressed = QColor(0xECEAE4),
                             .pressedtext = QColor(0x1E2126),
                             .accent = QColor(0xE08A5E),
                             .accenttext = QColor(0x1E2126)};
    return theme;
}

struct TypeRow {
    double pixels; ///< at zoom 1
    QFont::Weight weight;
};

// clang-format off
constexpr std::array<TypeRow, 7> typescale{{
    { 10, QFont::Normal   },  // label
    { 10, QFont::DemiBold },  // heading
    { 10, QFont::Normal   },  // note
    { 10, QFont::DemiBold },  // mark
    { 11, QFont::Normal   },  // text
    { 11, QFont::DemiBold },  // strong
    { 14, QFont::DemiBold },  // reading
}};
// clang-format on

} // namespace

Look::Look() : current(&lighttheme())
{
    followpalette(QGuiApplication::palette());
    setzoom(1);
}

void Look::followpalette(const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    current = dark ? &darktheme() : &lighttheme();
}

QPalette Look::palettefor(const QColor& ground) const
{
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, current->text);
    palette.setColor(QPalette::Button, ground);
    palette.setColor(QPalette::ButtonText, current->text);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, current->text);
    palette.setColor(QPalette::PlaceholderText, current->label);
    palette.setColor(QPalette::Highlight, current->accent);
    palette.setColor(QPalette::HighlightedText, current->accenttext);
    return palette;
}

void Look::setzoom(double zoom)
{
    factor = zoom;
    shapes.clear();
    texts.clear();
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        QFont font = QGuiApplication::font();
        font.setPixelSize(qMax(1, qRound(typescale.at(i).pixels * zoom)));
        font.setWeight(typescale.at(i).weight);
        fonts.at(i) = font;
    }
}

QRectF Look::exact(const TwipRect& r) const
{
    return {pixels(r.left), pixels(r.top), pixels(r.width), pixels(r.height)};
}

QRect Look::place(const TwipRect& r) const
{
    const QPoint topleft(qRound(pixels(r.left)), qRound(pixels(r.top)));
    const QPoint end(qRound(pixels(r.right())), qRound(pixels(r.bottom())));
    return {topleft, QSize(end.x() - topleft.x(), end.y() - topleft.y())};
}

} // namespace ui
