// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/outputpanel.h"

#include "mainscreen/places.h"
#include "ui/marks.h"
#include "ui/paint.h"

#include <QPainter>

namespace mainscreen {
namespace {

using ui::Type;

void paintcard(QPainter& painter, const ui::Look& look)
{
    ui::paintbox(painter, look, look.exact(places::outputcard), look.theme().card, look.theme().hairline, 6);
}

} // namespace

OutputPanel::OutputPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered)
    : Panel(drawn, shown, entered), spoken(new ui::Spoken(&canvas))
{
    canvas.addbackdrop(places::outputcard, paintcard);
    addcaptions();
    addreadouts();
    reset = put(new ui::Button(canvas.look(), QString(), &canvas), membername("key", resetkey), places::reset);
    onclick(reset, &Session::key_Click, resetkey);
    spoken->setObjectName(QStringLiteral("spokenchord"));
    cordcam = put(new ui::Button(canvas.look(), QStringLiteral("chord cam"), &canvas), QStringLiteral("cordcam"),
                  places::camera);
    onclick(cordcam, &Session::photochord);
}

void OutputPanel::addcaptions()
{
    caption("dataoutput", "Data Output", Type::heading, places::outputcaption);
    caption("chord", "Chord:", Type::label, places::chordcaption);
    caption("also", "Also:", Type::label, places::alsocaption);
    caption("notes", "Notes:", Type::label, places::notescaption);
}

void OutputPanel::addreadouts()
{
    using Frame = ui::Readout::Frame;
    const auto add = [this](const QString& name, Type type, Frame frame, Qt::Alignment side,
                            const ui::TwipRect& where) {
        return put(new ui::Readout(canvas.look(), type, frame, side, &canvas), name, where);
    };
    for (int i = 0; i < 6; ++i)
        note.at(static_cast<std::size_t>(i)) =
            add(membername("note", i), Type::reading, Frame::box, Qt::AlignHCenter, places::noteplace(i));
    note[6] = add(membername("note", 6), Type::reading, Frame::root, Qt::AlignHCenter, places::root);
    note[7] = add(membername("note", 7), Type::strong, Frame::box, Qt::AlignHCenter, places::alsoroot);
    cordtyp1 = add(QStringLiteral("cordtyp1"), Type::reading, Frame::box, Qt::AlignLeft, places::chordname);
    cordtyp2 = add(QStringLiteral("cordtyp2"), Type::text, Frame::box, Qt::AlignLeft, places::alsoname);
    for (ui::Readout* readout : note)
        readout->fit(ui::widestname());
    for (int i = 0; i < 6; ++i)
        note.at(static_cast<std::size_t>(i))->setAccessibleName(QString::fromLatin1("Note %1").arg(i + 1));
    note[6]->setAccessibleName(QStringLiteral("Root of the chord"));
    note[7]->setAccessibleName(QStringLiteral("Root of the alternate chord"));
    cordtyp1->setAccessibleName(QStringLiteral("Chord"));
    cordtyp2->setAccessibleName(QStringLiteral("Alternate chord"));
}

void OutputPanel::display()
{
    for (std::size_t i = 0; i < note.size(); ++i)
        note.at(i)->settext(totext(session.note.at(i)));
    cordtyp1->settext(totext(session.cordtyp1));
    cordtyp2->settext(totext(session.cordtyp2));
    spoken->say(totext(session.announcement()));
    const Key& state = session.keyboard.key.at(resetkey);
    if (reset->text() != totext(state.caption))
        reset->setText(totext(state.caption));
    reset->setbackColor(ui::tocolour(state.back));
}

void OutputPanel::displaytips(const Tips& tips)
{
    for (std::size_t i = 0; i < note.size(); ++i)
        settip(note.at(i), tips.note.at(i));
    settip(cordtyp1, tips.cordtyp1);
    settip(cordtyp2, tips.cordtyp2);
    settip(reset, tips.key.at(resetkey));
    settip(cordcam, tips.cordcam);
}

} // namespace mainscreen
