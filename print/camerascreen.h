// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/camera.h"
#include "ui/companion.h"

namespace print {

/// The camera's window: a little camera, what it tells, and three buttons. Not modal.
class CameraScreen : public ui::Companion {
    Q_OBJECT

public:
    CameraScreen(const ui::Look& mainlook, QWidget* owner);

    void display(const CameraLabels& labels);

Q_SIGNALS:
    void cmdret_Click();
    void cmdview_Click();
    void cmdclear_Click();

private:
    QLayout* addlabels();
    QLayout* addbuttons();

    QLabel* lbltaken = caption("lbltaken", "", ui::Type::strong);
    QLabel* lbllast = caption("lbllast", "", ui::Type::text);
    QLabel* lbltype = caption("lbltype", "", ui::Type::heading);
    QLabel* lblleft = caption("lblleft", "", ui::Type::text);
};

} // namespace print
