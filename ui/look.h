// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/display.h"
#include "ui/lettering.h"
#include "ui/stamps.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRectF>

#include <array>
#include <cstdint>

namespace ui {

using core::Twips;

/// A place on a screen in twips, from the upper left of the screen's area.
struct TwipRect {
    Twips left;
    Twips top;
    Twips width;
    Twips height;

    constexpr Twips right() const { return left + width; }
    constexpr Twips bottom() const { return top + height; }
};

/// The colours around the given greys and whites, for a light or a dark desktop.
struct Theme {
    QColor surface;  ///< behind everything
    QColor card;     ///< what groups stand on
    QColor hairline; ///< edges of cards, buttons and readouts
    QColor outline;  ///< edges of what is typed into or ticked
    QColor text;
    QColor label;   ///< quieter text: captions
    QColor button;  ///< face of a button, a selector, a readout
    QColor hover;   ///< the same under the pointer
    QColor pressed; ///< face of what is chosen
    QColor pressedtext;
    QColor accent; ///< the root of the reading, and focus
    QColor accenttext;
};

/// One type scale for every screen.
enum class Type : std::uint8_t {
    label,   ///< captions
    heading, ///< captions of groups
    note,    ///< note names on keys and strings
    mark,    ///< the same where they belong to the chord
    text,    ///< buttons, selectors, names
    strong,  ///< the same where it stands out
    reading, ///< what the program found
};

/// How everything looks at the moment: colours by the desktop's theme, fonts and lengths by the zoom.
/// The one place where twips become pixels.
class Look {
public:
    Look();

    const Theme& theme() const { return *current; }
    void followpalette(const QPalette& palette);
    /// The theme's colours for a platform's own control on `ground`.
    QPalette palettefor(const QColor& ground) const;

    /// Zoom 1 is 15 twips to a pixel, the size of the screens as they are measured.
    double zoom() const { return factor; }
    void setzoom(double zoom);

    double pixels(double twips) const { return pixelsat(factor, twips); }
    static constexpr double pixelsat(double zoom, double twips) { return twips * zoom / twipsperpixel; }
    QRectF exact(const TwipRect& r) const;
    /// The same on whole pixels; neighbours that touch in twips touch in pixels.
    QRect place(const TwipRect& r) const;
    const QFont& font(Type type) const { return fonts.at(static_cast<std::size_t>(type)); }
    /// Shapes that were painted at this zoom.
    Stamps& stamps() const { return shapes; }
    /// Texts that were laid out for the fonts of this look.
    Lettering& lettering() const { return texts; }

private:
    static constexpr double twipsperpixel = 15;

    const Theme* current;
    double factor = 1;
    std::array<QFont, 7> fonts;
    mutable Stamps shapes;
    mutable Lettering texts;
};

} // namespace ui
