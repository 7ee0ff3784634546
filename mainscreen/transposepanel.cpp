// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/transposepanel.h"

#include "mainscreen/places.h"
#include "ui/paint.h"

namespace mainscreen {
namespace {

constexpr int rowlength = std::tuple_size_v<core::ScaleRow>;

} // namespace

TransposePanel::TransposePanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered)
    : Panel(drawn, shown, entered),
      shifts{{
          {"topl", upperrow, Qt::LeftArrow, &Session::topl_Click, &Tips::topl},
          {"topr", upperrow, Qt::RightArrow, &Session::topr_Click, &Tips::topr},
          {"botl", lowerrow, Qt::LeftArrow, &Session::botl_Click, &Tips::botl},
          {"botr", lowerrow, Qt::RightArrow, &Session::botr_Click, &Tips::botr},
      }}
{
    caption("transpose", "transpose", ui::Type::heading, places::transposecaption);
    caption("lineup", "line up the notes", ui::Type::label, places::lineupcaption);
    for (std::size_t row = 0; row < trans1.size(); ++row)
        for (int k = 0; k < rowlength; ++k) {
            auto* readout =
                put(new ui::Readout(canvas.look(), ui::Type::text, ui::Readout::Frame::box, Qt::AlignHCenter, &canvas),
                    membername("trans1", k + rowlength * static_cast<int>(row)), places::scaleplace(row, k));
            readout->fit(ui::widestname());
            readout->setAccessibleName(QString::fromLatin1("%1 row, place %2")
                                           .arg(QLatin1String(row == upperrow ? "Upper" : "Lower"))
                                           .arg(k + 1));
            trans1.at(row).at(static_cast<std::size_t>(k)) = readout;
        }
    addshifts();
    addspellings();
}

void TransposePanel::addshifts()
{
    for (ShiftButton& shift : shifts) {
        const bool left = shift.arrow == Qt::LeftArrow;
        shift.button = put(new ui::Button(canvas.look(), shift.arrow, &canvas), QString::fromLatin1(shift.name),
                           left ? places::shiftleft(shift.row) : places::shiftright(shift.row));
        shift.button->setAccessibleName(QString::fromLatin1("%1 row, %2")
                                            .arg(QLatin1String(shift.row == upperrow ? "Upper" : "Lower"),
                                                 QLatin1String(left ? "lower" : "higher")));
        onclick(shift.button, shift.handler);
    }
}

void TransposePanel::addspellings()
{
    const auto add = [this](const char* name, const char* text, const ui::TwipRect& where, void (Session::*handler)()) {
        auto* made = put(new ui::Button(canvas.look(), QString::fromLatin1(text), &canvas, ui::Button::Shape::pill),
                         QString::fromLatin1(name), where);
        onclick(made, handler);
        return made;
    };
    cmdsharp = add("cmdsharp", "Sharps", places::sharps, &Session::dosharps);
    cmdflat = add("cmdflat", "Flats", places::flats, &Session::doflats);
    cmdauto = add("cmdauto", "Auto", places::automatic, &Session::doauto);
}

void TransposePanel::display()
{
    for (std::size_t row = 0; row < trans1.size(); ++row)
        for (std::size_t k = 0; k < trans1.at(row).size(); ++k)
            trans1.at(row).at(k)->settext(totext(session.trans1.at(row).at(k)));
    const auto showbold = [this](ui::Button* button, BoldButton which) {
        const bool bold = session.marks.bold == which;
        button->setbold(bold);
        button->setchosen(bold);
    };
    showbold(cmdsharp, BoldButton::cmdsharp);
    showbold(cmdflat, BoldButton::cmdflat);
    showbold(cmdauto, BoldButton::cmdauto);
}

void TransposePanel::displaytips(const Tips& tips)
{
    for (std::size_t row = 0; row < trans1.size(); ++row)
        for (std::size_t k = 0; k < trans1.at(row).size(); ++k)
            settip(trans1.at(row).at(k), tips.trans1.at(k + rowlength * row));
    for (const ShiftButton& shift : shifts)
        settip(shift.button, tips.*shift.tip);
}

} // namespace mainscreen
