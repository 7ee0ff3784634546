// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/picturescreen.h"

#include <QBoxLayout>

#include <utility>

namespace help {

PictureScreen::PictureScreen(const ui::Look& mainlook, std::function<Portrait()> camera, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window), portraits(std::move(camera))
{
    setObjectName(QStringLiteral("helppicture"));
    setWindowTitle(QStringLiteral("The main screen"));
    constexpr int picturewidth = 700; // pixels at zoom 1
    constexpr int captionsinrow = 4;
    auto* column = new QVBoxLayout;
    auto* picture = image(*this, portraits, &Portrait::whole, picturewidth);
    picture->setObjectName(QStringLiteral("mainpicture"));
    picture->setAccessibleName(QStringLiteral("The main screen with its parts numbered"));
    column->addWidget(picture);
    column->addWidget(card(captiongrid(*this, captionsinrow, "picture"))); // the basic help has the plain names
    auto* closebut = button("closebut", "Return", "", [this] { close(); });
    setenter(closebut);
    column->addWidget(closebut, 0, Qt::AlignRight);
    setcontent(column, 12);
}

} // namespace help
