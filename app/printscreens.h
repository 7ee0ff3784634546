// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/session.h"
#include "print/camerascreen.h"
#include "print/pagescreen.h"
#include "print/printdialog.h"
#include "print/questionscreen.h"
#include "ui/qtdesktop.h"
#include "ui/stage.h"

#include <QPointer>

namespace app {

/// The screens of camera, page and printing, joined to the session.
class PrintScreens {
public:
    PrintScreens(mainscreen::Session& shown, ui::Stage& entered, const ui::Look& shared);

    /// Tells the desktop how each of them is made.
    void add(ui::QtDesktop& desktop);

    void display();

private:
    using Procedure = void (mainscreen::Session::*)();

    QWidget* makecamera(QWidget* owner);
    QWidget* makequestion(QWidget* owner);
    QWidget* makepage(QWidget* owner);
    QWidget* makedialog(QWidget* owner);
    void joinpage();
    void joinbox(print::NumberBox* box, void (mainscreen::Session::*change)(const std::string&), Procedure down,
                 Procedure up);

    template <typename Screen, typename Teller>
    void join(Screen* screen, void (Teller::*told)(), Procedure procedure)
    {
        QObject::connect(screen, told, screen, [this, procedure] { stage.act([&] { (session.*procedure)(); }); });
    }

    mainscreen::Session& session;
    ui::Stage& stage;
    const ui::Look& look;
    QPointer<print::CameraScreen> camera;
    QPointer<print::PageScreen> page;
    QPointer<print::PrintDialog> dialog;
};

} // namespace app
