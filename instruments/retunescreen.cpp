// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/retunescreen.h"

#include "core/notes.h"
#include "ui/button.h"
#include "ui/text.h"

#include <QGridLayout>
#include <QScreen>

namespace instruments {
namespace {

constexpr int notesinrow = 4;
constexpr int explanationrow = core::octave / notesinrow + 1;
constexpr int keeprow = explanationrow + 1;
constexpr const char* note =
    "Note: if you had just wanted to enter a note using the guitar / strings area - please use "
    "a note that is on the actual fretboard and not on the end such as this one.";

QString caption(int index)
{
    if (index == 0)
        return QStringLiteral("no retune");
    const core::PitchClass pitch = index - 1;
    return core::isblack(pitch) ? ui::totext(core::bothnames(pitch))
                                : ui::totext(core::sharpnames.at(static_cast<std::size_t>(pitch)));
}

} // namespace

RetuneScreen::RetuneScreen(const ui::Look& shown, QWidget* owner)
    : QDialog(owner), look(shown), heading(new QLabel(this)), explanation(new QLabel(QString::fromLatin1(note), this))
{
    setObjectName(QStringLiteral("frmretune"));
    setWindowTitle(QStringLiteral("custom string retune"));
    setWindowModality(Qt::ApplicationModal);
    heading->setObjectName(QStringLiteral("retuneheading"));
    explanation->setObjectName(QStringLiteral("Label2"));
    explanation->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    const int room = qRound(16 * look.zoom());
    grid->setContentsMargins(room, room, room, room);
    grid->setSpacing(qRound(6 * look.zoom()));
    grid->addWidget(heading, 0, 0, 1, notesinrow);
    for (int index = 1; index <= core::octave; ++index)
        grid->addWidget(notebutton(index), 1 + (index - 1) / notesinrow, (index - 1) % notesinrow);
    grid->setRowMinimumHeight(explanationrow, room / 2);
    grid->addWidget(notebutton(0), keeprow, 0, 1, notesinrow);
    grid->addWidget(explanation, keeprow + 1, 0, 1, notesinrow);
}

QWidget* RetuneScreen::notebutton(int index)
{
    auto* button = new ui::Button(look, caption(index), this);
    button->setObjectName(ui::membername("cmdret", index));
    button->setAutoDefault(false);
    connect(button, &QAbstractButton::clicked, this, [this, index] { Q_EMIT cmdret_Click(index); });
    return button;
}

void RetuneScreen::display(const QString& opennote)
{
    heading->setText(QStringLiteral("Tune the %1 string to").arg(opennote));
}

void RetuneScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    setPalette(look.palettefor(look.theme().surface));
    heading->setFont(look.font(ui::Type::strong));
    explanation->setFont(look.font(ui::Type::text));
    layout()->activate(); // the explanation's height follows from its width
    const int wide = sizeHint().width();
    resize(wide, layout()->totalHeightForWidth(wide));
    const QRect room = screen()->availableGeometry();
    move(room.center() - rect().center());
}

} // namespace instruments
