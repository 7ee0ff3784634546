// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/qtdesktop.h"

#include <QApplication>
#include <QMessageBox>

namespace ui {
namespace {

QMessageBox::Icon boxicon(Icon icon)
{
    switch (icon) {
    case Icon::information:
        return QMessageBox::Information;
    case Icon::critical:
        return QMessageBox::Critical;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

void QtDesktop::tell(Icon icon, const std::string& text)
{
    showall();
    QMessageBox box(boxicon(icon), QApplication::applicationDisplayName(), QString::fromStdString(text),
                    QMessageBox::Ok, QApplication::activeWindow() ? QApplication::activeWindow() : mainscreen.data());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void QtDesktop::open(Screen screen)
{
    QPointer<QWidget>& opened = screens[screen];
    if (!opened || !opened->isVisible()) {
        if (opened)
            opened->deleteLater();
        opened = makers.at(screen)(mainscreen);
    }
    showall();
    opened->show();
    opened->raise();
    opened->activateWindow();
}

void QtDesktop::close(Screen screen)
{
    if (QWidget* open = screens[screen])
        open->close();
}

void QtDesktop::leave()
{
    for (const auto& [screen, widget] : screens)
        if (widget)
            widget->hide();
    if (mainscreen)
        mainscreen->hide();
    for (const auto& [screen, widget] : screens)
        if (widget)
            widget->close();
    if (mainscreen)
        mainscreen->close();
    QApplication::quit();
}

} // namespace ui
