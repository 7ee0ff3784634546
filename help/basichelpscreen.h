// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QDialog>
#include <QLabel>
#include <QPixmap>

namespace help {

/// The basic help: one page of fixed texts with two numbered pictures of the main screen.
class BasicHelpScreen : public QDialog {
    Q_OBJECT

public:
    /// `upper` shows the keyboard and what stands beside it, `lower` the selectors and the fretboard.
    BasicHelpScreen(ui::Look shown, const QPixmap& upper, const QPixmap& lower, QWidget* owner);

Q_SIGNALS:
    void cmdhelp2_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* text(const char* name, const char* shown, ui::Type type);
    QLabel* image(const char* name, const char* description, const QPixmap& picture);
    QLayout* pictures(const QPixmap& upper, const QPixmap& lower);
    QLayout* texts();
    QLayout* buttons();

    ui::Look look;
};

} // namespace help
