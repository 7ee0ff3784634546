// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/panel.h"

namespace mainscreen {

void Panel::caption(const char* name, const char* text, ui::Type type, const ui::TwipRect& where)
{
    auto* label = new ui::Readout(canvas.look(), type, ui::Readout::Frame::none, Qt::AlignLeft, &canvas);
    label->settext(QString::fromLatin1(text));
    put(label, QString::fromLatin1(name), where);
}

void Panel::settip(QWidget* control, std::string_view tip)
{
    const QString shown = totext(tip);
    control->setToolTip(shown);
    if (!shown.isEmpty())
        control->setAccessibleDescription(shown);
}

void Panel::rename(QWidget* control, const QString& spokenname)
{
    if (control->accessibleName() != spokenname)
        control->setAccessibleName(spokenname);
}

void Panel::onclick(QAbstractButton* button, void (Session::*handler)())
{
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [this, handler] { stage.act([&] { (session.*handler)(); }); });
}

void Panel::onclick(QAbstractButton* button, void (Session::*handler)(int), int index)
{
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [this, handler, index] { stage.act([&] { (session.*handler)(index); }); });
}

} // namespace mainscreen
