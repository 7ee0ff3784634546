// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/pictures.h"

namespace help {

/// The basic help: one page of fixed texts with two numbered pictures of the main screen.
class BasicHelpScreen : public ui::Companion {
    Q_OBJECT

public:
    /// `camera` takes the pictures, in the desktop's colours.
    BasicHelpScreen(const ui::Look& mainlook, std::function<Portrait()> camera, QWidget* owner);

Q_SIGNALS:
    void cmdhelp2_Click();

private:
    QLayout* addpictures();
    QLayout* addtexts();
    QLayout* addbuttons();

    Portraits portraits;
};

} // namespace help
