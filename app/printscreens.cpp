// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/printscreens.h"

namespace app {

using mainscreen::Session;
using print::CameraScreen;
using print::NumberBox;
using print::PageScreen;
using print::PrintDialog;
using print::QuestionScreen;

PrintScreens::PrintScreens(Session& shown, ui::Stage& entered, const ui::Look& shared)
    : session(shown), stage(entered), look(shared)
{
}

void PrintScreens::add(ui::QtDesktop& desktop)
{
    desktop.add(ui::Screen::ccamera, [this](QWidget* owner) { return makecamera(owner); });
    desktop.add(ui::Screen::camquestion, [this](QWidget* owner) { return makequestion(owner); });
    desktop.add(ui::Screen::mprint, [this](QWidget* owner) { return makepage(owner); });
    desktop.add(ui::Screen::printdialog, [this](QWidget* owner) { return makedialog(owner); });
}

void PrintScreens::display()
{
    if (camera)
        camera->display(session.camera.labels);
    if (page)
        page->display(session.page, session.camera.marks);
    if (dialog)
        dialog->display(session.printdialog);
}

QWidget* PrintScreens::makecamera(QWidget* owner)
{
    camera = new CameraScreen(look, owner);
    join(camera.data(), &CameraScreen::cmdret_Click, &Session::ccamera_cmdret_Click);
    join(camera.data(), &CameraScreen::cmdview_Click, &Session::ccamera_cmdview_Click);
    join(camera.data(), &CameraScreen::cmdclear_Click, &Session::ccamera_cmdclear_Click);
    return camera;
}

QWidget* PrintScreens::makequestion(QWidget* owner)
{
    auto* question = new QuestionScreen(look, owner);
    join(question, &QuestionScreen::cmdguitar_Click, &Session::cmdguitar_Click);
    join(question, &QuestionScreen::cmdpiano_Click, &Session::cmdpiano_Click);
    return question;
}

QWidget* PrintScreens::makepage(QWidget* owner)
{
    page = new PageScreen(look, owner);
    joinpage();
    joinbox(page->characters, &Session::txtchar_Change, &Session::cmdchardown_Click, &Session::cmdcharup_Click);
    joinbox(page->spacing, &Session::txtspace_Change, &Session::cmdspacedown_Click, &Session::cmdspaceup_Click);
    joinbox(page->font, &Session::txtfont_Change, &Session::cmddownfont_Click, &Session::cmdupfont_Click);
    QObject::connect(page->rtbprint, &print::Paper::edited, page,
                     [this](const std::string& text) { stage.act([&] { session.rtbprint_Change(text); }); });
    QObject::connect(page->chkmult, &QCheckBox::toggled, page,
                     [this](bool checked) { stage.act([&] { session.chkmult_Click(checked); }); });
    QObject::connect(page->chkalt, &QCheckBox::toggled, page,
                     [this](bool checked) { stage.act([&] { session.chkalt_Click(checked); }); });
    return page;
}

void PrintScreens::joinpage()
{
    join(page.data(), &PageScreen::closed, &Session::mexit);
    join(page.data(), &PageScreen::cmdret_Click, &Session::mexit);
    join(page.data(), &PageScreen::cmdfonthelp_Click, &Session::cmdfonthelp_Click);
    join(page.data(), &PageScreen::cmdshow_Click, &Session::cmdshow_Click);
    join(page.data(), &PageScreen::cmdclear_Click, &Session::mprint_cmdclear_Click);
    join(page.data(), &PageScreen::cmdprint_Click, &Session::chordprint);
    join(page.data(), &PageScreen::mnuload_Click, &Session::userload);
    join(page.data(), &PageScreen::mnusave_Click, &Session::mprint_mnusave_Click);
    join(page.data(), &PageScreen::mnuhelpcomplete_Click, &Session::mnuchelp_Click);
    join(page.data(), &PageScreen::mnuguitar_Click, &Session::mnuguitar_Click);
    join(page.data(), &PageScreen::mnupiano_Click, &Session::mnupiano_Click);
}

QWidget* PrintScreens::makedialog(QWidget* owner)
{
    dialog = new PrintDialog(look, owner);
    joinbox(dialog->top, &Session::txttop_Change, &Session::cmdtopdown_Click, &Session::cmdtopup_Click);
    joinbox(dialog->left, &Session::txtleft_Change, &Session::cmdleftdown_Click, &Session::cmdleftup_Click);
    join(dialog.data(), &PrintDialog::cmdprint_Click, &Session::cmdprint_Click);
    join(dialog.data(), &PrintDialog::cmdcancel_Click, &Session::cmdcancel_Click);
    return dialog;
}

void PrintScreens::joinbox(NumberBox* box, void (Session::*change)(const std::string&), Procedure down, Procedure up)
{
    QObject::connect(box, &NumberBox::changed, box, [this, change](const QString& text) {
        stage.act([&] { (session.*change)(text.toStdString()); });
    });
    join(box, &NumberBox::down, down);
    join(box, &NumberBox::up, up);
}

} // namespace app
