// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/camera.h"
#include "print/numberbox.h"
#include "print/page.h"
#include "print/paper.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLineEdit>

#include <initializer_list>

namespace print {

/// The print page: the text, its settings and what can be done with it. Not modal.
class PageScreen : public ui::Companion {
    Q_OBJECT

public:
    PageScreen(const ui::Look& mainlook, QWidget* owner);

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

protected:
    std::optional<QSize> openingsize() const override;

private:
    using Signal = void (PageScreen::*)();

    void dressparts();
    void addmenus();
    QAction* additem(QMenu* menu, const char* name, const char* text, Signal told, QKeyCombination keys = {});
    QLayout* addsettings();
    QLayout* addline(std::initializer_list<QWidget*> parts);
    QLayout* addbuttons();
    QWidget* addbutton(const char* name, const char* text, const char* tip, Signal told);
    void dresscheck(QCheckBox* check, const char* name, const char* tip, const char* spoken);

    QLineEdit* txtlines;
    QAction* mnuguitar = nullptr;
    QAction* mnupiano = nullptr;
};

} // namespace print
