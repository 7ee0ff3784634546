// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "custom/arrangescreen.h"
#include "custom/customscreen.h"
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
    desktop.add(ui::Screen::custom, [this](QWidget* owner) { return makecustom(owner); });
    desktop.add(ui::Screen::arrange, [this](QWidget* owner) { return makearrange(owner); });
}

QWidget* Program::makecustom(QWidget* owner)
{
    using custom::CustomScreen;
    auto* screen = new CustomScreen(session.editform, stage, look, owner);
    stage.onchange([shown = QPointer(screen)] {
        if (shown)
            shown->display();
    });
    const auto join = [this, screen](void (CustomScreen::*told)(), void (mainscreen::Session::*procedure)()) {
        QObject::connect(screen, told, screen, [this, procedure] { stage.act([&] { (session.*procedure)(); }); });
    };
    join(&CustomScreen::closed, &mainscreen::Session::customexit);
    join(&CustomScreen::cmdsettings_Click, &mainscreen::Session::cmdsettings_Click);
    join(&CustomScreen::cmdarrange_Click, &mainscreen::Session::mnuarrange_Click);
    return screen;
}

QWidget* Program::makearrange(QWidget* owner)
{
    using custom::ArrangeScreen;
    auto* screen = new ArrangeScreen(session.customtable, look, owner);
    stage.onchange([shown = QPointer(screen)] {
        if (shown)
            shown->display();
    });
    QObject::connect(screen, &ArrangeScreen::txtx_DragDrop, screen,
                     [this](int target, int source) { stage.act([&] { session.txtx_DragDrop(target, source); }); });
    QObject::connect(screen, &ArrangeScreen::closed, screen, [this] { stage.act([this] { session.endform(); }); });
    return screen;
}

void Program::start()
{
    mainscreen.centre();
    stage.act([this] { session.Form_Load(); });
    mainscreen.show();
}

} // namespace app
