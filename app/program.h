// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/printscreens.h"
#include "custom/arrangescreen.h"
#include "custom/customscreen.h"
#include "help/picturescreen.h"
#include "help/systeminfo.h"
#include "instruments/retunescreen.h"
#include "mainscreen/mainscreen.h"
#include "mainscreen/session.h"
#include "ui/look.h"
#include "ui/qtdesktop.h"
#include "ui/stage.h"

#include <QPointer>

#include <memory>

namespace app {

/// The program's parts, made and joined: the state, the desktop and the screens.
class Program {
public:
    /// Makes everything over a desktop; nothing is shown until `open`.
    explicit Program(ui::QtDesktop& opened);

    /// Opens the main screen's window, with nothing on it yet: the display makes room for it while the rest is made,
    /// and nobody waits longer for a window than for that of an empty program.
    void open();

    /// Puts the controls on the main screen, and loads the state. After `open`.
    void start();

    ui::QtDesktop& desktop;
    mainscreen::Session session;
    ui::Stage stage;
    ui::Look look;
    mainscreen::MainScreen mainscreen;

private:
    void display();
    QWidget* makeretune(QWidget* owner);
    QWidget* makecustom(QWidget* owner);
    QWidget* makearrange(QWidget* owner);
    QWidget* makehelp(QWidget* owner);
    void showpicture(QWidget* owner);
    QWidget* makebasichelp(QWidget* owner);
    QWidget* makeabout(QWidget* owner);

    QPointer<instruments::RetuneScreen> retunescreen;
    QPointer<custom::CustomScreen> customscreen;
    QPointer<custom::ArrangeScreen> arrangescreen;
    PrintScreens printscreens{session, stage, look};
    QPointer<help::PictureScreen> picturescreen;
    std::unique_ptr<help::System> system = help::thissystem();
};

} // namespace app
