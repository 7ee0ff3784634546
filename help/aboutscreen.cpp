// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/aboutscreen.h"

#include <QBoxLayout>

namespace help {
namespace {

constexpr const char* description =
    "App Description: A chord calculator that will show notes on keyboard or stringed instruments based on a chord "
    "input, or will show possible chords output based on notes input. Contains many options including multiple stored "
    "stringed instruments and tuning, custom options for stringed instruments, chord print and more.";
constexpr const char* notice = "Copyright (c) 1994, 2000, 2003, 2004 The tonefret developers";
constexpr int textwidth = 340; ///< pixels at zoom 1
constexpr int iconsize = 64;

} // namespace

AboutScreen::AboutScreen(const ui::Look& mainlook, const Icon& icon, const QString& version, QWidget* owner)
    : Companion(mainlook, owner, Qt::Dialog)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About tonefret"));
    auto* columns = new QHBoxLayout;
    columns->addWidget(addicon(icon), 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 14);
    column->addLayout(addtexts(version));
    column->addLayout(addbuttons());
    columns->addLayout(column);
    setcontent(columns, edge);
}

QLabel* AboutScreen::addicon(const Icon& icon)
{
    auto* label = new QLabel(this);
    label->setObjectName(QStringLiteral("picIcon"));
    label->setAccessibleName(QStringLiteral("tonefret icon"));
    fit([this, label, icon] { label->setPixmap(icon(scaled(iconsize), devicePixelRatioF())); });
    return label;
}

QLayout* AboutScreen::addtexts(const QString& version)
{
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 6);
    column->addWidget(caption("lblTitle", "tonefret", ui::Type::reading));
    auto* lblVersion = caption("lblVersion", "", ui::Type::text);
    lblVersion->setText(QStringLiteral("Version ") + version);
    column->addWidget(lblVersion);
    column->addWidget(caption("lblDescription", description, ui::Type::text, textwidth));
    column->addWidget(caption("lblDisclaimer", notice, ui::Type::label));
    return column;
}

QLayout* AboutScreen::addbuttons()
{
    auto* cmdOK = button("cmdOK", "OK", "", [this] { close(); });
    setenter(cmdOK);
    auto* row = new QHBoxLayout;
    fitroom(row, 0, gap);
    row->addStretch(1);
    row->addWidget(button("cmdSysInfo", "&System Info...", "", [this] { Q_EMIT cmdSysInfo_Click(); }));
    row->addWidget(cmdOK);
    return row;
}

} // namespace help
