// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/paint.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

/// A picture of 120 by 40 pixels on a display of this scale.
template <typename Paint>
QImage painted(double scale, Paint paint)
{
    QImage picture(QSize(120, 40) * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paint(painter);
    return picture;
}

class BoxRows : public testing::TestWithParam<double> {
protected:
    QImage box(const QColor& face, const QPointF& at = {4, 6}) const
    {
        return painted(GetParam(), [&](QPainter& painter) {
            paintbox(painter, look, QRectF(at, QSizeF(80, 24)), face, Qt::black, 5);
        });
    }

    ui::Look look;
};

TEST_P(BoxRows, boxPaintedAgain_looksTheSame)
{
    const QImage first = box(Qt::yellow);
    EXPECT_EQ(box(Qt::yellow), first);
    EXPECT_EQ(first.pixelColor(QPoint(44, 18) * GetParam()), QColor(Qt::yellow));
    EXPECT_EQ(first.pixelColor(QPoint(1, 1)), QColor(Qt::white));
}

TEST_P(BoxRows, boxThatDiffers_isNoCopy)
{
    const QImage first = box(Qt::yellow);
    EXPECT_NE(box(Qt::green), first);
    EXPECT_NE(box(Qt::yellow, {4.5, 6}), first);
    look.setzoom(2);
    EXPECT_NE(box(Qt::yellow), first);
}

TEST_P(BoxRows, boxElsewhere_isTheSameBox)
{
    const auto cut = [](const QImage& picture, const QPoint& from) {
        return picture.copy(QRect(from * GetParam(), QSize(84, 28) * GetParam()));
    };
    EXPECT_EQ(cut(box(Qt::yellow, {20, 10}), {18, 8}), cut(box(Qt::yellow, {4, 6}), {2, 4}));
}

INSTANTIATE_TEST_SUITE_P(DisplayScales, BoxRows, testing::Values(1, 1.5, 2),
                         [](const auto& row) { return "percent" + std::to_string(static_cast<int>(row.param * 100)); });

struct TextRow {
    const char* name;
    const char* text;
    double width;
    bool smaller;
};

// clang-format off
constexpr auto textrows = std::to_array<TextRow>({
//  name          text                 width  smaller
  { "short",      "C",                 100,   false },
  { "empty",      "",                    1,   false },
  { "long",       "major 6th no 5th",   20,   true  },
  { "noroom",     "major",               0,   true  },
});
// clang-format on

class FittedRows : public testing::TestWithParam<TextRow> {};

TEST_P(FittedRows, font_shrinksOnlyWhereTheTextIsTooWide)
{
    const ui::Look look;
    const QFont asked = look.font(ui::Type::text);
    const QString text = QString::fromLatin1(GetParam().text);
    const QFont font = ui::fitted(look, asked, text, GetParam().width);
    EXPECT_EQ(font.pixelSize() < asked.pixelSize(), GetParam().smaller);
    EXPECT_GE(font.pixelSize(), 1);
    if (font.pixelSize() > 1) {
        EXPECT_LE(QFontMetricsF(font).horizontalAdvance(text), GetParam().width + 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, FittedRows, testing::ValuesIn(textrows),
                         [](const auto& row) { return std::string(row.param.name); });

/// The first and the last column that is not white.
std::pair<int, int> inked(const QImage& picture)
{
    int first = picture.width();
    int last = -1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y).lightness() < 128) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return {first, last};
}

TEST(Text, lineEndsAndTabs_areBlanks)
{
    ui::Lettering lettering;
    const QFont font = ui::Look().font(ui::Type::text);
    EXPECT_EQ(lettering.line(QStringLiteral("a\nb\tc\r"), font).size(),
              lettering.line(QStringLiteral("a b c "), font).size());
}

TEST(Text, alignment_setsTheSide)
{
    const ui::Look look;
    const auto text = [&](Qt::Alignment side) {
        return inked(painted(1, [&](QPainter& painter) {
            ui::painttext(painter, look, QRectF(0, 0, 120, 40), QStringLiteral("H"), look.font(ui::Type::reading),
                          Qt::black, side);
        }));
    };
    const auto [left, leftend] = text(Qt::AlignLeft);
    const auto [right, rightend] = text(Qt::AlignRight);
    const auto [middle, middleend] = text(Qt::AlignCenter);
    EXPECT_LT(left, 4);
    EXPECT_GT(rightend, 115);
    EXPECT_NEAR(middle - left, right - middle, 2);
    EXPECT_EQ(leftend - left, middleend - middle);
}

} // namespace
