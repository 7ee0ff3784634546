// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/qtdesktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
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

/// A filter in the dialog's own form: what is shown, then what it lists.
QString dialogfilter(const FileFilter& filter)
{
    const QString pattern = QString::fromLatin1(filter.pattern);
    const QString lists = pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern;
    return QStringLiteral("%1 (%2)").arg(QString::fromLatin1(filter.name), lists);
}

} // namespace

QWidget* QtDesktop::owner() const
{
    return QApplication::activeWindow() ? QApplication::activeWindow() : mainscreen.data();
}

void QtDesktop::tell(Icon icon, const std::string& text)
{
    showall();
    QMessageBox box(boxicon(icon), QApplication::applicationDisplayName(), QString::fromStdString(text),
                    QMessageBox::Ok, owner());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

Answer QtDesktop::ask(const std::string& text, const std::string& title)
{
    showall();
    QMessageBox box(QMessageBox::Question,
                    title.empty() ? QApplication::applicationDisplayName() : QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No, owner());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
}

std::optional<std::filesystem::path> QtDesktop::pickfile(Direction direction, std::span<const FileFilter> filters)
{
    showall();
    QFileDialog dialog(owner(), QString(), pickfolder.isEmpty() ? QDir::currentPath() : pickfolder);
    dialog.setObjectName(direction == Direction::open ? QStringLiteral("CommonDialog1")
                                                      : QStringLiteral("CommonDialog2"));
    dialog.setAcceptMode(direction == Direction::open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(direction == Direction::open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    QStringList choices;
    for (const FileFilter& filter : filters)
        choices << dialogfilter(filter);
    dialog.setNameFilters(choices);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    pickfolder = dialog.directory().path();
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

/// Does away with a closed screen, whose own procedure may still be running; none finds it by its name any more.
void QtDesktop::retire(QWidget& screen)
{
    screen.setParent(nullptr);
    screen.setObjectName(QString());
    screen.deleteLater();
}

void QtDesktop::open(Screen screen)
{
    QPointer<QWidget>& opened = screens[screen];
    if (!opened || !opened->isVisible()) {
        if (opened)
            retire(*opened);
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

void QtDesktop::copy(const std::string& text)
{
    QApplication::clipboard()->setText(QString::fromStdString(text));
}

void QtDesktop::beep()
{
    QApplication::beep();
}

} // namespace ui
