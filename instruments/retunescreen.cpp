// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/retunescreen.h"

#include "core/notes.h"
#include "ui/button.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>

namespace instruments {
namespace {

constexpr int notesinrow = 4;
constexpr int notes = 12;

QString caption(int index)
{
    if (index == 0)
        return QStringLiteral("no retune");
    const auto pitch = static_cast<std::size_t>(index - 1);
    std::string names(core::sharpnames.at(pitch));
    if (core::isblack(index - 1))
        names += " " + std::string(core::flatnames.at(pitch));
    return QString::fromStdString(names);
}

} // namespace

RetuneScreen::RetuneScreen(const ui::Look& look, QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("frmretune"));
    setWindowTitle(QStringLiteral("custom string retune"));
    setWindowModality(Qt::ApplicationModal);
    auto* grid = new QGridLayout(this);
    const int room = qRound(16 * look.zoom());
    grid->setContentsMargins(room, room, room, room);
    grid->setSpacing(qRound(6 * look.zoom()));
    for (int index = 0; index <= notes; ++index) {
        auto* button = new ui::Button(look, caption(index), this);
        button->setObjectName(QStringLiteral("cmdret_%1").arg(index));
        button->setAutoDefault(false);
        connect(button, &QAbstractButton::clicked, this, [this, index] { Q_EMIT cmdret_Click(index); });
        if (index == 0)
            grid->addWidget(button, notes / notesinrow + 1, 0, 1, notesinrow);
        else
            grid->addWidget(button, (index - 1) / notesinrow, (index - 1) % notesinrow);
    }
    auto* label = new QLabel(QStringLiteral("Note: if you had just wanted to enter a note using the guitar / strings "
                                            "area - please use a note that is on the actual fretboard and not on the "
                                            "end such as this one."),
                             this);
    label->setObjectName(QStringLiteral("Label2"));
    label->setWordWrap(true);
    label->setFont(look.font(ui::Type::text));
    grid->addWidget(label, notes / notesinrow + 2, 0, 1, notesinrow);
}

void RetuneScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    adjustSize();
    const QRect room = screen()->availableGeometry();
    move(room.center() - rect().center());
}

} // namespace instruments
