// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/helpscreen.h"

#include "help/findbox.h"
#include "help/helpdocument.h"
#include "help/topics.h"
#include "ui/button.h"
#include "ui/text.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace help {
namespace {

constexpr QSize comfortable(760, 620); ///< at zoom 1
constexpr double share = 0.85;         ///< of the display, at most
constexpr int narrowest = 680;         ///< of what stands above the text, in pixels at zoom 1

ui::Button* button(const ui::Look& look, const char* name, const char* caption, const char* tip, QWidget* screen)
{
    auto* made = new ui::Button(look, QString::fromLatin1(caption), screen);
    made->setObjectName(QString::fromLatin1(name));
    made->setToolTip(QString::fromLatin1(tip));
    made->setAutoDefault(false);
    return made;
}

QLabel* label(const ui::Look& look, const char* name, const char* text, QWidget* screen)
{
    auto* made = new QLabel(QString::fromLatin1(text), screen);
    made->setObjectName(QString::fromLatin1(name));
    made->setFont(look.font(ui::Type::label));
    return made;
}

/// No larger than the display has room for.
ui::Look within(ui::Look look, const QSize& display)
{
    look.setzoom(std::min(look.zoom(), display.width() * share / narrowest));
    return look;
}

} // namespace

HelpScreen::HelpScreen(ui::Look shown, const std::vector<Paragraph>& paragraphs, QWidget* owner)
    : QDialog(owner, Qt::Window),
      look(within(std::move(shown), QGuiApplication::primaryScreen()->availableSize())),
      cbo1(new ui::SelectorBox(look, this)),
      findtext(new FindBox(this)),
      helptext(new QTextEdit(this))
{
    setObjectName(QStringLiteral("helpinfo"));
    setWindowTitle(QStringLiteral("Help, membank, vexlor_2000"));
    setPalette(look.palettefor(look.theme().surface));
    initvar();
    dress();
    arrange();
    dataload();
    loaddata(paragraphs);
    connect(cbo1, &ui::SelectorBox::picked, this, &HelpScreen::cbo1_Click);
    connect(findtext, &QLineEdit::returnPressed, this, &HelpScreen::findcommand);
}

void HelpScreen::initvar()
{
    for (const Topic& topic : topics)
        titles.append(ui::totext(topic.title));
}

void HelpScreen::dataload()
{
    cbo1->display(titles, -1, QStringLiteral("Use Down Arrow at Right - > "));
}

void HelpScreen::loaddata(const std::vector<Paragraph>& paragraphs)
{
    helptext->setUndoRedoEnabled(false);
    filldocument(*helptext->document(), paragraphs, look);
    helptext->moveCursor(QTextCursor::Start);
    search.loaddata(helptext->toPlainText().toStdU16String());
}

void HelpScreen::dress()
{
    const QSize smallest(qRound(180 * look.zoom()), qRound(26 * look.zoom()));
    cbo1->setObjectName(QStringLiteral("cbo1"));
    cbo1->setToolTip(QStringLiteral("index of major categories"));
    cbo1->setAccessibleName(QStringLiteral("Index"));
    cbo1->setMinimumSize(smallest * 1.5);
    cbo1->setMinimumHeight(smallest.height());
    findtext->setObjectName(QStringLiteral("findtext"));
    findtext->setToolTip(QStringLiteral("enter text to find"));
    findtext->setAccessibleName(QStringLiteral("Text to find"));
    findtext->setFont(look.font(ui::Type::text));
    findtext->setPalette(look.palettefor(look.theme().card));
    findtext->setMinimumSize(smallest);
    helptext->setObjectName(QStringLiteral("helptext"));
    helptext->setAccessibleName(QStringLiteral("Help"));
    helptext->setReadOnly(true);
    helptext->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    helptext->setPalette(look.palettefor(look.theme().card));
    helptext->document()->setDocumentMargin(20 * look.zoom());
}

void HelpScreen::arrange()
{
    auto* findbut = button(look, "findbut", "Find", "press to search for text below", this);
    auto* cmdpic = button(look, "cmdpic", "view picture", "", this);
    auto* returnbut = button(look, "returnbut", "RETURN", "return to main program", this);
    connect(findbut, &QAbstractButton::clicked, this, &HelpScreen::findcommand);
    connect(cmdpic, &QAbstractButton::clicked, this, &HelpScreen::cmdpic_Click);
    connect(returnbut, &QAbstractButton::clicked, this, &HelpScreen::endform);

    auto* grid = new QGridLayout(this);
    const int room = qRound(12 * look.zoom());
    grid->setContentsMargins(room, room, room, room);
    grid->setSpacing(qRound(8 * look.zoom()));
    grid->addWidget(label(look, "index", "Index", this), 0, 0, Qt::AlignBottom);
    auto* find = new QHBoxLayout;
    find->addWidget(findbut);
    find->addWidget(label(look, "entrybelow", "entry below", this));
    find->addStretch(1);
    grid->addLayout(find, 0, 1);
    grid->addWidget(cbo1, 1, 0);
    grid->addWidget(findtext, 1, 1);
    grid->addWidget(cmdpic, 1, 3);
    grid->addWidget(returnbut, 1, 4);
    grid->addWidget(helptext, 2, 0, 1, 5);
    grid->setColumnStretch(2, 1);

    const std::array<QWidget*, 6> order{cbo1, findtext, findbut, helptext, cmdpic, returnbut};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

void HelpScreen::cbo1_Click(int item)
{
    const QString title = titles.value(item);
    cbo1->display(titles, item, title);
    if (const auto match = search.findtopic(itemsearch(title.toStdString()))) {
        select(*match);
        showatop();
    }
}

void HelpScreen::findcommand()
{
    if (const auto match = search.findcommand(findtext->text().toStdU16String()))
        select(*match);
}

void HelpScreen::select(const Match& match)
{
    QTextCursor cursor(helptext->document());
    cursor.setPosition(static_cast<int>(match.begin));
    cursor.setPosition(static_cast<int>(match.end), QTextCursor::KeepAnchor);
    helptext->setTextCursor(cursor);
    helptext->ensureCursorVisible();
}

/// Brings the selected heading to the upper edge, so that what it heads can be read.
void HelpScreen::showatop()
{
    QTextCursor heading = helptext->textCursor();
    heading.setPosition(heading.selectionStart());
    QScrollBar* bar = helptext->verticalScrollBar();
    bar->setValue(bar->value() + helptext->cursorRect(heading).top() - qRound(12 * look.zoom()));
}

void HelpScreen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return; // back from the desktop's edge, where it stood
    const QRect display = screen()->availableGeometry();
    resize((comfortable * look.zoom()).boundedTo(display.size() * share));
    move(display.center() - rect().center());
    findtext->setFocus();
}

} // namespace help
