// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "instruments/retunescreen.h"

namespace app {
namespace {

QString openname(const mainscreen::Session& session, int row)
{
    return mainscreen::totext(session.fretboard.cell.at(static_cast<std::size_t>(row)).text);
}

} // namespace

Program::Program(ui::QtDesktop& opened)
    : desktop(opened), session(opened), stage(opened), mainscreen(session, stage, look)
{
    stage.onchange([this] { mainscreen.display(); });
    desktop.setmain(&mainscreen);
    desktop.add(ui::Screen::frmretune, [this](QWidget* owner) {
        auto* screen = new instruments::RetuneScreen(look, owner);
        stage.onchange([this, screen] { screen->display(openname(session, session.retune.row)); });
        QObject::connect(screen, &instruments::RetuneScreen::cmdret_Click, screen,
                         [this](int index) { stage.act([&] { session.cmdret_Click(index); }); });
        QObject::connect(screen, &QDialog::finished, screen,
                         [this] { stage.act([&] { session.frmretune_Unload(); }); });
        return screen;
    });
}

void Program::start()
{
    mainscreen.centre();
    stage.act([this] { session.Form_Load(); });
    mainscreen.show();
}

} // namespace app
