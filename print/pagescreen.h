// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/camera.h"
#include "print/numberbox.h"
#include "print/page.h"
#include "print/paper.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QMainWindow>

namespace print {

/// The print page: the text, its settings and what can be done with it. Not modal.
class PageScreen : public QMainWindow {
    Q_OBJECT

public:
    PageScreen(const ui::Look& shown, QWidget* owner);

    void display(const Page& page, const ModeMarks& marks);

    Paper* rtbprint;
    NumberBox* characters;
    NumberBox* spacing;
    NumberBox* font;
    QCheckBox* chkmult;
    QCheckBox* chkalt;

Q_SIGNALS:
    void cmdfonthelp_Click();
    void cmdshow_Click();
    void cmdclear_Click();
    void cmdprint_Click(); ///< the menu's Print too
    void cmdret_Click();   ///< the menu's Exit too
    void mnuload_Click();
    void mnusave_Click();
    void mnuhelpcomplete_Click();
    void mnuguitar_Click();
    void mnupiano_Click();
    void closed(); ///< however it was closed

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Signal = void (PageScreen::*)();

    void addmenus();
    QAction* additem(QMenu* menu, const char* name, const char* caption, Signal told) const;
    QBoxLayout* addnumbers();
    QBoxLayout* addchecks();
    QBoxLayout* addbuttons();
    QWidget* addlabel(const char* name, const char* text);
    ui::Button* addbutton(const char* name, const char* caption, const char* tip, Signal told);

    const ui::Look& look;
    QLineEdit* txtlines;
    QAction* mnuguitar = nullptr;
    QAction* mnupiano = nullptr;
};

} // namespace print
