// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "app/portrait.h"
#include "help/aboutscreen.h"
#include "help/basichelpscreen.h"
#include "help/documents.h"
#include "help/helpscreen.h"
#include "help/picturescreen.h"
#include "ui/text.h"

#include <QCoreApplication>

namespace app {

Program::Program(ui::QtDesktop& opened)
    : desktop(opened), session(opened), stage(opened), mainscreen(session, stage, look)
{
    stage.onchange([this] { display(); });
    desktop.setmain(&mainscreen);
    QObject::connect(&mainscreen, &mainscreen::MainScreen::lookchanged, &mainscreen, [this] {
        for (ui::Companion* open : mainscreen.findChildren<ui::Companion*>())
            open->followlook();
    });
    desktop.add(ui::Screen::frmretune, [this](QWidget* owner) { return makeretune(owner); });
    desktop.add(ui::Screen::custom, [this](QWidget* owner) { return makecustom(owner); });
    desktop.add(ui::Screen::arrange, [this](QWidget* owner) { return makearrange(owner); });
    printscreens.add(desktop);
    desktop.add(ui::Screen::helpinfo, [this](QWidget* owner) { return makehelp(owner); });
    desktop.add(ui::Screen::mhelp, [this](QWidget* owner) { return makebasichelp(owner); });
    desktop.add(ui::Screen::frmAbout, [this](QWidget* owner) { return makeabout(owner); });
}

void Program::open()
{
    mainscreen.centre();
    mainscreen.show();
}

void Program::start()
{
    mainscreen.furnish();
    stage.act([this] { session.Form_Load(); });
    desktop.beforeasking([this] { stage.showall(); }); // not before: the state was not complete
}

void Program::display()
{
    mainscreen.display();
    if (retunescreen)
        retunescreen->display(ui::totext(session.fretboard.cell.at(static_cast<std::size_t>(session.retune.row)).text));
    if (customscreen)
        customscreen->display();
    if (arrangescreen)
        arrangescreen->display();
    printscreens.display();
}

QWidget* Program::makeretune(QWidget* owner)
{
    retunescreen = new instruments::RetuneScreen(look, owner);
    QObject::connect(retunescreen, &instruments::RetuneScreen::cmdret_Click, retunescreen,
                     [this](int index) { stage.act([&] { session.cmdret_Click(index); }); });
    QObject::connect(retunescreen, &ui::Companion::closed, retunescreen,
                     [this] { stage.act([&] { session.frmretune_Unload(); }); });
    return retunescreen;
}

QWidget* Program::makecustom(QWidget* owner)
{
    using custom::CustomScreen;
    using mainscreen::Session;
    customscreen = new CustomScreen(session.editform, stage, look, owner);
    const auto join = [this](void (CustomScreen::*told)(), void (Session::*procedure)()) {
        QObject::connect(customscreen, told, customscreen,
                         [this, procedure] { stage.act([&] { (session.*procedure)(); }); });
    };
    join(&CustomScreen::closed, &Session::customexit);
    join(&CustomScreen::mnuload_Click, &Session::mnuload_Click);
    join(&CustomScreen::mnusave_Click, &Session::mnusave_Click);
    join(&CustomScreen::cmdsettings_Click, &Session::cmdsettings_Click);
    join(&CustomScreen::mnuhelpcomplete_Click, &Session::mnuchelp_Click);
    join(&CustomScreen::cmdarrange_Click, &Session::mnuarrange_Click);
    return customscreen;
}

QWidget* Program::makearrange(QWidget* owner)
{
    using custom::ArrangeScreen;
    arrangescreen = new ArrangeScreen(session.customtable, look, owner);
    QObject::connect(arrangescreen, &ArrangeScreen::txtx_DragDrop, arrangescreen,
                     [this](int target, int source) { stage.act([&] { session.txtx_DragDrop(target, source); }); });
    QObject::connect(arrangescreen, &ArrangeScreen::closed, arrangescreen,
                     [this] { stage.act([this] { session.endform(); }); });
    return arrangescreen;
}

QWidget* Program::makehelp(QWidget* owner)
{
    const auto folders =
        help::helpfolders(session.startdir, QCoreApplication::applicationDirPath().toStdU16String(), TONEFRET_DATADIR);
    const auto document = help::loaddata(help::completehelp, folders);
    auto* screen = new help::HelpScreen(look, help::readrtf(document.value_or("")), owner);
    QObject::connect(screen, &help::HelpScreen::cmdpic_Click, screen, [this, screen] { showpicture(screen); });
    QObject::connect(screen, &ui::Companion::closed, screen, [this] {
        if (picturescreen)
            picturescreen->close();
    });
    return screen;
}

void Program::showpicture(QWidget* owner)
{
    if (!picturescreen || !picturescreen->isVisible())
        picturescreen = new help::PictureScreen(look, portrait, owner);
    picturescreen->setAttribute(Qt::WA_DeleteOnClose);
    picturescreen->show();
    picturescreen->raise();
    picturescreen->activateWindow();
}

QWidget* Program::makebasichelp(QWidget* owner)
{
    auto* screen = new help::BasicHelpScreen(look, portrait, owner);
    QObject::connect(screen, &help::BasicHelpScreen::cmdhelp2_Click, screen,
                     [this] { stage.act([&] { session.cmdhelp2_Click(); }); });
    return screen;
}

QWidget* Program::makeabout(QWidget* owner)
{
    auto* screen = new help::AboutScreen(look, programicon, QStringLiteral(TONEFRET_VERSION), owner);
    QObject::connect(screen, &help::AboutScreen::cmdSysInfo_Click, screen,
                     [this] { stage.act([&] { help::StartSysInfo(*system, desktop); }); });
    return screen;
}

} // namespace app
