// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/aboutscreen.h"

#include "ui/button.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QShowEvent>

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr const char* description =
    "App Description: A chord calculator that will show notes on keyboard or stringed instruments based on a chord "
    "input, or will show possible chords output based on notes input. Contains many options including multiple stored "
    "stringed instruments and tuning, custom options for stringed instruments, chord print and more.";
constexpr const char* notice = "Copyright (c) 1994, 2000, 2003, 2004 The tonefret developers";
constexpr int textwidth = 340;  ///< pixels at zoom 1
constexpr int widthatone = 460; ///< of the screen, in pixels at zoom 1
constexpr double share = 0.85;  ///< of the display, at most

QLabel* label(const char* name, const QString& text, const QFont& font, QWidget* screen)
{
    auto* made = new QLabel(text, screen);
    made->setObjectName(QString::fromLatin1(name));
    made->setTextFormat(Qt::PlainText);
    made->setFont(font);
    return made;
}

ui::Button* button(const ui::Look& look, const char* name, const char* caption, QWidget* screen)
{
    auto* made = new ui::Button(look, QString::fromLatin1(caption), screen);
    made->setObjectName(QString::fromLatin1(name));
    made->setAutoDefault(false);
    return made;
}

} // namespace

AboutScreen::AboutScreen(ui::Look shown, const QPixmap& icon, const QString& version, QWidget* owner)
    : QDialog(owner), look(std::move(shown))
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About tonefret"));
    look.setzoom(std::min(look.zoom(), screen()->availableSize().width() * share / widthatone));
    setPalette(look.palettefor(look.theme().surface));
    arrange(icon, version);
}

void AboutScreen::arrange(const QPixmap& icon, const QString& version)
{
    auto* picIcon = label("picIcon", QString(), look.font(ui::Type::text), this);
    picIcon->setPixmap(icon);
    picIcon->setAccessibleName(QStringLiteral("tonefret icon"));
    auto* lblDescription = label("lblDescription", QString::fromLatin1(description), look.font(ui::Type::text), this);
    lblDescription->setWordWrap(true);
    lblDescription->setFixedWidth(qRound(textwidth * look.zoom()));
    auto* cmdOK = button(look, "cmdOK", "OK", this);
    auto* cmdSysInfo = button(look, "cmdSysInfo", "&System Info...", this);
    connect(cmdOK, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QAbstractButton::clicked, this, &AboutScreen::cmdSysInfo_Click);

    auto* grid = new QGridLayout(this);
    const int room = qRound(18 * look.zoom());
    grid->setContentsMargins(room, room, room, room);
    grid->setHorizontalSpacing(room);
    grid->setVerticalSpacing(room / 3);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(picIcon, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(label("lblTitle", QStringLiteral("tonefret"), look.font(ui::Type::reading), this), 0, 1, 1, 2);
    grid->addWidget(label("lblVersion", QStringLiteral("Version ") + version, look.font(ui::Type::text), this), 1, 1, 1,
                    2);
    grid->addWidget(lblDescription, 2, 1, 1, 2);
    grid->addWidget(label("lblDisclaimer", QString::fromLatin1(notice), look.font(ui::Type::label), this), 3, 1, 1, 2);
    grid->setRowMinimumHeight(4, room / 2);
    grid->addWidget(cmdSysInfo, 5, 1, Qt::AlignRight);
    grid->addWidget(cmdOK, 5, 2);
    grid->setColumnStretch(1, 1);
    cmdOK->setDefault(true);
}

void AboutScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return; // back from the desktop's edge, where it stood
    move(screen()->availableGeometry().center() - rect().center());
}

} // namespace help
