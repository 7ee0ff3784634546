// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/retunescreen.h"

#include "core/notes.h"
#include "ui/text.h"

#include <QGridLayout>

namespace instruments {
namespace {

constexpr int notesinrow = 4;
constexpr int textwidth = 330; // pixels at zoom 1
constexpr const char* note =
    "Note: if you had just wanted to enter a note using the guitar / strings area - please use "
    "a note that is on the actual fretboard and not on the end such as this one.";

std::string captionof(int index)
{
    if (index == 0)
        return "no retune";
    const core::PitchClass pitch = index - 1;
    return core::isblack(pitch) ? core::bothnames(pitch)
                                : std::string(core::sharpnames.at(static_cast<std::size_t>(pitch)));
}

} // namespace

RetuneScreen::RetuneScreen(const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner, Qt::Dialog), heading(caption("retuneheading", "", ui::Type::strong))
{
    setObjectName(QStringLiteral("frmretune"));
    setWindowTitle(QStringLiteral("custom string retune"));
    setWindowModality(Qt::ApplicationModal);
    auto* column = new QVBoxLayout;
    column->addWidget(heading);
    column->addLayout(addnotes());
    column->addWidget(notebutton(0));
    column->addWidget(caption("Label2", note, ui::Type::text, textwidth));
    setcontent(column, 12);
}

QLayout* RetuneScreen::addnotes()
{
    auto* grid = new QGridLayout;
    fitroom(grid, 0, 6);
    for (int index = 1; index <= core::octave; ++index)
        grid->addWidget(notebutton(index), (index - 1) / notesinrow, (index - 1) % notesinrow);
    return grid;
}

QWidget* RetuneScreen::notebutton(int index)
{
    auto* made = button("", captionof(index).c_str(), "", [this, index] { Q_EMIT cmdret_Click(index); });
    made->setObjectName(ui::membername("cmdret", index));
    return made;
}

void RetuneScreen::display(const QString& opennote) const
{
    heading->setText(QStringLiteral("Tune the %1 string to").arg(opennote));
}

} // namespace instruments
