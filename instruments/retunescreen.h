// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QDialog>
#include <QLabel>

namespace instruments {

/// Asks for the note to which a string is to be tuned by hand. Modal; however it closes, `finished` tells of it.
class RetuneScreen : public QDialog {
    Q_OBJECT

public:
    RetuneScreen(const ui::Look& shown, QWidget* owner);

    /// Names the string in question by the note that it is tuned to.
    void display(const QString& opennote);

Q_SIGNALS:
    void cmdret_Click(int index); ///< 0 "no retune", 1 to 12 for C to B

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* notebutton(int index);

    const ui::Look& look;
    QLabel* heading;
    QLabel* explanation;
};

} // namespace instruments
