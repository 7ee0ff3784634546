// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/camerapicture.h"

#include <QPainter>

#include <array>

namespace print {
namespace {

/// One shape of the camera: a box with round corners, or a circle.
class Shape : public QWidget {
public:
    Shape(const ui::Look& shown, QColor shapeface, double shapecorner, QWidget* parent)
        : QWidget(parent), look(shown), face(shapeface), corner(shapecorner)
    {
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(look.theme().hairline, look.zoom()));
        painter.setBrush(face);
        const double edge = look.zoom() / 2;
        const double round = corner * look.zoom();
        painter.drawRoundedRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge), round, round);
    }

private:
    const ui::Look& look;
    QColor face;
    double corner;
};

constexpr core::Twips px = 15;

struct ShapeRow {
    const char* name;
    ui::TwipRect place;
    double corner; ///< pixels at zoom 1; half the width is a circle
    QRgb face;
};

// From the back to the front; a place is within the picture.
// clang-format off
constexpr auto shapes = std::to_array<ShapeRow>({
//  name          left      top      width     height    corner  face
  { "Shape2",     { 58 * px,  0 * px, 44 * px, 24 * px },  5,     0xFF3B4048 }, // the finder
  { "Shape1",     { 16 * px,  6 * px, 22 * px, 14 * px },  4,     0xFFC8553D }, // the button
  { "cambase",    {  0 * px, 14 * px,160 * px, 96 * px }, 12,     0xFF565D68 },
  { "lensouter",  { 46 * px, 28 * px, 68 * px, 68 * px }, 34,     0xFFC9CED6 },
  { "lensinner",  { 60 * px, 42 * px, 40 * px, 40 * px }, 20,     0xFF2B4C7E },
});
// clang-format on
constexpr ui::TwipRect area{0, 0, 160 * px, 110 * px};

} // namespace

CameraPicture::CameraPicture(ui::Companion& screen) : QWidget(&screen)
{
    const ui::Look& look = screen.shownlook();
    setObjectName(QStringLiteral("camerapicture"));
    screen.fit([this, &look] { setFixedSize(look.place(area).size()); });
    for (const ShapeRow& row : shapes) {
        auto* shape = new Shape(look, QColor::fromRgba(row.face), row.corner, this);
        shape->setObjectName(QString::fromLatin1(row.name));
        screen.fit([shape, &look, place = row.place] { shape->setGeometry(look.place(place)); });
    }
}

} // namespace print
