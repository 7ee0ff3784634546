// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "custom/editform.h"
#include "custom/namebox.h"
#include "custom/notebox.h"
#include "ui/button.h"
#include "ui/companion.h"
#include "ui/readout.h"
#include "ui/stage.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QRadioButton>

namespace custom {

/// The screen on which the user writes tunings of his own: six numbered steps from the place's number to storing it.
/// Shows an edit form; what concerns other screens it tells of.
class CustomScreen : public ui::Companion {
    Q_OBJECT

public:
    CustomScreen(EditForm& shown, ui::Stage& entered, const ui::Look& mainlook, QWidget* owner);

    /// Shows the form's state.
    void display();

Q_SIGNALS:
    void cmdsettings_Click();
    void cmdarrange_Click();
    void mnuload_Click();
    void mnusave_Click();
    void mnuhelpcomplete_Click();

private:
    void addmenus();
    QLayout* addsteps();
    QLayout* addsides();
    QBoxLayout* step(QBoxLayout* column, int number, const char* text);
    QBoxLayout* side(QBoxLayout* column);
    void addplace(QBoxLayout* card);
    void addname(QBoxLayout* card);
    void addhand(QBoxLayout* card);
    void addstrings(QBoxLayout* card);
    void addnotes(QBoxLayout* card);
    QBoxLayout* addnoteboxes();
    QBoxLayout* addnotebuttons();
    void addsave(QBoxLayout* card);
    ui::Readout* readout(const char* name, ui::Type type, ui::Readout::Frame frame, QSize atone);
    void displaynotes();

    EditForm& form;
    ui::Stage& stage;
    ui::Readout* txtnum = nullptr;
    ui::Readout* txtinfo = nullptr;
    NameBox* txtname = nullptr;
    QCheckBox* chkleft = nullptr;
    std::array<QRadioButton*, 4> Option2{};
    std::array<NoteBox*, stringcount> txtnote{};
    ui::Readout* selectednote = nullptr;
};

} // namespace custom
