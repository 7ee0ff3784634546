// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "ui/text.h"

namespace app {

Program::Program(ui::QtDesktop& opened)
    : desktop(opened), session(opened), stage(opened), mainscreen(session, stage, look)
{
    stage.onchange([this] { display(); });
    desktop.beforeasking([this] { stage.showall(); });
    desktop.setmain(&mainscreen);
    desktop.add(ui::Screen::frmretune, [this](QWidget* owner) { return makeretune(owner); });
    printscreens.add(desktop);
}

void Program::start()
{
    mainscreen.centre();
    stage.act([this] { session.Form_Load(); });
    mainscreen.show();
}

void Program::display()
{
    mainscreen.display();
    if (retunescreen)
        retunescreen->display(ui::totext(session.fretboard.cell.at(static_cast<std::size_t>(session.retune.row)).text));
    printscreens.display();
}

QWidget* Program::makeretune(QWidget* owner)
{
    retunescreen = new instruments::RetuneScreen(look, owner);
    QObject::connect(retunescreen, &instruments::RetuneScreen::cmdret_Click, retunescreen,
                     [this](int index) { stage.act([&] { session.cmdret_Click(index); }); });
    QObject::connect(retunescreen, &QDialog::finished, retunescreen,
                     [this] { stage.act([&] { session.frmretune_Unload(); }); });
    return retunescreen;
}

} // namespace app
