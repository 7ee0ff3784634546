// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customscreen.h"

#include "ui/menukeys.h"
#include "ui/text.h"

#include <QMenuBar>

namespace custom {

CustomScreen::CustomScreen(EditForm& shown, ui::Stage& entered, const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window), form(shown), stage(entered)
{
    setObjectName(QStringLiteral("custom"));
    setWindowTitle(QStringLiteral("Custom Instrument and Tuning Settings"));
    addmenus();
    auto* columns = new QHBoxLayout;
    columns->addLayout(addsteps());
    columns->addLayout(addsides());
    setcontent(columns, 12);
    display();
}

void CustomScreen::addmenus()
{
    QMenu* file = addmenu("mnufile", "file");
    additem(
        file, "mnuload", "Load Custom File", [this] { Q_EMIT mnuload_Click(); }, Qt::CTRL | Qt::Key_O);
    additem(
        file, "mnusave", "Save Custom File", [this] { Q_EMIT mnusave_Click(); }, Qt::CTRL | Qt::Key_S);
    additem(file, "mnuexit", "Exit", [this] { close(); });
    additem(addmenu("mnuHelptitle", "Help"), "mnuhelpcomplete", "Help (complete)",
            [this] { Q_EMIT mnuhelpcomplete_Click(); });
    ui::addmenukeys(*menuBar());
}

ui::Readout* CustomScreen::readout(const char* name, ui::Type type, ui::Readout::Frame frame, QSize atone)
{
    auto* made = new ui::Readout(look, type, frame, Qt::AlignCenter, this);
    made->setObjectName(QString::fromLatin1(name));
    fitsize(made, atone);
    return made;
}

void CustomScreen::display()
{
    txtnum->settext(ui::totext(form.txtnum()));
    txtinfo->settext(ui::totext(form.txtinfo));
    txtname->display(ui::totext(form.txtname), form.guarded());
    chkleft->setChecked(form.chkleft);
    Option2.at(static_cast<std::size_t>(form.Option2))->setChecked(true);
    displaynotes();
}

void CustomScreen::displaynotes()
{
    for (std::size_t box = 0; box < stringcount; ++box) {
        const QString note = ui::totext(form.txtnote.at(box));
        txtnote.at(box)->setVisible(form.boxvisible(box));
        txtnote.at(box)->setText(note);
        txtnote.at(box)->setAccessibleName(
            QStringLiteral("note of string %1, %2").arg(box + 1).arg(note.isEmpty() ? QStringLiteral("empty") : note));
    }
    selectednote->settext(ui::totext(form.txtnote[selectionbox]));
}

} // namespace custom
