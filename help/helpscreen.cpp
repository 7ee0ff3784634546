// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/helpscreen.h"

#include "help/findbox.h"
#include "help/helpdocument.h"
#include "help/topics.h"
#include "ui/text.h"

#include <QAbstractTextDocumentLayout>
#include <QBoxLayout>
#include <QPointer>
#include <QScrollBar>
#include <QShowEvent>
#include <QTextBlock>
#include <QTextDocument>

#include <array>
#include <utility>

namespace help {
namespace {

// Pixels at zoom 1.
constexpr QSize comfortable(760, 620);
constexpr QSize smallestindex(270, 28);
constexpr QSize smallestfind(180, 28);
constexpr int aboveheading = 12;
constexpr int documentedge = 20;

} // namespace

HelpScreen::HelpScreen(const ui::Look& mainlook, std::vector<Paragraph> paragraphs, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window),
      document(std::move(paragraphs)),
      cbo1(new ui::SelectorBox(look, this)),
      findtext(new FindBox(this)),
      helptext(new QTextEdit(this))
{
    setObjectName(QStringLiteral("helpinfo"));
    setWindowTitle(QStringLiteral("Help, membank, vexlor_2000"));
    initvar();
    dressparts();
    setcontent(arrange());
    dataload();
    connect(cbo1, &ui::SelectorBox::picked, this, &HelpScreen::cbo1_Click);
    connect(findtext, &QLineEdit::returnPressed, this, &HelpScreen::findcommand);
}

std::optional<QSize> HelpScreen::openingsize() const
{
    return comfortable * look.zoom();
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

void HelpScreen::loaddata()
{
    const Match selected{static_cast<std::size_t>(helptext->textCursor().selectionStart()),
                         static_cast<std::size_t>(helptext->textCursor().selectionEnd())};
    const QPointer<QTextDocument> before = helptext->document(); // the area deletes only that which it came with
    auto* filled = new QTextDocument(helptext);
    filled->setLayoutEnabled(false);
    filled->setUndoRedoEnabled(false);
    filled->setDocumentMargin(documentedge * look.zoom());
    filldocument(*filled, document, look);
    helptext->setDocument(filled);
    filled->setLayoutEnabled(true);
    delete before;
    select(selected);
}

/// Where the line begins that is the first to be seen, if only in part.
int HelpScreen::attop() const
{
    const QAbstractTextDocumentLayout* layout = helptext->document()->documentLayout();
    const int top = helptext->verticalScrollBar()->value();
    QTextBlock block = helptext->document()->begin();
    while (block.next().isValid() && layout->blockBoundingRect(block).bottom() <= top)
        block = block.next();
    const double within = top - layout->blockBoundingRect(block).top();
    for (int i = 0; i < block.layout()->lineCount(); ++i)
        if (const QTextLine line = block.layout()->lineAt(i); line.rect().bottom() > within)
            return block.position() + line.textStart();
    return block.position();
}

// The document bears its fonts and colours in itself, so another look takes another filling. The area has its size by
// now: lines are broken once.
void HelpScreen::dressed()
{
    const std::optional<int> position = std::exchange(viewed, std::nullopt);
    if (filledtheme == &look.theme() && filledzoom == look.zoom())
        return;
    centralWidget()->layout()->activate(); // on a maximized screen nothing else has changed the area yet
    loaddata();
    if (!filledtheme)
        search.loaddata(helptext->toPlainText().toStdU16String());
    filledtheme = &look.theme();
    filledzoom = look.zoom();
    if (position)
        scrollto(*position, 0);
}

void HelpScreen::dressparts()
{
    cbo1->setObjectName(QStringLiteral("cbo1"));
    cbo1->setToolTip(QStringLiteral("index of major categories"));
    cbo1->setAccessibleName(QStringLiteral("Index"));
    findtext->setObjectName(QStringLiteral("findtext"));
    findtext->setToolTip(QStringLiteral("enter text to find"));
    findtext->setAccessibleName(QStringLiteral("Text to find"));
    fitbox(findtext);
    helptext->setObjectName(QStringLiteral("helptext"));
    helptext->setAccessibleName(QStringLiteral("Help"));
    helptext->setReadOnly(true);
    helptext->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // its coming would break all lines again
    helptext->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fitarea(helptext);
    fit([this] { // before any size changes
        if (filledtheme && !viewed)
            viewed = attop();
        cbo1->setMinimumSize(smallestindex * look.zoom());
        findtext->setMinimumWidth(scaled(smallestfind.width()));
    });
}

QLayout* HelpScreen::arrange()
{
    auto* findbut = button("findbut", "Find", "press to search for text below", [this] { findcommand(); });
    auto* cmdpic = button("cmdpic", "view picture", "", [this] { Q_EMIT cmdpic_Click(); });
    auto* returnbut = button("returnbut", "RETURN", "return to main program", [this] { endform(); });
    auto* grid = new QGridLayout;
    grid->addWidget(caption("index", "Index", ui::Type::label), 0, 0, Qt::AlignBottom);
    auto* find = new QHBoxLayout;
    fitroom(find, 0, gap);
    find->addWidget(findbut);
    find->addWidget(caption("entrybelow", "entry below", ui::Type::label));
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
    return grid;
}

void HelpScreen::cbo1_Click(int item)
{
    const QString title = titles.value(item);
    cbo1->display(titles, item, title);
    if (const auto match = search.findtopic(itemsearch(title.toStdString()))) {
        select(*match);
        scrollto(static_cast<int>(match->begin), scaled(aboveheading)); // what it heads can be read
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

void HelpScreen::scrollto(int position, int roomabove)
{
    QTextCursor reached = helptext->textCursor();
    reached.setPosition(position);
    QScrollBar* bar = helptext->verticalScrollBar();
    bar->setValue(bar->value() + helptext->cursorRect(reached).top() - roomabove);
}

void HelpScreen::showEvent(QShowEvent* event)
{
    Companion::showEvent(event);
    if (!event->spontaneous())
        findtext->setFocus();
}

} // namespace help
