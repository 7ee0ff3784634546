// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/numberbox.h"
#include "print/page.h"
#include "ui/companion.h"

namespace print {

/// Asks for the margins before the page is printed. Modal; its close box is its button CANCEL.
class PrintDialog : public ui::Companion {
    Q_OBJECT

public:
    PrintDialog(const ui::Look& mainlook, QWidget* owner);

    void display(const MarginBoxes& boxes) const;

    NumberBox* top;
    NumberBox* left;

Q_SIGNALS:
    void cmdprint_Click();
    void cmdcancel_Click();

private:
    QLayout* addsettings();
    QLayout* addnotes();
    QLayout* addbuttons();
};

} // namespace print
