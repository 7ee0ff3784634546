// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customscreen.h"

#include "ui/menukeys.h"
#include "ui/text.h"

#include <QMenuBar>

namespace custom {
namespace {

struct MenuRow {
    const char* name;
    const char* caption;
    void (CustomScreen::*chosen)(); ///< none: closes the screen
    QKeyCombination keys{};         ///< what picks it without the menu
};

// clang-format off
constexpr MenuRow fileitems[] = {
//  name               caption               tells of                               keys
  { "mnuload",         "Load Custom File",   &CustomScreen::mnuload_Click,          Qt::CTRL | Qt::Key_O },
  { "mnusave",         "Save Custom File",   &CustomScreen::mnusave_Click,          Qt::CTRL | Qt::Key_S },
  { "mnuexit",         "Exit",               nullptr },
};
constexpr MenuRow helpitems[] = {
  { "mnuhelpcomplete", "Help (complete)",    &CustomScreen::mnuhelpcomplete_Click },
};
// clang-format on

void additem(QMenu* menu, const MenuRow& row, CustomScreen* screen)
{
    QAction* action = menu->addAction(QString::fromLatin1(row.caption));
    action->setObjectName(QString::fromLatin1(row.name));
    if (row.keys != QKeyCombination())
        action->setShortcut(row.keys);
    if (row.chosen != nullptr)
        QObject::connect(action, &QAction::triggered, screen, [screen, told = row.chosen] { (screen->*told)(); });
    else
        QObject::connect(action, &QAction::triggered, screen, &QWidget::close);
}

} // namespace

CustomScreen::CustomScreen(EditForm& shown, ui::Stage& entered, const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner), form(shown), stage(entered)
{
    setObjectName(QStringLiteral("custom"));
    setWindowTitle(QStringLiteral("Custom Instrument and Tuning Settings"));
    addmenus();
    auto* ground = new QWidget(this);
    auto* columns = new QHBoxLayout(ground);
    fitroom(columns, 14, 12);
    columns->addLayout(addsteps());
    columns->addLayout(addsides());
    setCentralWidget(ground);
    display();
}

void CustomScreen::addmenus()
{
    QMenu* file = menuBar()->addMenu(QStringLiteral("file"));
    file->menuAction()->setObjectName(QStringLiteral("mnufile"));
    for (const MenuRow& row : fileitems)
        additem(file, row, this);
    QMenu* help = menuBar()->addMenu(QStringLiteral("Help"));
    help->menuAction()->setObjectName(QStringLiteral("mnuHelptitle"));
    for (const MenuRow& row : helpitems)
        additem(help, row, this);
    ui::addmenukeys(*menuBar());
    fitfont(menuBar(), ui::Type::text);
    fitfont(file, ui::Type::text);
    fitfont(help, ui::Type::text);
}

ui::Button* CustomScreen::button(const char* name, const char* text, const char* tip, const Handler& handler)
{
    auto* made = new ui::Button(look, QString::fromLatin1(text), this);
    made->setObjectName(QString::fromLatin1(name));
    made->setToolTip(QString::fromLatin1(tip));
    made->setAccessibleName(QString::fromLatin1(text));
    connect(made, &QAbstractButton::clicked, this, handler);
    fit([made] { made->updateGeometry(); });
    return made;
}

ui::Readout* CustomScreen::readout(const char* name, ui::Type type, ui::Readout::Frame frame, QSize atone)
{
    auto* made = new ui::Readout(look, type, frame, Qt::AlignCenter, this);
    made->setObjectName(QString::fromLatin1(name));
    fitsize(made, atone);
    return made;
}

void CustomScreen::display()
{
    followzoom();
    txtnum->settext(ui::totext(form.txtnum()));
    txtinfo->settext(ui::totext(form.txtinfo));
    txtname->display(ui::totext(form.txtname), form.guarded());
    chkleft->setChecked(form.chkleft);
    Option2.at(static_cast<std::size_t>(form.Option2))->setChecked(true);
    displaynotes();
}

void CustomScreen::displaynotes()
{
    for (std::size_t box = 0; box < stringcount; ++box) {
        const QString note = ui::totext(form.txtnote.at(box));
        txtnote.at(box)->setVisible(form.boxvisible(box));
        txtnote.at(box)->setText(note);
        txtnote.at(box)->setAccessibleName(
            QStringLiteral("note of string %1, %2").arg(box + 1).arg(note.isEmpty() ? QStringLiteral("empty") : note));
    }
    selectednote->settext(ui::totext(form.txtnote[selectionbox]));
}

} // namespace custom
