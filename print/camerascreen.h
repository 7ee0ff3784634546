// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/camera.h"
#include "ui/look.h"

#include <QDialog>
#include <QLabel>

namespace print {

/// The camera's window: a little camera, what it tells, and three buttons. Not modal.
class CameraScreen : public QDialog {
    Q_OBJECT

public:
    CameraScreen(const ui::Look& shown, QWidget* owner);

    void display(const CameraLabels& labels);

Q_SIGNALS:
    void cmdret_Click();
    void cmdview_Click();
    void cmdclear_Click();

private:
    QLabel* addlabel(const char* name, ui::Type type);
    QWidget* addbutton(const char* name, const char* caption, void (CameraScreen::*told)());

    const ui::Look& look;
    QLabel* lbltaken;
    QLabel* lbllast;
    QLabel* lbltype;
    QLabel* lblleft;
};

} // namespace print
