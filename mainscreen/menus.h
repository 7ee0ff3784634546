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
    using Question = bool (*)(const Session&);
    struct Asking {
        QAction* action;
        Question question;
    };

    Session& session;
    std::vector<Asking> marked; ///< items whose check mark shows the answer
    std::vector<Asking> usable; ///< items that can be picked while the answer is yes
};

} // namespace mainscreen
