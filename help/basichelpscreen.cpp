// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/basichelpscreen.h"

#include "help/basictexts.h"
#include "help/pictures.h"
#include "ui/button.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace help {
namespace {

constexpr QSize wanted(1080, 690); ///< at zoom 1
constexpr double share = 0.92;     ///< of the display, at most
constexpr int picturewidth = 500;
constexpr int captionsinrow = 3;

} // namespace

BasicHelpScreen::BasicHelpScreen(ui::Look shown, const QPixmap& upper, const QPixmap& lower, QWidget* owner)
    : QDialog(owner, Qt::Window), look(std::move(shown))
{
    setObjectName(QStringLiteral("mhelp"));
    setWindowTitle(QStringLiteral("vexlor 2000 tonefret basic help - note that more help is available by pressing the "
                                  "'more help' button"));
    const QSize display = screen()->availableSize() * share;
    look.setzoom(
        std::min({look.zoom(), display.width() / double(wanted.width()), display.height() / double(wanted.height())}));
    setPalette(look.palettefor(look.theme().surface));
    auto* column = new QVBoxLayout(this);
    const int room = qRound(16 * look.zoom());
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(room);
    column->addLayout(pictures(upper, lower));
    column->addLayout(texts(), 1);
    column->addLayout(buttons());
}

QLabel* BasicHelpScreen::text(const char* name, const char* shown, ui::Type type)
{
    auto* label = new QLabel(QString::fromLatin1(shown), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setFont(look.font(type));
    return label;
}

QLabel* BasicHelpScreen::image(const char* name, const char* description, const QPixmap& picture)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAccessibleName(QString::fromLatin1(description));
    label->setPixmap(scaledtowidth(picture, qRound(picturewidth * look.zoom()), devicePixelRatioF()));
    return label;
}

QLayout* BasicHelpScreen::pictures(const QPixmap& upper, const QPixmap& lower)
{
    auto* right = new QVBoxLayout;
    right->setSpacing(qRound(14 * look.zoom()));
    right->addWidget(image("Image2", "The fretboard and its selectors, numbered", lower));
    right->addLayout(captiongrid(look, captionsinrow, this));
    right->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(qRound(20 * look.zoom()));
    row->addWidget(image("Image1", "The keyboard, the readouts and the chord buttons, numbered", upper), 0,
                   Qt::AlignTop);
    row->addLayout(right, 1);
    return row;
}

QLayout* BasicHelpScreen::texts()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(qRound(26 * look.zoom()));
    std::array<QVBoxLayout*, 3> columns{};
    for (QVBoxLayout*& column : columns) {
        column = new QVBoxLayout;
        column->setSpacing(qRound(3 * look.zoom()));
        row->addLayout(column, 1);
    }
    for (const BasicText& each : basictexts) {
        QVBoxLayout* column = columns.at(static_cast<std::size_t>(each.column));
        const bool heading = each.kind == BasicText::Kind::heading;
        if (heading && column->count() > 0)
            column->addSpacing(qRound(9 * look.zoom()));
        QLabel* label = text(each.label, each.text, heading ? ui::Type::strong : ui::Type::text);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    for (QVBoxLayout* column : columns)
        column->addStretch(1);
    return row;
}

QLayout* BasicHelpScreen::buttons()
{
    auto* cmdhelp2 = new ui::Button(look, QStringLiteral("More Help"), this);
    cmdhelp2->setObjectName(QStringLiteral("cmdhelp2"));
    cmdhelp2->setAutoDefault(false);
    connect(cmdhelp2, &QAbstractButton::clicked, this, &BasicHelpScreen::cmdhelp2_Click);
    auto* cmdreturn = new ui::Button(look, QStringLiteral("Return"), this);
    cmdreturn->setObjectName(QStringLiteral("cmdreturn"));
    cmdreturn->setDefault(true);
    connect(cmdreturn, &QAbstractButton::clicked, this, &QDialog::close);
    auto* row = new QHBoxLayout;
    row->setSpacing(qRound(8 * look.zoom()));
    row->addStretch(1);
    row->addWidget(cmdhelp2);
    row->addWidget(cmdreturn);
    return row;
}

void BasicHelpScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return; // back from the desktop's edge, where it stood
    const int wide = qRound(wanted.width() * look.zoom());
    resize(wide, std::max(sizeHint().height(), layout()->totalHeightForWidth(wide)));
    move(screen()->availableGeometry().center() - rect().center());
}

} // namespace help
