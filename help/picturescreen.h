// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QDialog>
#include <QPixmap>

namespace help {

/// Shows a numbered picture of the main screen and names its parts.
class PictureScreen : public QDialog {
    Q_OBJECT

public:
    PictureScreen(ui::Look shown, const QPixmap& picture, QWidget* owner);

protected:
    void showEvent(QShowEvent* event) override;

private:
    ui::Look look;
};

} // namespace help
