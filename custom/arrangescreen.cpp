// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/arrangescreen.h"

#include "ui/readout.h"
#include "ui/text.h"

#include <QKeyEvent>

namespace custom {
namespace {

constexpr QSize numbersize{22, 24}; // in pixels at zoom 1
constexpr QSize namesize{190, 24};
constexpr int columngap = 14;
constexpr int textwidth = 3 * (22 + 190 + 5) + 2 * (columngap + 5);

constexpr const char* instruction =
    "To swap the location of two pieces of custom data, drag one over the other. How to drag it? Click on the first "
    "data item to be moved with your mouse. Hold down the left mouse button while you drag its image over the item to "
    "be changed. Note that you cannot move data to unused space - but can only change data items in the occupied data "
    "area.";

} // namespace

ArrangeScreen::ArrangeScreen(const CustomTable& shown, const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window),
      table(shown),
      roving(new ui::RovingFocus([this](int place, Qt::Key pressed) { return neighbour(place, pressed); }, this))
{
    setObjectName(QStringLiteral("arrange"));
    setWindowTitle(QStringLiteral("Arrange the Order (position) of custom data"));
    auto* column = new QVBoxLayout;
    column->addWidget(caption("Label1", instruction, ui::Type::text, textwidth));
    column->addLayout(addplaces());
    column->addLayout(addend());
    setcontent(column, 12);
    display();
}

/// Columns are read downward, and the gap between two is a column of the grid by itself.
QGridLayout* ArrangeScreen::addplaces()
{
    auto* grid = new QGridLayout;
    fitroom(grid, 0, 5);
    for (int place = 0; place < static_cast<int>(placecount); ++place)
        addplace(grid, place);
    fit([this, grid] {
        for (int column = 0; column < columncount; ++column) {
            grid->setColumnMinimumWidth(3 * column + 1, scaled(namesize.width()));
            grid->setColumnMinimumWidth(3 * column + 2, column + 1 < columncount ? scaled(columngap - 5) : 0);
        }
        for (int row = 0; row < placesincolumn; ++row)
            grid->setRowMinimumHeight(row, scaled(namesize.height()));
    });
    return grid;
}

void ArrangeScreen::addplace(QGridLayout* grid, int place)
{
    const int row = place % placesincolumn;
    const int column = 3 * (place / placesincolumn);
    auto* number =
        new ui::Readout(look, ui::Type::label, ui::Readout::Frame::none, Qt::AlignRight | Qt::AlignVCenter, this);
    number->setObjectName(ui::membername("lblx", place));
    number->settext(QString::number(place));
    number->setAccessibleName(QStringLiteral("place %1").arg(place));
    fitsize(number, numbersize);
    auto* box = new EntryBox(look, place, this);
    box->setObjectName(ui::membername("txtx", place));
    box->setToolTip(QStringLiteral("drag over another, or pick up and drop with the Space key"));
    fitsize(box, namesize);
    grid->addWidget(number, row, column);
    grid->addWidget(box, row, column + 1);
    connect(box, &EntryBox::dropped, this, [this, place](int source) { Q_EMIT txtx_DragDrop(place, source); });
    connect(box, &EntryBox::chosen, this, [this, place] { choose(place); });
    roving->add(box);
    txtx.at(static_cast<std::size_t>(place)) = box;
}

QBoxLayout* ArrangeScreen::addend()
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(button("cmdret", "Done ! Return !", "close this screen", [this] { close(); }));
    return row;
}

void ArrangeScreen::display()
{
    if (carried && table.at(static_cast<std::size_t>(*carried)).name != carriedname)
        carried.reset(); // another entry has come to its place
    for (std::size_t place = 0; place < placecount; ++place)
        txtx.at(place)->display(ui::totext(table.at(place).name), carried == static_cast<int>(place));
    roving->leavehidden();
}

/// The first time picks a box up, the second drops it.
void ArrangeScreen::choose(int place)
{
    if (!carried) {
        carried = place;
        carriedname = table.at(static_cast<std::size_t>(place)).name;
        display();
        return;
    }
    const int source = *carried;
    carried.reset();
    Q_EMIT txtx_DragDrop(place, source);
}

/// Escape puts back what is picked up; otherwise it closes the screen.
void ArrangeScreen::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !carried)
        return Companion::keyPressEvent(event);
    carried.reset();
    display();
}

/// Where a key leads among the used places; the place itself where it leads nowhere.
int ArrangeScreen::neighbour(int place, Qt::Key pressed) const
{
    constexpr int behind = static_cast<int>(placecount);
    const auto orstay = [&](std::optional<int> reached) { return reached.value_or(place); };
    switch (pressed) {
    case Qt::Key_Up:
        return orstay(nextused(place, -1));
    case Qt::Key_Down:
        return orstay(nextused(place, 1));
    case Qt::Key_Left:
        return orstay(nextused(place, -placesincolumn));
    case Qt::Key_Right:
        return orstay(nextused(place, placesincolumn));
    case Qt::Key_Home:
        return orstay(nextused(-1, 1));
    default:
        return orstay(nextused(behind, -1));
    }
}

/// The first used place in steps from `place`, which itself does not count.
std::optional<int> ArrangeScreen::nextused(int place, int step) const
{
    for (int next = place + step; next >= 0 && next < static_cast<int>(placecount); next += step)
        if (!table.at(static_cast<std::size_t>(next)).name.empty())
            return next;
    return std::nullopt;
}

} // namespace custom
