// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/numberbox.h"
#include "print/page.h"

#include <QDialog>
#include <QPushButton>

namespace print {

/// Asks for the margins before the page is printed. Modal; its close box is its button CANCEL.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    PrintDialog(const ui::Look& shown, QWidget* owner);

    void display(const MarginBoxes& boxes) const;

    NumberBox* top;
    NumberBox* left;

Q_SIGNALS:
    void cmdprint_Click();
    void cmdcancel_Click();

private:
    QWidget* addlabel(const char* name, const char* text, ui::Type type);
    QPushButton* addbutton(const char* name, const char* caption, void (PrintDialog::*told)());

    const ui::Look& look;
};

} // namespace print
