// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/session.h"
#include "ui/stage.h"

#include <QAction>
#include <QMenuBar>

#include <vector>

namespace mainscreen {

/// The main screen's menus, each item by its name.
class Menus {
public:
    Menus(QMenuBar& bar, Session& shown, ui::Stage& entered);

    void display();

private:
    struct Marked {
        QAction* action;
        bool (*mark)(const Session&);
    };

    Session& session;
    std::vector<Marked> marked;
};

} // namespace mainscreen
