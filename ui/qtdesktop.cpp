// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/qtdesktop.h"

#include <QApplication>
#include <QMessageBox>

namespace ui {
namespace {

QWidget* ownerof(const QPointer<QWidget>& mainscreen)
{
    return QApplication::activeWindow() ? QApplication::activeWindow() : mainscreen.data();
}

} // namespace

void QtDesktop::tell(Icon icon, const std::string& text)
{
    showall();
    QMessageBox box(icon == Icon::critical ? QMessageBox::Critical : QMessageBox::Information,
                    QApplication::applicationDisplayName(), QString::fromStdString(text), QMessageBox::Ok,
                    ownerof(mainscreen));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

Answer QtDesktop::ask(const std::string& text, const std::string& title)
{
    showall();
    QMessageBox box(QMessageBox::Question,
                    title.empty() ? QApplication::applicationDisplayName() : QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No, ownerof(mainscreen));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
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
    opened->setWindowState(opened->windowState() & ~Qt::WindowMinimized);
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
