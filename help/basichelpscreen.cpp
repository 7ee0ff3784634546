// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/basichelpscreen.h"

#include "help/basictexts.h"

#include <QBoxLayout>

#include <array>
#include <utility>

namespace help {
namespace {

// Pixels at zoom 1. Two pictures stand above three columns of texts, and are as wide together.
constexpr int columnwidth = 324;
constexpr int columngap = 30;
constexpr int picturegap = 24;
constexpr int picturewidth = (3 * columnwidth + 2 * columngap - picturegap) / 2;
constexpr int captionsinrow = 3;

} // namespace

BasicHelpScreen::BasicHelpScreen(const ui::Look& mainlook, std::function<Portrait()> camera, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window), portraits(std::move(camera))
{
    setObjectName(QStringLiteral("mhelp"));
    setWindowTitle(QStringLiteral("vexlor 2000 tonefret basic help - note that more help is available by pressing the "
                                  "'more help' button"));
    auto* column = new QVBoxLayout;
    column->addLayout(addpictures());
    column->addLayout(addtexts());
    column->addLayout(addbuttons());
    setcontent(column, 14);
}

QLayout* BasicHelpScreen::addpictures()
{
    auto* upper = image(*this, portraits, &Portrait::upper, picturewidth);
    upper->setObjectName(QStringLiteral("Image1"));
    upper->setAccessibleName(QStringLiteral("The keyboard, the readouts and the chord buttons, numbered"));
    auto* lower = image(*this, portraits, &Portrait::lower, picturewidth);
    lower->setObjectName(QStringLiteral("Image2"));
    lower->setAccessibleName(QStringLiteral("The fretboard and its selectors, numbered"));
    auto* right = new QVBoxLayout;
    fitroom(right, 0, 14);
    right->addWidget(lower);
    right->addWidget(card(captiongrid(*this, captionsinrow)));
    right->addStretch(1);
    auto* row = new QHBoxLayout;
    fitroom(row, 0, picturegap);
    row->addWidget(upper, 0, Qt::AlignTop);
    row->addLayout(right, 1);
    return row;
}

QLayout* BasicHelpScreen::addtexts()
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, columngap);
    std::array<QVBoxLayout*, 3> columns{};
    for (QVBoxLayout*& column : columns) {
        column = new QVBoxLayout;
        fitroom(column, 0, 4);
        row->addLayout(column);
    }
    for (const BasicText& each : basictexts) {
        QVBoxLayout* column = columns.at(static_cast<std::size_t>(each.column));
        const bool heading = each.kind == BasicText::Kind::heading;
        if (heading && column->count() > 0) {
            auto* before = new QSpacerItem(0, 0);
            column->addItem(before);
            fit([this, before] { before->changeSize(0, scaled(4)); });
        }
        column->addWidget(caption(each.label, each.text, heading ? ui::Type::strong : ui::Type::text, columnwidth));
    }
    for (QVBoxLayout* column : columns)
        column->addStretch(1);
    return row;
}

QLayout* BasicHelpScreen::addbuttons()
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, gap);
    row->addStretch(1);
    row->addWidget(button("cmdhelp2", "More Help", "", [this] { Q_EMIT cmdhelp2_Click(); }));
    auto* cmdreturn = button("cmdreturn", "Return", "", [this] { close(); });
    setenter(cmdreturn);
    row->addWidget(cmdreturn);
    return row;
}

} // namespace help
