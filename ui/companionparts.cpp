// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// What stands on a companion, made in its look.

#include "ui/companion.h"
#include "ui/paint.h"
#include "ui/partstyle.h"

#include <QAbstractScrollArea>
#include <QMenuBar>
#include <QPainter>

#include <utility>

namespace ui {
namespace {

// Pixels at zoom 1.
constexpr int cardedge = 10;
constexpr int boxheight = 28; ///< of a button too

} // namespace

void Card::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintbox(painter, look, rect(), look.theme().card, look.theme().hairline, 7);
}

void Companion::fitfont(QWidget* control, Type type)
{
    fit([this, control, type] { control->setFont(look.font(type)); });
}

void Companion::fitindicator(QAbstractButton* control)
{
    fitfont(control, Type::text);
    control->setStyle(partstyle);
}

void Companion::fitsize(QWidget* control, QSize atone)
{
    fit([this, control, atone] {
        if (atone.width() >= 0)
            control->setFixedWidth(scaled(atone.width()));
        if (atone.height() >= 0)
            control->setFixedHeight(scaled(atone.height()));
    });
}

void Companion::fitroom(QLayout* layout, int marginatone, int gapatone)
{
    fit([this, layout, marginatone, gapatone] {
        const int margin = scaled(marginatone);
        layout->setContentsMargins(margin, margin, margin, margin);
        layout->setSpacing(scaled(gapatone));
    });
}

void Companion::fitbox(QLineEdit* box)
{
    box->setStyle(partstyle);
    fitfont(box, Type::text);
    fitsize(box, {-1, boxheight});
    fit([this, box] { box->setPalette(look.palettefor(look.theme().card)); });
}

void Companion::fitarea(QAbstractScrollArea* area)
{
    partstyle->dress(*area);
    fit([this, area] { area->setPalette(look.palettefor(look.theme().card)); });
}

QLabel* Companion::caption(const char* name, const char* text, Type type, int widthatone)
{
    auto* label = new QLabel(QString::fromUtf8(text), this);
    label->setObjectName(QString::fromUtf8(name));
    label->setTextFormat(Qt::PlainText);
    fitfont(label, type);
    if (type == Type::label || type == Type::heading)
        fit([this, label] {
            QPalette quiet = label->palette();
            quiet.setColor(QPalette::WindowText, look.theme().label);
            label->setPalette(quiet);
        });
    if (widthatone == 0)
        return label;
    label->setWordWrap(true);
    fit([this, label, widthatone] {
        const int width = scaled(widthatone);
        label->setMinimumSize(0, 0); // a height for a width is never below it
        label->setFixedSize(width, label->heightForWidth(width));
    });
    return label;
}

Button* Companion::button(const char* name, const char* text, const char* tip, Handler handler)
{
    auto* made = new Button(look, QString::fromLatin1(text), this);
    made->setObjectName(QString::fromLatin1(name));
    made->setToolTip(QString::fromLatin1(tip));
    made->setAccessibleName(made->text().remove(QLatin1Char('&')));
    connect(made, &QAbstractButton::clicked, this, std::move(handler));
    return made;
}

Card* Companion::card(QLayout* content)
{
    auto* made = new Card(look, this);
    made->setLayout(content);
    fitroom(content, cardedge, gap);
    fit([this, made] { made->setPalette(look.palettefor(look.theme().card)); });
    return made;
}

void Companion::setcontent(QLayout* content, int gapatone)
{
    auto* ground = new QWidget(this);
    ground->setLayout(content);
    fitroom(content, edge, gapatone);
    setCentralWidget(ground);
}

/// The menus stand on a card of their own, as on the main screen.
QMenu* Companion::addmenu(const char* name, const char* text)
{
    if (menuBar()->actions().isEmpty()) {
        menuBar()->setStyle(partstyle);
        fitfont(menuBar(), Type::text);
        fit([this] { menuBar()->setPalette(look.palettefor(look.theme().card)); });
    }
    QMenu* menu = menuBar()->addMenu(QString::fromLatin1(text));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    fitfont(menu, Type::text);
    fit([this, menu] { menu->setPalette(look.palettefor(look.theme().card)); });
    return menu;
}

QAction* Companion::additem(QMenu* menu, const char* name, const char* text, Handler handler, QKeyCombination keys)
{
    QAction* action = menu->addAction(QString::fromLatin1(text));
    action->setObjectName(QString::fromLatin1(name));
    if (keys != QKeyCombination())
        action->setShortcut(keys);
    connect(action, &QAction::triggered, this, std::move(handler));
    return action;
}

} // namespace ui
