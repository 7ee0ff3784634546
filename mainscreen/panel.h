// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/session.h"
#include "ui/button.h"
#include "ui/canvas.h"
#include "ui/readout.h"
#include "ui/stage.h"
#include "ui/text.h"

namespace mainscreen {

using ui::membername;
using ui::totext;

/// A group of controls of the main screen that belong together.
class Panel {
public:
    Panel(ui::Canvas& drawn, Session& shown, ui::Stage& entered) : canvas(drawn), session(shown), stage(entered) {}
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    virtual ~Panel() = default;

    /// Shows the session's state; touches only what differs.
    virtual void display() = 0;
    /// Gives every control its pop-up tip.
    virtual void displaytips(const Tips& tips) = 0;

protected:
    template <typename Control>
    Control* put(Control* control, const QString& name, const ui::TwipRect& where)
    {
        control->setObjectName(name);
        canvas.place(control, where);
        return control;
    }

    /// A text that stays as it is; it is named after what it says.
    void caption(const char* name, const char* text, ui::Type type, const ui::TwipRect& where);

    /// The tip also describes the control to assistive technology, and does so while tips are switched off.
    static void settip(QWidget* control, std::string_view tip);

    /// Gives a control the name by which it is read aloud, if that is a new one.
    static void rename(QWidget* control, const QString& spokenname);

    /// A click runs a handler of the session.
    void onclick(QAbstractButton* button, void (Session::*handler)());
    void onclick(QAbstractButton* button, void (Session::*handler)(int), int index);

    ui::Canvas& canvas;
    Session& session;
    ui::Stage& stage;
};

} // namespace mainscreen
