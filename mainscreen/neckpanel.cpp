// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/neckpanel.h"

#include "mainscreen/neckpicture.h"
#include "mainscreen/places.h"
#include "ui/marks.h"

#include <QLinearGradient>
#include <QPainter>

namespace mainscreen {
namespace {

using places::px;

constexpr ui::Twips barwidth = 7 * px;
constexpr ui::Twips followerwidth = 3 * px;
constexpr std::size_t fewcells = 20;   ///< so many and fewer are faster painted one by one than with the whole neck
constexpr ui::Twips overhang = 5 * px; ///< of the capo beyond the neck's upper edge

/// The capo's bar, padded and dark, or the thin bright line behind it.
class CapoShape : public QWidget {
public:
    enum class Part : std::uint8_t { bar, follower };

    CapoShape(Part made, QWidget* parent) : QWidget(parent), part(made)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        QLinearGradient metal(box.topLeft(), box.topRight());
        metal.setColorAt(0, part == Part::bar ? QColor(0x15, 0x16, 0x19) : QColor(0xF4, 0xF4, 0xF4));
        metal.setColorAt(0.4, part == Part::bar ? QColor(0x5A, 0x5D, 0x64) : QColor(0xFF, 0xFF, 0xFF));
        metal.setColorAt(1, part == Part::bar ? QColor(0x1B, 0x1C, 0x20) : QColor(0xA0, 0xA3, 0xA8));
        painter.setPen(part == Part::bar ? QPen(QColor(0x0B, 0x0C, 0x0E), 1) : QPen(Qt::NoPen));
        painter.setBrush(metal);
        painter.drawRoundedRect(box, box.width() / 2, box.width() / 2);
    }

private:
    Part part;
};

} // namespace

NeckPanel::NeckPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered)
    : Panel(drawn, shown, entered),
      capobar(new CapoShape(CapoShape::Part::bar, &canvas)),
      capofollower(new CapoShape(CapoShape::Part::follower, &canvas)),
      fretcaption(new ui::Readout(canvas.look(), ui::Type::heading, ui::Readout::Frame::none, Qt::AlignLeft, &canvas)),
      roving(new ui::RovingFocus([this](int from, Qt::Key pressed) { return neighbour(from, pressed); }, &canvas))
{
    canvas.addbackdrop(places::neckarea,
                       [this](QPainter& painter, const ui::Look& look) { paintbackdrop(painter, look); });
    capobar->setObjectName(QStringLiteral("capobar"));
    capofollower->setObjectName(QStringLiteral("capofollower"));
    fretcaption->setObjectName(QStringLiteral("fretcaption"));
    fretcaption->settext(QStringLiteral("fret"));
    for (int i = 0; i < instruments::cellcount; ++i) {
        auto* cell = new ui::NoteCell(canvas.look(), &canvas);
        cell->setObjectName(membername("Text1", i));
        onclick(cell, &Session::Text1_Click, i);
        roving->add(cell);
        Text1.at(static_cast<std::size_t>(i)) = cell;
        movable.push_back(cell);
    }
    movable.push_back(fretcaption);
    placecells();
}

/// Where a key leads on the neck as it is seen: along the string, across the strings, or to either end of the string.
int NeckPanel::neighbour(int index, Qt::Key pressed) const
{
    const int row = index % instruments::rowcount;
    const int fret = index / instruments::rowcount;
    const int towardsbody = session.fretboard.hand == instruments::Hand::right ? Qt::Key_Right : Qt::Key_Left;
    switch (pressed) {
    case Qt::Key_Home:
        return row;
    case Qt::Key_End:
        return instruments::cellcount - instruments::rowcount + row;
    case Qt::Key_Up:
        return stepped(index, -1, fret * instruments::rowcount, index);
    case Qt::Key_Down:
        return stepped(index, 1, index, fret * instruments::rowcount + instruments::lastrow);
    default:
        return stepped(index, pressed == towardsbody ? instruments::rowcount : -instruments::rowcount, 0,
                       instruments::cellcount - 1);
    }
}

/// The next visible cell in steps of `step` from `first` to `last`; the cell itself where there is none. A banjo's
/// missing cells are passed by.
int NeckPanel::stepped(int index, int step, int first, int last) const
{
    for (int next = index + step; next >= first && next <= last; next += step)
        if (session.fretboard.cell.at(static_cast<std::size_t>(next)).visible)
            return next;
    return index;
}

/// The neck, from a picture that is painted anew only when it would look different.
void NeckPanel::paintbackdrop(QPainter& painter, const ui::Look& look)
{
    const QRect place = look.place(neckreach(session.fretboard));
    const double scale = painter.device()->devicePixelRatioF();
    if (scale != qRound(scale)) // a copy would be blurred
        return paintneck(painter, look, session.fretboard);
    const Pictured wanted{session.fretboard.hand, session.fretboard.layout, look.zoom(), &look.theme(), scale};
    if (pictured != wanted) {
        pictured = wanted;
        picture = QPixmap(place.size() * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(look.theme().surface);
        QPainter maker(&picture);
        maker.translate(-place.topLeft());
        paintneck(maker, look, session.fretboard);
    }
    painter.drawPixmap(place.topLeft(), picture);
}

void NeckPanel::placecells()
{
    const instruments::Fretboard& board = session.fretboard;
    canvas.place(fretcaption, {instruments::handrow(board.hand).captionleft,
                               neckplace(board).bottom() + places::numbergap, 60 * px, places::numberheight});
    for (int i = 0; i < instruments::cellcount; ++i) {
        const int fret = i / instruments::rowcount;
        canvas.place(Text1.at(static_cast<std::size_t>(i)),
                     {instruments::columns.at(static_cast<std::size_t>(fret))[board.hand],
                      board.rowtop.at(static_cast<std::size_t>(i % instruments::rowcount)),
                      places::cellwidth(fret, board.hand), instruments::rowheight});
    }
    shownhand = board.hand;
    shownlayout = board.layout;
}

void NeckPanel::display()
{
    const bool moved = shownhand != session.fretboard.hand || shownlayout != session.fretboard.layout;
    const std::vector<int> changed = changedcells();
    const auto show = [&] {
        if (moved)
            placecells();
        for (const int i : changed)
            displaycell(i);
    };
    if (moved || changed.size() > fewcells)
        canvas.atonce(movable, places::neckarea, show);
    else
        show();
    roving->leavehidden();
    displaycapo();
}

NeckPanel::Shown NeckPanel::wanted(int index) const
{
    const auto& cells = session.fretboard.cell;
    return {cells.at(static_cast<std::size_t>(index)),
            cells.at(static_cast<std::size_t>(index % instruments::rowcount)).text};
}

std::vector<int> NeckPanel::changedcells() const
{
    std::vector<int> changed;
    for (int i = 0; i < instruments::cellcount; ++i)
        if (onscreen.at(static_cast<std::size_t>(i)) != wanted(i))
            changed.push_back(i);
    return changed;
}

void NeckPanel::displaycell(int index)
{
    const instruments::Cell& state = session.fretboard.cell.at(static_cast<std::size_t>(index));
    onscreen.at(static_cast<std::size_t>(index)) = wanted(index);
    ui::NoteCell* cell = Text1.at(static_cast<std::size_t>(index));
    rename(cell, spokenname(index) + ui::spokenmark(state.back));
    cell->display(totext(state.text), state.back);
    if (cell->isHidden() == state.visible)
        cell->setVisible(state.visible);
}

/// "E string, fret 3, G": how the cell is read aloud, before its mark.
QString NeckPanel::spokenname(int index) const
{
    const auto note = [this](int cell) {
        return totext(session.fretboard.cell.at(static_cast<std::size_t>(cell)).text);
    };
    const int fret = index / instruments::rowcount;
    const QString open = note(index % instruments::rowcount);
    return fret == 0 ? QString::fromLatin1("%1 string, open").arg(open)
                     : QString::fromLatin1("%1 string, fret %2, %3").arg(open).arg(fret).arg(note(index));
}

void NeckPanel::displaycapo()
{
    const instruments::CapoMarker& marker = session.capomarker;
    const ui::TwipRect neck = neckplace(session.fretboard);
    const ui::Twips top = neck.top - overhang;
    const ui::Twips height = neck.height + overhang;
    canvas.place(capobar, {marker.barleft, top, barwidth, height});
    canvas.place(capofollower, {marker.followerleft, top, followerwidth, height});
    rename(capobar, QString::fromLatin1("Capo, fret %1").arg(session.PositionFret));
    capobar->setVisible(marker.barvisible);
    capofollower->setVisible(marker.followervisible);
}

void NeckPanel::displaytips(const Tips& tips)
{
    for (std::size_t i = 0; i < Text1.size(); ++i)
        settip(Text1.at(i), tips.Text1.at(i));
}

} // namespace mainscreen
