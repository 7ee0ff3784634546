// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/selectorpanel.h"

#include "mainscreen/places.h"

namespace mainscreen {

// clang-format off
SelectorPanel::SelectorPanel(ui::Canvas& drawn, Session& shown, ui::Stage& entered,
                             const std::function<void(bool bykeys)>& chosen)
    : Panel(drawn, shown, entered), lists{{
//    name         caption's own name    caption                 place            state                 handler                     tip               gives the focus back
    { "cbotype",   "family",             "Family",               places::familylist,  &Session::cbotype,    &Session::cbotype_Click,    &Tips::cbotype,   true  },
    { "cboleft",   "view",               "View",                 places::handlist,    &Session::cboleft,    &Session::cboleft_Click,    &Tips::cboleft,   false },
    { "cbotuning", "instrumentstuning",  "Instruments / Tuning", places::tuninglist,  &Session::cbotuning,  &Session::cbotuning_Click,  &Tips::cbotuning, true  },
    { "cbopreset", "capobaradjust",      "Capo / Bar Adjust",    places::capolist,    &Session::cbopreset,  &Session::cbopreset_Click,  &Tips::cbopreset, false },
}}
// clang-format on
{
    for (List& list : lists) {
        caption(list.captionname, list.caption, ui::Type::heading, places::captionabove(list.where));
        list.box = put(new ui::SelectorBox(canvas.look(), &canvas), QString::fromLatin1(list.name), list.where);
        list.box->setAccessibleName(QString::fromLatin1(list.caption));
        QObject::connect(list.box, &ui::SelectorBox::picked, list.box, [this, list, chosen](int item) {
            stage.act([&] { (session.*list.handler)(item); });
            if (list.givesfocusback)
                chosen(list.box->usedbykeys());
        });
    }
    optd = put(new ui::Button(canvas.look(), Qt::LeftArrow, &canvas), QStringLiteral("optd"), places::optiondown);
    optu = put(new ui::Button(canvas.look(), Qt::RightArrow, &canvas), QStringLiteral("optu"), places::optionup);
    optd->setAccessibleName(QStringLiteral("Capo choice lower"));
    optu->setAccessibleName(QStringLiteral("Capo choice higher"));
    onclick(optd, &Session::optd_Click);
    onclick(optu, &Session::optu_Click);
}

void SelectorPanel::display()
{
    for (const List& list : lists) {
        const Selector& state = session.*list.state;
        QStringList items;
        for (const std::string& item : state.items)
            items.append(totext(item));
        list.box->display(items, state.index, totext(state.text));
    }
}

void SelectorPanel::displaytips(const Tips& tips)
{
    for (const List& list : lists)
        settip(list.box, tips.*list.tip);
    settip(optd, tips.optd);
    settip(optu, tips.optu);
}

} // namespace mainscreen
