// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/picturescreen.h"

#include "help/pictures.h"
#include "ui/button.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr QSize wanted(740, 690); ///< at zoom 1
constexpr double share = 0.9;     ///< of the display, at most
constexpr int picturewidth = 700;
constexpr int captionsinrow = 4;

} // namespace

PictureScreen::PictureScreen(ui::Look shown, const QPixmap& picture, QWidget* owner)
    : QDialog(owner), look(std::move(shown))
{
    setObjectName(QStringLiteral("helppicture"));
    setWindowTitle(QStringLiteral("The main screen"));
    const QSize display = screen()->availableSize() * share;
    look.setzoom(
        std::min({look.zoom(), display.width() / double(wanted.width()), display.height() / double(wanted.height())}));
    setPalette(look.palettefor(look.theme().surface));
    auto* column = new QVBoxLayout(this);
    const int room = qRound(16 * look.zoom());
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(qRound(8 * look.zoom()));
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* image = new QLabel(this);
    image->setObjectName(QStringLiteral("mainpicture"));
    image->setAccessibleName(QStringLiteral("The main screen with its parts numbered"));
    image->setPixmap(scaledtowidth(picture, qRound(picturewidth * look.zoom()), devicePixelRatioF()));
    column->addWidget(image);
    column->addLayout(captiongrid(look, captionsinrow, this));
    for (QLabel* caption : findChildren<QLabel*>(QRegularExpression(QStringLiteral("^Label"))))
        caption->setObjectName(QStringLiteral("picture") + caption->objectName()); // the basic help has the plain names
    auto* closebut = new ui::Button(look, QStringLiteral("Return"), this);
    closebut->setObjectName(QStringLiteral("closebut"));
    connect(closebut, &QAbstractButton::clicked, this, &QDialog::close);
    column->addWidget(closebut, 0, Qt::AlignRight);
}

void PictureScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return; // back from the desktop's edge, where it stood
    move(screen()->availableGeometry().center() - rect().center());
}

} // namespace help
