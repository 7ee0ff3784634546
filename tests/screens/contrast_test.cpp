// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/display.h"
#include "ui/look.h"
#include "ui/marks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

// Contrast of every text with what it stands on, as the Web Content Accessibility Guidelines measure it: 1 to 21.

namespace {

constexpr double fortext = 4.5;
constexpr double fordisabled = 3;
constexpr double forshapes = 3; // rings and arrows

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& ink, const QColor& ground)
{
    const auto [dark, light] = std::minmax({luminance(ink), luminance(ground)});
    return (light + 0.05) / (dark + 0.05);
}

ui::Look lookof(const QColor& window, const QColor& text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    ui::Look look;
    look.followpalette(palette);
    return look;
}

struct DesktopRow {
    const char* name;
    Qt::GlobalColor window;
    Qt::GlobalColor text;
};

class Contrast : public testing::TestWithParam<DesktopRow> {
protected:
    const ui::Look look = lookof(GetParam().window, GetParam().text);
    const ui::Theme& theme = look.theme();
};

TEST(ContrastMeasure, knownPairs_haveTheirKnownContrast)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(contrast(QColor(0x767676), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(contrast(Qt::white, QColor(0x777777)), 4.48, 0.01);
}

TEST_P(Contrast, texts_areLegibleOnEveryGround)
{
    for (const QColor& ground : {theme.surface, theme.card, theme.button, theme.hover}) {
        EXPECT_GE(contrast(theme.text, ground), fortext) << ground.name().toStdString();
        EXPECT_GE(contrast(theme.label, ground), fortext) << ground.name().toStdString();
        EXPECT_GE(contrast(theme.accent, ground), forshapes) << ground.name().toStdString();
    }
    for (const QColor& ground : {theme.surface, theme.card, theme.button})
        EXPECT_GE(contrast(theme.outline, ground), forshapes) << ground.name().toStdString();
    EXPECT_GE(contrast(theme.pressedtext, theme.pressed), fortext);
    EXPECT_GE(contrast(theme.accenttext, theme.accent), fortext);
}

struct InkRow {
    QPalette::ColorRole ink;
    QPalette::ColorRole ground;
};

TEST_P(Contrast, platformControls_areLegible)
{
    constexpr InkRow rows[] = {{QPalette::WindowText, QPalette::Window},
                               {QPalette::Text, QPalette::Base},
                               {QPalette::ButtonText, QPalette::Button},
                               {QPalette::PlaceholderText, QPalette::Base},
                               {QPalette::HighlightedText, QPalette::Highlight}};
    for (const QColor& ground : {theme.surface, theme.card}) {
        const QPalette palette = look.palettefor(ground);
        for (const InkRow& row : rows)
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                EXPECT_GE(contrast(palette.color(group, row.ink), palette.color(group, row.ground)),
                          group == QPalette::Disabled ? fordisabled : fortext)
                    << row.ink << " on " << row.ground << " in group " << group;
    }
}

INSTANTIATE_TEST_SUITE_P(Desktops, Contrast,
                         testing::Values(DesktopRow{"light", Qt::white, Qt::black},
                                         DesktopRow{"dark", Qt::black, Qt::white}),
                         [](const auto& row) { return row.param.name; });

TEST(MarkContrast, ink_isLegibleOnTheGreysAndOnWhite)
{
    for (const core::Colour ground : {core::darkgrey, core::midgrey, core::lightgrey, core::white})
        EXPECT_GE(contrast(ui::markink(), ui::tocolour(ground)), fortext) << std::hex << ground;
}

} // namespace
